#ifndef VELORDERSTATISTIC_H
#define VELORDERSTATISTIC_H

#include "frame/VelTarmExport.h"

#include <QList>
#include <QMap>

class VelProductAbstract;
class VelTarmPriceKey;

/// A cart as pricing needs it: how many of each product. Product pointers are borrowed. Every walk goes in the order
/// of the pointers. A value; a copy shares the map until it is written to.
class VELTARM_EXPORT VelOrderStatistic
{
public:
    /// Whether no product was ever entered; one with a count of 0 is an item, too.
    bool isEmpty() const { return myItems.isEmpty(); }

    /// The count of the product, the default when the cart doesn't hold it.
    int value(VelProductAbstract* theProduct, int theDefaultValue) const
    {
        return myItems.value(theProduct, theDefaultValue);
    }

    /// What the cart holds, each product with its count, in the order of the pointers.
    QMap<VelProductAbstract*, int> items() const { return myItems; }
    /// The products that the cart holds, in the order of the pointers.
    QList<VelProductAbstract*> products() const { return myItems.keys(); }

    /// Adds to the count; enters an absent product, also with a sum of 0 or below.
    void add(VelProductAbstract* theProduct, int theCount);

    /// Sets the count, whatever it was.
    void insert(VelProductAbstract* theProduct, int theCount) { myItems.insert(theProduct, theCount); }

    /// Adds all of the other cart, each count times the factor.
    void add(const VelOrderStatistic& theOther, int theFactor);

    /// Cents: each count times the price of one piece, without any quantity discount. A product without a price
    /// contributes its -1 times its count.
    int totalPrice(const VelTarmPriceKey& theKey) const;

    /// The product with the highest base transfer price above 0, the first in order of equal ones; null without one.
    VelProductAbstract* productWithHighestBaseTransferPrice(const VelTarmPriceKey& theKey) const;

private:
    QMap<VelProductAbstract*, int> myItems;
};

#endif
