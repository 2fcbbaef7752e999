#ifndef VELSHOPFEEWORDS_H
#define VELSHOPFEEWORDS_H

#include "insight/VelShopFees.h"

#include <QJsonValue>
#include <QString>

/// The order desk's words for fees.
namespace VelshopFeeWords {

/// As data: "transfer", "payment" or "express".
QString kind(VelShopFees::Kind theKind);

/// As "shipping", "payment 3" or "express 1".
QString name(const VelShopFees::Fee& theFee);

/// The type of an express fee as a cart names it, "0", "1" or "2"; null for any other fee.
QJsonValue expressData(const VelShopFees::Fee& theFee);

} // namespace VelshopFeeWords

#endif
