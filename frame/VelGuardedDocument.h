#ifndef VELGUARDEDDOCUMENT_H
#define VELGUARDEDDOCUMENT_H

#include <QByteArray>
#include <QDomDocument>
#include <QString>

/**
 * Fills a document as QDomDocument itself does, but refuses what would overflow the stack or the memory or take without
 * end: elements that nest deeper than 256 levels or have more than 256 attributes, and declarations of entities,
 * elements and notations.
 */
namespace VelGuardedDocument {

/// Why a text was refused. Line and column begin with 1; 0 means none.
struct Refusal
{
    QString myReason;
    int myLine = 0;
    int myColumn = 0;
};

/// False, with the refusal, for what is not XML or is refused.
bool setContent(QDomDocument& theDocument, const QByteArray& theBytes, Refusal& theRefusal);

} // namespace VelGuardedDocument

#endif
