#ifndef VELSHOPBILL_H
#define VELSHOPBILL_H

#include <QString>

struct VelshopArguments;
class QTextStream;

/// Prints the bills of a cart, and writes the page and the description of discounts where they are asked for; the
/// latter only for an order that can be placed. The exit code; for any but 0 the error in one line.
int billCart(const VelshopArguments& theArguments, QTextStream& theOutput, QString& theError);

#endif
