#ifndef VELAUDITALLOWANCES_H
#define VELAUDITALLOWANCES_H

#include "insight/VelAuditFinding.h"

#include <QVector>

class VelAuditReport;
class VelAuditShop;

/// The comments `<!-- audit: allow RULE because ... -->` of the documents.
namespace VelAuditAllowances {

/// The findings of the report, sorted, without those that a comment allows. A comment that allows nothing, or that
/// isn't what such a comment has to be, adds a finding.
QVector<VelAuditFinding> withoutAllowed(const VelAuditShop& theShop, VelAuditReport& theReport);

} // namespace VelAuditAllowances

#endif
