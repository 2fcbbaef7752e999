#include "sibling/VelKeyAccountFileTimeStampManager.h"

VelKeyAccountFileTimeStampManager* VelKeyAccountFileTimeStampManager::instance()
{
    static VelKeyAccountFileTimeStampManager* const ourInstance = new VelKeyAccountFileTimeStampManager;
    return ourInstance;
}

QDateTime VelKeyAccountFileTimeStampManager::pricelistTimeStamp() const
{
    return myPricelistTimeStamp;
}

void VelKeyAccountFileTimeStampManager::setPricelistTimeStamp(const QDateTime& theTimeStamp)
{
    myPricelistTimeStamp = theTimeStamp;
}
