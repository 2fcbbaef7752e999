#include "ordering/VelTarmShippingTime.h"

#include "frame/EnumHelper.h"
#include "sibling/VelXMLParser.h"

namespace {

const QString STR_DAYS = QStringLiteral("days");
const QString STR_DELIVERY_TYPE = QStringLiteral("delivery_type");
const QString STR_EXPRESS = QStringLiteral("express");

/// The end of the run of digits that begins at the index.
int endOfDigits(const QString& theText, int theIndex)
{
    while (theIndex < theText.length() && theText.at(theIndex).isDigit())
        ++theIndex;
    return theIndex;
}

int firstDigit(const QString& theText)
{
    int index = 0;
    while (index < theText.length() && !theText.at(index).isDigit())
        ++index;
    return index;
}

} // namespace

VelTarmShippingTime::VelTarmShippingTime(const QDomElement& theElement)
    : myDeliveryType(EnumHelper::decodeDeliveryType(VelXMLParser::attribute(theElement, STR_DELIVERY_TYPE, QString())))
    , myExpressType(VelXMLParser::attribute(theElement, STR_EXPRESS, QString()))
{
    readDays(VelXMLParser::attribute(theElement, STR_DAYS, QString()));
}

bool VelTarmShippingTime::operator==(const VelTarmShippingTime& theOther) const
{
    return myDeliveryType == theOther.myDeliveryType && myExpressType == theOther.myExpressType &&
           myMinDays == theOther.myMinDays && myMaxDays == theOther.myMaxDays;
}

/// Finds the first (\d+)(-(\d+))* anywhere in the text: the first number is the lower end, the last one of the chain
/// the upper. Done by hand, since a load reads very many of these.
void VelTarmShippingTime::readDays(const QString& theText)
{
    const int begin = firstDigit(theText);
    int end = endOfDigits(theText, begin);
    if (begin == end)
        return;
    myMinDays = QStringView(theText).mid(begin, end - begin).toInt(); // 0 when no int holds it
    QStringView lastOfChain;
    while (end < theText.length() && theText.at(end) == QLatin1Char('-') && endOfDigits(theText, end + 1) > end + 1) {
        const int numberBegin = end + 1;
        end = endOfDigits(theText, numberBegin);
        lastOfChain = QStringView(theText).mid(numberBegin, end - numberBegin);
    }
    bool isNumber = false;
    myMaxDays = lastOfChain.toInt(&isNumber);
    if (!isNumber)
        myMaxDays = myMinDays;
}
