#include "sibling/VelGuardedDocument.h"

#include <QFile>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

namespace {

const QString STR_FEATURE_NAMESPACES = QStringLiteral("http://xml.org/sax/features/namespaces");
const QString STR_FEATURE_PREFIXES = QStringLiteral("http://xml.org/sax/features/namespace-prefixes");
const QString STR_FEATURE_WHITESPACE =
    QStringLiteral("http://trolltech.com/xml/features/report-whitespace-only-CharData");

const QString STR_DOCTYPE = QStringLiteral("<!DOCTYPE");
const QString STR_ENTITY = QStringLiteral("<!ENTITY");
const QString STR_ELEMENT = QStringLiteral("<!ELEMENT");
const QString STR_NOTATION = QStringLiteral("<!NOTATION");

/// The reader parses elements and QDom destroys them by recursion, so that nesting without limit would overflow the
/// stack. Documents of this application nest less than ten levels.
constexpr int MAX_NESTING = 256;

/// The tree keeps the attributes of an element in a hash. Names can be chosen so that they collide, whatever the hash's
/// seed, and each further one then takes longer. Elements of this application have less than twenty.
constexpr int MAX_ATTRIBUTES = 256;

/// Stands between the reader and the builder of the tree, and ends the parsing of a document with an element that would
/// do harm.
class ElementGuard : public QXmlContentHandler
{
public:
    void setTarget(QXmlContentHandler* theTarget) { myTarget = theTarget; }

    void setDocumentLocator(QXmlLocator* theLocator) override { myTarget->setDocumentLocator(theLocator); }
    bool startDocument() override { return myTarget->startDocument(); }
    bool endDocument() override { return myTarget->endDocument(); }
    bool startPrefixMapping(const QString& thePrefix, const QString& theUri) override
    {
        return myTarget->startPrefixMapping(thePrefix, theUri);
    }
    bool endPrefixMapping(const QString& thePrefix) override { return myTarget->endPrefixMapping(thePrefix); }
    bool startElement(const QString& theUri, const QString& theLocalName, const QString& theName,
                      const QXmlAttributes& theAttributes) override
    {
        ++myDepth;
        if (myDepth > MAX_NESTING)
            return refuse(QStringLiteral("elements nest deeper than %1 levels").arg(MAX_NESTING));
        if (theAttributes.count() > MAX_ATTRIBUTES)
            return refuse(QStringLiteral("an element has more than %1 attributes").arg(MAX_ATTRIBUTES));
        return myTarget->startElement(theUri, theLocalName, theName, theAttributes);
    }
    bool endElement(const QString& theUri, const QString& theLocalName, const QString& theName) override
    {
        --myDepth;
        return myTarget->endElement(theUri, theLocalName, theName);
    }
    bool characters(const QString& theText) override { return myTarget->characters(theText); }
    bool ignorableWhitespace(const QString& theText) override { return myTarget->ignorableWhitespace(theText); }
    bool processingInstruction(const QString& theName, const QString& theData) override
    {
        return myTarget->processingInstruction(theName, theData);
    }
    bool skippedEntity(const QString& theName) override { return myTarget->skippedEntity(theName); }
    QString errorString() const override { return myReason.isNull() ? myTarget->errorString() : myReason; }

private:
    bool refuse(const QString& theReason)
    {
        myReason = theReason;
        return false;
    }

    QXmlContentHandler* myTarget = nullptr;
    int myDepth = 0;
    QString myReason; ///< why an element was refused, null while none was
};

/// The reader as QDomDocument sets it up for itself, with the guard in front of whatever handler it is given.
class GuardedReader : public QXmlSimpleReader
{
public:
    GuardedReader()
    {
        setFeature(STR_FEATURE_NAMESPACES, false);
        setFeature(STR_FEATURE_PREFIXES, true);
        setFeature(STR_FEATURE_WHITESPACE, false);
    }

    void setContentHandler(QXmlContentHandler* theHandler) override
    {
        myGuard.setTarget(theHandler);
        QXmlSimpleReader::setContentHandler(&myGuard);
    }

private:
    ElementGuard myGuard;
};

/// Entities that a document declares itself can blow it up to any size, content models of many parentheses overflow the
/// stack, and notations stand in a hash like attributes. A plain document type declaration does no harm.
int indexOfHarmfulDeclaration(const QString& theText)
{
    if (!theText.contains(STR_DOCTYPE))
        return -1;
    for (const QString& declaration : {STR_ENTITY, STR_ELEMENT, STR_NOTATION}) {
        const int index = theText.indexOf(declaration);
        if (index >= 0)
            return index;
    }
    return -1;
}

VelGuardedDocument::Refusal refusalOfDeclaration(const QString& theText, int theIndex)
{
    const QString before = theText.left(theIndex);
    return {QStringLiteral("entities, elements and notations must not be declared in the document"),
            static_cast<int>(before.count(QLatin1Char('\n'))) + 1, theIndex - before.lastIndexOf(QLatin1Char('\n'))};
}

/// Takes the tree out of a document that is about to go. What goes with its document keeps pointers to the nodes that
/// stood before and behind the root; moved through a document that stays, the root has no neighbours.
QDomElement detached(const QDomElement& theRoot)
{
    static QDomDocument* const ourHome = new QDomDocument(QStringLiteral("home"));
    ourHome->appendChild(theRoot);
    return ourHome->removeChild(theRoot).toElement();
}

/// The document element of the bytes, or null and the reason.
QDomElement parsed(const QByteArray& theBytes, VelGuardedDocument::Refusal& theRefusal)
{
    QDomDocument document;
    if (!VelGuardedDocument::setContent(document, theBytes, theRefusal))
        return QDomElement();
    return detached(document.documentElement());
}

} // namespace

QDomElement VelGuardedDocument::load(const QFileInfo& theFile, Refusal& theRefusal)
{
    QFile file(theFile.filePath());
    if (theFile.filePath().isEmpty())
        theRefusal.myReason = QStringLiteral("there is no file name"); // Qt would add a warning of its own
    else if (file.open(QIODevice::ReadOnly))
        return parsed(file.readAll(), theRefusal);
    else
        theRefusal.myReason = file.errorString();
    return QDomElement();
}

bool VelGuardedDocument::setContent(QDomDocument& theDocument, const QByteArray& theBytes, Refusal& theRefusal)
{
    QXmlInputSource source;
    source.setData(theBytes);
    const int harm = indexOfHarmfulDeclaration(source.data());
    if (harm >= 0) {
        theRefusal = refusalOfDeclaration(source.data(), harm);
        return false;
    }
    GuardedReader reader;
    return theDocument.setContent(&source, &reader, &theRefusal.myReason, &theRefusal.myLine, &theRefusal.myColumn);
}
