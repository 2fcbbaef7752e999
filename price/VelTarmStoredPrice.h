#ifndef VELTARMSTOREDPRICE_H
#define VELTARMSTOREDPRICE_H

#include "frame/VelOrderSource.h"
#include "price/VelTarmPriceValue.h"

#include <tuple>

/// Where a price stands in the store of an article: a price key's content, without the sharing.
struct VelTarmPricePlace
{
    VelOrderSource mySource;
    VelDiscountModel myModel;
    int myLevel;

    /// Sorts the levels of one order source and model side by side.
    bool operator<(const VelTarmPricePlace& theOther) const
    {
        return std::make_tuple(mySource.inputSource(), mySource.deliveryType(), myModel, myLevel) <
               std::make_tuple(theOther.mySource.inputSource(), theOther.mySource.deliveryType(), theOther.myModel,
                               theOther.myLevel);
    }
};

/// One order source's copy of a price entry. Model and level are those of the value itself.
struct VelTarmStoredPrice
{
    VelOrderSource mySource;
    VelTarmPriceValue myValue;

    VelTarmPricePlace place() const
    {
        return {mySource, myValue.discountLimit().discountModel(), myValue.discountLevel()};
    }
};

Q_DECLARE_TYPEINFO(VelTarmStoredPrice, Q_MOVABLE_TYPE);

#endif
