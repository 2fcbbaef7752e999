#ifndef VELAUDITWORDS_H
#define VELAUDITWORDS_H

#include <QString>
#include <QStringList>

/// What the messages of the audit are made of.
namespace VelAuditWords {

/// How many letters have to be added, left out, replaced or swapped with their neighbour to make one text the other;
/// the bound plus 1 where it is more than the bound. Upper and lower case are the same.
int distance(const QString& theLeft, const QString& theRight, int theBound);

/// The word that a text most likely was meant to be, null where none is near: a third of its letters may differ. Of
/// several equally near the first.
QString nearest(const QString& theText, const QStringList& theWords);

/// The text in quotes: what a document holds may be long, or break the line.
QString quoted(const QString& theText);

/// The text in quotes, and behind it ", did you mean \"...\"?" where a word is near.
QString withSuggestion(const QString& theText, const QStringList& theWords);

/// "a", "a or b", "a, b or c".
QString choice(const QStringList& theWords);

} // namespace VelAuditWords

#endif
