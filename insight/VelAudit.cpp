#include "insight/VelAudit.h"

#include "insight/VelAuditAllowances.h"
#include "insight/VelAuditChecks.h"
#include "insight/VelAuditReport.h"

#include <algorithm>

namespace {

using Check = void (*)(const VelAuditShop&, VelAuditReport&);

const Check CHECKS[] = {
    VelAuditChecks::checkReading,
    VelAuditChecks::checkDescription,
    VelAuditChecks::checkMeaning,
};

} // namespace

VelAudit::VelAudit(const QDir& theFolder) : myShop(theFolder)
{
    VelAuditReport report;
    for (const Check check : CHECKS)
        check(myShop, report);
    myFindings = VelAuditAllowances::withoutAllowed(myShop, report);
}

int VelAudit::count(VelAuditSeverity theSeverity) const
{
    return static_cast<int>(
        std::count_if(myFindings.begin(), myFindings.end(), [theSeverity](const VelAuditFinding& theFinding) {
            return theFinding.mySeverity == theSeverity;
        }));
}

bool VelAudit::isReadable() const
{
    return std::all_of(myShop.documents().begin(), myShop.documents().end(),
                       [](const auto& theDocument) { return theDocument->myContent.isReadable(); });
}

QString VelAudit::lineOf(const VelAuditFinding& theFinding) const
{
    const VelAuditDocument* document = myShop.document(theFinding.myFile);
    return document ? document->myContent.text().line(theFinding.myPlace.myLine) : QString();
}
