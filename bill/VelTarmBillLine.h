#ifndef VELTARMBILLLINE_H
#define VELTARMBILLLINE_H

#include "frame/VelEnumerations.h"

class VelProductAbstract;

/// One line of a bill, as plain numbers: pricing makes it, the bill keeps it, and the position that is handed out holds
/// it. The product is borrowed; amounts are whole cents. What stands here is the line of a product without a price.
struct VelTarmBillLine
{
    /// What stands behind the line.
    enum Kind {
        WITHOUT_PRICE, ///< the product has no price, see VelTarmBillPositionInvalid
        PRICED,        ///< a VelTarmBillPosition
        OF_THE_HOST    ///< a position of a kind that the host has made up
    };

    Kind myKind = WITHOUT_PRICE;                                 ///< what kind of position is made of it
    VelProductAbstract* myProduct = nullptr;                     ///< what the line is for
    int myCountItems = 0;                                        ///< sold pieces
    VelDiscountModel myDiscountModel = DISCOUNT_MODEL_UNDEFINED; ///< the rule that priced it
    int myDiscountLevel = 0;                                     ///< the level that was reached
    int myUnitPrice = 0;                                         ///< the price of a unit
    int myUnitCount = 0;            ///< units that are charged; a unit may be a package of several pieces
    int myDiscountItemsPerUnit = 0; ///< above 1 the line is a package
    int myNonOfferPrice = 0;        ///< the old price of a unit, -1 when no offer is running
    int myPrice = 0; ///< unit price times unit count, unless a position of the host's own kind reckons otherwise

    /// Whether a unit is a package of several pieces.
    bool isPackage() const { return myDiscountItemsPerUnit > 1; }
};

#endif
