#ifndef VELGUARDEDDOCUMENT_H
#define VELGUARDEDDOCUMENT_H

#include <QByteArray>
#include <QDomDocument>
#include <QString>

/**
 * Fills a document as QDomDocument itself does, but refuses what would overflow the stack or the memory: elements that
 * nest deeper than 256 levels, and declarations of entities and elements.
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
