#ifndef VELPRODUCTGROUPMANAGER_H
#define VELPRODUCTGROUPMANAGER_H

#include "frame/VelTarmExport.h"
#include "sibling/VelProductGroup.h"

#include <QList>

/// Which product groups the price list offers.
class VELTARM_EXPORT VelProductGroupManager
{
public:
    /// Built on the first call, which is guarded; never deleted.
    static VelProductGroupManager* instance();

    /// Whether the registry holds a product of the group, deprecated or not. Any add-on makes every group active: the
    /// query behind this lists add-ons whatever the group, and that is meant.
    bool isActive(const VelProductGroup& theGroup) const;

    /// The active ones of the single groups, lowest value first.
    QList<VelProductGroup> activeProductGroups() const;
};

#endif
