#include "host/VelshopSourceChoice.h"

#include "frame/VelTarmGlobalStatus.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopOptions.h"
#include "host/VelshopWords.h"

namespace {

bool isOnSite(const VelOrderSource& theSource)
{
    return theSource.inputSource() == INPUT_SOURCE_KIOSK || theSource.deliveryType() == DELIVERY_TYPE_ON_SITE;
}

/// A kiosk and delivery on site bring each other along; where the other choice is on site or wild, the net and mail
/// order take its place.
VelOrderSource completed(const VelOrderSource& theNamed, const VelOrderSource& theOther)
{
    VelOrderSource other = theOther;
    if (isOnSite(theNamed))
        other = VelOrderSource::kioskOnSite();
    else if (isOnSite(other) || other.inputSource() < 0 || other.deliveryType() < 0)
        other = VelOrderSource::onlineMailOrder();
    return VelOrderSource(theNamed.inputSource() == INPUT_SOURCE_ANY ? other.inputSource() : theNamed.inputSource(),
                          theNamed.deliveryType() == DELIVERY_TYPE_ANY ? other.deliveryType()
                                                                       : theNamed.deliveryType());
}

} // namespace

bool VelshopSourceChoice::read(const VelshopCommandLine& theLine, VelshopError& theError)
{
    const QString source = theLine.value(VelshopOptions::STR_SOURCE);
    const QString delivery = theLine.value(VelshopOptions::STR_DELIVERY);
    if (theLine.isSet(VelshopOptions::STR_SOURCE) && !VelshopWords::readInputSource(source, myInputSource))
        theError = QStringLiteral("--source must be NET, CD or KIOSK, not \"%1\"").arg(source);
    else if (theLine.isSet(VelshopOptions::STR_DELIVERY) && !VelshopWords::readDeliveryType(delivery, myDeliveryType))
        theError = QStringLiteral("--delivery must be POS, MAIL or ONSITE, not \"%1\"").arg(delivery);
    return theError.isEmpty();
}

bool VelshopSourceChoice::isNamed() const
{
    return myInputSource != INPUT_SOURCE_ANY || myDeliveryType != DELIVERY_TYPE_ANY;
}

bool VelshopSourceChoice::complete(VelOrderSource& theSource, VelshopError& theError) const
{
    return complete(theSource, VelTarmGlobalStatus::instance()->orderSource(), theError);
}

bool VelshopSourceChoice::complete(VelOrderSource& theSource, const VelOrderSource& theOther,
                                   VelshopError& theError) const
{
    theSource = isNamed() ? completed(VelOrderSource(myInputSource, myDeliveryType), theOther) : theOther;
    if (!theSource.isValid())
        theError = QStringLiteral("KIOSK and ONSITE go together and with nothing else");
    return theError.isEmpty();
}

bool VelshopSourceChoice::completeNamed(VelOrderSource& theSource, VelshopError& theError) const
{
    theSource = VelTarmGlobalStatus::instance()->orderSource();
    return !isNamed() || complete(theSource, theError);
}
