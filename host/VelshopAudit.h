#ifndef VELSHOPAUDIT_H
#define VELSHOPAUDIT_H

#include "host/VelshopArguments.h"

class QTextStream;
class VelshopCommandLine;
class VelshopError;

/// Arguments of `velshop audit`.
struct VelshopAuditArguments : VelshopArguments
{
    bool myIsSarif = false;
    bool myIsRules = false; ///< the rules are listed, and nothing is audited
    bool myIsWatch = false;
    QString myHtmlFile; ///< empty for none
};

bool readAuditArguments(const VelshopCommandLine& theLine, VelshopAuditArguments& theArguments, VelshopError& theError);

/// Prints what can be said against the documents of the account. The exit code: EXIT_DONE without errors and warnings,
/// EXIT_FOUND with some, EXIT_BAD_INPUT when a document can't be read, which is a finding like others, and when
/// there is no such folder, which is the error. With --watch it goes on whenever a document is saved, and does not
/// return.
int auditAccount(const VelshopAuditArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
