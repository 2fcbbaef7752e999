#include "product/VelProductGroupManager.h"

#include "frame/VelEnumFlags.h"
#include "frame/VelGuardedInstance.h"
#include "product/VelProductRegistry.h"

VelProductGroupManager* VelProductGroupManager::instance()
{
    static QMutex myInstanceMutex;
    static QAtomicPointer<VelProductGroupManager> myInstance;
    return guardedInstance(myInstance, myInstanceMutex, [] { return new VelProductGroupManager; });
}

bool VelProductGroupManager::isActive(const VelProductGroup& theGroup) const
{
    return !VelProductRegistry::instance()->productsForProductGroup(theGroup, true).isEmpty();
}

QList<VelProductGroup> VelProductGroupManager::activeProductGroups() const
{
    QList<VelProductGroup> groups;
    for (const VelProductGroupEnum value : splitEnumType(PRODUCT_GROUP_ALL))
        if (isActive(VelProductGroup(value)))
            groups.append(VelProductGroup(value));
    return groups;
}
