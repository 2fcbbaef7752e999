#ifndef VELSHOPPRICE_H
#define VELSHOPPRICE_H

#include <QString>

struct VelshopArguments;
class QTextStream;

/// Prints what so many pieces of an article cost. The exit code; for any but 0 the error in one line.
int priceArticle(const VelshopArguments& theArguments, QTextStream& theOutput, QString& theError);

#endif
