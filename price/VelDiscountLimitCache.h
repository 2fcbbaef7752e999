#ifndef VELDISCOUNTLIMITCACHE_H
#define VELDISCOUNTLIMITCACHE_H

#include "frame/VelTarmExport.h"
#include "price/VelDiscountLimit.h"
#include "price/VelTarmPriceKey.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>

/// Remembers the sorted discount bands of shipping groups until the price list changes. For the main thread alone, like
/// the registry that it asks.
class VELTARM_EXPORT VelDiscountLimitCache : public QObject
{
    Q_OBJECT

public:
    /// Built on the first call, which is guarded and brings up the registry; never deleted.
    static VelDiscountLimitCache* instance();

    /// What calculateList answered when it was first asked for the group and the key. An empty list is kept, too.
    QList<VelDiscountLimit> discountLimit(int theShippingGroupId, const VelTarmPriceKey& theKey);

    /// The registry's present answer, sorted by compareDiscountLimit. Walks all products.
    QList<VelDiscountLimit> calculateList(int theShippingGroupId, const VelTarmPriceKey& theKey);

    /// Less by model, lower limit, upper limit. Limits that differ in level or package flag alone stand in any order.
    static bool compareDiscountLimit(const VelDiscountLimit& theLeft, const VelDiscountLimit& theRight);

public slots:
    /// Forgets everything; connected to the registry's priceListUpdated().
    void clear();

private:
    VelDiscountLimitCache();

    QMap<QPair<int, VelTarmPriceKey>, QList<VelDiscountLimit>> myLimits;
};

#endif
