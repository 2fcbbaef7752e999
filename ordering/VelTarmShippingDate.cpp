#include "ordering/VelTarmShippingDate.h"

#include "sibling/VelXMLParser.h"

namespace {

const QString STR_SHIPPING_TIME = QStringLiteral("shipping_time");
const QString STR_MIN = QStringLiteral("min");
const QString STR_MAX = QStringLiteral("max");

} // namespace

VelTarmShippingDate::VelTarmShippingDate(const QDomElement& theElement)
{
    if (theElement.tagName() != STR_SHIPPING_TIME)
        return;
    const QDateTime earliest = VelXMLParser::dateTimeAttribute(theElement, STR_MIN, Qt::ISODate, QDateTime());
    const QDateTime latest = VelXMLParser::dateTimeAttribute(theElement, STR_MAX, Qt::ISODate, QDateTime());
    if (!earliest.isValid() || !latest.isValid())
        return;
    myMinDate = earliest.date();
    myMaxDate = latest.date();
}
