#include "insight/VelAuditChecks.h"

#include "insight/VelAuditCatalog.h"
#include "insight/VelAuditPrices.h"
#include "insight/VelAuditRoutes.h"
#include "insight/VelAuditShop.h"
#include "insight/VelAuditShopChecks.h"

using namespace VelAuditShopChecks;

namespace {

/// Each entry is priced once for all checks, and forgotten: a price list may be large.
VelAuditRoutes checkEntries(const VelAuditCatalog& theCatalog, VelAuditReport& theReport)
{
    const QDateTime present = QDateTime::currentDateTime();
    VelAuditRoutes routes;
    for (const VelAuditCatalog::Entry& entry : theCatalog.entries()) {
        const VelAuditPrices prices(entry);
        routes.add(prices);
        checkProduct(theCatalog, prices, theReport);
        checkLadders(theCatalog, prices, theReport);
        checkEffects(theCatalog, prices, theReport);
        checkOffers(theCatalog, prices, present, theReport);
        checkExpress(theCatalog, prices, theReport);
        checkTotals(theCatalog, prices, theReport);
    }
    return routes;
}

} // namespace

void VelAuditChecks::checkMeaning(const VelAuditShop& theShop, VelAuditReport& theReport)
{
    const VelAuditCatalog catalog(theShop);
    checkFees(catalog, checkEntries(catalog, theReport), theReport);
    checkDuplicates(catalog, theShop, theReport);
    checkReferences(catalog, theReport);
    checkSettings(catalog, theShop, theReport);
    checkCoupons(catalog, theShop, theReport);
}
