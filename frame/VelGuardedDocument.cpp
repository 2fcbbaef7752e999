#include "frame/VelGuardedDocument.h"

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

/// Entities that a document declares itself can blow it up to any size, and content models of many parentheses
/// overflow the stack. A plain document type declaration does no harm.
int indexOfHarmfulDeclaration(const QString& theText)
{
    if (!theText.contains(STR_DOCTYPE))
        return -1;
    const int entity = theText.indexOf(STR_ENTITY);
    return entity >= 0 ? entity : theText.indexOf(STR_ELEMENT);
}

VelGuardedDocument::Refusal refusalOfDeclaration(const QString& theText, int theIndex)
{
    const QString before = theText.left(theIndex);
    return {QStringLiteral("entities and elements must not be declared in the document"),
            static_cast<int>(before.count(QLatin1Char('\n'))) + 1, theIndex - before.lastIndexOf(QLatin1Char('\n'))};
}

} // namespace

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
