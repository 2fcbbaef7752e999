#include "insight/VelAuditRoutes.h"

#include "insight/VelAuditPrices.h"

void VelAuditRoutes::add(const VelAuditPrices& thePrices)
{
    const VelAuditCatalog::Entry& entry = thePrices.entry();
    if (entry.myKind == VelAuditCatalog::Entry::ARTICLE && entry.myIsBuilt)
        for (const VelOrderSource& source : thePrices.sources())
            mySold[source].insert(entry.myGroup);
    if (entry.myKind != VelAuditCatalog::Entry::TRANSFER)
        return;
    myShippedByProducts.remove(entry.myGroup);
    if (thePrices.isShippingByProducts())
        myShippedByProducts.insert(entry.myGroup);
    myShipped.insert(entry.myGroup, thePrices.sources());
}

bool VelAuditRoutes::isSold(int theGroup, const VelOrderSource& theSource) const
{
    return mySold.value(theSource).contains(theGroup);
}

bool VelAuditRoutes::isShipped(int theGroup, const VelOrderSource& theSource) const
{
    return myShippedByProducts.contains(theGroup) || myShipped.value(theGroup).contains(theSource);
}
