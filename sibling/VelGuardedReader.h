#ifndef VELGUARDEDREADER_H
#define VELGUARDEDREADER_H

#include "sibling/VelGuardedDocument.h"

/// What VelGuardedDocument leaves to the parser of the Qt at hand. There is one implementation for Qt 5, whose parser a
/// guard can be put into, and one for Qt 6, where it stands in front.
namespace VelGuardedReader {

/// The reader parses elements and QDom destroys them by recursion, so that nesting without limit would overflow the
/// stack. Documents of this application nest less than ten levels.
constexpr int MAX_NESTING = 256;

/// The tree keeps the attributes of an element in a hash. Names can be chosen so that they collide, whatever the hash's
/// seed, and each further one then takes longer. Elements of this application have less than twenty.
constexpr int MAX_ATTRIBUTES = 256;

inline QString reasonOfNesting()
{
    return QStringLiteral("elements nest deeper than %1 levels").arg(MAX_NESTING);
}

inline QString reasonOfAttributes()
{
    return QStringLiteral("an element has more than %1 attributes").arg(MAX_ATTRIBUTES);
}

/// A refusal at the line and column of a character.
VelGuardedDocument::Refusal refusalAt(const QString& theText, QString::size_type theIndex, const QString& theReason);

/// The characters of a document, by its byte order mark or its declaration of an encoding, or else UTF-8. What is no
/// character is replaced.
QString decoded(const QByteArray& theBytes);

/// Fills the document with a text without declarations that do harm. False, with the refusal, for what is not XML,
/// nests too deep or has too many attributes.
bool read(QDomDocument& theDocument, const QString& theText, VelGuardedDocument::Refusal& theRefusal);

} // namespace VelGuardedReader

#endif
