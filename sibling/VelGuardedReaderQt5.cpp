#include "sibling/VelGuardedReader.h"

#include <QXmlInputSource>
#include <QXmlSimpleReader>

namespace {

const QString STR_FEATURE_NAMESPACES = QStringLiteral("http://xml.org/sax/features/namespaces");
const QString STR_FEATURE_PREFIXES = QStringLiteral("http://xml.org/sax/features/namespace-prefixes");
const QString STR_FEATURE_WHITESPACE =
    QStringLiteral("http://trolltech.com/xml/features/report-whitespace-only-CharData");

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
        if (myDepth > VelGuardedReader::MAX_NESTING)
            return refuse(VelGuardedReader::reasonOfNesting());
        if (theAttributes.count() > VelGuardedReader::MAX_ATTRIBUTES)
            return refuse(VelGuardedReader::reasonOfAttributes());
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

} // namespace

QString VelGuardedReader::decoded(const QByteArray& theBytes)
{
    QXmlInputSource source;
    source.setData(theBytes);
    return source.data();
}

bool VelGuardedReader::read(QDomDocument& theDocument, const QString& theText, VelGuardedDocument::Refusal& theRefusal)
{
    QXmlInputSource source;
    source.setData(theText);
    GuardedReader reader;
    return theDocument.setContent(&source, &reader, &theRefusal.myReason, &theRefusal.myLine, &theRefusal.myColumn);
}
