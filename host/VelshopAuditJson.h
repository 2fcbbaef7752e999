#ifndef VELSHOPAUDITJSON_H
#define VELSHOPAUDITJSON_H

#include <QByteArray>

class VelAudit;

/// The audit for programs.
namespace VelshopAuditJson {

/// An object with `findings`, each with `file`, `line`, `column`, `length`, `severity`, `rule`, `message` and, where it
/// concerns one, `article`; `other` is the second place of a contradiction, with `file`, `line`, `column` and
/// `message`.
QByteArray ofFindings(const VelAudit& theAudit);

/// An object with `rules`, each with `name`, `severity`, `sentence`, `example` and `remedy`.
QByteArray ofRules();

} // namespace VelshopAuditJson

#endif
