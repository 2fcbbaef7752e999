#include "sibling/VelXMLLoader.h"

#include <QDomDocument>
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

/// The reader parses elements and QDom destroys them by recursion, so that nesting without limit would overflow the
/// stack. Documents of this application nest less than ten levels.
constexpr int MAX_NESTING = 256;

/// Stands between the reader and the builder of the tree, and ends the parsing of a document that nests too deeply.
class NestingGuard : public QXmlContentHandler
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
        return !isTooDeep() && myTarget->startElement(theUri, theLocalName, theName, theAttributes);
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
    QString errorString() const override
    {
        return isTooDeep() ? QStringLiteral("elements nest deeper than %1 levels").arg(MAX_NESTING)
                           : myTarget->errorString();
    }

private:
    bool isTooDeep() const { return myDepth > MAX_NESTING; }

    QXmlContentHandler* myTarget = nullptr;
    int myDepth = 0;
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
    NestingGuard myGuard;
};

/// What the warning says of a document that is refused. Line and column begin with 1; 0 means none.
struct Refusal
{
    QString reason;
    int line = 0;
    int column = 0;
};

/// Entities that a document declares itself can blow it up to any size, and content models of many parentheses
/// overflow the stack. A plain document type declaration does no harm.
int indexOfHarmfulDeclaration(const QString& theText)
{
    if (!theText.contains(STR_DOCTYPE))
        return -1;
    const int entity = theText.indexOf(STR_ENTITY);
    return entity >= 0 ? entity : theText.indexOf(STR_ELEMENT);
}

Refusal refusalOfDeclaration(const QString& theText, int theIndex)
{
    const QString before = theText.left(theIndex);
    return {QStringLiteral("entities and elements must not be declared in the document"),
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
QDomElement parsed(const QByteArray& theBytes, Refusal& theRefusal)
{
    QXmlInputSource source;
    source.setData(theBytes);
    const int harm = indexOfHarmfulDeclaration(source.data());
    if (harm >= 0) {
        theRefusal = refusalOfDeclaration(source.data(), harm);
        return QDomElement();
    }
    GuardedReader reader;
    QDomDocument document;
    if (!document.setContent(&source, &reader, &theRefusal.reason, &theRefusal.line, &theRefusal.column))
        return QDomElement();
    return detached(document.documentElement());
}

} // namespace

QDomElement VelXMLLoader::loadDocumentElement(const QFileInfo& theFile)
{
    QFile file(theFile.filePath());
    Refusal refusal;
    QDomElement result;
    if (theFile.filePath().isEmpty())
        refusal.reason = QStringLiteral("there is no file name"); // Qt would add a warning of its own
    else if (file.open(QIODevice::ReadOnly))
        result = parsed(file.readAll(), refusal);
    else
        refusal.reason = file.errorString();
    if (result.isNull())
        qWarning("VelXMLLoader::loadDocumentElement() -- %s, line %d, column %d: %s", qUtf8Printable(file.fileName()),
                 refusal.line, refusal.column, qUtf8Printable(refusal.reason));
    return result;
}
