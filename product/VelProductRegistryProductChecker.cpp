#include "product/VelProductRegistryProductChecker.h"

#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

bool VelProductRegistryProductChecker::isValid(const VelProductType& theType) const
{
    const VelProductAbstract* product = VelProductRegistry::instance()->findProduct(theType);
    return product && !product->isDeprecated();
}
