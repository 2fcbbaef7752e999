#include "bill/VelTarmBillPosition.h"

#include <QDebug>

VelTarmBillPosition::VelTarmBillPosition(int theCountItems, VelProductAbstract* theProduct,
                                         VelDiscountModel theDiscountModel, int theDiscountLevel, int theUnitPrice,
                                         int theUnitCount, int theDiscountItemsPerUnit, int theNonOfferPrice)
    : VelTarmBillPositionAbstract(theProduct)
    , myCountItems(theCountItems)
    , myDiscountModel(theDiscountModel)
    , myUnitPrice(theUnitPrice)
    , myUnitCount(theUnitCount)
    , myDiscountItemsPerUnit(theDiscountItemsPerUnit)
    , myDiscountLevel(theDiscountLevel)
    , myNonOfferPrice(theNonOfferPrice)
{
}

void VelTarmBillPosition::dump() const
{
    // %6 stands before %5 in the text, and stays so. All are filled in one pass: a "%" in the name is left alone.
    const QString text = QStringLiteral("# %1 * %2; Modell: %3; Package: ( %4 cent für %6 ) * %5 Stk.; "
                                        "Discountlevel: %7; NonOfferPrice: %8");
    qDebug().noquote() << text.arg(QString::number(myCountItems), productName(), QString::number(myDiscountModel),
                                   QString::number(myUnitPrice), QString::number(myUnitCount),
                                   QString::number(myDiscountItemsPerUnit), QString::number(myDiscountLevel),
                                   QString::number(myNonOfferPrice));
}
