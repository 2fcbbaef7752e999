#ifndef VELTARMSHIPPINGGROUPMANAGER_H
#define VELTARMSHIPPINGGROUPMANAGER_H

#include "frame/VelEnumerations.h"
#include "frame/VelTarmExport.h"

#include <QList>
#include <QMap>
#include <QString>

class VelTarmShippingGroup;

/// The shipping groups that the key account may sell, by id. VelOrderingDetails fills the map and nobody else; groups
/// are never deleted, so that a group handed out once stays usable.
class VELTARM_EXPORT VelTarmShippingGroupManager
{
public:
    /// Built on first use without a lock.
    static VelTarmShippingGroupManager* instance();

    /// The group of that id; null when the key account doesn't sell it. Owned by nobody, alive for ever.
    const VelTarmShippingGroup* shippingGroup(int theId) const { return myShippingGroups.value(theId, nullptr); }

    /// All groups in the order of the document. Owned by nobody, alive for ever.
    QList<const VelTarmShippingGroup*> shippingGroups() const;

    /// TRANSFER_MODEL_UNDEFINED for an unknown id.
    VelTransferModel transferModel(int theId) const;

    /// The empty text for an unknown id.
    QString shippingGroupName(int theId) const;

    /// -1 for an unknown id.
    int maxOrderItems(int theId) const;

private:
    friend class VelOrderingDetails;

    QMap<int, const VelTarmShippingGroup*> myShippingGroups;
};

#endif
