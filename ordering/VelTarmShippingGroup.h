#ifndef VELTARMSHIPPINGGROUP_H
#define VELTARMSHIPPINGGROUP_H

#include "frame/VelEnumerations.h"
#include "frame/VelTarmExport.h"

#include <QDateTime>
#include <QDomElement>
#include <QString>

/// Products that are sold and shipped together, as an element `group` of the ordering details says it.
class VELTARM_EXPORT VelTarmShippingGroup
{
public:
    /// The position is the element's index among its siblings, from 0.
    VelTarmShippingGroup(const QDomElement& theElement, int thePriceListTabPosition);
    virtual ~VelTarmShippingGroup() = default;

    /// Reads the attributes; an element of another tag is warned about and leaves everything as it was.
    void parseShippingGroup(const QDomElement& theElement);

    /// `id`, default -1.
    int id() const { return myId; }

    /// `last_change`: the newest change of the group's prices; 1970-05-26T09:30:00 when the attribute is missing.
    QDateTime lastChange() const { return myLastChange; }

    /// `max_order_items`, default -1.
    int maxOrderItems() const { return myMaxOrderItems; }

    /// `name`, null when missing.
    QString name() const { return myName; }

    /// `transfer_model`, TRANSFER_MODEL_UNDEFINED when missing or unknown.
    VelTransferModel transferModel() const { return myTransferModel; }

    /// The element's index among its siblings.
    int priceListTabPosition() const { return myPriceListTabPosition; }

private:
    int myId = -1;
    QDateTime myLastChange;
    int myMaxOrderItems = -1;
    QString myName;
    VelTransferModel myTransferModel = TRANSFER_MODEL_UNDEFINED;
    int myPriceListTabPosition;
};

/// The document's order of the groups, as a sort predicate for the application.
VELTARM_EXPORT bool lessThanPriceListTabPosition(const VelTarmShippingGroup* theLeft,
                                                 const VelTarmShippingGroup* theRight);

#endif
