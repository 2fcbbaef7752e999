#include "insight/VelAuditMissing.h"

#include "frame/VelChildElements.h"
#include "insight/VelAuditReport.h"
#include "insight/VelAuditShop.h"
#include "insight/VelAuditSite.h"
#include "price/VelDiscountLimit.h"
#include "sibling/VelXMLParser.h"

namespace {

const char* const MISSING_VALUE = "missing-value";
const char* const MISSING_ELEMENT = "missing-element";
const char* const MISSING_DETAIL = "missing-detail";

const QString STR_MODEL = QStringLiteral("model");
const QString STR_ARTICLE = QStringLiteral("article");
const QString STR_SIZE = QStringLiteral("size");
const QString STR_BASE_PRICES = QStringLiteral("base_prices");
const QString STR_TRANSFER_BY_PRODUCTS = QStringLiteral("2");

using Value = VelValueDescription;

/// The sentence of a description as the end of another one.
QString asClause(const QString& theSentence)
{
    QString clause = theSentence;
    if (clause.endsWith(QLatin1Char('.')))
        clause.chop(1);
    if (clause.size() > 1 && clause.at(1).isLower())
        clause[0] = clause.at(0).toLower();
    return clause;
}

/// A text that others look for, and an empty one is found by nobody.
bool isEmptyCode(const QDomElement& theElement, const Value& theValue)
{
    return (theValue.myType == Value::TYPE_CODE || theValue.myType == Value::TYPE_CODE_REFERENCE ||
            theValue.myName == QLatin1String("product_class") || theValue.myNeed == NEED_SHOULD) &&
           VelXMLParser::attribute(theElement, theValue.myName, QString()).trimmed().isEmpty();
}

bool isMissing(const QDomElement& theElement, const Value& theValue)
{
    return !theElement.hasAttribute(theValue.myName) || isEmptyCode(theElement, theValue);
}

/// A transfer by the prices of the products has one entry, whose values play no part.
bool isOfTransferByProducts(const QDomElement& theElement)
{
    const QDomElement entry = theElement.parentNode().parentNode().toElement();
    return VelDiscountLimit::isTransferEntry(theElement) &&
           VelXMLParser::attribute(entry, STR_MODEL, QString()).trimmed() == STR_TRANSFER_BY_PRODUCTS;
}

void checkAttribute(const VelAuditDocument& theDocument, const QDomElement& theElement,
                    const VelElementDescription& theDescription, const Value& theValue, VelAuditReport& theReport)
{
    if (theValue.myNeed == NEED_SHOULD) {
        theReport.atElement(MISSING_DETAIL, theDocument, theElement,
                            QStringLiteral("%1 has no %2: %3")
                                .arg(theElement.tagName(), theValue.myName, asClause(theValue.myMeaning)));
        return;
    }
    const QString counts =
        theValue.myDefault.isNull()
            ? QString()
            : QStringLiteral("; it counts as %1%2")
                  .arg(theValue.myDefault, VelAuditSite::meaningOfDefault(theElement, theDescription, theValue));
    theReport.atElement(MISSING_VALUE, theDocument, theElement,
                        QStringLiteral("%1 has no %2%3 (%4)")
                            .arg(theElement.tagName(), theValue.myName, counts, asClause(theValue.myMeaning)));
}

/// A base price is asked for by what is missing of prices; the size of what is sold is worth a note.
bool isAskedFor(const VelElementDescription& theParent, const VelElementDescription& theChild)
{
    if (theChild.tag() == STR_BASE_PRICES)
        return false;
    return theChild.need() == NEED_MUST || theChild.need() == NEED_SHOULD ||
           (theParent.tag() == STR_ARTICLE && theChild.tag() == STR_SIZE);
}

void checkChild(const VelAuditDocument& theDocument, const QDomElement& theElement,
                const VelElementDescription& theChild, VelAuditReport& theReport)
{
    const bool isThere = theChild.isTagFree() ? !theElement.firstChildElement().isNull()
                                              : !theElement.firstChildElement(theChild.tag()).isNull();
    if (isThere)
        return;
    const bool isNeeded = theChild.need() == NEED_MUST;
    const QString counts = theChild.text() && !theChild.text()->myDefault.isEmpty()
                               ? QStringLiteral("; it counts as \"%1\"").arg(theChild.text()->myDefault)
                               : QString();
    theReport.atElement(isNeeded ? MISSING_ELEMENT : MISSING_DETAIL, theDocument, theElement,
                        QStringLiteral("%1 has no %2%3 (%4)")
                            .arg(theElement.tagName(), theChild.tag(), counts, asClause(theChild.meaning())));
}

} // namespace

void VelAuditMissing::check(const VelAuditDocument& theDocument, const QDomElement& theElement,
                            const VelElementDescription& theDescription, VelAuditReport& theReport)
{
    for (const Value& value : theDescription.attributes()) {
        const bool isAsked = value.myNeed == NEED_MUST || value.myNeed == NEED_SHOULD;
        if (isAsked && isMissing(theElement, value) && !isOfTransferByProducts(theElement))
            checkAttribute(theDocument, theElement, theDescription, value, theReport);
    }
    for (const VelElementDescription& child : theDescription.children())
        if (isAskedFor(theDescription, child))
            checkChild(theDocument, theElement, child, theReport);
}
