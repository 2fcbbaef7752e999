#include "insight/VelAuditRules.h"

#include <algorithm>

const QVector<VelAuditRule>& VelAuditRules::all()
{
    static const QVector<VelAuditRule> rules = ofDocuments() + ofShops();
    return rules;
}

const VelAuditRule* VelAuditRules::find(const QString& theName)
{
    const auto found = std::find_if(all().begin(), all().end(), [&theName](const VelAuditRule& theRule) {
        return theName == QLatin1String(theRule.myName);
    });
    return found == all().end() ? nullptr : &*found;
}
