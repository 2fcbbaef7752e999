#include "insight/VelAuditShopChecks.h"

#include "frame/EnumHelper.h"
#include "frame/VelChildElements.h"
#include "insight/VelAuditCatalog.h"
#include "insight/VelAuditPhrases.h"
#include "insight/VelAuditReport.h"
#include "insight/VelAuditShop.h"
#include "ordering/VelTarmShippingTime.h"
#include "sibling/VelXMLParser.h"

using VelAuditPhrases::beside;
using VelAuditPhrases::line;

namespace {

using Entry = VelAuditCatalog::Entry;

const QString STR_ID = QStringLiteral("id");
const QString STR_NAME = QStringLiteral("name");
const QString STR_BRAND = QStringLiteral("brand");
const QString STR_ISOCODE = QStringLiteral("isocode");
const QString STR_GROUP = QStringLiteral("group");
const QString STR_GROUPS = QStringLiteral("groups");
const QString STR_EXPRESS = QStringLiteral("express");
const QString STR_INPUT_SOURCE = QStringLiteral("input_source");
const QString STR_PAY_METHODS = QStringLiteral("pay_methods");
const QString STR_PAY_METHOD_ID = QStringLiteral("pay_method_id");
const QString STR_PERMITTED = QStringLiteral("permitted_pay_method");
const QString STR_CREDIT_CARDS = QStringLiteral("credit_cards");
const QString STR_ONLINE_TRANSFERS = QStringLiteral("online_transfer_methods");
const QString STR_ORDER_SOURCES = QStringLiteral("order_sources");
const QString STR_DISCOUNT_TYPES = QStringLiteral("discount_types");
const QString STR_LINKED_ARTICLES = QStringLiteral("linked_articles");
const QString STR_LINKED_ARTICLE = QStringLiteral("linked_article");
const QString STR_SHIPPING_TIMES = QStringLiteral("shipping_times");
const QString STR_SHIPPING_TIME = QStringLiteral("shipping_time");
const QString STR_DELIVERY_TYPE = QStringLiteral("delivery_type");
const QString STR_METHOD = QStringLiteral("method");

QString text(const QDomElement& theElement, const QString& theName)
{
    return VelXMLParser::attribute(theElement, theName, QString());
}

/// Whether the attribute is there and a number: one that isn't is told of by itself.
bool isNumber(const QDomElement& theElement, const QString& theName)
{
    return VelXMLParser::intAttribute(theElement, theName, 0) == VelXMLParser::intAttribute(theElement, theName, 1);
}

QString number(const QDomElement& theElement, const QString& theName)
{
    return isNumber(theElement, theName) ? QString::number(VelXMLParser::intAttribute(theElement, theName, 0))
                                         : QString();
}

/// Finds what stands twice among elements that share one kind of key. An element with a null key takes no part.
class Doubles
{
public:
    Doubles(const VelAuditDocument& theDocument, VelAuditReport& theReport)
        : myDocument(theDocument), myReport(theReport)
    {
    }

    /// Tells of an element whose key another had; %1 of the message is the line of that one. Gives the finding, null
    /// for a key that is new.
    VelAuditFinding* take(const QString& theKey, const char* theRule, const QDomElement& theElement,
                          const QString& theAttribute, const QString& theMessage)
    {
        if (theKey.isNull())
            return nullptr;
        const auto first = myFirsts.constFind(theKey);
        if (first == myFirsts.cend()) {
            myFirsts.insert(theKey, theElement);
            return nullptr;
        }
        VelAuditFinding& finding =
            myReport.atValue(theRule, myDocument, theElement, theAttribute, theMessage.arg(line(myDocument, *first)));
        beside(finding, myDocument, *first, theAttribute, QStringLiteral("the first one"));
        return &finding;
    }

private:
    const VelAuditDocument& myDocument;
    VelAuditReport& myReport;
    QHash<QString, QDomElement> myFirsts;
};

// ---- numbers of articles and fees

/// Articles and add-ons share one list of numbers. A fee is found by what it is for; its number serves coupons.
void checkIds(const VelAuditCatalog& theCatalog, VelAuditReport& theReport)
{
    Doubles doubles(*theCatalog.priceList(), theReport);
    for (const Entry& entry : theCatalog.entries()) {
        const QString message =
            entry.isSold() ? QStringLiteral("the number stands in %1, too: the later entry overwrites name, group, "
                                            "prices and texts of the first, so one of the two vanishes")
                           : QStringLiteral("the number stands in %1, too: a coupon that names it means both");
        VelAuditFinding* finding =
            doubles.take(number(entry.myElement, STR_ID), "duplicate-id", entry.myElement, STR_ID, message);
        if (finding && !entry.isSold())
            finding->as(SEVERITY_WARNING);
    }
}

// ---- keys of fees

QString keyOfFee(const Entry& theEntry)
{
    const QString group = QStringLiteral("%1 %2").arg(theEntry.myKind).arg(theEntry.myGroup);
    switch (theEntry.myKind) {
    case Entry::TRANSFER:
        return isNumber(theEntry.myElement, STR_GROUP) ? group : QString();
    case Entry::EXPRESS_FEE:
        return isNumber(theEntry.myElement, STR_GROUP) && theEntry.myExpressType.isValid()
                   ? QStringLiteral("%1 %2").arg(group).arg(theEntry.myExpressType.value())
                   : QString();
    case Entry::PAYMENT_FEE:
        return number(theEntry.myElement, STR_PAY_METHOD_ID);
    default:
        return QString();
    }
}

QString attributeOfFee(const Entry& theEntry)
{
    if (theEntry.myKind == Entry::PAYMENT_FEE)
        return STR_PAY_METHOD_ID;
    return theEntry.myKind == Entry::TRANSFER ? STR_GROUP : STR_EXPRESS;
}

void checkKeysOfFees(const VelAuditCatalog& theCatalog, VelAuditReport& theReport)
{
    Doubles doubles(*theCatalog.priceList(), theReport);
    for (const Entry& entry : theCatalog.entries())
        doubles.take(keyOfFee(entry), "duplicate-fee", entry.myElement, attributeOfFee(entry),
                     QStringLiteral("%1 is for the same as the one of %2: the later one counts, and the first is never "
                                    "charged")
                         .arg(VelAuditPhrases::entry(entry), QStringLiteral("%1")));
}

// ---- shipping times and links of an entry

void checkTimes(const VelAuditDocument& theDocument, const QDomElement& theEntry, VelAuditReport& theReport)
{
    const QDomElement times = theEntry.firstChildElement(STR_SHIPPING_TIMES);
    if (times.firstChildElement(STR_SHIPPING_TIME) == times.lastChildElement(STR_SHIPPING_TIME))
        return;
    Doubles doubles(theDocument, theReport);
    for (const QDomElement& time : VelChildElements(times, STR_SHIPPING_TIME)) {
        const VelOrderSource way(time); // of which only the delivery type is there
        const VelExpressType express(text(time, STR_EXPRESS));
        const QString key =
            express.isValid() ? QStringLiteral("%1 %2").arg(way.deliveryType()).arg(express.value()) : QString();
        doubles.take(key, "duplicate-key", time, STR_EXPRESS,
                     QStringLiteral("the same delivery and express class stand in %1, too: the first one counts, and "
                                    "these days are never told"));
    }
}

void checkDays(const VelAuditDocument& theDocument, const QDomElement& theEntry, VelAuditReport& theReport)
{
    for (const QDomElement& element :
         VelChildElements(theEntry.firstChildElement(STR_SHIPPING_TIMES), STR_SHIPPING_TIME)) {
        if (!element.hasAttribute(STR_EXPRESS) || !VelExpressType(text(element, STR_EXPRESS)).isValid() ||
            EnumHelper::decodeDeliveryType(text(element, STR_DELIVERY_TYPE)) == DELIVERY_TYPE_UNKNOWN)
            continue; // told of by itself, and reading it warns
        const VelTarmShippingTime time(element);
        if (time.maxDays() < time.minDays())
            theReport.atValue(
                "limits-crossed", theDocument, element, QStringLiteral("days"),
                QStringLiteral("at least %1 days and at most %2").arg(time.minDays()).arg(time.maxDays()));
    }
}

void checkLink(const VelAuditCatalog& theCatalog, const QDomElement& theLink, VelAuditReport& theReport)
{
    if (!isNumber(theLink, STR_ID))
        return;
    const int id = VelXMLParser::intAttribute(theLink, STR_ID, -1);
    const Entry* target = theCatalog.sold(id);
    const VelAuditDocument& document = *theCatalog.priceList();
    if (target && target->myKind == Entry::ARTICLE)
        return;
    if (target) {
        VelAuditFinding& finding = theReport.atValue(
            "broken-link", document, theLink, STR_ID,
            QStringLiteral("%1 is an add-on itself (%2): add-ons are sold with articles alone, so the link has no "
                           "effect")
                .arg(id)
                .arg(line(document, target->myElement)));
        return beside(finding, document, target->myElement, STR_ID, QStringLiteral("the add-on"));
    }
    theReport.atValue("broken-link", document, theLink, STR_ID,
                      QStringLiteral("there is no article %1 to be sold with, so the link has no effect").arg(id));
}

void checkGroup(const VelAuditCatalog& theCatalog, const Entry& theEntry, VelAuditReport& theReport)
{
    if (theEntry.myKind == Entry::PAYMENT_FEE || !isNumber(theEntry.myElement, STR_GROUP) ||
        theCatalog.isGroupKnown(theEntry.myGroup))
        return;
    const QString cost = theEntry.isSold() ? QStringLiteral("it can't be ordered") : QStringLiteral("nothing pays it");
    VelAuditFinding& finding = theReport.atValue(
        "unknown-group", *theCatalog.priceList(), theEntry.myElement, STR_GROUP,
        QStringLiteral("orderingdetails.xml lists no group %1, so %2").arg(theEntry.myGroup).arg(cost));
    const QDomElement groups = theCatalog.orderingSection(STR_GROUPS);
    if (!groups.isNull())
        beside(finding, *theCatalog.orderingDetails(), groups, QString(), QStringLiteral("the groups"));
    if (!theEntry.isSold())
        finding.as(SEVERITY_WARNING);
}

// ---- ordering details and the documents beside them

using KeyOf = QString (*)(const QDomElement&);

void checkSection(const VelAuditDocument& theDocument, const QDomElement& theSection, KeyOf theKeyOf,
                  const QString& theAttribute, const QString& theMessage, VelAuditReport& theReport)
{
    Doubles doubles(theDocument, theReport);
    for (const QDomElement& element : VelChildElements(theSection))
        doubles.take(theKeyOf(element), "duplicate-key", element, theAttribute, theMessage);
}

QString keyOfPayment(const QDomElement& theElement)
{
    const QString id = number(theElement, STR_ID);
    return id.isNull() ? id : QStringLiteral("%1 %2").arg(id, text(theElement, STR_BRAND));
}

QString keyOfOrderSource(const QDomElement& theElement)
{
    const VelOrderSource source(theElement);
    return source.isValid() ? QStringLiteral("%1 %2").arg(source.inputSource()).arg(source.deliveryType()) : QString();
}

QString keyOfWording(const QDomElement& theElement)
{
    const VelDiscountModel model = EnumHelper::decodeDiscountModel(text(theElement, STR_ID));
    return model == DISCOUNT_MODEL_FUTURE_EXTENSION ? QString() : QString::number(model);
}

void checkOrderingDetails(const VelAuditCatalog& theCatalog, VelAuditReport& theReport)
{
    const VelAuditDocument& document = *theCatalog.orderingDetails();
    const auto check = [&](const QString& theTag, KeyOf theKeyOf, const QString& theAttribute,
                           const QString& theMessage) {
        checkSection(document, theCatalog.orderingSection(theTag), theKeyOf, theAttribute, theMessage, theReport);
    };
    const QString later = QStringLiteral("the same stands in %1: the later one counts");
    for (const QString& section : {STR_PAY_METHODS, STR_CREDIT_CARDS, STR_ONLINE_TRANSFERS})
        check(section, keyOfPayment, STR_ID,
              QStringLiteral("number and brand stand in %1, too: both are offered, and "
                             "the name of the first one is shown"));
    check(STR_ORDER_SOURCES, keyOfOrderSource, STR_INPUT_SOURCE, later);
    check(STR_DISCOUNT_TYPES, keyOfWording, STR_ID, later);
    check(
        STR_GROUPS, [](const QDomElement& theGroup) { return number(theGroup, STR_ID); }, STR_ID, later);
    for (const QDomElement& source : VelChildElements(theCatalog.orderingSection(STR_ORDER_SOURCES)))
        checkSection(
            document, source, [](const QDomElement& thePayment) { return number(thePayment, STR_ID); }, STR_ID,
            QStringLiteral("the payment stands in %1, too: this one has no effect"), theReport);
}

/// Currencies and icons go by their keys letter by letter.
void checkCompanion(const VelAuditDocument* theDocument, const QString& theTag, const QString& theAttribute,
                    VelAuditReport& theReport)
{
    if (!theDocument)
        return;
    Doubles doubles(*theDocument, theReport);
    for (const QDomElement& element : VelChildElements(theDocument->myContent.root(), theTag))
        doubles.take(text(element, theAttribute), "duplicate-key", element, theAttribute,
                     QStringLiteral("the same stands in %1: the later one counts"));
}

// ---- payments

QSet<int> knownPayments(const VelAuditCatalog& theCatalog)
{
    QSet<int> payments;
    for (const QDomElement& payment : VelChildElements(theCatalog.orderingSection(STR_PAY_METHODS)))
        payments.insert(VelXMLParser::intAttribute(payment, STR_ID, 0));
    return payments;
}

void checkPayments(const VelAuditCatalog& theCatalog, VelAuditReport& theReport)
{
    const QSet<int> known = knownPayments(theCatalog);
    const auto check = [&](const VelAuditDocument& theDocument, const QDomElement& theElement,
                           const QString& theAttribute, const QString& theCost) {
        const int payment = VelXMLParser::intAttribute(theElement, theAttribute, 0);
        if (isNumber(theElement, theAttribute) && !known.contains(payment))
            theReport.atValue("unknown-payment", theDocument, theElement, theAttribute,
                              QStringLiteral("pay_methods has no payment %1: %2").arg(payment).arg(theCost));
    };
    for (const QDomElement& source : VelChildElements(theCatalog.orderingSection(STR_ORDER_SOURCES)))
        for (const QDomElement& payment : VelChildElements(source, STR_PERMITTED))
            check(*theCatalog.orderingDetails(), payment, STR_ID, QStringLiteral("customers are never shown it"));
    for (const Entry& entry : theCatalog.entries())
        if (entry.myKind == Entry::PAYMENT_FEE)
            check(*theCatalog.priceList(), entry.myElement, STR_PAY_METHOD_ID,
                  QStringLiteral("the fee is never charged"));
}

} // namespace

void VelAuditShopChecks::checkDuplicates(const VelAuditCatalog& theCatalog, const VelAuditShop& theShop,
                                         VelAuditReport& theReport)
{
    if (theCatalog.priceList()) {
        checkIds(theCatalog, theReport);
        checkKeysOfFees(theCatalog, theReport);
        for (const Entry& entry : theCatalog.entries()) {
            checkTimes(*theCatalog.priceList(), entry.myElement, theReport);
            checkDays(*theCatalog.priceList(), entry.myElement, theReport);
        }
    }
    if (theCatalog.orderingDetails())
        checkOrderingDetails(theCatalog, theReport);
    checkCompanion(theShop.readable(VelDocumentDescription::CURRENCIES), QString(), STR_ISOCODE, theReport);
    checkCompanion(theShop.readable(VelDocumentDescription::PAYMENT_ICONS), STR_METHOD, STR_NAME, theReport);
}

void VelAuditShopChecks::checkReferences(const VelAuditCatalog& theCatalog, VelAuditReport& theReport)
{
    for (const Entry& entry : theCatalog.entries()) {
        checkGroup(theCatalog, entry, theReport);
        if (entry.myKind != Entry::ADD_ON)
            continue;
        const QDomElement links = entry.myElement.namedItem(STR_LINKED_ARTICLES).toElement();
        for (const QDomElement& link : VelChildElements(links, STR_LINKED_ARTICLE))
            checkLink(theCatalog, link, theReport);
    }
    if (theCatalog.orderingDetails())
        checkPayments(theCatalog, theReport);
}
