#ifndef VELSHOPBILLMONEY_H
#define VELSHOPBILLMONEY_H

#include <QString>

/// The two currencies of a printed bill.
namespace VelshopBillMoney {

/// Whether the shop has a secondary currency that money can be shown in.
bool hasSecondary();

/// Whether an int holds the amount in both currencies.
bool fits(qint64 theAmount);

/// The ISO code.
QString code(bool theSecondary);

/// Whole cents of the primary currency, shown in one of the two.
QString text(int theAmount, bool theSecondary);

/// The same for a page, with the symbol that the currency has there. A symbol that is a named character is numbered: a
/// reader of XML doesn't know the names.
QString html(int theAmount, bool theSecondary);

} // namespace VelshopBillMoney

#endif
