#ifndef VELTARMSTOREDPRICE_H
#define VELTARMSTOREDPRICE_H

#include "frame/VelOrderSource.h"
#include "price/VelTarmPriceValue.h"

/// Where a price stands in the store of an article: a price key's content, without the sharing.
struct VelTarmPricePlace
{
    VelOrderSource mySource;
    VelDiscountModel myModel;
    int myLevel;
};

/// Sorts the levels of one model side by side, as one number.
inline qint64 rankOf(VelDiscountModel theModel, int theLevel)
{
    return static_cast<qint64>(theModel) * (Q_INT64_C(1) << 32) + theLevel;
}

/// One order source's copy of a price entry. Model and level are those of the value itself.
struct VelTarmStoredPrice
{
    VelOrderSource mySource;
    VelTarmPriceValue myValue;

    qint64 rank() const { return rankOf(myValue.discountModel(), myValue.discountLevel()); }
    VelTarmPricePlace place() const { return {mySource, myValue.discountModel(), myValue.discountLevel()}; }

    bool operator<(const VelTarmStoredPrice& theOther) const
    {
        return mySource != theOther.mySource ? mySource < theOther.mySource : rank() < theOther.rank();
    }
};

Q_DECLARE_TYPEINFO(VelTarmStoredPrice, Q_MOVABLE_TYPE);

#endif
