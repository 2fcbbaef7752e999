#include "benchmarks/FlatPricing.h"

#include <tuple>

bool FlatLine::operator==(const FlatLine& theOther) const
{
    const auto fields = [](const FlatLine& theLine) {
        return std::tie(theLine.myArticle, theLine.myModel, theLine.myLevel, theLine.myCountItems, theLine.myUnitPrice,
                        theLine.myUnitCount);
    };
    return fields(*this) == fields(theOther);
}

// ---- one bill

/// One package, and what goes beyond it by the piece; everything by the piece where there is no package.
void FlatBill::add(const CartItem& theItem, const FlatBand* theReached, const FlatBand* theBase)
{
    addTransfer(*theBase, theItem.myCount);
    const FlatBand* package = theReached;
    while (package != theBase && !package->myIsPackage)
        ++package;
    if (package == theBase) {
        addLine(theItem.myArticle, *theReached, theItem.myCount, theItem.myCount);
        return;
    }
    const int size = package == theReached ? theItem.myCount : package->myUpperLimit;
    addLine(theItem.myArticle, *package, size, 1);
    if (const int rest = theItem.myCount - size)
        addLine(theItem.myArticle, *theReached, rest, rest);
}

void FlatBill::addLine(int theArticle, const FlatBand& theBand, int theItems, int theUnits)
{
    *myEnd++ = {theArticle, theBand.myModel, theBand.myLevel, theItems, theBand.myPrice, theUnits};
    myCost += theBand.myPrice * theUnits;
    myIsShippingFree |= theBand.myModel == DISCOUNT_MODEL_PACKAGE;
}

void FlatBill::addTransfer(const FlatBand& theBase, int theCount)
{
    if (theBase.myBaseTransfer > myHighestBase) {
        myHighestBase = theBase.myBaseTransfer;
        myUnitOfHighest = theBase.myUnitTransfer;
    }
    myUnits += theBase.myUnitTransfer * theCount;
}

/// One base charge, the highest, and the unit charge of every item but one of the article that pays it.
int FlatBill::total() const
{
    return myIsShippingFree ? myCost : myCost + myHighestBase + myUnits - myUnitOfHighest;
}

// ---- a price list

FlatPricing::FlatPricing(const std::vector<std::vector<FlatBand>>& theArticles)
{
    for (const std::vector<FlatBand>& bands : theArticles) {
        myFirstBands.push_back(static_cast<int>(myBands.size()));
        myBands.insert(myBands.end(), bands.begin(), bands.end());
    }
    myFirstBands.push_back(static_cast<int>(myBands.size()));
}

FlatBill FlatPricing::bill(const std::vector<CartItem>& theCart, FlatLine* theLines) const
{
    FlatBill bill(theLines);
    for (const CartItem& item : theCart) {
        const int* first = myFirstBands.data() + item.myArticle;
        const FlatBand* band = myBands.data() + first[0];
        while (band->myQuantity > item.myCount)
            ++band;
        bill.add(item, band, myBands.data() + first[1] - 1);
    }
    return bill;
}
