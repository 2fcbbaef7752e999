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

    /// Sorts the levels of one order source and model side by side.
    bool operator<(const VelTarmPricePlace& theOther) const
    {
        if (mySource != theOther.mySource)
            return mySource < theOther.mySource;
        if (myModel != theOther.myModel)
            return myModel < theOther.myModel;
        return myLevel < theOther.myLevel;
    }
};

/// One order source's copy of a price entry. Model and level are those of the value itself.
struct VelTarmStoredPrice
{
    VelOrderSource mySource;
    VelTarmPriceValue myValue;

    VelTarmPricePlace place() const { return {mySource, myValue.discountModel(), myValue.discountLevel()}; }
};

Q_DECLARE_TYPEINFO(VelTarmStoredPrice, Q_MOVABLE_TYPE);

#endif
