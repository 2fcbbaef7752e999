#ifndef VELTARMBILLLINE_H
#define VELTARMBILLLINE_H

#include "frame/VelEnumerations.h"

class VelProductAbstract;
class VelTarmBillPositionAbstract;

/// What a bill position says, as plain numbers. Pricing makes lines; the bill makes an object of one only when somebody
/// asks for it, as most bills are priced for their totals alone. The product is borrowed; amounts are whole cents.
struct VelTarmBillLine
{
    VelProductAbstract* myProduct;
    int myCountItems;
    VelDiscountModel myDiscountModel;
    int myDiscountLevel;
    int myUnitPrice;
    int myUnitCount;
    int myDiscountItemsPerUnit; ///< above 1 the line is a package
    int myNonOfferPrice;        ///< -1 when no offer is running
    bool myIsInvalid;           ///< the marker of a product without a price, see VelTarmBillPositionInvalid

    /// The line of a product that has no price.
    static VelTarmBillLine invalid(VelProductAbstract* theProduct)
    {
        return {theProduct, 0, DISCOUNT_MODEL_UNDEFINED, 0, 0, 0, 0, 0, true};
    }

    /// A new object that says the same, owned by the caller.
    VelTarmBillPositionAbstract* newPosition() const;
};

#endif
