#include "insight/VelAuditCatalog.h"

#include "frame/EnumHelper.h"
#include "frame/VelChildElements.h"
#include "ordering/VelTarmShippingTime.h"
#include "product/VelProductFactory.h"
#include "sibling/VelXMLParser.h"

#include <algorithm>

namespace {

const QString STR_ARTICLE = QStringLiteral("article");
const QString STR_ADD_ON = QStringLiteral("add_on");
const QString STR_PAYMENT_FEE = QStringLiteral("paymethod_fee");
const QString STR_TRANSFER = QStringLiteral("transfer");
const QString STR_EXPRESS_FEE = QStringLiteral("express_fee");
const QString STR_ARTICLES = QStringLiteral("articles");
const QString STR_ADD_ONS = QStringLiteral("add_ons");
const QString STR_PAYMENT_FEES = QStringLiteral("paymethod_fees");
const QString STR_TRANSFERS = QStringLiteral("transfers");
const QString STR_EXPRESS_FEES = QStringLiteral("express_fees");
const QString STR_ID = QStringLiteral("id");
const QString STR_GROUP = QStringLiteral("group");
const QString STR_GROUPS = QStringLiteral("groups");
const QString STR_EXPRESS = QStringLiteral("express");
const QString STR_PAYMENT = QStringLiteral("pay_method_id");
const QString STR_PRODUCT_CLASS = QStringLiteral("product_class");
const QString STR_ARRANGEMENT = QStringLiteral("arrangement");
const QString STR_BASE_PRICES = QStringLiteral("base_prices");
const QString STR_DISCOUNT_PRICES = QStringLiteral("discount_prices");
const QString STR_SHIPPING_TIMES = QStringLiteral("shipping_times");
const QString STR_SHIPPING_TIME = QStringLiteral("shipping_time");
const QString STR_ORDER_SOURCES = QStringLiteral("order_sources");
const QString STR_PERMITTED = QStringLiteral("permitted_pay_method");

QString text(const QDomElement& theElement, const QString& theName)
{
    return VelXMLParser::attribute(theElement, theName, QString());
}

bool isArrangementKnown(VelProductArrangement theArrangement)
{
    return theArrangement == PRODUCT_ARRANGEMENT_TRIVIAL || theArrangement == PRODUCT_ARRANGEMENT_GIFT ||
           theArrangement == PRODUCT_ARRANGEMENT_CARD || theArrangement == PRODUCT_ARRANGEMENT_PHOTOBOOK ||
           theArrangement == PRODUCT_ARRANGEMENT_CALENDAR;
}

/// What the factory makes of the attributes of an article or add-on, without its messages.
void askFactory(VelAuditCatalog::Entry& theEntry)
{
    if (theEntry.myKind == VelAuditCatalog::Entry::ADD_ON)
        theEntry.myIsBuilt =
            VelProductFactory::instance()->isBuiltProductClass(text(theEntry.myElement, STR_PRODUCT_CLASS));
    if (theEntry.myKind != VelAuditCatalog::Entry::ARTICLE)
        return;
    const auto arrangement = EnumHelper::decodeProductArrangement(text(theEntry.myElement, STR_ARRANGEMENT));
    theEntry.myIsUnknownBook = !VelProductFactory::instance()->isKnownId(arrangement, text(theEntry.myElement, STR_ID));
    theEntry.myIsBuilt = isArrangementKnown(arrangement) && !theEntry.myIsUnknownBook;
    theEntry.myIsPrintFun = theEntry.myIsBuilt && arrangement != PRODUCT_ARRANGEMENT_TRIVIAL;
}

/// The entry of a tag, as the factory goes by tags in articles and add_ons.
bool kindOf(const QDomElement& theElement, VelAuditCatalog::Entry::Kind& theKind)
{
    using Entry = VelAuditCatalog::Entry;
    static const QHash<QString, Entry::Kind> kinds{{STR_ARTICLE, Entry::ARTICLE},
                                                   {STR_ADD_ON, Entry::ADD_ON},
                                                   {STR_PAYMENT_FEE, Entry::PAYMENT_FEE},
                                                   {STR_TRANSFER, Entry::TRANSFER},
                                                   {STR_EXPRESS_FEE, Entry::EXPRESS_FEE}};
    const auto kind = kinds.constFind(theElement.tagName());
    if (kind == kinds.cend())
        return false;
    theKind = *kind;
    return true;
}

QList<VelOrderSource> allSources()
{
    return {VelOrderSource::onlinePointOfSale(), VelOrderSource::onlineMailOrder(), VelOrderSource::cdPointOfSale(),
            VelOrderSource::cdMailOrder(), VelOrderSource::kioskOnSite()};
}

} // namespace

// ---- construction

VelAuditCatalog::VelAuditCatalog(const VelAuditShop& theShop)
    : myPriceList(theShop.readable(VelDocumentDescription::PRICE_LIST))
    , myOrderingDetails(theShop.readable(VelDocumentDescription::ORDERING_DETAILS))
{
    for (const QString& section : {STR_ARTICLES, STR_ADD_ONS, STR_PAYMENT_FEES, STR_TRANSFERS, STR_EXPRESS_FEES})
        readSection(section);
    for (const Entry& entry : qAsConst(myEntries)) {
        if (entry.isSold() && entry.myIsBuilt && !mySold.contains(entry.myId))
            mySold.insert(entry.myId, &entry);
        if (entry.myKind == Entry::ARTICLE && entry.myIsBuilt)
            myArticleGroups.insert(entry.myGroup);
        if (entry.myKind == Entry::TRANSFER)
            myTransferGroups.insert(entry.myGroup);
    }
    for (const QDomElement& group : VelChildElements(orderingSection(STR_GROUPS), STR_GROUP))
        myGroups.insert(VelXMLParser::intAttribute(group, STR_ID, -1));
    readOffers();
}

// ---- queries

QDomElement VelAuditCatalog::priceListSection(const QString& theTag) const
{
    return myPriceList ? myPriceList->myContent.root().firstChildElement(theTag) : QDomElement();
}

QDomElement VelAuditCatalog::orderingSection(const QString& theTag) const
{
    return myOrderingDetails ? myOrderingDetails->myContent.root().firstChildElement(theTag) : QDomElement();
}

QVector<QDomElement> VelAuditCatalog::Entry::prices() const
{
    QVector<QDomElement> prices;
    for (const QString& group : {STR_BASE_PRICES, STR_DISCOUNT_PRICES})
        for (const QDomElement& price : VelChildElements(myElement.firstChildElement(group)))
            prices.append(price);
    return prices;
}

bool VelAuditCatalog::hasShippingTime(int theGroup, const VelExpressType& theClass) const
{
    return myTimes.contains(theGroup, theClass.value());
}

// ---- reading

void VelAuditCatalog::readSection(const QString& theTag)
{
    const bool isOfFees = theTag != STR_ARTICLES && theTag != STR_ADD_ONS;
    const QString feeTag = theTag.left(theTag.size() - 1); // a fee section reads the elements of its own tag alone
    Entry::Kind kind;
    for (const QDomElement& element : VelChildElements(priceListSection(theTag), isOfFees ? feeTag : QString()))
        if (kindOf(element, kind))
            readEntry(element, kind);
}

void VelAuditCatalog::readEntry(const QDomElement& theElement, Entry::Kind theKind)
{
    Entry entry;
    entry.myKind = theKind;
    entry.myElement = theElement;
    entry.myId = VelXMLParser::intAttribute(theElement, STR_ID, 0);
    entry.myGroup = VelXMLParser::intAttribute(theElement, STR_GROUP, -1);
    entry.myIsBuilt = true;
    entry.myIsPrintFun = false;
    entry.myIsUnknownBook = false;
    entry.myHasBadTimes = false;
    entry.myPayment = VelXMLParser::intAttribute(theElement, STR_PAYMENT, 0);
    if (theKind == Entry::EXPRESS_FEE)
        entry.myExpressType = VelExpressType(text(theElement, STR_EXPRESS));
    askFactory(entry);
    readTimes(entry);
    myEntries.append(entry);
}

void VelAuditCatalog::readTimes(Entry& theEntry)
{
    const QDomElement times = theEntry.myElement.firstChildElement(STR_SHIPPING_TIMES);
    for (const QDomElement& element : VelChildElements(times, STR_SHIPPING_TIME)) {
        const VelTarmShippingTime time(element);
        theEntry.myHasBadTimes = theEntry.myHasBadTimes || !time.isValid();
        const bool isNew = !myTimes.contains(theEntry.myGroup, time.expressType().value());
        if (time.isValid() && isNew && theEntry.myKind == Entry::ARTICLE && theEntry.myIsBuilt)
            myTimes.insert(theEntry.myGroup, time.expressType().value());
    }
}

void VelAuditCatalog::readOffers()
{
    for (const QDomElement& element : VelChildElements(orderingSection(STR_ORDER_SOURCES))) {
        Offer offer{VelOrderSource(element), element, {}};
        if (!offer.mySource.isValid())
            continue;
        for (const QDomElement& payment : VelChildElements(element, STR_PERMITTED))
            offer.myPayments.append(VelXMLParser::intAttribute(payment, STR_ID, 0));
        const auto isSame = [&](const Offer& theOther) { return theOther.mySource == offer.mySource; };
        myOffers.erase(std::remove_if(myOffers.begin(), myOffers.end(), isSame), myOffers.end());
        myOffers.append(offer);
    }
    for (const VelOrderSource& source : allSources()) {
        const auto isIt = [&](const Offer& theOffer) { return theOffer.mySource == source; };
        if (!myOrderingDetails || std::any_of(myOffers.cbegin(), myOffers.cend(), isIt))
            mySources.append(source);
    }
}
