#ifndef VELSHOPUNIT_H
#define VELSHOPUNIT_H

#include <QString>

struct VelshopArguments;
class QTextStream;

/// Prints the unit price of a composed book or calendar, part by part, under the shop's starting choice. The exit code;
/// for any but 0 the error in one line.
int priceUnit(const VelshopArguments& theArguments, QTextStream& theOutput, QString& theError);

#endif
