#include "product/VelProduct.h"

#include "ordering/VelTarmShippingGroupManager.h"

QString VelProduct::fullQualifiedName() const
{
    const QString group = VelTarmShippingGroupManager::instance()->shippingGroupName(shippingGroupId());
    return name() + QStringLiteral(" (") + group + QLatin1Char(')');
}
