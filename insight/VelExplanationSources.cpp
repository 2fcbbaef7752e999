#include "insight/VelExplanationSources.h"

#include "frame/VelChildElements.h"
#include "frame/VelExpressType.h"
#include "frame/VelOrderSource.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelXMLParser.h"

namespace {

const QString STR_ARTICLES = QStringLiteral("articles");
const QString STR_ADD_ONS = QStringLiteral("add_ons");
const QString STR_PAYMETHOD_FEES = QStringLiteral("paymethod_fees");
const QString STR_PAYMETHOD_FEE = QStringLiteral("paymethod_fee");
const QString STR_TRANSFERS = QStringLiteral("transfers");
const QString STR_TRANSFER = QStringLiteral("transfer");
const QString STR_EXPRESS_FEES = QStringLiteral("express_fees");
const QString STR_EXPRESS_FEE = QStringLiteral("express_fee");
const QString STR_ID = QStringLiteral("id");
const QString STR_GROUP = QStringLiteral("group");
const QString STR_PAY_METHOD_ID = QStringLiteral("pay_method_id");
const QString STR_EXPRESS = QStringLiteral("express");
const QString STR_BASE_PRICES = QStringLiteral("base_prices");
const QString STR_DISCOUNT_PRICES = QStringLiteral("discount_prices");
const QString STR_COUPONS = QStringLiteral("coupons");
const QString STR_COUPON = QStringLiteral("coupon");
const QString STR_GROUPS = QStringLiteral("groups");
const QString STR_ORDER_SOURCES = QStringLiteral("order_sources");

const std::size_t PRICE_LIST = 0;
const std::size_t ORDERING_DETAILS = 1;
const std::size_t FIRST_COUPON = 2;

} // namespace

VelExplanationSources::VelExplanationSources()
{
    myDocuments.push_back(std::make_unique<const Document>(VelProductRegistry::instance()->lastLoad().file()));
    myDocuments.push_back(std::make_unique<const Document>(VelOrderingDetails::instance()->lastLoad().file()));
    findArticles(root(PRICE_LIST).firstChildElement(STR_ARTICLES));
    findArticles(root(PRICE_LIST).firstChildElement(STR_ADD_ONS));
    findFees(root(PRICE_LIST));
}

void VelExplanationSources::addCoupon(const QString& theFile)
{
    myDocuments.push_back(std::make_unique<const Document>(theFile));
}

// ---- reading

/// An element of a known id updates its product, whatever its tag: the last one holds.
void VelExplanationSources::findArticles(const QDomElement& theSection)
{
    for (const QDomElement& element : VelChildElements(theSection))
        if (const VelProductAbstract* product =
                VelProductRegistry::instance()->productWithArticleID(VelXMLParser::intAttribute(element, STR_ID, 0)))
            myElements[product].append(element);
}

/// Of fees with one key, too, the last one holds.
void VelExplanationSources::findFees(const QDomElement& theRoot)
{
    const VelProductRegistry* registry = VelProductRegistry::instance();
    for (const QDomElement& fee : VelChildElements(theRoot.firstChildElement(STR_PAYMETHOD_FEES), STR_PAYMETHOD_FEE))
        myElements.insert(registry->paymentAgioProduct(static_cast<VelPaymentType>(
                              VelXMLParser::attribute(fee, STR_PAY_METHOD_ID, QString()).toInt())),
                          {fee});
    for (const QDomElement& fee : VelChildElements(theRoot.firstChildElement(STR_TRANSFERS), STR_TRANSFER))
        myElements.insert(registry->transferProduct(VelXMLParser::intAttribute(fee, STR_GROUP, -1)), {fee});
    for (const QDomElement& fee : VelChildElements(theRoot.firstChildElement(STR_EXPRESS_FEES), STR_EXPRESS_FEE))
        myElements.insert(
            registry->expressAgioProduct(VelXMLParser::intAttribute(fee, STR_GROUP, -1),
                                         VelExpressType(VelXMLParser::attribute(fee, STR_EXPRESS, QString()))),
            {fee});
}

// ---- queries

QDomElement VelExplanationSources::root(std::size_t theDocument) const
{
    return theDocument < myDocuments.size() ? myDocuments[theDocument]->myContent.root() : QDomElement();
}

QDomElement VelExplanationSources::element(const VelProductAbstract& theProduct) const
{
    const QVector<QDomElement> all = elements(theProduct);
    return all.isEmpty() ? QDomElement() : all.last();
}

QVector<QDomElement> VelExplanationSources::entries(const QDomElement& theArticle)
{
    QVector<QDomElement> entries;
    for (const QString& group : {STR_BASE_PRICES, STR_DISCOUNT_PRICES})
        for (const QDomElement& entry : VelChildElements(theArticle.firstChildElement(group)))
            entries.append(entry);
    return entries;
}

QDomElement VelExplanationSources::coupon(int theNumber) const
{
    return root(FIRST_COUPON + static_cast<std::size_t>(theNumber))
        .firstChildElement(STR_COUPONS)
        .firstChildElement(STR_COUPON);
}

QDomElement VelExplanationSources::shippingGroup(int theId) const
{
    QDomElement found;
    const QDomElement groups = root(ORDERING_DETAILS).firstChildElement(STR_GROUPS);
    for (const QDomElement& group : VelChildElements(groups))
        if (VelXMLParser::intAttribute(group, STR_ID, -1) == theId)
            found = group;
    return found;
}

QDomElement VelExplanationSources::orderSource(const VelOrderSource& theSource) const
{
    QDomElement found;
    const QDomElement sources = root(ORDERING_DETAILS).firstChildElement(STR_ORDER_SOURCES);
    for (const QDomElement& source : VelChildElements(sources))
        if (VelOrderSource(source) == theSource)
            found = source;
    return found;
}

const VelExplanationSources::Document* VelExplanationSources::documentOf(const QDomElement& theElement) const
{
    for (const std::unique_ptr<const Document>& document : myDocuments)
        if (document->myContent.number(theElement) >= 0)
            return document.get();
    return nullptr;
}

void VelExplanationSources::cite(QVector<VelExplainedPlace>& thePlaces, const QDomElement& theElement,
                                 const QStringList& theNames) const
{
    const Document* document = documentOf(theElement);
    if (!document)
        return;
    const int number = document->myContent.number(theElement);
    const VelDocumentPositions& positions = document->myContent.positions();
    for (const QString& name : theNames) {
        const VelDocumentPlace place = positions.attributeValue(number, name);
        const QString written = theElement.attribute(name);
        const QString value = written.isNull() ? QLatin1String("") : written;
        thePlaces.append({document->myFile, place.isValid() ? place : positions.element(number), theElement.tagName(),
                          name, place.isValid() ? value : QString()});
    }
}

void VelExplanationSources::citeAll(QVector<VelExplainedPlace>& thePlaces, const QDomElement& theElement) const
{
    const QDomNamedNodeMap attributes = theElement.attributes();
    QStringList names;
    for (int index = 0; index < attributes.count(); ++index)
        names.append(attributes.item(index).nodeName());
    names.sort();
    cite(thePlaces, theElement, names);
}
