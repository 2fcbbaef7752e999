#ifndef VELSHOPBILLTEXT_H
#define VELSHOPBILLTEXT_H

struct VelshopBillSheet;
class QTextStream;

/// Prints the bills of an order and its totals.
namespace VelshopBillText {

void print(const VelshopBillSheet& theSheet, QTextStream& theOutput);

} // namespace VelshopBillText

#endif
