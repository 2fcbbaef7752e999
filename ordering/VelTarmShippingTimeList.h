#ifndef VELTARMSHIPPINGTIMELIST_H
#define VELTARMSHIPPINGTIMELIST_H

#include "frame/VelTarmExport.h"
#include "ordering/VelTarmShippingTime.h"

#include <QDomElement>
#include <QList>

/// The valid shipping times of an article, in document order. A value.
class VELTARM_EXPORT VelTarmShippingTimeList
{
public:
    static const QString STR_SHIPPING_TIMES; ///< the element's tag

    VelTarmShippingTimeList() = default;

    /// As after update().
    explicit VelTarmShippingTimeList(const QDomElement& theElement) { update(theElement); }

    /// Replaces the list by the children `shipping_time` of an element `shipping_times`; any other element, a null one
    /// too, leaves an empty list. An invalid entry is dropped with a warning.
    void update(const QDomElement& theElement);

    /// Whether the document says nothing valid.
    bool isEmpty() const { return myShippingTimes.isEmpty(); }

    /// The first entry of both types, an invalid one when there is none.
    VelTarmShippingTime shippingTime(VelDeliveryType theDeliveryType, const VelExpressType& theExpressType) const;

    /// Whether there is an entry of both types.
    bool isExpressable(VelDeliveryType theDeliveryType, const VelExpressType& theExpressType) const;

private:
    QList<VelTarmShippingTime> myShippingTimes;
};

#endif
