#ifndef VELAUDITSHOPCHECKS_H
#define VELAUDITSHOPCHECKS_H

#include <QDateTime>

class VelAuditCatalog;
class VelAuditPrices;
class VelAuditReport;
class VelAuditRoutes;
class VelAuditShop;

/// What checkMeaning() of VelAuditChecks consists of: the checks that compare one place of a shop with another, or ask
/// what it charges. A part of which the documents aren't there is left out.
namespace VelAuditShopChecks {

// ---- of one entry of the price list

/// Prices that are missing, levels that are, and levels that never hold.
void checkLadders(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices, VelAuditReport& theReport);
/// Price entries of which nothing is left, and such as stand under no order way on offer.
void checkEffects(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices, VelAuditReport& theReport);
/// The old prices beside offers; the present decides which are over.
void checkOffers(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices, const QDateTime& thePresent,
                 VelAuditReport& theReport);
/// Express classes that are priced and never offered.
void checkExpress(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices, VelAuditReport& theReport);
/// What a customer notices: prices that rise or fall where none would expect it.
void checkTotals(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices, VelAuditReport& theReport);
/// Whether the entry becomes a product, and its pages.
void checkProduct(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices, VelAuditReport& theReport);

// ---- of the documents together

/// Numbers and keys that stand twice.
void checkDuplicates(const VelAuditCatalog& theCatalog, const VelAuditShop& theShop, VelAuditReport& theReport);
/// Numbers that name nothing.
void checkReferences(const VelAuditCatalog& theCatalog, VelAuditReport& theReport);
/// Shipping, payments and express classes that nothing is charged for, and charges that nobody pays.
void checkFees(const VelAuditCatalog& theCatalog, const VelAuditRoutes& theRoutes, VelAuditReport& theReport);
/// Currencies and the order way to start with.
void checkSettings(const VelAuditCatalog& theCatalog, const VelAuditShop& theShop, VelAuditReport& theReport);
/// What coupons take off, and from what.
void checkCoupons(const VelAuditCatalog& theCatalog, const VelAuditShop& theShop, VelAuditReport& theReport);

} // namespace VelAuditShopChecks

#endif
