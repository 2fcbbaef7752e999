#include "bill/VelTarmBillPositionAbstract.h"

#include "frame/VelArithmetic.h"
#include "product/VelProductAbstract.h"
#include "sibling/VelStringHelper.h"

VelTarmBillPositionAbstract::VelTarmBillPositionAbstract(const VelTarmBillPositionAbstract& theOther)
    : QObject(), myProduct(theOther.myProduct)
{
}

int VelTarmBillPositionAbstract::positionPrice() const
{
    return VelArithmetic::product(unitPrice(), unitCount());
}

QString VelTarmBillPositionAbstract::productName() const
{
    return product()->editorName();
}

bool VelTarmBillPositionAbstract::lessThan(VelTarmBillPositionAbstract* theLeft, VelTarmBillPositionAbstract* theRight)
{
    return VelStringHelper::numberAwareProductNameLessThan(theLeft->productName(), theRight->productName());
}
