#include "sibling/VelXMLLoader.h"

#include "frame/VelGuardedDocument.h"

#include <QDomDocument>
#include <QFile>

namespace {

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

QDomElement VelXMLLoader::loadDocumentElement(const QFileInfo& theFile)
{
    QFile file(theFile.filePath());
    VelGuardedDocument::Refusal refusal;
    QDomElement result;
    if (theFile.filePath().isEmpty())
        refusal.myReason = QStringLiteral("there is no file name"); // Qt would add a warning of its own
    else if (file.open(QIODevice::ReadOnly))
        result = parsed(file.readAll(), refusal);
    else
        refusal.myReason = file.errorString();
    if (result.isNull())
        qWarning("VelXMLLoader::loadDocumentElement() -- %s, line %d, column %d: %s", qUtf8Printable(file.fileName()),
                 refusal.myLine, refusal.myColumn, qUtf8Printable(refusal.myReason));
    return result;
}
