#include "price/VelPriceRules.h"

#include "frame/VelArithmetic.h"

#include <QtAlgorithms>

#include <limits>

namespace {

using Answer = VelTarmPriceAnswer;
using Charge = VelTarmPriceCharge;
using Band = VelTarmPriceBand;

/// Stands where no entry applies: invalid, of price -1, at level 0.
const Band& noBand()
{
    static const Band none(VelTarmPriceStore::ORDER_SOURCES, Band::NO_ENTRY, *VelTarmPriceValue::invalidPrice());
    return none;
}

// ---- what a rule charges

/// One unit for one piece, until the makers below say more.
Charge once(VelDiscountModel theModel, const Band& theBand)
{
    return {&theBand, theModel, theBand.discountLevel()};
}

Charge eachPiece(VelDiscountModel theModel, const Band& theBand, int theCount)
{
    Charge charge = once(theModel, theBand);
    charge.myPieces = theCount;
    charge.myUnits = theCount;
    return charge;
}

Charge onePackage(VelDiscountModel theModel, const Band& theBand, int thePieces)
{
    Charge charge = once(theModel, theBand);
    charge.myPieces = thePieces;
    charge.myItemsPerUnit = theBand.value().upperLimit();
    return charge;
}

// ---- what a rule answers

Answer noRule()
{
    return {DISCOUNT_MODEL_UNDEFINED, -1, false, 0, {}};
}

/// An amount for which no line is made.
Answer withoutCharge(VelDiscountModel theModel, int thePrice)
{
    return {theModel, thePrice, true, 0, {}};
}

Answer charged(VelDiscountModel theModel, int thePrice, const Charge& theCharge)
{
    return {theModel, thePrice, true, 1, {theCharge, {}}};
}

// ---- the three cases of a package

/// The whole quantity lies inside the package: its price holds, whatever the count.
Answer packageAlone(VelDiscountModel theModel, const Band& thePackage, int theCount)
{
    return charged(theModel, thePackage.price(), onePackage(theModel, thePackage, theCount));
}

/// A full package, and what goes beyond it by the piece.
Answer packageAndRest(VelDiscountModel theModel, const Band& thePackage, const Band& theBest, int theCount)
{
    const int size = thePackage.value().upperLimit();
    Answer answer = charged(theModel, thePackage.price(), onePackage(theModel, thePackage, size));
    // A package without a following level has the size -1, deliberately: the rest comes to one more than the count.
    const int rest = VelArithmetic::difference(theCount, size);
    if (rest > 0) {
        answer.myPrice = VelArithmetic::sum(answer.myPrice, VelArithmetic::product(rest, theBest.price()));
        answer.myCharges[answer.myChargeCount++] = eachPiece(theModel, theBest, rest);
    }
    return answer;
}

/// No package is reached: all by the piece. A count below 0 costs nothing.
Answer itemsAlone(VelDiscountModel theModel, const Band& theBest, int theCount)
{
    if (theCount < 0)
        return withoutCharge(theModel, 0);
    return charged(theModel, VelArithmetic::product(theCount, theBest.price()), eachPiece(theModel, theBest, theCount));
}

/// The highest level wins, whatever the limits below it; upper limits and gaps play no part.
const Band* highestReached(const VelTarmPriceBands& theLevels, int theCount, VelPriceRules::Wanted theWanted)
{
    for (auto band = theLevels.end(); band != theLevels.begin();) {
        const VelTarmPriceValue& value = (--band)->value();
        if (value.discountLevel() < 1)
            break;
        const bool isWanted = theWanted == VelPriceRules::ALL_BANDS || value.isPackagePrice();
        if (value.lowerLimit() <= theCount && isWanted && value.isValid())
            return band;
    }
    return nullptr;
}

} // namespace

// ---- which model prices a quantity

bool VelPriceRules::winsAtOnce(VelDiscountModel theModel)
{
    return isPackageModel(theModel) || theModel == DISCOUNT_MODEL_BILLING_SUM_TRANSFER ||
           theModel == DISCOUNT_MODEL_INHERITED_DISCOUNT;
}

/// Models are tried in rising order of their numbers. What the best one answers is kept: its rule runs only once.
VelTarmPriceAnswer VelPriceRules::best(int theCount, int theBillingSum, int theInheritedLevel) const
{
    Answer best = noRule();
    int bestPrice = std::numeric_limits<int>::max();
    for (unsigned models = myModelBits; models != 0; models &= models - 1) {
        const auto model = static_cast<VelDiscountModel>(qCountTrailingZeroBits(models));
        const Answer candidate = inModel(model, theInheritedLevel, theCount, theBillingSum);
        if (candidate.myPrice == -1)
            continue;
        if (winsAtOnce(model))
            return candidate;
        if (bestPrice > candidate.myPrice) { // strictly: of two equal prices the lower model number wins
            best = candidate;
            bestPrice = candidate.myPrice;
        }
    }
    return best;
}

VelTarmPriceAnswer VelPriceRules::inModel(VelDiscountModel theModel, int theLevel, int theCount,
                                          int theBillingSum) const
{
    switch (theModel) {
    case DISCOUNT_MODEL_BULK:
        return bulk(theCount);
    case DISCOUNT_MODEL_LEVEL_PACKAGE:
    case DISCOUNT_MODEL_PACKAGE:
        return package(theModel, theCount);
    case DISCOUNT_MODEL_BULK_TRANSFER:
    case DISCOUNT_MODEL_EXPRESS_FEE:
        return oneFee(theModel, theCount);
    case DISCOUNT_MODEL_BILLING_SUM_TRANSFER:
        return transferByBillingSum(theBillingSum);
    case DISCOUNT_MODEL_INHERITED_DISCOUNT:
        return inheritedDiscount(theModel, theLevel, theCount);
    default:
        return noRule();
    }
}

// ---- which level a quantity reaches

const VelTarmPriceBand* VelPriceRules::reached(VelDiscountModel theModel, int theCount, Wanted theWanted) const
{
    return highestReached(VelTarmPriceStore::levelsOf(theModel, myBands), theCount, theWanted);
}

/// Where no level is reached the entry at level 0 holds.
const VelTarmPriceBand& VelPriceRules::reachedOrPlain(VelDiscountModel theModel, int theCount) const
{
    const VelTarmPriceBands levels = VelTarmPriceStore::levelsOf(theModel, myBands);
    if (const Band* band = highestReached(levels, theCount, ALL_BANDS))
        return *band;
    return !levels.isEmpty() && levels.begin()->discountLevel() == 0 ? *levels.begin() : noBand();
}

// ---- the rule of each model

/// Reaching a level reprices all the pieces.
VelTarmPriceAnswer VelPriceRules::bulk(int theCount) const
{
    const Band& band = reachedOrPlain(DISCOUNT_MODEL_BULK, theCount);
    const int price = band.value().isValid() ? VelArithmetic::product(theCount, band.price()) : -1;
    return charged(DISCOUNT_MODEL_BULK, price, eachPiece(DISCOUNT_MODEL_BULK, band, theCount));
}

/// A fixed sum for up to so many pieces, and a price by the piece for what goes beyond.
VelTarmPriceAnswer VelPriceRules::package(VelDiscountModel theModel, int theCount) const
{
    if (theCount == 0)
        return withoutCharge(theModel, 0);
    const VelTarmPriceBands levels = VelTarmPriceStore::levelsOf(theModel, myBands);
    const Band* best = highestReached(levels, theCount, ALL_BANDS);
    if (!best) // below the first band there is no price at all in these models
        return withoutCharge(theModel, -1);
    const Band* package = highestReached(levels, theCount, PACKAGES_ONLY);
    if (!package)
        return itemsAlone(theModel, *best, theCount);
    if (package == best)
        return packageAlone(theModel, *package, theCount);
    return packageAndRest(theModel, *package, *best, theCount);
}

/// One fee for the whole quantity: shipping chosen by the number of pieces, and the fee of an express.
VelTarmPriceAnswer VelPriceRules::oneFee(VelDiscountModel theModel, int theCount) const
{
    if (theCount == 0)
        return withoutCharge(theModel, 0);
    const Band& band = reachedOrPlain(theModel, theCount);
    return charged(theModel, band.price(), once(theModel, band));
}

/// Here the limits of the bands mean money.
VelTarmPriceAnswer VelPriceRules::transferByBillingSum(int theBillingSum) const
{
    const VelDiscountModel model = DISCOUNT_MODEL_BILLING_SUM_TRANSFER;
    if (theBillingSum == 0)
        return withoutCharge(model, 0);
    if (const Band* band = reached(model, theBillingSum, ALL_BANDS))
        return charged(model, band->price(), once(model, *band));
    // Under every band: the count -1 reaches none there either and so asks for the level 0.
    Answer answer = oneFee(DISCOUNT_MODEL_BULK_TRANSFER, -1);
    answer.myModel = model;
    return answer;
}

/// The first valid level from the inherited one downwards.
VelTarmPriceAnswer VelPriceRules::inheritedDiscount(VelDiscountModel theModel, int theLevel, int theCount) const
{
    const VelTarmPriceBands levels = VelTarmPriceStore::levelsOf(theModel, myBands);
    for (auto band = levels.end(); band != levels.begin();) {
        const VelTarmPriceValue& value = (--band)->value();
        if (value.discountLevel() <= theLevel && value.isValid())
            return charged(theModel, VelArithmetic::product(theCount, value.price()),
                           eachPiece(theModel, *band, theCount));
    }
    Charge charge = eachPiece(theModel, noBand(), theCount);
    charge.myLevel = -1;
    return charged(theModel, -1, charge);
}
