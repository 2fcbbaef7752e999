#ifndef VELTRANSFERBYPRODUCTS_H
#define VELTRANSFERBYPRODUCTS_H

#include "frame/VelTarmExport.h"

class VelOrderStatistic;
class VelProductAbstract;
class VelTarmPriceKey;

/**
 * What an order pays for shipping under TRANSFER_MODEL_2, where the products themselves say it: the highest base charge
 * once, and for all pieces but one their unit charge. A piece of the leading product pays none. Whole cents, wrapping.
 */
class VELTARM_EXPORT VelTransferByProducts
{
public:
    /// Of the base entries by the key's order source; null stands for an empty order.
    VelTransferByProducts(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic);

    /// The first product with the highest base charge, null in an empty order. Borrowed.
    const VelProductAbstract* leader() const { return myLeader; }

    /// The base charge in cents, never below 0.
    int base() const { return myBase; }
    /// The charge of all other pieces in cents.
    int units() const { return myUnits; }
    /// base() and units() together, in cents.
    int total() const;

private:
    const VelProductAbstract* myLeader = nullptr;
    int myBase = 0;
    int myUnits = 0;
};

#endif
