#ifndef VELTARMPRICEKEY_H
#define VELTARMPRICEKEY_H

#include "frame/VelOrderSource.h"
#include "frame/VelTarmExport.h"
#include "price/VelTarmPriceKeyImpl.h"

#include <QDebug>
#include <QSharedDataPointer>

/**
 * What a price entry is found by: order source, discount level and discount model. Also a pattern, see supercedes().
 *
 * A value of one pointer: a copy shares the part behind it, a setter detaches first when the part is shared. The hash
 * is cached on first use without a lock.
 */
class VELTARM_EXPORT VelTarmPriceKey
{
public:
    /// The parts as they are given.
    VelTarmPriceKey(const VelOrderSource& theOrderSource, int theDiscountLevel, VelDiscountModel theDiscountModel)
        : myImpl(new VelTarmPriceKeyImpl(theOrderSource, theDiscountLevel, theDiscountModel))
    {
    }
    VelTarmPriceKey(const VelTarmPriceKey&) = default;

    /// The order source of the key and the given model at level 0: the level is not taken over, which makes this the
    /// constructor of a base price's key.
    VelTarmPriceKey(const VelTarmPriceKey& theKey, VelDiscountModel theDiscountModel)
        : VelTarmPriceKey(theKey.orderSource(), 0, theDiscountModel)
    {
    }

    VelTarmPriceKey& operator=(const VelTarmPriceKey&) = default;

    /// Another level from 0 up; -1 is wild in a pattern.
    void setDiscountLevel(int theDiscountLevel)
    {
        myImpl->myDiscountLevel = theDiscountLevel;
        myImpl->myHashValue = 0;
    }

    /// Another model; DISCOUNT_MODEL_UNDEFINED is wild in a pattern.
    void setDiscountModel(VelDiscountModel theDiscountModel)
    {
        myImpl->myDiscountModel = theDiscountModel;
        myImpl->myHashValue = 0;
    }

    /// The order source.
    VelOrderSource orderSource() const { return myImpl->myOrderSource; }
    /// The input source of orderSource().
    VelInputSource inputSource() const { return myImpl->myOrderSource.inputSource(); }
    /// The delivery type of orderSource().
    VelDeliveryType deliveryType() const { return myImpl->myOrderSource.deliveryType(); }
    /// The discount level: 0 for the base price, -1 for any in a pattern.
    int discountLevel() const { return myImpl->myDiscountLevel; }
    /// The discount model: DISCOUNT_MODEL_UNDEFINED for any in a pattern.
    VelDiscountModel discountModel() const { return myImpl->myDiscountModel; }

    /// input source x 1000000 + delivery type x 10000 + level x 100 + model, wrapping; 1 in place of 0. Different
    /// keys may hash alike.
    unsigned hashValue() const;

    /// By the parts, nothing being wild.
    bool operator==(const VelTarmPriceKey& theOther) const;
    bool operator!=(const VelTarmPriceKey& theOther) const { return !(*this == theOther); }

    /// By hash value, as unsigned numbers: a stable order, in which different keys of one hash are equivalent.
    bool operator<(const VelTarmPriceKey& theOther) const { return hashValue() < theOther.hashValue(); }

    /// Whether this key, read as a pattern, covers the other one. Wild are INPUT_SOURCE_UNKNOWN,
    /// DELIVERY_TYPE_UNKNOWN, the level -1 and DISCOUNT_MODEL_UNDEFINED. The values -1 of INPUT_SOURCE_ANY and
    /// DELIVERY_TYPE_ANY are not wild here: they are spread out when a document is read.
    bool supercedes(const VelTarmPriceKey& theOther) const
    {
        return supercedes(theOther.orderSource(), theOther.discountLevel(), theOther.discountModel());
    }

    /// The same for a key that is given by its parts.
    bool supercedes(const VelOrderSource& theOrderSource, int theDiscountLevel, VelDiscountModel theModel) const;

private:
    QSharedDataPointer<VelTarmPriceKeyImpl> myImpl;
};

inline uint qHash(const VelTarmPriceKey& theKey, uint theSeed = 0)
{
    return theKey.hashValue() ^ theSeed;
}

VELTARM_EXPORT QDebug operator<<(QDebug theDebug, const VelTarmPriceKey& theKey);

#endif
