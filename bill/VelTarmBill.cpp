#include "bill/VelTarmBill.h"

#include "bill/VelTarmBillPosition.h"
#include "price/VelTarmPriceKey.h"
#include "product/VelProductAbstract.h"

VelTarmBill::VelTarmBill(int theShippingGroup, const VelOrderStatistic& theStatistic,
                         const VelExpressType& theExpressType, const VelTarmStatus& theStatus)
    : myShippingGroup(theShippingGroup), myStatus(theStatus), myStatistic(theStatistic), myExpressType(theExpressType)
{
    init();
}

VelTarmBill::VelTarmBill(const VelTarmBill& theOther)
    : myShippingGroup(theOther.myShippingGroup)
    , myStatus(theOther.myStatus)
    , myStatistic(theOther.myStatistic)
    , myExpressType(theOther.myExpressType)
{
    for (const VelTarmBillPositionAbstract* position : theOther.myPositions)
        myPositions.append(position->clone());
}

VelTarmBill::~VelTarmBill()
{
    qDeleteAll(myPositions);
}

/// An add-on looks up the position of its main product, so the order of this walk is part of the result.
void VelTarmBill::init()
{
    for (VelProductAbstract* product : myStatistic.products())
        product->priceFor(myStatus.priceKey(), myStatistic.value(product, 0), 0, this, &myStatistic);
}

VelTarmBillPosition* VelTarmBill::billPosition(const VelProductAbstract* theProduct) const
{
    for (VelTarmBillPositionAbstract* position : myPositions)
        if (position->product() == theProduct)
            return qobject_cast<VelTarmBillPosition*>(position); // an invalid first position ends the search, too
    return nullptr;
}

void VelTarmBill::addOrderPositions(const VelTarmBillPositionList& thePositions)
{
    myPositions.append(thePositions);
}
