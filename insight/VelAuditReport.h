#ifndef VELAUDITREPORT_H
#define VELAUDITREPORT_H

#include "insight/VelAuditFinding.h"
#include "insight/VelInsightExport.h"

#include <QDomElement>
#include <QVector>

#include <deque>

struct VelAuditDocument;

/**
 * Takes the findings of the checks. Each operation reports one by the name of its rule, which has to be in
 * VelAuditRules, and with its severity; what it gives back may be given another severity, an article or another place,
 * and is valid as long as the report. Findings in an entry of the price list carry its number.
 */
class VELINSIGHT_EXPORT VelAuditReport
{
    Q_DISABLE_COPY(VelAuditReport)

public:
    VelAuditReport() = default;

    /// At a place of its own: under the first line of what is meant there, or under one character for an empty text.
    VelAuditFinding& at(const char* theRule, const VelAuditDocument& theDocument, const VelDocumentPlace& thePlace,
                        const QString& theMeant, const QString& theMessage);
    /// At an element: under its `<` and tag.
    VelAuditFinding& atElement(const char* theRule, const VelAuditDocument& theDocument, const QDomElement& theElement,
                               const QString& theMessage);
    /// At an attribute's value, or at the element where it has no such attribute.
    VelAuditFinding& atValue(const char* theRule, const VelAuditDocument& theDocument, const QDomElement& theElement,
                             const QString& theAttribute, const QString& theMessage);
    /// At an attribute's name, or at the element where it has no such attribute.
    VelAuditFinding& atName(const char* theRule, const VelAuditDocument& theDocument, const QDomElement& theElement,
                            const QString& theAttribute, const QString& theMessage);
    /// At an element's text, or at the element where it has none but blanks.
    VelAuditFinding& atText(const char* theRule, const VelAuditDocument& theDocument, const QDomElement& theElement,
                            const QString& theMessage);

    /// All findings, sorted.
    QVector<VelAuditFinding> findings() const;

private:
    VelAuditFinding& within(const QDomElement& theElement, const char* theRule, const VelAuditDocument& theDocument,
                            const VelDocumentPlace& thePlace, const QString& theMeant, const QString& theMessage);

    std::deque<VelAuditFinding> myFindings; ///< which stay where they are while others come
};

#endif
