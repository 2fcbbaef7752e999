#include "ordering/VelTarmShippingGroupManager.h"

#include "ordering/VelTarmShippingGroup.h"

#include <algorithm>

VelTarmShippingGroupManager* VelTarmShippingGroupManager::instance()
{
    static VelTarmShippingGroupManager* manager = nullptr;
    if (!manager)
        manager = new VelTarmShippingGroupManager;
    return manager;
}

QList<const VelTarmShippingGroup*> VelTarmShippingGroupManager::shippingGroups() const
{
    QList<const VelTarmShippingGroup*> groups = myShippingGroups.values();
    std::sort(groups.begin(), groups.end(), lessThanPriceListTabPosition);
    return groups;
}

VelTransferModel VelTarmShippingGroupManager::transferModel(int theId) const
{
    const VelTarmShippingGroup* group = shippingGroup(theId);
    return group ? group->transferModel() : TRANSFER_MODEL_UNDEFINED;
}

QString VelTarmShippingGroupManager::shippingGroupName(int theId) const
{
    const VelTarmShippingGroup* group = shippingGroup(theId);
    return group ? group->name() : QStringLiteral("");
}

int VelTarmShippingGroupManager::maxOrderItems(int theId) const
{
    const VelTarmShippingGroup* group = shippingGroup(theId);
    return group ? group->maxOrderItems() : -1;
}
