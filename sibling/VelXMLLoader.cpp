#include "sibling/VelXMLLoader.h"

#include "sibling/VelGuardedDocument.h"

QDomElement VelXMLLoader::loadDocumentElement(const QFileInfo& theFile)
{
    VelGuardedDocument::Refusal refusal;
    const QDomElement root = VelGuardedDocument::load(theFile, refusal);
    if (root.isNull())
        qWarning("VelXMLLoader::loadDocumentElement() -- %s, line %d, column %d: %s",
                 qUtf8Printable(theFile.filePath()), refusal.myLine, refusal.myColumn,
                 qUtf8Printable(refusal.myReason));
    return root;
}
