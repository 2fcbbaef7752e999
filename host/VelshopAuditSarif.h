#ifndef VELSHOPAUDITSARIF_H
#define VELSHOPAUDITSARIF_H

#include <QByteArray>

class QDir;
class VelAudit;

/// The audit for tools that show findings in place: a SARIF 2.1.0 log of one run. Files are relative to the account's
/// folder, whose address stands once beside them; columns are code points.
namespace VelshopAuditSarif {

QByteArray ofFindings(const VelAudit& theAudit, const QDir& theFolder);

} // namespace VelshopAuditSarif

#endif
