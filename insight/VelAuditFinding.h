#ifndef VELAUDITFINDING_H
#define VELAUDITFINDING_H

#include "insight/VelDocumentPlace.h"
#include "insight/VelInsightExport.h"

#include <QString>

#include <optional>

/// How much a finding matters, the gravest first.
enum VelAuditSeverity {
    SEVERITY_ERROR,   ///< a price or a charge is missing or surely wrong, or an article vanishes
    SEVERITY_WARNING, ///< a value isn't what is written, or never has an effect
    SEVERITY_NOTE     ///< legal, and worth knowing
};

/// One thing that the audit has to say about a place in a document. A value.
struct VELINSIGHT_EXPORT VelAuditFinding
{
    QString myFile;           ///< below the account's folder, with slashes
    VelDocumentPlace myPlace; ///< always a place; that of a file as a whole is its beginning
    int myLength = 1;         ///< of what is meant, in code points within its line, at least 1
    /// How much it matters.
    VelAuditSeverity mySeverity = SEVERITY_WARNING;
    QString myRule;               ///< its name, one of VelAuditRules
    QString myMessage;            ///< what is wrong and what comes of it, without a full stop
    std::optional<int> myArticle; ///< number of the article, add-on or fee that it concerns, where it concerns one
    QString myOtherFile;          ///< of the other place, empty without one
    VelDocumentPlace myOther;     ///< where the other half of a contradiction stands, no place without one
    QString myOtherMessage;       ///< what stands there, a few words

    /// The place as compilers write it: "pricelist.xml:120:34".
    QString placeText() const;
    /// The same of the other place, empty without one.
    QString otherPlaceText() const;

    /// The word for a severity: "error", "warning" or "note".
    static QString nameOf(VelAuditSeverity theSeverity);

    // ---- what a check adds to a finding that it has just reported

    /// Gives it another severity than the gravest that its rule has.
    VelAuditFinding& as(VelAuditSeverity theSeverity);
    /// Says which article it concerns, where that isn't the entry that its element stands in.
    VelAuditFinding& about(int theArticle);
    /// Names the other place, and what stands there.
    VelAuditFinding& beside(const QString& theFile, const VelDocumentPlace& thePlace, const QString& theMessage);
};

/// By file, line and column; of one place the graver first, then by rule and message.
VELINSIGHT_EXPORT bool operator<(const VelAuditFinding& theLeft, const VelAuditFinding& theRight);

#endif
