#include "frame/VelOrderSource.h"

#include "frame/EnumHelper.h"
#include "sibling/VelXMLParser.h"

namespace {

const QString STR_INPUT_SOURCE = QStringLiteral("input_source");
const QString STR_DELIVERY_TYPE = QStringLiteral("delivery_type");

const char* debugName(VelInputSource theInputSource)
{
    switch (theInputSource) {
    case INPUT_SOURCE_NET:
        return "INPUT_SOURCE_NET";
    case INPUT_SOURCE_CD:
        return "INPUT_SOURCE_CD";
    case INPUT_SOURCE_KIOSK:
        return "INPUT_SOURCE_KIOSK";
    default:
        return "INPUT_SOURCE_UNKNOWN"; // the wild value, too
    }
}

const char* debugName(VelDeliveryType theDeliveryType)
{
    switch (theDeliveryType) {
    case DELIVERY_TYPE_POS:
        return "DELIVERY_TYPE_POS";
    case DELIVERY_TYPE_MAILORDER:
        return "DELIVERY_TYPE_MAILORDER";
    case DELIVERY_TYPE_ON_SITE:
        return "DELIVERY_TYPE_ON_SITE";
    default:
        return "DELIVERY_TYPE_UNKNOWN";
    }
}

} // namespace

VelOrderSource::VelOrderSource(const QDomElement& theElement)
    : myInputSource(EnumHelper::decodeInputSource(VelXMLParser::attribute(theElement, STR_INPUT_SOURCE, QString())))
    , myDeliveryType(EnumHelper::decodeDeliveryType(VelXMLParser::attribute(theElement, STR_DELIVERY_TYPE, QString())))
{
}

bool VelOrderSource::isValid() const
{
    if (myInputSource == INPUT_SOURCE_UNKNOWN || myDeliveryType == DELIVERY_TYPE_UNKNOWN)
        return false;
    // A kiosk must deliver on site, and nothing else may.
    return (myInputSource == INPUT_SOURCE_KIOSK) == (myDeliveryType == DELIVERY_TYPE_ON_SITE);
}

QString VelOrderSource::toSquishString() const
{
    return EnumHelper::encodeInputSource(myInputSource) + QLatin1Char('_') +
           EnumHelper::encodeDeliveryType(myDeliveryType);
}

QDebug operator<<(QDebug theDebug, const VelOrderSource& theOrderSource)
{
    theDebug << debugName(theOrderSource.inputSource()) << " " << debugName(theOrderSource.deliveryType());
    return theDebug;
}
