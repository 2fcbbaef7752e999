#include "bill/VelTarmBillPosition.h"

#include "frame/VelArithmetic.h"

#include <QDebug>

VelTarmBillPosition::VelTarmBillPosition(int theCountItems, VelProductAbstract* theProduct,
                                         VelDiscountModel theDiscountModel, int theDiscountLevel, int theUnitPrice,
                                         int theUnitCount, int theDiscountItemsPerUnit, int theNonOfferPrice)
    : VelTarmBillPositionAbstract(theProduct)
{
    myLine.myKind = VelTarmBillLine::PRICED;
    myLine.myCountItems = theCountItems;
    myLine.myDiscountModel = theDiscountModel;
    myLine.myDiscountLevel = theDiscountLevel;
    myLine.myUnitPrice = theUnitPrice;
    myLine.myUnitCount = theUnitCount;
    myLine.myDiscountItemsPerUnit = theDiscountItemsPerUnit;
    myLine.myNonOfferPrice = theNonOfferPrice;
    myLine.myPrice = VelArithmetic::product(theUnitPrice, theUnitCount);
}

VelTarmBillPosition::VelTarmBillPosition(const VelTarmBillLine& theLine)
    : VelTarmBillPositionAbstract(theLine.myProduct), myLine(theLine)
{
}

VelTarmBillLine VelTarmBillPosition::line() const
{
    VelTarmBillLine line = myLine;
    line.myProduct = product();
    return line;
}

void VelTarmBillPosition::dump() const
{
    // %6 stands before %5 in the text, and stays so. All are filled in one pass: a "%" in the name is left alone.
    const QString text = QStringLiteral("# %1 * %2; Modell: %3; Package: ( %4 cent für %6 ) * %5 Stk.; "
                                        "Discountlevel: %7; NonOfferPrice: %8");
    qDebug().noquote() << text.arg(QString::number(myLine.myCountItems), productName(),
                                   QString::number(myLine.myDiscountModel), QString::number(myLine.myUnitPrice),
                                   QString::number(myLine.myUnitCount), QString::number(myLine.myDiscountItemsPerUnit),
                                   QString::number(myLine.myDiscountLevel), QString::number(myLine.myNonOfferPrice));
}
