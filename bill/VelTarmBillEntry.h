#ifndef VELTARMBILLENTRY_H
#define VELTARMBILLENTRY_H

#include "bill/VelTarmBillLine.h"
#include "bill/VelTarmBillPosition.h"
#include "frame/VelArithmetic.h"

/**
 * One place in a bill: a line, or the position made of it. From the moment that the position exists it alone answers,
 * because its holder may have changed it. The entry owns nothing: the bill releases the positions of its entries.
 */
class VelTarmBillEntry
{
public:
    explicit VelTarmBillEntry(const VelTarmBillLine& theLine) : myLine(theLine) {}
    explicit VelTarmBillEntry(VelTarmBillPositionAbstract* thePosition)
        : myLine(VelTarmBillLine::invalid(nullptr)), myPosition(thePosition)
    {
    }

    /// The same with a position of its own, if there is one.
    VelTarmBillEntry clone() const { return myPosition ? VelTarmBillEntry(myPosition->clone()) : *this; }

    /// The position, made on the first call.
    VelTarmBillPositionAbstract* position() const
    {
        if (!myPosition)
            myPosition = myLine.newPosition();
        return myPosition;
    }

    /// The position if one was made, otherwise null.
    VelTarmBillPositionAbstract* madePosition() const { return myPosition; }

    VelProductAbstract* product() const { return myPosition ? myPosition->product() : myLine.myProduct; }
    int countItems() const { return myPosition ? myPosition->countItems() : myLine.myCountItems; }
    int unitPrice() const { return myPosition ? myPosition->unitPrice() : myLine.myUnitPrice; }
    int discountLevel() const { return myPosition ? myPosition->discountLevel() : myLine.myDiscountLevel; }
    bool isPackage() const { return myPosition ? myPosition->isPackage() : myLine.myDiscountItemsPerUnit > 1; }
    VelDiscountModel discountModel() const { return myPosition ? myPosition->discountModel() : myLine.myDiscountModel; }
    int positionPrice() const
    {
        return myPosition ? myPosition->positionPrice()
                          : VelArithmetic::product(myLine.myUnitPrice, myLine.myUnitCount);
    }

    /// Whether the position is a priced line, and whether it is the marker of a product without a price.
    bool isPriced() const
    {
        return myPosition ? qobject_cast<VelTarmBillPosition*>(myPosition) != nullptr : !myLine.myIsInvalid;
    }
    bool isInvalid() const
    {
        return myPosition ? myPosition->inherits("VelTarmBillPositionInvalid") : myLine.myIsInvalid;
    }

private:
    VelTarmBillLine myLine;
    mutable VelTarmBillPositionAbstract* myPosition = nullptr;
};

#endif
