#include "sibling/VelGuardedReader.h"

#include "sibling/VelGuardedText.h"

#include <QStringDecoder>
#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

namespace {

const QString STR_ENCODING = QStringLiteral("encoding");
const QString STR_END_OF_FILE = QStringLiteral("unexpected end of file");

/// An entity that isn't declared leaves no text behind.
class NoText : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString&) override { return QLatin1String(""); }
};

/// By the byte order mark, or by how the first character looks.
QStringConverter::Encoding encodingOfStart(const QByteArray& theBytes)
{
    return QStringConverter::encodingForData(theBytes.left(4), u'<').value_or(QStringConverter::Utf8);
}

void setUp(QXmlStreamReader& theReader, NoText& theResolver)
{
    theReader.setNamespaceProcessing(false);
    theReader.setEntityResolver(&theResolver);
}

VelGuardedDocument::Refusal refusalOf(const QXmlStreamReader& theReader, const VelGuardedText& theText)
{
    if (theReader.error() == QXmlStreamReader::PrematureEndOfDocumentError)
        return theText.refusalAt(theText.size(), STR_END_OF_FILE);
    return theText.refusalAt(theText.indexOf(theReader.characterOffset()) - 1, theReader.errorString());
}

/// The refusal of what stands before the harm, if it is no XML, or else of the harm.
VelGuardedDocument::Refusal refusalOfHarm(const VelGuardedText& theText)
{
    QXmlStreamReader reader(theText.parsed());
    NoText noText;
    setUp(reader, noText);
    while (!reader.atEnd())
        reader.readNext();
    const bool isHarmFirst = reader.error() == QXmlStreamReader::PrematureEndOfDocumentError;
    return isHarmFirst ? theText.refusalOfHarm() : refusalOf(reader, theText);
}

} // namespace

QString VelGuardedReader::decoded(const QByteArray& theBytes)
{
    const QStringConverter::Encoding encoding = encodingOfStart(theBytes);
    const QString text = QStringDecoder(encoding).decode(theBytes);
    const QByteArray declared = VelGuardedText::declaredValue(text, STR_ENCODING).toLatin1();
    QStringDecoder decoder(declared.constData());
    if (!decoder.isValid() || QStringConverter::encodingForName(declared.constData()) == encoding)
        return text;
    return decoder.decode(theBytes);
}

bool VelGuardedReader::read(QDomDocument& theDocument, const QString& theText, VelGuardedDocument::Refusal& theRefusal)
{
    VelGuardedText text(theText);
    if (!text.isHarmless()) {
        theRefusal = refusalOfHarm(text);
        return false;
    }
    QXmlStreamReader reader(text.parsed());
    NoText noText;
    setUp(reader, noText);
    QString reason;
    if (theDocument.setContent(&reader, false, &reason))
        return true;
    theRefusal = refusalOf(reader, text);
    if (!reader.hasError()) // the builder of the tree found a second document type
        theRefusal.myReason = reason;
    return false;
}
