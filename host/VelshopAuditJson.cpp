#include "host/VelshopAuditJson.h"

#include "insight/VelAudit.h"
#include "insight/VelAuditRules.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString STR_FILE = QStringLiteral("file");
const QString STR_LINE = QStringLiteral("line");
const QString STR_COLUMN = QStringLiteral("column");
const QString STR_MESSAGE = QStringLiteral("message");
const QString STR_SEVERITY = QStringLiteral("severity");

QJsonObject placeObject(const QString& theFile, const VelDocumentPlace& thePlace, const QString& theMessage)
{
    return {
        {STR_FILE, theFile}, {STR_LINE, thePlace.myLine}, {STR_COLUMN, thePlace.myColumn}, {STR_MESSAGE, theMessage}};
}

QJsonObject findingObject(const VelAuditFinding& theFinding)
{
    QJsonObject object = placeObject(theFinding.myFile, theFinding.myPlace, theFinding.myMessage);
    object.insert(QStringLiteral("length"), theFinding.myLength);
    object.insert(STR_SEVERITY, VelAuditFinding::nameOf(theFinding.mySeverity));
    object.insert(QStringLiteral("rule"), theFinding.myRule);
    if (theFinding.myArticle)
        object.insert(QStringLiteral("article"), *theFinding.myArticle);
    if (theFinding.myOther.isValid())
        object.insert(QStringLiteral("other"),
                      placeObject(theFinding.myOtherFile, theFinding.myOther, theFinding.myOtherMessage));
    return object;
}

QJsonObject ruleObject(const VelAuditRule& theRule)
{
    return {{QStringLiteral("name"), QLatin1String(theRule.myName)},
            {STR_SEVERITY, VelAuditFinding::nameOf(theRule.mySeverity)},
            {QStringLiteral("sentence"), QString::fromUtf8(theRule.mySentence)},
            {QStringLiteral("example"), QString::fromUtf8(theRule.myExample)},
            {QStringLiteral("remedy"), QString::fromUtf8(theRule.myRemedy)}};
}

} // namespace

QByteArray VelshopAuditJson::ofFindings(const VelAudit& theAudit)
{
    QJsonArray findings;
    for (const VelAuditFinding& finding : theAudit.findings())
        findings.append(findingObject(finding));
    return QJsonDocument(QJsonObject{{QStringLiteral("findings"), findings}}).toJson();
}

QByteArray VelshopAuditJson::ofRules()
{
    QJsonArray rules;
    for (const VelAuditRule& rule : VelAuditRules::all())
        rules.append(ruleObject(rule));
    return QJsonDocument(QJsonObject{{QStringLiteral("rules"), rules}}).toJson();
}
