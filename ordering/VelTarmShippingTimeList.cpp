#include "ordering/VelTarmShippingTimeList.h"

#include "frame/VelChildElements.h"

#include <QDebug>

const QString VelTarmShippingTimeList::STR_SHIPPING_TIMES = QStringLiteral("shipping_times");

namespace {

const QString STR_SHIPPING_TIME = QStringLiteral("shipping_time");

} // namespace

VelTarmShippingTime VelTarmShippingTimeList::shippingTime(VelDeliveryType theDeliveryType,
                                                          const VelExpressType& theExpressType) const
{
    for (const VelTarmShippingTime& time : myShippingTimes)
        if (time.deliveryType() == theDeliveryType && time.expressType() == theExpressType)
            return time;
    return VelTarmShippingTime();
}

bool VelTarmShippingTimeList::isExpressable(VelDeliveryType theDeliveryType, const VelExpressType& theExpressType) const
{
    return shippingTime(theDeliveryType, theExpressType).isValid();
}

void VelTarmShippingTimeList::update(const QDomElement& theElement)
{
    myShippingTimes.clear();
    if (theElement.nodeName() != STR_SHIPPING_TIMES)
        return;
    for (const QDomElement& child : VelChildElements(theElement, STR_SHIPPING_TIME)) {
        const VelTarmShippingTime time(child);
        if (time.isValid())
            myShippingTimes.append(time);
        else
            qWarning("VelTarmShippingTimeList::update(const QDomElement &), invalid shippingTime");
    }
}
