#ifndef VELTARMSHIPPINGTIME_H
#define VELTARMSHIPPINGTIME_H

#include "frame/VelExpressType.h"
#include "frame/VelTarmExport.h"

#include <QDomElement>

/// How many days an article takes by one delivery type and express type. A value.
class VELTARM_EXPORT VelTarmShippingTime
{
public:
    /// Invalid: unknown delivery and express type, -1 days.
    VelTarmShippingTime() = default;

    /// Reads `days` ("3" or "3-5"), `delivery_type` and `express`; the tag is not looked at.
    explicit VelTarmShippingTime(const QDomElement& theElement);

    /// The first number of days; -1 when the document says no number. The document may give the higher one first.
    int minDays() const { return myMinDays; }
    /// The last number of days, the first where there is only one; -1 when the document says no number.
    int maxDays() const { return myMaxDays; }

    /// The delivery that the days hold for; the unknown value without one.
    VelDeliveryType deliveryType() const { return myDeliveryType; }
    /// The express type that the days hold for; the unknown value without one.
    VelExpressType expressType() const { return myExpressType; }

    /// Whether both types are known; the days play no part.
    bool isValid() const { return myDeliveryType != DELIVERY_TYPE_UNKNOWN && myExpressType.isValid(); }

    /// Whether the two numbers of days differ.
    bool varies() const { return myMinDays != myMaxDays; }

    /// By the days and both types.
    bool operator==(const VelTarmShippingTime& theOther) const;

private:
    void readDays(const QString& theText);

    VelDeliveryType myDeliveryType = DELIVERY_TYPE_UNKNOWN;
    VelExpressType myExpressType;
    int myMinDays = -1;
    int myMaxDays = -1;
};

#endif
