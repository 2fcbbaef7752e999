#ifndef VELSHOPBILLDATA_H
#define VELSHOPBILLDATA_H

#include <QJsonObject>

class VelTarmOrder;
struct VelshopBillSheet;

/// The bills of an order as data, all amounts in cents of the primary currency; those of an order that can't be placed
/// are null.
QJsonObject billData(const VelTarmOrder& theOrder, const VelshopBillSheet& theSheet);

#endif
