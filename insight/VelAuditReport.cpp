#include "insight/VelAuditReport.h"

#include "insight/VelAuditRules.h"
#include "insight/VelAuditShop.h"
#include "sibling/VelXMLParser.h"

#include <algorithm>

namespace {

const QString STR_ID = QStringLiteral("id");

/// Code points of a text within its first line.
int lengthOf(const QString& theText)
{
    int end = 0;
    while (end < theText.size() && theText.at(end) != QLatin1Char('\n') && theText.at(end) != QLatin1Char('\r'))
        ++end;
    const auto halves = std::count_if(theText.begin(), theText.begin() + end,
                                      [](QChar theCharacter) { return theCharacter.isLowSurrogate(); });
    return qMax(1, end - static_cast<int>(halves));
}

/// What is left of the line from the place on, at least 1: a reference in the document makes a value look shorter.
int lengthInLine(const VelAuditDocument& theDocument, const VelDocumentPlace& thePlace, int theLength)
{
    const QString line = theDocument.myContent.text().line(thePlace.myLine);
    return qMax(1, qMin(theLength, lengthOf(line) - thePlace.myColumn + 1));
}

/// The entry of the price list that an element stands in: a child of a section.
QDomElement entryOf(const QDomElement& theElement)
{
    QDomElement entry = theElement;
    QDomElement section = entry.parentNode().toElement();
    while (!section.isNull()) {
        const QDomElement root = section.parentNode().toElement();
        if (!root.isNull() && root.parentNode().toElement().isNull())
            return entry;
        entry = section;
        section = root;
    }
    return QDomElement();
}

std::optional<int> articleOf(const VelAuditDocument& theDocument, const QDomElement& theElement)
{
    if (theDocument.myDescription.kind() != VelDocumentDescription::PRICE_LIST)
        return std::nullopt;
    const QDomElement entry = entryOf(theElement);
    return entry.hasAttribute(STR_ID) ? std::optional<int>(VelXMLParser::intAttribute(entry, STR_ID, 0)) : std::nullopt;
}

} // namespace

VelAuditFinding& VelAuditReport::at(const char* theRule, const VelAuditDocument& theDocument,
                                    const VelDocumentPlace& thePlace, const QString& theMeant,
                                    const QString& theMessage)
{
    const VelAuditRule* rule = VelAuditRules::find(QLatin1String(theRule));
    Q_ASSERT_X(rule, "VelAuditReport", theRule);
    VelAuditFinding finding;
    finding.myFile = theDocument.myFile;
    finding.myPlace = thePlace.isValid() ? thePlace : VelDocumentPlace{1, 1};
    finding.myLength = lengthInLine(theDocument, finding.myPlace, lengthOf(theMeant));
    finding.mySeverity = rule ? rule->mySeverity : SEVERITY_WARNING;
    finding.myRule = QLatin1String(theRule);
    finding.myMessage = theMessage;
    myFindings.push_back(finding);
    return myFindings.back();
}

VelAuditFinding& VelAuditReport::atElement(const char* theRule, const VelAuditDocument& theDocument,
                                           const QDomElement& theElement, const QString& theMessage)
{
    const VelDocumentPlace place = theDocument.myContent.place(theElement);
    VelAuditFinding& finding = at(theRule, theDocument, place, QLatin1Char('<') + theElement.tagName(), theMessage);
    finding.myArticle = articleOf(theDocument, theElement);
    return finding;
}

VelAuditFinding& VelAuditReport::atValue(const char* theRule, const VelAuditDocument& theDocument,
                                         const QDomElement& theElement, const QString& theAttribute,
                                         const QString& theMessage)
{
    const VelDocumentPlace place = theDocument.myContent.attributeValue(theElement, theAttribute);
    return within(theElement, theRule, theDocument, place, theElement.attribute(theAttribute), theMessage);
}

VelAuditFinding& VelAuditReport::atName(const char* theRule, const VelAuditDocument& theDocument,
                                        const QDomElement& theElement, const QString& theAttribute,
                                        const QString& theMessage)
{
    const VelDocumentPlace place = theDocument.myContent.attributeName(theElement, theAttribute);
    return within(theElement, theRule, theDocument, place, theAttribute, theMessage);
}

VelAuditFinding& VelAuditReport::atText(const char* theRule, const VelAuditDocument& theDocument,
                                        const QDomElement& theElement, const QString& theMessage)
{
    const VelDocumentPlace place = theDocument.myContent.elementText(theElement);
    return within(theElement, theRule, theDocument, place, theElement.text(), theMessage);
}

VelAuditFinding& VelAuditReport::within(const QDomElement& theElement, const char* theRule,
                                        const VelAuditDocument& theDocument, const VelDocumentPlace& thePlace,
                                        const QString& theMeant, const QString& theMessage)
{
    if (!thePlace.isValid())
        return atElement(theRule, theDocument, theElement, theMessage);
    VelAuditFinding& finding = at(theRule, theDocument, thePlace, theMeant, theMessage);
    finding.myArticle = articleOf(theDocument, theElement);
    return finding;
}

QVector<VelAuditFinding> VelAuditReport::findings() const
{
    QVector<VelAuditFinding> sorted;
    sorted.reserve(static_cast<int>(myFindings.size()));
    std::copy(myFindings.begin(), myFindings.end(), std::back_inserter(sorted));
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}
