#ifndef VELAUDIT_H
#define VELAUDIT_H

#include "insight/VelAuditFinding.h"
#include "insight/VelAuditShop.h"
#include "insight/VelInsightExport.h"

#include <QDir>
#include <QVector>

#include <utility>

/**
 * What can be said against the documents of an account before a customer sees it. The library goes on answering as it
 * does; nothing is mended here.
 *
 * A comment `<!-- audit: allow RULE because ... -->` in front of an element takes that rule's findings away for the
 * element and what it holds.
 *
 * The findings of an audit that nobody keeps come by value, so that a loop may run over them.
 */
class VELINSIGHT_EXPORT VelAudit
{
    Q_DISABLE_COPY(VelAudit)

public:
    /// Reads and checks the documents of that folder. Of a folder that isn't there, no document can be read.
    explicit VelAudit(const QDir& theFolder);

    /// Without those that are allowed, sorted by file, line and column.
    const QVector<VelAuditFinding>& findings() const& { return myFindings; }
    QVector<VelAuditFinding> findings() && { return std::move(myFindings); }
    /// How many findings have the severity.
    int count(VelAuditSeverity theSeverity) const;
    /// Whether all documents can be read. What can't is a finding, and the others are audited all the same.
    bool isReadable() const;
    /// The line that a finding is about, as it is written, without its end.
    QString lineOf(const VelAuditFinding& theFinding) const;
    /// The documents that were audited.
    const VelAuditShop& shop() const { return myShop; }

private:
    const VelAuditShop myShop;
    QVector<VelAuditFinding> myFindings;
};

#endif
