#include "ordering/VelTarmShippingTime.h"

#include "frame/EnumHelper.h"
#include "sibling/VelXMLParser.h"

namespace {

const QString STR_DAYS = QStringLiteral("days");
const QString STR_DELIVERY_TYPE = QStringLiteral("delivery_type");
const QString STR_EXPRESS = QStringLiteral("express");

/// A run of digits within a text, from the first up to the one before the end. Runs are told by hand and not by a
/// regular expression, since a load reads very many of these.
struct Digits
{
    int myBegin;
    int myEnd;
};

Digits digitsAt(const QString& theText, int theBegin)
{
    Digits digits{theBegin, theBegin};
    while (digits.myEnd < theText.length() && theText.at(digits.myEnd).isDigit())
        ++digits.myEnd;
    return digits;
}

Digits firstDigits(const QString& theText)
{
    int begin = 0;
    while (begin < theText.length() && !theText.at(begin).isDigit())
        ++begin;
    return digitsAt(theText, begin);
}

/// The last number of a chain as "1-3-5" that begins with this one; the same when the chain has no other.
Digits lastOfChain(const QString& theText, Digits theFirst)
{
    Digits last = theFirst;
    while (last.myEnd < theText.length() && theText.at(last.myEnd) == QLatin1Char('-')) {
        const Digits next = digitsAt(theText, last.myEnd + 1);
        if (next.myBegin == next.myEnd)
            break;
        last = next;
    }
    return last;
}

/// The default when no int holds it.
int toInt(const QString& theText, Digits theDigits, int theDefault)
{
    bool isNumber = false;
    const int number =
        QStringView(theText).mid(theDigits.myBegin, theDigits.myEnd - theDigits.myBegin).toInt(&isNumber);
    return isNumber ? number : theDefault;
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
/// the upper. A text without digits leaves both as they are.
void VelTarmShippingTime::readDays(const QString& theText)
{
    const Digits first = firstDigits(theText);
    if (first.myBegin == first.myEnd)
        return;
    myMinDays = toInt(theText, first, 0);
    myMaxDays = toInt(theText, lastOfChain(theText, first), myMinDays);
}
