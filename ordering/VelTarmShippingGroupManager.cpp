#include "ordering/VelTarmShippingGroupManager.h"

#include "ordering/VelTarmShippingGroup.h"

VelTarmShippingGroupManager* VelTarmShippingGroupManager::instance()
{
    static VelTarmShippingGroupManager* manager = nullptr;
    if (!manager)
        manager = new VelTarmShippingGroupManager;
    return manager;
}

VelTransferModel VelTarmShippingGroupManager::transferModel(int theId) const
{
    const VelTarmShippingGroup* group = shippingGroup(theId);
    return group ? group->transferModel() : TRANSFER_MODEL_UNDEFINED;
}

QString VelTarmShippingGroupManager::shippingGroupName(int theId) const
{
    const VelTarmShippingGroup* group = shippingGroup(theId);
    return group ? group->name() : QString();
}

int VelTarmShippingGroupManager::maxOrderItems(int theId) const
{
    const VelTarmShippingGroup* group = shippingGroup(theId);
    return group ? group->maxOrderItems() : -1;
}
