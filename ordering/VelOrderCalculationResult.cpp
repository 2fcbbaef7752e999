#include "ordering/VelOrderCalculationResult.h"

#include "frame/VelChildElements.h"
#include "sibling/VelXMLBuilder.h"
#include "sibling/VelXMLParser.h"

namespace {

const QString STR_SALES_TAX = QStringLiteral("sales_tax");
const QString STR_BILL_SUM = QStringLiteral("bill_sum");
const QString STR_PROVINCIAL_SALES_TAX = QStringLiteral("provincial_sales_tax");
const QString STR_SHIPPING_TIMES = QStringLiteral("shipping_times");
const QString STR_SHIPPING_TIME = QStringLiteral("shipping_time");
const QString STR_EXPRESS = QStringLiteral("express");
const QString STR_PRICE = QStringLiteral("price");

/// The amounts are read from texts, but written into attributes.
void buildTax(QDomElement& theParent, const QString& theTag, int theAmount)
{
    QDomElement tax = VelXMLBuilder::buildDomElement(theParent, theTag);
    VelXMLBuilder::addAttribute(tax, STR_PRICE, theAmount);
}

} // namespace

VelOrderCalculationResult::VelOrderCalculationResult(const QDomElement& theElement)
    : mySalesTax(VelXMLParser::intText(theElement, STR_SALES_TAX, -1))
    , myBillSum(VelXMLParser::intText(theElement, STR_BILL_SUM, -1))
    , myProvincialSalesTax(VelXMLParser::intText(theElement, STR_PROVINCIAL_SALES_TAX, -1))
{
    readShippingDates(theElement);
}

void VelOrderCalculationResult::clear()
{
    *this = VelOrderCalculationResult(QDomElement());
}

void VelOrderCalculationResult::setShippingDate(const VelExpressType& theType, const VelTarmShippingDate& theDate)
{
    myShippingDates.insert(theType, theDate);
}

bool VelOrderCalculationResult::operator==(const VelOrderCalculationResult& theOther) const
{
    return mySalesTax == theOther.mySalesTax && myBillSum == theOther.myBillSum &&
           myProvincialSalesTax == theOther.myProvincialSalesTax && myShippingDates == theOther.myShippingDates;
}

void VelOrderCalculationResult::readShippingDates(const QDomElement& theElement)
{
    for (const QDomElement& child :
         VelChildElements(theElement.firstChildElement(STR_SHIPPING_TIMES), STR_SHIPPING_TIME)) {
        const VelExpressType type(VelXMLParser::attribute(child, STR_EXPRESS, QString()));
        const VelTarmShippingDate date(child);
        if (type.isValid() && date.isValid())
            setShippingDate(type, date);
    }
}

void VelOrderCalculationResult::buildOrderDeclarationSalesTaxElement(QDomElement& theParent) const
{
    if (salesTaxIsValid())
        buildTax(theParent, STR_SALES_TAX, salesTaxValue());
    if (provincialSalesTaxIsValid())
        buildTax(theParent, STR_PROVINCIAL_SALES_TAX, provincialSalesTax());
}
