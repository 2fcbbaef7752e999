#ifndef VELGUARDEDDOCUMENT_H
#define VELGUARDEDDOCUMENT_H

#include "sibling/VelSiblingExport.h"

#include <QByteArray>
#include <QDomDocument>
#include <QFileInfo>
#include <QString>

/**
 * Reads documents as QDomDocument itself does, but refuses what would overflow the stack or the memory or take without
 * end: elements that nest deeper than 256 levels or have more than 256 attributes, and declarations of entities,
 * elements and notations. Writes no message.
 */
namespace VelGuardedDocument {

/// Why a document was refused. Line and column begin with 1; 0 means none, as for a file that can't be opened.
struct Refusal
{
    QString myReason; ///< the parser's, the guard's or the system's words; null when nothing was refused
    int myLine = 0;   ///< where reading ended
    int myColumn = 0; ///< the column in that line
};

/// The document element of the file, a whole tree without a parent or siblings. Null, with the refusal, for a file that
/// can't be opened, is not XML or is refused.
VELSIBLING_EXPORT QDomElement load(const QFileInfo& theFile, Refusal& theRefusal);

/// Fills the document with the text. False, with the refusal, for what is not XML or is refused.
VELSIBLING_EXPORT bool setContent(QDomDocument& theDocument, const QByteArray& theBytes, Refusal& theRefusal);

} // namespace VelGuardedDocument

#endif
