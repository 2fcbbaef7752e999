#include "insight/VelAuditSite.h"

#include "insight/VelAuditWords.h"
#include "sibling/VelXMLParser.h"

namespace {

const QString STR_BASE_PRICES = QStringLiteral("base_prices");
const QString STR_DISCOUNT_PRICES = QStringLiteral("discount_prices");
const QString STR_END_OFFER_DATE = QStringLiteral("end_offer_date");
const QString STR_NON_OFFER_PRICE = QStringLiteral("non_offer_price");
const QString STR_MODEL = QStringLiteral("model");
const QString STR_LEVEL = QStringLiteral("level");
const QString STR_QUANTITY = QStringLiteral("quantity");
const QString STR_PRICE = QStringLiteral("price");
const QString STR_GROUP = QStringLiteral("group");

bool isPrice(const VelElementDescription& theElement)
{
    const VelElementDescription* parent = theElement.parent();
    return parent && (parent->tag() == STR_BASE_PRICES || parent->tag() == STR_DISCOUNT_PRICES);
}

/// An offer is only shown, nobody pays another price for it.
bool isOfOffer(const QString& theName)
{
    return theName == STR_END_OFFER_DATE || theName == STR_NON_OFFER_PRICE;
}

QString ofPrice(const QDomElement& theElement, const QString& theName)
{
    const int level = VelXMLParser::intAttribute(theElement, STR_LEVEL, 0);
    if (theName == STR_QUANTITY)
        return level > 0 ? QStringLiteral(", so level %1 holds from the first piece").arg(level) : QString();
    if (theName == STR_LEVEL)
        return QStringLiteral(", so it takes the place of the plain price");
    if (theName == STR_PRICE)
        return QStringLiteral(", which is no price");
    return QString();
}

} // namespace

VelAuditSite::VelAuditSite(const VelAuditDocument& theDocument, const QDomElement& theElement,
                           const VelElementDescription& theElementDescription,
                           const VelValueDescription& theDescription, VelAuditReport& theReport)
    : myDocument(theDocument)
    , myElement(theElement)
    , myElementDescription(theElementDescription)
    , myDescription(theDescription)
    , myReport(theReport)
    , myText(theDescription.myName.isNull() ? theElement.text()
                                            : VelXMLParser::attribute(theElement, theDescription.myName, QString()))
{
}

QString VelAuditSite::name() const
{
    return isAttribute() ? myDescription.myName : myElement.tagName();
}

QString VelAuditSite::quoted() const
{
    return name() + QLatin1Char(' ') + VelAuditWords::quoted(myText);
}

/// A text that is taken gives the same number whatever the default.
bool VelAuditSite::isWholeNumber(int& theNumber) const
{
    const auto read = [this](int theDefault) {
        return isAttribute() ? VelXMLParser::intAttribute(myElement, myDescription.myName, theDefault)
                             : VelXMLParser::intText(myElement.parentNode(), myElement.tagName(), theDefault);
    };
    theNumber = read(0);
    return theNumber != 0 || read(1) == 0;
}

bool VelAuditSite::isBool() const
{
    const auto read = [this](bool theDefault) {
        return isAttribute() ? VelXMLParser::boolAttribute(myElement, myDescription.myName, theDefault)
                             : VelXMLParser::boolText(myElement.parentNode(), myElement.tagName(), theDefault);
    };
    return read(true) == read(false);
}

bool VelAuditSite::isDateTime() const
{
    return VelXMLParser::dateTimeAttribute(myElement, myDescription.myName, Qt::ISODate, QDateTime()).isValid();
}

QString VelAuditSite::consequence() const
{
    const QString meaning = meaningOfDefault(myElement, myElementDescription, myDescription);
    return myDescription.myDefault.isNull() ? QStringLiteral("it counts as nothing") + meaning
                                            : QStringLiteral("it counts as %1%2").arg(myDescription.myDefault, meaning);
}

bool VelAuditSite::isGrave() const
{
    return isGrave(myElementDescription, myDescription);
}

bool VelAuditSite::isOfPrice() const
{
    return isPrice(myElementDescription);
}

VelAuditFinding& VelAuditSite::report(const char* theRule, const QString& theMessage, bool theIsGrave) const
{
    VelAuditFinding& finding = isAttribute()
                                   ? myReport.atValue(theRule, myDocument, myElement, myDescription.myName, theMessage)
                                   : myReport.atText(theRule, myDocument, myElement, theMessage);
    return theIsGrave ? finding : finding.as(qMax(finding.mySeverity, SEVERITY_WARNING));
}

VelAuditFinding& VelAuditSite::report(const char* theRule, const QString& theMessage) const
{
    return report(theRule, theMessage, isGrave());
}

bool VelAuditSite::isGrave(const VelElementDescription& theElement, const VelValueDescription& theValue)
{
    if (isPrice(theElement))
        return !isOfOffer(theValue.myName);
    return theValue.myNeed == NEED_MUST || theValue.myName == STR_MODEL;
}

QString VelAuditSite::meaningOfDefault(const QDomElement& theElement, const VelElementDescription& theDescription,
                                       const VelValueDescription& theValue)
{
    if (isPrice(theDescription))
        return ofPrice(theElement, theValue.myName);
    if (theValue.myName == STR_GROUP)
        return QStringLiteral(", which is no shipping group");
    return QString();
}
