#ifndef VELSHOPAUDITTEXT_H
#define VELSHOPAUDITTEXT_H

#include <QString>

class QTextStream;
class VelAudit;

/// The audit for people and editors.
namespace VelshopAuditText {

/// Each finding as compilers write it, "pricelist.xml:120:34: error: message [rule]", with its line and a caret under
/// the place, and the counts in the last line.
void printFindings(const VelAudit& theAudit, QTextStream& theOutput);

/// Each rule with its severity and a sentence, in columns.
void printRules(QTextStream& theOutput);

/// "2 errors, 1 warning, 3 notes", of which there are some; "nothing found" for none.
QString counts(const VelAudit& theAudit);

/// A line of a document and a line with a caret under a place of it, both cut around the place to fit a terminal. The
/// column counts code points from 1; tabs stay tabs in both, so that the caret stands right however wide they are.
QString excerpt(const QString& theLine, int theColumn, int theLength);

} // namespace VelshopAuditText

#endif
