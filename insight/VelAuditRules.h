#ifndef VELAUDITRULES_H
#define VELAUDITRULES_H

#include "insight/VelAuditFinding.h"

#include <QVector>

/**
 * A rule of the audit, one row of the tables from which `velshop audit --rules`, the pages and the guide are made.
 *
 * To add a rule: a row in one of the tables (VelAuditRulesOf....cpp), which gives it a name, and a check that reports
 * by that name. Checks are functions of the shop and the report, listed in VelAuditChecks.h and VelAudit.cpp; one walk
 * may serve several rules.
 */
struct VELINSIGHT_EXPORT VelAuditRule
{
    const char* myName;          ///< lower case with hyphens: "not-a-number"
    VelAuditSeverity mySeverity; ///< the gravest that its findings have
    const char* mySentence;      ///< what it finds, one sentence
    const char* myExample;       ///< what an author might write, one line of XML
    const char* myRemedy;        ///< how to mend it, one sentence
};

/// All rules of the audit.
namespace VelAuditRules {

/// In the order in which to tell them.
VELINSIGHT_EXPORT const QVector<VelAuditRule>& all();

/// Null for a name that no rule has.
VELINSIGHT_EXPORT const VelAuditRule* find(const QString& theName);

/// The table of what the documents say by themselves.
QVector<VelAuditRule> ofDocuments();
/// The table of what they mean for a shop.
QVector<VelAuditRule> ofShops();

} // namespace VelAuditRules

#endif
