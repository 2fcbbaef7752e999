#include "price/VelDiscountLimitCache.h"

#include "frame/VelGuardedInstance.h"
#include "frame/VelQuickSort.h"
#include "product/VelProductRegistry.h"

VelDiscountLimitCache::VelDiscountLimitCache()
{
    connect(VelProductRegistry::instance(), SIGNAL(priceListUpdated()), SLOT(clear()));
}

VelDiscountLimitCache* VelDiscountLimitCache::instance()
{
    static QMutex myInstanceMutex;
    static QAtomicPointer<VelDiscountLimitCache> myInstance;
    return guardedInstance(myInstance, myInstanceMutex, [] { return new VelDiscountLimitCache; });
}

QList<VelDiscountLimit> VelDiscountLimitCache::discountLimit(int theShippingGroupId, const VelTarmPriceKey& theKey)
{
    const QPair<int, VelTarmPriceKey> pair(theShippingGroupId, theKey);
    auto found = myLimits.constFind(pair);
    if (found == myLimits.constEnd())
        found = myLimits.insert(pair, calculateList(theShippingGroupId, theKey));
    return *found;
}

QList<VelDiscountLimit> VelDiscountLimitCache::calculateList(int theShippingGroupId, const VelTarmPriceKey& theKey)
{
    QList<VelDiscountLimit> limits =
        VelProductRegistry::instance()->discountLimits(theShippingGroupId, theKey).values();
    quickSort(limits.begin(), limits.end(), compareDiscountLimit);
    return limits;
}

bool VelDiscountLimitCache::compareDiscountLimit(const VelDiscountLimit& theLeft, const VelDiscountLimit& theRight)
{
    return theLeft < theRight;
}

void VelDiscountLimitCache::clear()
{
    myLimits.clear();
}
