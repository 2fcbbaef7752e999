#include "insight/VelAuditShopChecks.h"

#include "frame/VelChildElements.h"
#include "insight/VelAuditCatalog.h"
#include "insight/VelAuditPhrases.h"
#include "insight/VelAuditPrices.h"
#include "insight/VelAuditReport.h"
#include "insight/VelAuditRoutes.h"
#include "sibling/VelXMLParser.h"

using VelAuditPhrases::orderWay;

namespace {

using Entry = VelAuditCatalog::Entry;

const QString STR_GROUP = QStringLiteral("group");
const QString STR_GROUPS = QStringLiteral("groups");
const QString STR_ID = QStringLiteral("id");
const QString STR_EXPRESS = QStringLiteral("express");
const QString STR_PRICE = QStringLiteral("price");
const QString STR_INPUT_SOURCE = QStringLiteral("input_source");
const QString STR_PERMITTED = QStringLiteral("permitted_pay_method");

/// The fees and order ways of a shop.
class Fees
{
public:
    Fees(const VelAuditCatalog& theCatalog, const VelAuditRoutes& theRoutes, VelAuditReport& theReport)
        : myCatalog(theCatalog), myRoutes(theRoutes), myReport(theReport)
    {
    }

    void checkPriceList()
    {
        for (const Entry& entry : myCatalog.entries()) {
            if (entry.myKind == Entry::TRANSFER)
                checkTransfer(entry);
            if (entry.myKind == Entry::TRANSFER || entry.myKind == Entry::EXPRESS_FEE)
                checkGroup(entry);
            if (entry.myKind == Entry::EXPRESS_FEE)
                checkClass(entry);
        }
    }

    void checkOrderingDetails()
    {
        for (const QDomElement& group : VelChildElements(myCatalog.orderingSection(STR_GROUPS), STR_GROUP))
            checkShipping(group);
        for (const VelAuditCatalog::Offer& offer : myCatalog.offers())
            checkOffer(offer);
        checkPayments();
    }

private:
    /// The order ways by which the group's articles are sold and sent.
    QList<VelOrderSource> waysToSend(int theGroup) const
    {
        QList<VelOrderSource> ways;
        for (const VelOrderSource& source : myCatalog.sources())
            if (!source.isKioskOnSite() && myRoutes.isSold(theGroup, source))
                ways.append(source);
        return ways;
    }

    void checkTransfer(const Entry& theTransfer)
    {
        if (!myRoutes.hasShipping(theTransfer.myGroup) || !myCatalog.isGroupKnown(theTransfer.myGroup))
            return; // told of by itself
        for (const VelOrderSource& source : waysToSend(theTransfer.myGroup))
            if (!myRoutes.isShipped(theTransfer.myGroup, source)) {
                myReport.atElement("shipping-without-price", *myCatalog.priceList(), theTransfer.myElement,
                                   QStringLiteral("articles of group %1 are sold by %2, for which the transfer has no "
                                                  "price: their shipping is charged with -1 cents")
                                       .arg(theTransfer.myGroup)
                                       .arg(orderWay(source)));
                return;
            }
    }

    void checkGroup(const Entry& theFee)
    {
        if (!myCatalog.hasArticles(theFee.myGroup) && myCatalog.isGroupKnown(theFee.myGroup))
            myReport.atValue("fee-without-articles", *myCatalog.priceList(), theFee.myElement, STR_GROUP,
                             QStringLiteral("group %1 has no article, so nobody pays %2")
                                 .arg(theFee.myGroup)
                                 .arg(VelAuditPhrases::entry(theFee)));
    }

    void checkClass(const Entry& theFee)
    {
        if (theFee.myExpressType.isValid() && myCatalog.hasArticles(theFee.myGroup) &&
            !myCatalog.hasShippingTime(theFee.myGroup, theFee.myExpressType))
            myReport.atValue("express-without-time", *myCatalog.priceList(), theFee.myElement, STR_EXPRESS,
                             QStringLiteral("no article of group %1 has a shipping_time of this express class, so none "
                                            "can go by it")
                                 .arg(theFee.myGroup));
    }

    void checkShipping(const QDomElement& theGroup)
    {
        const int group = VelXMLParser::intAttribute(theGroup, STR_ID, -1);
        const QList<VelOrderSource> ways = waysToSend(group);
        if (!ways.isEmpty() && !myCatalog.hasTransfer(group))
            myReport.atValue(
                "group-without-transfer", *myCatalog.orderingDetails(), theGroup, STR_ID,
                QStringLiteral("the price list has no transfer for group %1, so its articles are sent free "
                               "of charge (by %2)")
                    .arg(group)
                    .arg(orderWay(ways.first())));
    }

    void checkOffer(const VelAuditCatalog::Offer& theOffer)
    {
        if (!myCatalog.sources().contains(theOffer.mySource) || myRoutes.isSold(theOffer.mySource))
            return;
        const QString reason = theOffer.mySource.isKioskOnSite()
                                   ? QStringLiteral(": a price entry holds for the kiosk only where it names both "
                                                    "input_source=\"4\" and delivery_type=\"2\"")
                                   : QString();
        myReport.atValue("order-way-without-prices", *myCatalog.orderingDetails(), theOffer.myElement, STR_INPUT_SOURCE,
                         QStringLiteral("no article has a price by %1, so nothing can be ordered%2")
                             .arg(orderWay(theOffer.mySource), reason));
    }

    void checkPayments()
    {
        QSet<int> known;
        for (const Entry& entry : myCatalog.entries())
            if (entry.myKind == Entry::PAYMENT_FEE)
                known.insert(entry.myPayment);
        for (const VelAuditCatalog::Offer& offer : myCatalog.offers())
            for (const QDomElement& payment : VelChildElements(offer.myElement, STR_PERMITTED)) {
                const int id = VelXMLParser::intAttribute(payment, STR_ID, 0);
                if (known.contains(id))
                    continue;
                known.insert(id);
                myReport.atValue("payment-without-fee", *myCatalog.orderingDetails(), payment, STR_ID,
                                 QStringLiteral("no paymethod_fee names payment %1: it costs nothing").arg(id));
            }
    }

    const VelAuditCatalog& myCatalog;
    const VelAuditRoutes& myRoutes;
    VelAuditReport& myReport;
};

} // namespace

void VelAuditShopChecks::checkExpress(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices,
                                      VelAuditReport& theReport)
{
    const Entry& entry = thePrices.entry();
    if (entry.myKind != Entry::EXPRESS_FEE || entry.myExpressType == ExpressableType_STANDARD)
        return;
    const VelTarmPriceBand* free = nullptr;
    for (const VelOrderSource& source : thePrices.differing(theCatalog.sources())) {
        const VelTarmPriceAnswer answer = thePrices.view(source).best(1, 1);
        if (answer.myPrice > 0)
            return;
        if (answer.myPrice == 0 && answer.myChargeCount > 0)
            free = answer.begin()->myBand;
    }
    if (free && free->entry() != VelTarmPriceBand::NO_ENTRY)
        theReport.atValue("express-not-offered", *theCatalog.priceList(), thePrices.element(*free), STR_PRICE,
                          QStringLiteral("a class is offered only where its fee for one piece is above 0: customers "
                                         "never see this one"));
}

void VelAuditShopChecks::checkFees(const VelAuditCatalog& theCatalog, const VelAuditRoutes& theRoutes,
                                   VelAuditReport& theReport)
{
    if (!theCatalog.priceList())
        return;
    Fees fees(theCatalog, theRoutes, theReport);
    fees.checkPriceList();
    if (theCatalog.orderingDetails())
        fees.checkOrderingDetails();
}
