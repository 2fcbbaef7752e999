#include "benchmarks/FlatRules.h"

#include <algorithm>
#include <chrono>

namespace {

const FlatAnswer NO_ANSWER{nullptr, -1, -1};
const FlatAnswer NOTHING{nullptr, 0, -1};

struct Bands
{
    const FlatBand* myBegin;
    const FlatBand* myEnd;
};

const FlatBand* reached(const Bands& theBands, int theCount)
{
    for (const FlatBand* band = theBands.myBegin; band != theBands.myEnd && band->myLevel > 0; ++band)
        if (band->myQuantity <= theCount)
            return band;
    return nullptr;
}

const FlatBand* reachedPackage(const Bands& theBands, int theCount)
{
    for (const FlatBand* band = theBands.myBegin; band != theBands.myEnd && band->myLevel > 0; ++band)
        if (band->myQuantity <= theCount && band->myIsPackage)
            return band;
    return nullptr;
}

const FlatBand* levelZero(const Bands& theBands)
{
    const FlatBand* last = theBands.myEnd - 1;
    return last >= theBands.myBegin && last->myLevel == 0 ? last : nullptr;
}

const FlatBand* reachedOrLevelZero(const Bands& theBands, int theCount)
{
    const FlatBand* band = reached(theBands, theCount);
    return band ? band : levelZero(theBands);
}

FlatAnswer perItem(const FlatBand* theBand, int theCount)
{
    return theBand ? FlatAnswer{theBand, theCount * theBand->myPrice, -1} : NO_ANSWER;
}

FlatAnswer oneFee(const FlatBand* theBand)
{
    return theBand ? FlatAnswer{theBand, theBand->myPrice, -1} : NO_ANSWER;
}

int restBeyond(const FlatBand* thePackage, const FlatBand* theBest, int theCount)
{
    return thePackage == theBest ? 0 : std::max(0, theCount - thePackage->myUpperLimit);
}

FlatAnswer package(const Bands& theBands, int theCount)
{
    if (theCount == 0)
        return NOTHING;
    const FlatBand* best = reached(theBands, theCount);
    const FlatBand* package = reachedPackage(theBands, theCount);
    return package ? FlatAnswer{best, package->myPrice + restBeyond(package, best, theCount) * best->myPrice, -1}
                   : perItem(best, theCount);
}

const FlatBand* inherited(const Bands& theBands, int theLevel)
{
    for (const FlatBand* band = theBands.myBegin; band != theBands.myEnd; ++band)
        if (band->myLevel <= theLevel)
            return band;
    return nullptr;
}

Bands bandsOf(const FlatPrices& thePrices, int theLadder)
{
    const FlatLadder& ladder = thePrices.myLadders[theLadder];
    return {thePrices.myBands + ladder.myFirst, thePrices.myBands + ladder.myFirst + ladder.myCount};
}

/// Under all its bands a transfer by bill sum costs what the one by quantity does, whose model comes just before.
FlatAnswer transferBySum(const FlatPrices& thePrices, int theLadder, int theBillingSum)
{
    if (theBillingSum == 0)
        return NOTHING;
    if (const FlatBand* band = reached(bandsOf(thePrices, theLadder), theBillingSum))
        return oneFee(band);
    const bool hasOther = theLadder > 0 && thePrices.myLadders[theLadder - 1].myModel == DISCOUNT_MODEL_BULK_TRANSFER;
    return hasOther ? oneFee(levelZero(bandsOf(thePrices, theLadder - 1))) : NO_ANSWER;
}

FlatAnswer answerOf(const FlatPrices& thePrices, int theLadder, const FlatQuery& theQuery)
{
    const Bands bands = bandsOf(thePrices, theLadder);
    switch (thePrices.myLadders[theLadder].myModel) {
    case DISCOUNT_MODEL_BULK:
        return perItem(reachedOrLevelZero(bands, theQuery.myCount), theQuery.myCount);
    case DISCOUNT_MODEL_LEVEL_PACKAGE:
    case DISCOUNT_MODEL_PACKAGE:
        return package(bands, theQuery.myCount);
    case DISCOUNT_MODEL_INHERITED_DISCOUNT:
        return perItem(inherited(bands, theQuery.myInheritedLevel), theQuery.myCount);
    case DISCOUNT_MODEL_BILLING_SUM_TRANSFER:
        return transferBySum(thePrices, theLadder, theQuery.myBillingSum);
    default:
        return theQuery.myCount == 0 ? NOTHING : oneFee(reachedOrLevelZero(bands, theQuery.myCount));
    }
}

bool winsAtOnce(VelDiscountModel theModel)
{
    return theModel == DISCOUNT_MODEL_LEVEL_PACKAGE || theModel == DISCOUNT_MODEL_PACKAGE ||
           theModel == DISCOUNT_MODEL_BILLING_SUM_TRANSFER || theModel == DISCOUNT_MODEL_INHERITED_DISCOUNT;
}

int shownOldPrice(const FlatBand& theBand)
{
    using namespace std::chrono;
    if (theBand.myOldPrice == -1)
        return -1;
    const auto now = duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
    return now < theBand.myOfferEnd ? theBand.myOldPrice : -1;
}

} // namespace

FlatAnswer flatAnswer(const FlatPrices& thePrices, const FlatQuery& theQuery)
{
    FlatAnswer best = NO_ANSWER;
    for (int ladder = 0; ladder < thePrices.myCount; ++ladder) {
        const FlatAnswer answer = answerOf(thePrices, ladder, theQuery);
        if (answer.myPrice == -1)
            continue;
        const bool isDecided = winsAtOnce(thePrices.myLadders[ladder].myModel);
        if (isDecided || best.myPrice == -1 || answer.myPrice < best.myPrice)
            best = {answer.myBand, answer.myPrice, ladder};
        if (isDecided)
            break;
    }
    return best;
}

FlatLine* writeLines(const FlatPrices& thePrices, const FlatAnswer& theAnswer, int theCount, int theArticle,
                     FlatLine* theTarget)
{
    if (theAnswer.myPrice == -1)
        *theTarget++ = {theArticle, 0, DISCOUNT_MODEL_UNDEFINED, 0, 0, 0, 0, 0};
    const FlatBand* best = theAnswer.myBand;
    if (!best)
        return theTarget;
    const VelDiscountModel model = thePrices.myLadders[theAnswer.myLadder].myModel;
    const auto write = [&](const FlatBand& theBand, int theItems, int theUnits, int theItemsPerUnit) {
        *theTarget++ = {theArticle,      theItems, model,           theBand.myLevel,
                        theBand.myPrice, theUnits, theItemsPerUnit, shownOldPrice(theBand)};
    };
    const bool isPackageModel = model == DISCOUNT_MODEL_LEVEL_PACKAGE || model == DISCOUNT_MODEL_PACKAGE;
    const FlatBand* package =
        isPackageModel ? reachedPackage(bandsOf(thePrices, theAnswer.myLadder), theCount) : nullptr;
    if (!package) {
        write(*best, theCount, theCount, 1);
        return theTarget;
    }
    const int size = package->myUpperLimit;
    const int rest = restBeyond(package, best, theCount);
    write(*package, package == best ? theCount : size, 1, size);
    if (rest > 0)
        write(*best, rest, rest, 1);
    return theTarget;
}

bool isShippingFree(const FlatLine* theLines, int theCount)
{
    for (int line = 0; line < theCount; ++line)
        if (theLines[line].myModel == DISCOUNT_MODEL_PACKAGE)
            return true;
    return false;
}
