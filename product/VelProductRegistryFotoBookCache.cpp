#include "product/VelProductRegistryFotoBookCache.h"

QPair<VelProductType, int> VelProductRegistryFotoBookCache::makeKey(const VelProductType& theType, int thePages) const
{
    return qMakePair(theType, thePages);
}

VelProductPrintFun* VelProductRegistryFotoBookCache::find(const VelProductType& theType, int thePages) const
{
    return myCache.value(makeKey(theType, thePages), nullptr);
}

void VelProductRegistryFotoBookCache::insert(const VelProductType& theType, int thePages,
                                             VelProductPrintFun* theProduct)
{
    myCache.insert(makeKey(theType, thePages), theProduct);
}
