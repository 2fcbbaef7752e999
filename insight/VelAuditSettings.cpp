#include "insight/VelAuditShopChecks.h"

#include "bill/VelCoupon.h"
#include "frame/VelChildElements.h"
#include "insight/VelAuditCatalog.h"
#include "insight/VelAuditPhrases.h"
#include "insight/VelAuditReport.h"
#include "insight/VelAuditShop.h"
#include "insight/VelAuditWords.h"
#include "sibling/VelXMLParser.h"

#include <QSet>

#include <algorithm>
#include <cmath>

using VelAuditPhrases::beside;
using VelAuditPhrases::line;
using VelAuditPhrases::orderWay;
using VelAuditWords::quoted;

namespace {

using Entry = VelAuditCatalog::Entry;

const QString STR_ID = QStringLiteral("id");
const QString STR_ISOCODE = QStringLiteral("isocode");
const QString STR_CURRENCIES = QStringLiteral("currencies");
const QString STR_FACTOR = QStringLiteral("factor");
const QString STR_ORDER_SOURCES = QStringLiteral("order_sources");
const QString STR_DEFAULT_ORDER_SOURCE = QStringLiteral("defaultOrderSource");
const QString STR_INPUT_SOURCE = QStringLiteral("inputSource");
const QString STR_DELIVERY_TYPE = QStringLiteral("deliveryType");
const QString STR_COUPONS = QStringLiteral("coupons");
const QString STR_COUPON = QStringLiteral("coupon");
const QString STR_CONDITION = QStringLiteral("condition");
const QString STR_ART_ID = QStringLiteral("art_id");
const QString STR_PRICE = QStringLiteral("price");
const QString STR_FREE_QUANTITY = QStringLiteral("free_quantity");

/// What holds where no entry names a primary currency.
const QString USUAL_CURRENCY = QStringLiteral("EUR");

// ---- currencies

/// The currencies that ordering details name, in document order.
class Currencies
{
public:
    Currencies(const VelAuditDocument& theDetails, const VelAuditDocument* theKnown, VelAuditReport& theReport)
        : myDetails(theDetails), myKnown(theKnown), myReport(theReport)
    {
        if (theKnown)
            for (const QDomElement& currency : VelChildElements(theKnown->myContent.root()))
                myCodes.insert(VelXMLParser::attribute(currency, STR_ISOCODE, QString()));
    }

    void check(const QDomElement& theSection)
    {
        QVector<QDomElement> currencies;
        for (const QDomElement& currency : VelChildElements(theSection))
            currencies.append(currency);
        for (const QDomElement& currency : qAsConst(currencies)) {
            checkCode(currency);
            checkFactor(currency);
        }
        checkOrder(currencies);
        const bool hasPrimary = std::any_of(currencies.cbegin(), currencies.cend(), isPrimary);
        if (!hasPrimary && myKnown && !myCodes.contains(USUAL_CURRENCY))
            myReport.atElement(
                "unknown-currency", myDetails, theSection.isNull() ? myDetails.myContent.root() : theSection,
                QStringLiteral("no primary currency is named, so it is EUR, which currencies.xml doesn't "
                               "have: no amount can be shown"));
    }

private:
    static bool isPrimary(const QDomElement& theCurrency) { return !theCurrency.hasAttribute(STR_FACTOR); }

    void checkCode(const QDomElement& theCurrency)
    {
        const QString code = VelXMLParser::attribute(theCurrency, STR_ID, QString());
        if (code.isNull() || !myKnown || myCodes.contains(code))
            return;
        const QString cost = isPrimary(theCurrency) ? QStringLiteral("no amount can be shown")
                                                    : QStringLiteral("its amounts are shown as the primary currency");
        VelAuditFinding& finding = myReport.atValue(
            "unknown-currency", myDetails, theCurrency, STR_ID,
            QStringLiteral("currencies.xml has no currency %1: %2")
                .arg(VelAuditWords::withSuggestion(code, QStringList(myCodes.cbegin(), myCodes.cend())), cost));
        beside(finding, *myKnown, myKnown->myContent.root(), QString(), QStringLiteral("the currencies"));
    }

    /// A text that is no number is told of by itself.
    void checkFactor(const QDomElement& theCurrency)
    {
        bool isNumber = false;
        const double factor = theCurrency.attribute(STR_FACTOR).toDouble(&isNumber);
        if (isNumber && !(factor > 0 && std::isfinite(factor)))
            myReport.atValue("impossible-factor", myDetails, theCurrency, STR_FACTOR,
                             QStringLiteral("amounts are divided by the factor, and %1 makes nonsense of all of them")
                                 .arg(quoted(theCurrency.attribute(STR_FACTOR))));
    }

    /// A primary currency clears the secondary one before it, and of each kind the last one counts.
    void checkOrder(const QVector<QDomElement>& theCurrencies)
    {
        QDomElement winners[2]; // secondary, primary
        for (auto currency = theCurrencies.crbegin(); currency != theCurrencies.crend(); ++currency) {
            const QDomElement& winner = isPrimary(*currency) || winners[0].isNull() ? winners[1] : winners[0];
            if (winner.isNull())
                winners[isPrimary(*currency)] = *currency;
            else
                tellCleared(*currency, winner);
        }
    }

    void tellCleared(const QDomElement& theCurrency, const QDomElement& theWinner)
    {
        VelAuditFinding& finding =
            myReport.atValue("currency-without-effect", myDetails, theCurrency, STR_ID,
                             QStringLiteral("the currency of %1 takes its place: the primary one stands first, and "
                                            "there is one of each kind")
                                 .arg(line(myDetails, theWinner)));
        beside(finding, myDetails, theWinner, STR_ID, QStringLiteral("the currency that counts"));
    }

    const VelAuditDocument& myDetails;
    const VelAuditDocument* myKnown;
    VelAuditReport& myReport;
    QSet<QString> myCodes;
};

// ---- the order way to start with

void checkDefaultSource(const VelAuditCatalog& theCatalog, const VelAuditDocument& theAppearance,
                        VelAuditReport& theReport)
{
    const QDomElement element = theAppearance.myContent.root().firstChildElement(STR_DEFAULT_ORDER_SOURCE);
    if (!element.hasAttribute(STR_INPUT_SOURCE) || !element.hasAttribute(STR_DELIVERY_TYPE))
        return;
    const VelOrderSource source(
        static_cast<VelInputSource>(VelXMLParser::intAttribute(element, STR_INPUT_SOURCE, -1)),
        static_cast<VelDeliveryType>(VelXMLParser::intAttribute(element, STR_DELIVERY_TYPE, -1)));
    const QVector<VelAuditCatalog::Offer>& offers = theCatalog.offers();
    if (std::any_of(offers.cbegin(), offers.cend(), [&](const auto& theOffer) { return theOffer.mySource == source; }))
        return;
    VelAuditFinding& finding =
        theReport.atValue("default-order-way-not-offered", theAppearance, element, STR_INPUT_SOURCE,
                          QStringLiteral("the application starts with %1, which orderingdetails.xml doesn't offer")
                              .arg(orderWay(source)));
    const QDomElement sources = theCatalog.orderingSection(STR_ORDER_SOURCES);
    if (!sources.isNull())
        beside(finding, *theCatalog.orderingDetails(), sources, QString(), QStringLiteral("what is offered"));
}

// ---- coupons

/// One coupon, read by the class that reckons with it.
class Coupon
{
public:
    Coupon(const VelAuditCatalog& theCatalog, const VelAuditDocument& theDocument, VelAuditReport& theReport)
        : myCatalog(theCatalog)
        , myDocument(theDocument)
        , myReport(theReport)
        , myElement(theDocument.myContent.root().firstChildElement(STR_COUPONS).firstChildElement(STR_COUPON))
        , myCoupon(QString(), theDocument.myContent.root())
    {
    }

    void check()
    {
        if (myElement.isNull())
            return;
        if (myCoupon.type() == COUPON_TYPE_QUANTITY)
            checkGift();
        else if (myCoupon.type() != COUPON_TYPE_UNKNOWN)
            checkPrice(myCoupon.maximumDiscountValue() + myCoupon.discountPercentage()); // one of the two is 0
        if (!myCatalog.priceList())
            return;
        for (const QDomElement& condition : VelChildElements(myElement, STR_CONDITION))
            checkCondition(condition);
    }

private:
    void checkPrice(int thePrice)
    {
        if (thePrice > 0)
            myReport.atValue(
                "coupon-adds", myDocument, myElement, STR_PRICE,
                QStringLiteral("a price above 0 makes the bill dearer; what takes something off is negative"));
        if (thePrice == 0)
            tellIdle(STR_PRICE, QStringLiteral("a price of 0 takes nothing off"));
    }

    void checkGift()
    {
        if (myCoupon.freeQuantity() < 0)
            myReport.atValue("coupon-adds", myDocument, myElement, STR_FREE_QUANTITY,
                             QStringLiteral("a negative number of free pieces makes the bill dearer"));
        const bool paysShipping =
            std::any_of(myCatalog.entries().cbegin(), myCatalog.entries().cend(), [&](const Entry& theEntry) {
                return theEntry.myKind == Entry::TRANSFER && myCoupon.validArticles().contains(theEntry.myId);
            });
        if (myCoupon.freeQuantity() == 0 && !paysShipping && myCatalog.priceList())
            tellIdle(STR_FREE_QUANTITY,
                     QStringLiteral("no piece is free, and no condition names a transfer: nothing is "
                                    "taken off"));
    }

    void tellIdle(const QString& theAttribute, const QString& theMessage)
    {
        myReport.atValue("coupon-without-effect", myDocument, myElement, theAttribute, theMessage);
    }

    void checkCondition(const QDomElement& theCondition)
    {
        const int id = VelXMLParser::intAttribute(theCondition, STR_ART_ID, 0);
        if (id == 0 || isKnown(id))
            return;
        myReport
            .atValue(
                "unknown-coupon-article", myDocument, theCondition, STR_ART_ID,
                QStringLiteral("pricelist.xml has no article, add-on, transfer or payment fee %1: the coupon counts "
                               "on nothing by this condition")
                    .arg(id))
            .about(id);
    }

    bool isKnown(int theId) const
    {
        return std::any_of(myCatalog.entries().cbegin(), myCatalog.entries().cend(), [&](const Entry& theEntry) {
            return theEntry.myId == theId && theEntry.myIsBuilt && theEntry.myKind != Entry::EXPRESS_FEE;
        });
    }

    const VelAuditCatalog& myCatalog;
    const VelAuditDocument& myDocument;
    VelAuditReport& myReport;
    const QDomElement myElement;
    const VelCoupon myCoupon;
};

} // namespace

void VelAuditShopChecks::checkSettings(const VelAuditCatalog& theCatalog, const VelAuditShop& theShop,
                                       VelAuditReport& theReport)
{
    const VelAuditDocument* known = theShop.readable(VelDocumentDescription::CURRENCIES);
    const VelAuditDocument* appearance = theShop.readable(VelDocumentDescription::APPEARANCE);
    if (!theCatalog.orderingDetails())
        return;
    Currencies(*theCatalog.orderingDetails(), known, theReport).check(theCatalog.orderingSection(STR_CURRENCIES));
    if (appearance)
        checkDefaultSource(theCatalog, *appearance, theReport);
}

void VelAuditShopChecks::checkCoupons(const VelAuditCatalog& theCatalog, const VelAuditShop& theShop,
                                      VelAuditReport& theReport)
{
    for (const VelAuditDocument* coupon : theShop.coupons())
        Coupon(theCatalog, *coupon, theReport).check();
}
