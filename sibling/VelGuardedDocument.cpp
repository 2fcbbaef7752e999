#include "sibling/VelGuardedDocument.h"

#include "sibling/VelGuardedReader.h"

#include <QFile>

namespace {

const QString STR_DOCTYPE = QStringLiteral("<!DOCTYPE");
const QString STR_ENTITY = QStringLiteral("<!ENTITY");
const QString STR_ELEMENT = QStringLiteral("<!ELEMENT");
const QString STR_NOTATION = QStringLiteral("<!NOTATION");

const QString REASON_OF_DECLARATION =
    QStringLiteral("entities, elements and notations must not be declared in the document");

/// Entities that a document declares itself can blow it up to any size, content models of many parentheses overflow the
/// stack, and notations stand in a hash like attributes. A plain document type declaration does no harm.
QString::size_type indexOfHarmfulDeclaration(const QString& theText)
{
    if (!theText.contains(STR_DOCTYPE))
        return -1;
    for (const QString& declaration : {STR_ENTITY, STR_ELEMENT, STR_NOTATION}) {
        const auto index = theText.indexOf(declaration);
        if (index >= 0)
            return index;
    }
    return -1;
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
    const QString text = VelGuardedReader::decoded(theBytes);
    const auto harm = indexOfHarmfulDeclaration(text);
    if (harm < 0)
        return VelGuardedReader::read(theDocument, text, theRefusal);
    theRefusal = VelGuardedReader::refusalAt(text, harm, REASON_OF_DECLARATION);
    return false;
}

VelGuardedDocument::Refusal VelGuardedReader::refusalAt(const QString& theText, QString::size_type theIndex,
                                                        const QString& theReason)
{
    const QString before = theText.left(theIndex);
    return {theReason, static_cast<int>(before.count(QLatin1Char('\n'))) + 1,
            static_cast<int>(theIndex - before.lastIndexOf(QLatin1Char('\n')))};
}
