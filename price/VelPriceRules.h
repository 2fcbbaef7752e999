#ifndef VELPRICERULES_H
#define VELPRICERULES_H

#include "price/VelTarmPriceAnswer.h"
#include "price/VelTarmPriceStore.h"

/**
 * What a quantity of one article costs by one order source: which model prices it, which level it reaches within the
 * model, and what the model's own rule makes of that. The rules know entries and numbers alone; who wants the answer on
 * a bill makes lines of its charges.
 *
 * All amounts are whole cents; -1 means that there is no price, and 0 is a real price. Amounts and counts are
 * multiplied and added unchecked and wrap around.
 */
class VelPriceRules
{
public:
    /// The store is borrowed and must not change meanwhile.
    VelPriceRules(const VelTarmPriceStore& theStore, const VelOrderSource& theSource)
        : myModelBits(theStore.modelBits()), myBands(theStore.bands(theSource))
    {
    }

    /// Which bands a quantity may reach.
    enum Wanted { ALL_BANDS, PACKAGES_ONLY };

    /// These do not compete on price: the first of them that has a price at all is taken.
    static bool winsAtOnce(VelDiscountModel theModel);

    /// The answer of the model that prices the quantity. The level is the one that an add-on inherits, 0 for none.
    VelTarmPriceAnswer best(int theCount, int theBillingSum, int theInheritedLevel) const;

    /// The answer of exactly that model; the level counts for DISCOUNT_MODEL_INHERITED_DISCOUNT alone.
    VelTarmPriceAnswer inModel(VelDiscountModel theModel, int theLevel, int theCount, int theBillingSum) const;

    /// The rule of each model.
    VelTarmPriceAnswer bulk(int theCount) const;
    VelTarmPriceAnswer package(VelDiscountModel theModel, int theCount) const;
    VelTarmPriceAnswer oneFee(VelDiscountModel theModel, int theCount) const;
    VelTarmPriceAnswer transferByBillingSum(int theBillingSum) const;
    VelTarmPriceAnswer inheritedDiscount(VelDiscountModel theModel, int theLevel, int theCount) const;

    /// The highest level from 1 up whose lower limit the quantity reaches, null for none.
    const VelTarmPriceBand* reached(VelDiscountModel theModel, int theCount, Wanted theWanted) const;

private:
    const VelTarmPriceBand& reachedOrPlain(VelDiscountModel theModel, int theCount) const;

    unsigned myModelBits;
    VelTarmPriceBands myBands;
};

#endif
