#ifndef VELSHOPLIST_H
#define VELSHOPLIST_H

#include <QString>

struct VelshopArguments;
class QTextStream;

/// Prints the articles of the price list, sorted by shipping group and then as the price list has them. The exit code;
/// for any but 0 the error in one line.
int listArticles(const VelshopArguments& theArguments, QTextStream& theOutput, QString& theError);

#endif
