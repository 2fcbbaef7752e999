#ifndef FLATRULES_H
#define FLATRULES_H

#include "frame/VelEnumerations.h"

#include <cstdint>

/// What is in a cart: an article by its number in the price list.
struct CartItem
{
    int myArticle;
    int myCount;
};

/// A line of a bill.
struct FlatLine
{
    int myArticle;
    int myCountItems;
    VelDiscountModel myModel; ///< DISCOUNT_MODEL_UNDEFINED marks an article without a price
    int myLevel;
    int myUnitPrice;
    int myUnitCount;
    int myItemsPerUnit;
    int myOldPrice; ///< -1 when no offer is running
};

inline bool operator==(const FlatLine& theLeft, const FlatLine& theRight)
{
    return theLeft.myArticle == theRight.myArticle && theLeft.myCountItems == theRight.myCountItems &&
           theLeft.myModel == theRight.myModel && theLeft.myLevel == theRight.myLevel &&
           theLeft.myUnitPrice == theRight.myUnitPrice && theLeft.myUnitCount == theRight.myUnitCount &&
           theLeft.myItemsPerUnit == theRight.myItemsPerUnit && theLeft.myOldPrice == theRight.myOldPrice;
}

/// A band of a discount model.
struct FlatBand
{
    std::int64_t myOfferEnd;
    int myLevel;
    int myQuantity;
    int myUpperLimit;
    int myPrice;
    int myOldPrice;
    bool myIsPackage;
};

/// How many are asked for, and what else a rule may look at.
struct FlatQuery
{
    int myCount;
    int myBillingSum;
    int myInheritedLevel;
};

/// The bands of one model, the highest level first.
struct FlatLadder
{
    VelDiscountModel myModel;
    int myFirst; ///< in the array of bands
    int myCount;
};

/// All that an article costs under one order source; the ladders stand in rising order of their models.
struct FlatPrices
{
    const FlatLadder* myLadders;
    int myCount;
    const FlatBand* myBands;
};

/// What a query costs, and where that comes from.
struct FlatAnswer
{
    const FlatBand* myBand; ///< the highest that is reached; null for a price of nothing, which has no line
    int myPrice;            ///< -1 for none
    int myLadder;           ///< -1 for none
};

/// The rules, over plain arrays: what the cheapest model answers, or the first that wins at once.
FlatAnswer flatAnswer(const FlatPrices& thePrices, const FlatQuery& theQuery);

/// The lines of an answer, or the one that marks an article without a price. Gives the end of what was written.
FlatLine* writeLines(const FlatPrices& thePrices, const FlatAnswer& theAnswer, int theCount, int theArticle,
                     FlatLine* theTarget);

/// Whether the lines hold a package that makes shipping free.
bool isShippingFree(const FlatLine* theLines, int theCount);

#endif
