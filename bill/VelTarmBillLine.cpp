#include "bill/VelTarmBillLine.h"

#include "bill/VelTarmBillPosition.h"
#include "bill/VelTarmBillPositionInvalid.h"

VelTarmBillPositionAbstract* VelTarmBillLine::newPosition() const
{
    if (myIsInvalid)
        return new VelTarmBillPositionInvalid(myProduct);
    return new VelTarmBillPosition(myCountItems, myProduct, myDiscountModel, myDiscountLevel, myUnitPrice, myUnitCount,
                                   myDiscountItemsPerUnit, myNonOfferPrice);
}
