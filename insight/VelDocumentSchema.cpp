#include "insight/VelDocumentSchema.h"

#include <QXmlStreamWriter>

#include <algorithm>

namespace {

using Value = VelValueDescription;

const QString STR_NAMESPACE = QStringLiteral("http://www.w3.org/2001/XMLSchema");
const QString STR_NAME = QStringLiteral("name");
const QString STR_VALUE = QStringLiteral("value");
const QString STR_BASE = QStringLiteral("base");
const QString STR_MIN_OCCURS = QStringLiteral("minOccurs");
const QString STR_MAX_OCCURS = QStringLiteral("maxOccurs");
const QString STR_UNBOUNDED = QStringLiteral("unbounded");
const QString STR_BOOLEAN = QStringLiteral("Boolean");
const QString STR_DATE_TIME = QStringLiteral("DateTime");
const QString STR_DAYS = QStringLiteral("Days");

/// A pattern that matches the letters of a word in any case: [Tt][Rr]...
QString inAnyCase(const QString& theWord)
{
    QString pattern;
    for (const QChar letter : theWord) {
        if (letter.isLetter())
            pattern += QLatin1Char('[') + letter.toUpper() + letter.toLower() + QLatin1Char(']');
        else
            pattern += letter == QLatin1Char('-') ? QStringLiteral("\\-") : QString(letter);
    }
    return pattern;
}

/// "Read only where type is value or percent."
QString sentence(const VelReadingCondition& theCondition)
{
    const QString words = theCondition.myWords.join(QStringLiteral(" or "));
    const QString where = theCondition.myElement.isNull() ? QString() : QStringLiteral(" of ") + theCondition.myElement;
    return QStringLiteral(" %1 where %2%3 is %4.")
        .arg(theCondition.myIsNone ? QStringLiteral("Not read") : QStringLiteral("Read only"), theCondition.myAttribute,
             where, words);
}

QString documentationOf(const Value& theValue)
{
    QString text = theValue.myMeaning;
    for (const VelReadingCondition& condition : theValue.myConditions)
        text += sentence(condition);
    if (theValue.myNeed != NEED_MUST && !theValue.myDefault.isEmpty())
        text += QStringLiteral(" Without it: %1.").arg(theValue.myDefault);
    return text;
}

/// Writes one schema.
class SchemaWriter
{
public:
    QByteArray schema(const VelElementDescription& theRoot)
    {
        myXml.setAutoFormatting(true);
        myXml.setAutoFormattingIndent(1);
        myXml.writeStartDocument();
        myXml.writeNamespace(STR_NAMESPACE, QStringLiteral("xs"));
        start("schema");
        writeElement(theRoot, Place::GLOBAL);
        if (theRoot.isOpen())
            for (const VelElementDescription& child : theRoot.children())
                writeElement(child, Place::GLOBAL);
        for (int index = 0; index < myVocabularies.size(); ++index)
            writeVocabulary(index);
        writeNamedTypes();
        myXml.writeEndDocument();
        return myBytes;
    }

private:
    enum class Place { GLOBAL, ALONE, AMONG_OTHERS };

    void start(const char* theName) { myXml.writeStartElement(STR_NAMESPACE, QString::fromLatin1(theName)); }
    void end() { myXml.writeEndElement(); }
    void attribute(const QString& theName, const QString& theValue) { myXml.writeAttribute(theName, theValue); }
    void facet(const char* theName, const QString& theValue)
    {
        myXml.writeEmptyElement(STR_NAMESPACE, QString::fromLatin1(theName));
        attribute(STR_VALUE, theValue);
    }
    void startRestriction(const char* theBase)
    {
        start("restriction");
        attribute(STR_BASE, QString::fromLatin1(theBase));
    }
    void startNamedType(const QString& theName)
    {
        start("simpleType");
        attribute(STR_NAME, theName);
    }
    void writePattern(const char* theBase, const QString& thePattern)
    {
        start("simpleType");
        startRestriction(theBase);
        facet("pattern", thePattern);
        end();
        end();
    }
    void writeDocumentation(const QString& theText)
    {
        start("annotation");
        myXml.writeTextElement(STR_NAMESPACE, QStringLiteral("documentation"), theText);
        end();
    }

    void writeElement(const VelElementDescription& theElement, Place thePlace);
    void writeOccurrence(const VelElementDescription& theElement, Place thePlace);
    void writeContent(const VelElementDescription& theElement);
    void writeChildren(const VelElementDescription& theElement);
    void writeForeignContent();
    void writeAttribute(const Value& theValue);

    void writeType(const Value& theValue);
    QString namedType(const Value& theValue);
    void writeNumber(const Value& theValue);
    QString vocabularyType(const Value& theValue);
    QString vocabularyName(int theIndex) const;
    void writeVocabulary(int theIndex);
    void writeEnumeration(const QString& theText, const QString& theMeaning);
    void writeNamedTypes();
    void writeBoolean();
    void writeDateTime();
    void writeDays();

    QByteArray myBytes;
    QXmlStreamWriter myXml{&myBytes};
    QVector<Value> myVocabularies; ///< values whose vocabularies need a type of their own, each once
    QStringList myNamedTypes;      ///< other types that are used
};

// ---- elements

void SchemaWriter::writeElement(const VelElementDescription& theElement, Place thePlace)
{
    start("element");
    attribute(STR_NAME, theElement.tag());
    writeOccurrence(theElement, thePlace);
    if (theElement.text() && !namedType(*theElement.text()).isNull())
        attribute(QStringLiteral("type"), namedType(*theElement.text()));
    writeDocumentation(theElement.text() ? documentationOf(*theElement.text()) : theElement.meaning());
    if (!theElement.text())
        writeContent(theElement);
    else if (namedType(*theElement.text()).isNull())
        writeType(*theElement.text());
    end();
}

void SchemaWriter::writeOccurrence(const VelElementDescription& theElement, Place thePlace)
{
    if (thePlace == Place::GLOBAL)
        return;
    if (theElement.need() != NEED_MUST && thePlace == Place::ALONE)
        attribute(STR_MIN_OCCURS, QStringLiteral("0"));
    if (theElement.occurrence() == VelElementDescription::ANY_NUMBER)
        attribute(STR_MAX_OCCURS, STR_UNBOUNDED);
}

void SchemaWriter::writeContent(const VelElementDescription& theElement)
{
    start("complexType");
    if (theElement.isOpen())
        writeForeignContent();
    else
        writeChildren(theElement);
    for (const Value& value : theElement.attributes())
        if (value.myNeed != NEED_IDLE)
            writeAttribute(value);
    if (theElement.isOpen()) {
        myXml.writeEmptyElement(STR_NAMESPACE, QStringLiteral("anyAttribute"));
        attribute(QStringLiteral("processContents"), QStringLiteral("lax"));
    }
    end();
}

/// Elements of which each stands once may be told as a set in any order; others as a choice that is repeated.
void SchemaWriter::writeChildren(const VelElementDescription& theElement)
{
    QVector<const VelElementDescription*> children;
    for (const VelElementDescription& child : theElement.children())
        if (child.need() != NEED_IDLE)
            children.append(&child);
    if (children.isEmpty())
        return;
    const bool isSet = std::all_of(children.begin(), children.end(), [](const VelElementDescription* theChild) {
        return theChild->occurrence() == VelElementDescription::ONCE;
    });
    const bool isChoice = !isSet && children.size() > 1;
    start(isSet ? "all" : isChoice ? "choice" : "sequence");
    if (isChoice) {
        attribute(STR_MIN_OCCURS, QStringLiteral("0"));
        attribute(STR_MAX_OCCURS, STR_UNBOUNDED);
    }
    for (const VelElementDescription* child : children)
        writeElement(*child, isChoice ? Place::AMONG_OTHERS : Place::ALONE);
    end();
}

/// What is described stands as an element of its own at the top of the schema, where it is found.
void SchemaWriter::writeForeignContent()
{
    start("sequence");
    myXml.writeEmptyElement(STR_NAMESPACE, QStringLiteral("any"));
    attribute(QStringLiteral("processContents"), QStringLiteral("lax"));
    attribute(STR_MIN_OCCURS, QStringLiteral("0"));
    attribute(STR_MAX_OCCURS, STR_UNBOUNDED);
    end();
}

void SchemaWriter::writeAttribute(const Value& theValue)
{
    start("attribute");
    attribute(STR_NAME, theValue.myName);
    const QString type = namedType(theValue);
    if (!type.isNull())
        attribute(QStringLiteral("type"), type);
    if (theValue.myNeed == NEED_MUST)
        attribute(QStringLiteral("use"), QStringLiteral("required"));
    writeDocumentation(documentationOf(theValue));
    if (type.isNull())
        writeType(theValue);
    end();
}

// ---- values

/// The name of the value's type; null for one that is written where it is used.
QString SchemaWriter::namedType(const Value& theValue)
{
    const auto used = [this](const QString& theName) {
        if (!myNamedTypes.contains(theName))
            myNamedTypes.append(theName);
        return theName;
    };
    switch (theValue.myType) {
    case Value::TYPE_BOOL:
        return used(STR_BOOLEAN);
    case Value::TYPE_DATE_TIME:
        return used(STR_DATE_TIME);
    case Value::TYPE_DAYS:
        return used(STR_DAYS);
    case Value::TYPE_WORD:
        return vocabularyType(theValue);
    case Value::TYPE_CODE:
    case Value::TYPE_CODE_REFERENCE:
    case Value::TYPE_LINE:
    case Value::TYPE_TEXT:
        return QStringLiteral("xs:string");
    default:
        return QString();
    }
}

void SchemaWriter::writeType(const Value& theValue)
{
    start("simpleType");
    if (theValue.myType == Value::TYPE_FACTOR) {
        startRestriction("xs:double");
        facet("minExclusive", QStringLiteral("0"));
        end();
    } else {
        writeNumber(theValue);
    }
    end();
}

void SchemaWriter::writeNumber(const Value& theValue)
{
    startRestriction("xs:int");
    for (const VelVocabulary::Word& word : theValue.myVocabulary.myWords)
        writeEnumeration(QString::number(word.myValue), word.myMeaning);
    if (theValue.myVocabulary.myWords.isEmpty()) {
        if (theValue.myLowest != INT_MIN)
            facet("minInclusive", QString::number(theValue.myLowest));
        if (theValue.myHighest != INT_MAX)
            facet("maxInclusive", QString::number(theValue.myHighest));
    }
    end();
}

// ---- words

/// Of one table, other places may take other words.
QString SchemaWriter::vocabularyType(const Value& theValue)
{
    const auto isSame = [&theValue](const Value& theOther) {
        return theOther.myVocabulary.myName == theValue.myVocabulary.myName &&
               theOther.myVocabulary.texts() == theValue.myVocabulary.texts() &&
               (theOther.myNeed == NEED_MUST) == (theValue.myNeed == NEED_MUST);
    };
    auto found = std::find_if(myVocabularies.begin(), myVocabularies.end(), isSame);
    if (found == myVocabularies.end())
        found = myVocabularies.insert(found, theValue);
    return vocabularyName(static_cast<int>(found - myVocabularies.begin()));
}

QString SchemaWriter::vocabularyName(int theIndex) const
{
    const QString& name = myVocabularies.at(theIndex).myVocabulary.myName;
    const auto isOfTable = [&name](const Value& theValue) { return theValue.myVocabulary.myName == name; };
    const auto former = std::count_if(myVocabularies.begin(), myVocabularies.begin() + theIndex, isOfTable);
    return former == 0 ? name : name + QString::number(former + 1);
}

/// The words for the editor to complete, and a pattern that takes them in any case, as the library does. Where the word
/// may be left out, it may be empty.
void SchemaWriter::writeVocabulary(int theIndex)
{
    const Value& value = myVocabularies.at(theIndex);
    QStringList patterns;
    startNamedType(vocabularyName(theIndex));
    start("union");
    start("simpleType");
    startRestriction("xs:token");
    for (const VelVocabulary::Word& word : value.myVocabulary.myWords) {
        writeEnumeration(word.myText, word.myMeaning);
        if (word.myText.toLower() != word.myText)
            writeEnumeration(word.myText.toLower(), word.myMeaning);
        patterns.append(inAnyCase(word.myText));
    }
    end();
    end();
    writePattern("xs:token", QLatin1Char('(') + patterns.join(QLatin1Char('|')) + QLatin1Char(')') +
                                 QLatin1String(value.myNeed == NEED_MUST ? "" : "?"));
    end();
    end();
}

void SchemaWriter::writeEnumeration(const QString& theText, const QString& theMeaning)
{
    start("enumeration");
    attribute(STR_VALUE, theText);
    writeDocumentation(theMeaning);
    end();
}

// ---- types that the library reads in its own way

void SchemaWriter::writeNamedTypes()
{
    if (myNamedTypes.contains(STR_BOOLEAN))
        writeBoolean();
    if (myNamedTypes.contains(STR_DATE_TIME))
        writeDateTime();
    if (myNamedTypes.contains(STR_DAYS))
        writeDays();
}

void SchemaWriter::writeBoolean()
{
    startNamedType(STR_BOOLEAN);
    start("union");
    attribute(QStringLiteral("memberTypes"), QStringLiteral("xs:boolean"));
    writePattern("xs:token", inAnyCase(QStringLiteral("true")) + QLatin1Char('|') + inAnyCase(QStringLiteral("false")));
    end();
    end();
}

/// The seconds, or the time, may be missing.
void SchemaWriter::writeDateTime()
{
    startNamedType(STR_DATE_TIME);
    start("union");
    attribute(QStringLiteral("memberTypes"), QStringLiteral("xs:dateTime xs:date"));
    writePattern("xs:string", QStringLiteral("[0-9]{4}-(0[1-9]|1[0-2])-(0[1-9]|[12][0-9]|3[01])T([01][0-9]|2[0-3]):"
                                             "[0-5][0-9]"));
    end();
    end();
}

void SchemaWriter::writeDays()
{
    startNamedType(STR_DAYS);
    startRestriction("xs:token");
    facet("pattern", QStringLiteral("[0-9]+(-[0-9]+)?"));
    end();
    end();
}

} // namespace

QByteArray VelDocumentSchema::of(const VelDocumentDescription& theDocument)
{
    return SchemaWriter().schema(theDocument.root());
}

QString VelDocumentSchema::fileName(const VelDocumentDescription& theDocument)
{
    return theDocument.name() + QStringLiteral(".xsd");
}
