#ifndef VELSHOPBILLHTML_H
#define VELSHOPBILLHTML_H

#include <QByteArray>
#include <QString>

class VelTarmOrder;
struct VelshopBillSheet;

/// What stands on the page beside the order.
struct VelshopBillPageHead
{
    QString myShop;     ///< the shop's name, empty where it isn't known
    QString myLanguage; ///< "de" or "en", that of the installed texts
};

/// The bills of an order as a page for the customer, to be read in a browser and to be printed: well-formed, without
/// scripts or anything from elsewhere.
QByteArray billPage(const VelTarmOrder& theOrder, const VelshopBillSheet& theSheet, const VelshopBillPageHead& theHead);

#endif
