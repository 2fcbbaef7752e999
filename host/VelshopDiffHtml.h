#ifndef VELSHOPDIFFHTML_H
#define VELSHOPDIFFHTML_H

#include <QByteArray>
#include <QString>

class VelShopDifference;
class VelshopDiffWords;

/// The page on the difference of two shops, of which the names are told.
QByteArray diffPage(const VelShopDifference& theDifference, const VelshopDiffWords& theWords, const QString& theOld,
                    const QString& theNew);

#endif
