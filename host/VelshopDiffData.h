#ifndef VELSHOPDIFFDATA_H
#define VELSHOPDIFFDATA_H

#include <QJsonObject>

class VelShopDifference;

/// The difference of two shops as JSON; amounts are cents.
QJsonObject differenceData(const VelShopDifference& theDifference);

#endif
