#include "insight/VelAuditUnread.h"

#include "insight/VelAuditReport.h"
#include "insight/VelAuditShop.h"
#include "insight/VelAuditSite.h"
#include "insight/VelAuditWords.h"
#include "sibling/VelXMLParser.h"

#include <algorithm>

namespace {

const char* const UNKNOWN_ELEMENT = "unknown-element";
const char* const WRONG_PLACE = "wrong-place";
const char* const BUILT_BY_TAG = "built-by-tag";
const char* const SECOND_ELEMENT = "second-element";
const char* const STRAY_TEXT = "stray-text";
const char* const UNKNOWN_ATTRIBUTE = "unknown-attribute";
const char* const WITHOUT_EFFECT = "without-effect";

const QString STR_ARTICLES = QStringLiteral("articles");
const QString STR_ADD_ONS = QStringLiteral("add_ons");
const QString STR_ARTICLE = QStringLiteral("article");
const QString STR_ADD_ON = QStringLiteral("add_on");

QString inBrackets(const QString& theTag)
{
    return QLatin1Char('<') + VelAuditWords::quoted(theTag).mid(1).chopped(1) + QLatin1Char('>');
}

QStringList tagsOf(const VelElementDescription& theElement)
{
    QStringList tags;
    for (const VelElementDescription& child : theElement.children())
        tags.append(child.tag());
    return tags;
}

QStringList namesOf(const VelElementDescription& theElement)
{
    QStringList names;
    for (const VelValueDescription& value : theElement.attributes())
        names.append(value.myName);
    return names;
}

QString suggestion(const QString& theWord)
{
    return theWord.isNull() ? QString() : QStringLiteral(", did you mean \"%1\"?").arg(theWord);
}

/// Every tool may add these to any document.
bool isOfNamespace(const QString& theName, const VelElementDescription& theElement)
{
    const bool isAtRoot =
        !theElement.parent() && (theName == QLatin1String("xmlns") || theName.startsWith(QLatin1String("xmlns:")) ||
                                 theName.startsWith(QLatin1String("xsi:")));
    return isAtRoot || theName.startsWith(QLatin1String("xml:"));
}

QDomElement ancestor(const QDomElement& theElement, const QString& theTag)
{
    QDomElement element = theElement;
    while (!element.isNull() && element.tagName() != theTag)
        element = element.parentNode().toElement();
    return element;
}

/// The description of an attribute of the element or of an ancestor.
const VelValueDescription* valueOf(const VelElementDescription& theElement, const VelReadingCondition& theCondition)
{
    const VelElementDescription* element = &theElement;
    while (element && !theCondition.myElement.isNull() && element->tag() != theCondition.myElement)
        element = element->parent();
    return element ? element->attribute(theCondition.myAttribute) : nullptr;
}

/// What the library makes of a value, so that two ways to write it are the same.
QString meaningOf(const VelValueDescription& theValue, const QString& theText)
{
    if (theValue.myVocabulary.myDecode)
        return QString::number(theValue.myVocabulary.myDecode(theText));
    return theValue.isWholeNumber() ? QString::number(theText.trimmed().toInt()) : theText.trimmed().toUpper();
}

/// Whether a condition for reading an attribute holds; without the other attribute its default counts.
bool holds(const VelReadingCondition& theCondition, const QDomElement& theElement,
           const VelElementDescription& theDescription)
{
    const VelValueDescription* other = valueOf(theDescription, theCondition);
    if (!other)
        return true;
    const QDomElement element =
        theCondition.myElement.isNull() ? theElement : ancestor(theElement, theCondition.myElement);
    QString text = VelXMLParser::attribute(element, theCondition.myAttribute, other->myDefault);
    if (text.trimmed().isEmpty())
        text = other->myDefault;
    const QString meaning = meaningOf(*other, text);
    const bool isOne = std::any_of(theCondition.myWords.begin(), theCondition.myWords.end(),
                                   [&](const QString& theWord) { return meaningOf(*other, theWord) == meaning; });
    return isOne != theCondition.myIsNone;
}

QString conditionText(const VelReadingCondition& theCondition)
{
    QStringList words;
    for (const QString& word : theCondition.myWords)
        words.append(QLatin1Char('"') + (word.size() > 1 ? word.toLower() : word) + QLatin1Char('"'));
    return QStringLiteral("%1 %2 %3")
        .arg(theCondition.myAttribute, theCondition.myIsNone ? QStringLiteral("other than") : QStringLiteral("of"),
             VelAuditWords::choice(words));
}

/// The first text of the element itself that isn't blank.
QString firstText(const QDomElement& theElement)
{
    for (QDomNode node = theElement.firstChild(); !node.isNull(); node = node.nextSibling())
        if (node.isText() && !node.nodeValue().trimmed().isEmpty())
            return node.nodeValue();
    return QString();
}

/// The place of a text's first character that is no blank.
VelDocumentPlace behindBlanks(VelDocumentPlace thePlace, const QString& theText)
{
    for (const QChar character : theText) {
        if (!character.isSpace())
            break;
        const bool isLineEnd = character == QLatin1Char('\n');
        thePlace = isLineEnd ? VelDocumentPlace{thePlace.myLine + 1, 1}
                             : VelDocumentPlace{thePlace.myLine, thePlace.myColumn + 1};
    }
    return thePlace;
}

/// Where others may have their elements, too, only one that is nearly ours is meant to be ours, if ours isn't there.
bool isSlip(const QDomElement& theChild, const VelElementDescription& theParent)
{
    for (const VelElementDescription& known : theParent.children())
        if (VelAuditWords::distance(theChild.tagName(), known.tag(), 2) <= 2)
            return theChild.parentNode().firstChildElement(known.tag()).isNull();
    return false;
}

} // namespace

VelAuditUnread::VelAuditUnread(const VelAuditDocument& theDocument, VelAuditReport& theReport)
    : myDocument(theDocument), myReport(theReport)
{
}

const VelElementDescription* VelAuditUnread::child(const QDomElement& theChild, const VelElementDescription& theParent)
{
    const VelElementDescription* description = theParent.child(theChild.tagName());
    if (description) {
        if (description->need() == NEED_IDLE)
            myReport.atElement(
                WITHOUT_EFFECT, myDocument, theChild,
                QStringLiteral("%1 has no effect in %2").arg(inBrackets(theChild.tagName()), theParent.tag()));
        return description;
    }
    if (theParent.isOpen() && !isSlip(theChild, theParent))
        return nullptr;
    description = builtByTag(theChild, theParent);
    if (!description)
        unknownElement(theChild, theParent);
    return description;
}

void VelAuditUnread::secondElement(const QDomElement& theElement)
{
    VelAuditFinding& finding = myReport.atElement(
        SECOND_ELEMENT, myDocument, theElement,
        QStringLiteral("only the first %1 is read; what this one holds is lost").arg(inBrackets(theElement.tagName())));
    if (theElement.firstChildElement().isNull())
        finding.as(SEVERITY_WARNING);
    const QDomElement first = theElement.parentNode().firstChildElement(theElement.tagName());
    finding.beside(myDocument.myFile, myDocument.myContent.place(first), QStringLiteral("the first one"));
}

void VelAuditUnread::attribute(const QDomElement& theElement, const VelElementDescription& theDescription,
                               const QString& theName)
{
    if (theDescription.isOpen() || isOfNamespace(theName, theDescription) || !theElement.hasAttribute(theName))
        return;
    const QString nearest = VelAuditWords::nearest(theName, namesOf(theDescription));
    QString hint = suggestion(nearest);
    if (nearest.isNull() && !elementsWith(theName).isEmpty())
        hint = QStringLiteral("; it is an attribute of %1").arg(VelAuditWords::choice(elementsWith(theName)));
    const VelValueDescription* meant = nearest.isNull() ? nullptr : theDescription.attribute(nearest);
    VelAuditFinding& finding = myReport.atName(
        UNKNOWN_ATTRIBUTE, myDocument, theElement, theName,
        QStringLiteral("%1 has no attribute %2%3").arg(theElement.tagName(), VelAuditWords::quoted(theName), hint));
    if (!meant || !VelAuditSite::isGrave(theDescription, *meant))
        finding.as(SEVERITY_WARNING);
}

bool VelAuditUnread::isIdle(const QDomElement& theElement, const VelElementDescription& theDescription,
                            const VelValueDescription& theValue)
{
    if (theValue.myNeed == NEED_IDLE) {
        QString meaning = theValue.myMeaning.chopped(1);
        meaning[0] = meaning.at(0).toLower();
        myReport.atName(WITHOUT_EFFECT, myDocument, theElement, theValue.myName,
                        QStringLiteral("%1 has no effect here: %2").arg(theValue.myName, meaning));
        return true;
    }
    for (const VelReadingCondition& condition : theValue.myConditions)
        if (!holds(condition, theElement, theDescription)) {
            myReport.atName(
                WITHOUT_EFFECT, myDocument, theElement, theValue.myName,
                QStringLiteral("%1 has an effect with %2 only").arg(theValue.myName, conditionText(condition)));
            return true;
        }
    return false;
}

void VelAuditUnread::text(const QDomElement& theElement)
{
    VelDocumentPlace place = myDocument.myContent.elementText(theElement);
    if (!place.isValid())
        return;
    const QString text = firstText(theElement);
    place = behindBlanks(place, text);
    myReport.at(STRAY_TEXT, myDocument, place, text.trimmed(),
                QStringLiteral("the text %1 isn't read in %2")
                    .arg(VelAuditWords::quoted(text.trimmed()), inBrackets(theElement.tagName())));
}

/// In these two sections an element is built as what its tag says; but a fee is found in the section of fees alone.
const VelElementDescription* VelAuditUnread::builtByTag(const QDomElement& theChild,
                                                        const VelElementDescription& theParent)
{
    const bool isSection = theParent.tag() == STR_ARTICLES || theParent.tag() == STR_ADD_ONS;
    const bool isProduct = theChild.tagName() == STR_ARTICLE || theChild.tagName() == STR_ADD_ON;
    if (!isSection || !isProduct || !theParent.parent())
        return nullptr;
    myReport.atElement(BUILT_BY_TAG, myDocument, theChild,
                       QStringLiteral("%1 is built by its tag, though it stands in %2")
                           .arg(inBrackets(theChild.tagName()), theParent.tag()));
    const QString section = theChild.tagName() == STR_ARTICLE ? STR_ARTICLES : STR_ADD_ONS;
    return theParent.parent()->child(section)->child(theChild.tagName());
}

void VelAuditUnread::unknownElement(const QDomElement& theElement, const VelElementDescription& theParent)
{
    const QString tag = theElement.tagName();
    const QList<const VelElementDescription*> others = places(tag);
    if (!others.isEmpty()) {
        QStringList parents;
        for (const VelElementDescription* other : others)
            parents.append(other->parent() ? other->parent()->tag() : QStringLiteral("the document"));
        parents.removeDuplicates();
        myReport.atElement(WRONG_PLACE, myDocument, theElement,
                           QStringLiteral("%1 isn't read in %2; it belongs into %3")
                               .arg(inBrackets(tag), theParent.tag(), VelAuditWords::choice(parents)));
        return;
    }
    const QString nearest = VelAuditWords::nearest(tag, tagsOf(theParent));
    VelAuditFinding& finding = myReport.atElement(
        UNKNOWN_ELEMENT, myDocument, theElement,
        QStringLiteral("%1 isn't read in %2%3").arg(inBrackets(tag), theParent.tag(), suggestion(nearest)));
    if (nearest.isNull() && theElement.firstChildElement().isNull())
        finding.as(SEVERITY_WARNING);
}

QList<const VelElementDescription*> VelAuditUnread::places(const QString& theTag)
{
    if (myPlaces.isEmpty())
        collect(myDocument.myDescription.root());
    QList<const VelElementDescription*> found = myPlaces.values(theTag);
    std::reverse(found.begin(), found.end());
    return found;
}

QStringList VelAuditUnread::elementsWith(const QString& theAttribute)
{
    if (myPlaces.isEmpty())
        collect(myDocument.myDescription.root());
    QStringList tags;
    for (const VelElementDescription* element : qAsConst(myPlaces))
        if (element->attribute(theAttribute))
            tags.append(element->tag());
    tags.removeDuplicates();
    return tags;
}

void VelAuditUnread::collect(const VelElementDescription& theElement)
{
    myPlaces.insert(theElement.tag(), &theElement);
    for (const VelElementDescription& child : theElement.children())
        collect(child);
}
