#ifndef VELSHOPAUDITHTML_H
#define VELSHOPAUDITHTML_H

#include <QByteArray>
#include <QString>

class QDir;
class VelAudit;
class VelshopPage;

/// The audit as a page.
namespace VelshopAuditHtml {

/// A page of all findings, document by document.
QByteArray page(const VelAudit& theAudit, const QDir& theFolder);

/// What stands in the page below its title; the page has to have style().
void writeFindings(const VelAudit& theAudit, VelshopPage& thePage);
QString style();

} // namespace VelshopAuditHtml

#endif
