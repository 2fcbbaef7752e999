#ifndef VELKEYACCOUNTFILETIMESTAMPMANAGER_H
#define VELKEYACCOUNTFILETIMESTAMPMANAGER_H

#include "sibling/VelSiblingExport.h"

#include <QDateTime>

/// When the files of the current key account were made.
class VELSIBLING_EXPORT VelKeyAccountFileTimeStampManager
{
public:
    /// Built on first use, lives to the end of the process.
    static VelKeyAccountFileTimeStampManager* instance();

    /// Of the price-list file at hand; not valid when none is known.
    QDateTime pricelistTimeStamp() const;

    /// For the host.
    void setPricelistTimeStamp(const QDateTime& theTimeStamp);

private:
    VelKeyAccountFileTimeStampManager() = default;

    QDateTime myPricelistTimeStamp;
};

#endif
