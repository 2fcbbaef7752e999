#include "insight/VelAuditChecks.h"

#include "insight/VelAuditCatalog.h"
#include "insight/VelAuditPrices.h"
#include "insight/VelAuditShop.h"
#include "insight/VelAuditShopChecks.h"

using namespace VelAuditShopChecks;

namespace {

/// Each entry is priced once for all checks, and forgotten: a price list may be large.
void checkEntries(const VelAuditCatalog& theCatalog, VelAuditReport& theReport)
{
    const QDateTime present = QDateTime::currentDateTime();
    for (const VelAuditCatalog::Entry& entry : theCatalog.entries()) {
        const VelAuditPrices prices(entry);
        checkProduct(theCatalog, prices, theReport);
        checkLadders(theCatalog, prices, theReport);
        checkEffects(theCatalog, prices, theReport);
        checkOffers(theCatalog, prices, present, theReport);
        checkTotals(theCatalog, prices, theReport);
    }
}

} // namespace

void VelAuditChecks::checkMeaning(const VelAuditShop& theShop, VelAuditReport& theReport)
{
    const VelAuditCatalog catalog(theShop);
    checkEntries(catalog, theReport);
}
