#ifndef VELTARMPRICEANSWER_H
#define VELTARMPRICEANSWER_H

#include "price/VelTarmPriceBand.h"

/// What a rule charges, while nobody has said yet whether it goes to a bill: so many units at the price of a band, or a
/// single one for one piece.
struct VelTarmPriceCharge
{
    const VelTarmPriceBand* myBand; ///< never null; without an entry where none applies, and then the price is -1
    VelDiscountModel myModel;       ///< that of the band, and of the rule where no entry applies
    int myLevel;                    ///< that of the band; where nothing can be inherited, -1
    int myPieces = 1;               ///< how many sold pieces it stands for
    int myUnits = 1;                ///< how many times the price of the band is charged
    int myItemsPerUnit = 1;         ///< pieces in a unit; above 1 it is a package, -1 one without an upper limit
};

/// What a model answers for a quantity. A value without a heap: asking costs no allocation.
struct VelTarmPriceAnswer
{
    VelDiscountModel myModel;        ///< who answers, DISCOUNT_MODEL_UNDEFINED for none
    int myPrice;                     ///< cents; exactly -1 means that there is no price
    bool myHasRule;                  ///< false for models that nothing is priced by, and when no model has a price
    int myChargeCount;               ///< how many of the charges hold; an answer without a price may have one, too
    VelTarmPriceCharge myCharges[2]; ///< a package, and what goes beyond it

    /// The first charge that holds, for a range-based for.
    const VelTarmPriceCharge* begin() const { return myCharges; }
    /// Behind the last charge that holds.
    const VelTarmPriceCharge* end() const { return myCharges + myChargeCount; }
};

#endif
