#include "bill/VelTarmBillEntry.h"

#include "bill/VelTarmBillPosition.h"
#include "bill/VelTarmBillPositionInvalid.h"

#include <typeinfo>

namespace {

VelTarmBillLine::Kind kindOf(const VelTarmBillPositionAbstract& thePosition)
{
    if (qobject_cast<const VelTarmBillPosition*>(&thePosition))
        return VelTarmBillLine::PRICED;
    const bool isInvalid = qobject_cast<const VelTarmBillPositionInvalid*>(&thePosition) != nullptr;
    return isInvalid ? VelTarmBillLine::WITHOUT_PRICE : VelTarmBillLine::OF_THE_HOST;
}

} // namespace

VelTarmBillEntry VelTarmBillEntry::clone() const
{
    return myPosition ? VelTarmBillEntry(myPosition->clone()) : *this;
}

VelTarmBillPositionAbstract* VelTarmBillEntry::position() const
{
    if (!myPosition && myLine.myKind == VelTarmBillLine::WITHOUT_PRICE)
        myPosition = new VelTarmBillPositionInvalid(myLine.myProduct);
    else if (!myPosition)
        myPosition = new VelTarmBillPosition(myLine);
    return myPosition;
}

/// A plain position gives its line back. Any other kind is asked by its virtual operations, which a host may have
/// written.
VelTarmBillLine VelTarmBillEntry::lineOf(const VelTarmBillPositionAbstract& thePosition)
{
    if (typeid(thePosition) == typeid(VelTarmBillPosition))
        return static_cast<const VelTarmBillPosition&>(thePosition).line();
    VelTarmBillLine line;
    line.myKind = kindOf(thePosition);
    line.myProduct = thePosition.product();
    line.myCountItems = thePosition.countItems();
    line.myDiscountModel = thePosition.discountModel();
    line.myDiscountLevel = thePosition.discountLevel();
    line.myUnitPrice = thePosition.unitPrice();
    line.myUnitCount = thePosition.unitCount();
    line.myDiscountItemsPerUnit = thePosition.isPackage() ? 2 : 1; // how many is not asked of every kind
    line.myNonOfferPrice = thePosition.nonOfferPrice();
    line.myPrice = thePosition.positionPrice();
    return line;
}
