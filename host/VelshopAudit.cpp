#include "host/VelshopAudit.h"

#include "host/VelshopAuditJson.h"
#include "host/VelshopAuditText.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopError.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
#include "insight/VelAudit.h"

#include <QDir>
#include <QTextStream>

using namespace VelshopOptions;

namespace {

int exitCodeOf(const VelAudit& theAudit)
{
    if (!theAudit.isReadable())
        return EXIT_BAD_INPUT;
    const bool isClean = theAudit.count(SEVERITY_ERROR) == 0 && theAudit.count(SEVERITY_WARNING) == 0;
    return isClean ? EXIT_DONE : EXIT_NO_PRICE;
}

void print(const VelAudit& theAudit, const VelshopAuditArguments& theArguments, QTextStream& theOutput)
{
    if (theArguments.myIsJson)
        theOutput << VelshopAuditJson::ofFindings(theAudit);
    else
        VelshopAuditText::printFindings(theAudit, theOutput);
}

int listRules(const VelshopAuditArguments& theArguments, QTextStream& theOutput)
{
    if (theArguments.myIsJson)
        theOutput << VelshopAuditJson::ofRules();
    else
        VelshopAuditText::printRules(theOutput);
    return EXIT_DONE;
}

} // namespace

bool readAuditArguments(const VelshopCommandLine& theLine, VelshopAuditArguments& theArguments, VelshopError&)
{
    theArguments.myIsRules = theLine.isSet(STR_RULES);
    return true;
}

int auditAccount(const VelshopAuditArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    if (theArguments.myIsRules)
        return listRules(theArguments, theOutput);
    const QDir folder(theArguments.myAccount);
    if (!folder.exists()) {
        theError = {theArguments.myAccount, 0, 0, QStringLiteral("there is no such folder")};
        return EXIT_BAD_INPUT;
    }
    const VelAudit audit(folder);
    print(audit, theArguments, theOutput);
    return exitCodeOf(audit);
}
