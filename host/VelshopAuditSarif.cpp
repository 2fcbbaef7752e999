#include "host/VelshopAuditSarif.h"

#include "insight/VelAudit.h"
#include "insight/VelAuditRules.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

namespace {

const QString STR_SCHEMA = QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json");
const QString STR_VERSION = QStringLiteral("2.1.0");
const QString STR_COLUMN_KIND = QStringLiteral("unicodeCodePoints");
const QString STR_FOLDER = QStringLiteral("ACCOUNT"); ///< stands for the account's folder
const QString STR_URI = QStringLiteral("uri");
const QString STR_TEXT = QStringLiteral("text");
const QString STR_LEVEL = QStringLiteral("level");
const QString STR_MESSAGE = QStringLiteral("message");

QJsonObject textObject(const QString& theText)
{
    return {{STR_TEXT, theText}};
}

/// The severities have the names that SARIF gives its levels.
QJsonObject ruleObject(const VelAuditRule& theRule)
{
    const QString sentence = QString::fromUtf8(theRule.mySentence);
    const QString example = QString::fromUtf8(theRule.myExample);
    const QString remedy = QString::fromUtf8(theRule.myRemedy);
    const QJsonObject help{
        {STR_TEXT, QStringLiteral("%1\nFor example: %2\n%3").arg(sentence, example, remedy)},
        {QStringLiteral("markdown"), QStringLiteral("%1\n\n```xml\n%2\n```\n\n%3").arg(sentence, example, remedy)}};
    return {{QStringLiteral("id"), QLatin1String(theRule.myName)},
            {QStringLiteral("shortDescription"), textObject(sentence)},
            {QStringLiteral("fullDescription"), textObject(sentence + QLatin1Char(' ') + remedy)},
            {QStringLiteral("help"), help},
            {QStringLiteral("defaultConfiguration"),
             QJsonObject{{STR_LEVEL, VelAuditFinding::nameOf(theRule.mySeverity)}}}};
}

QJsonObject physicalLocation(const QString& theFile, const VelDocumentPlace& thePlace, int theLength)
{
    const QJsonObject artifact{{STR_URI, QString::fromLatin1(QUrl::toPercentEncoding(theFile, "/"))},
                               {QStringLiteral("uriBaseId"), STR_FOLDER}};
    const QJsonObject region{{QStringLiteral("startLine"), thePlace.myLine},
                             {QStringLiteral("startColumn"), thePlace.myColumn},
                             {QStringLiteral("endColumn"), thePlace.myColumn + theLength}};
    return {{QStringLiteral("artifactLocation"), artifact}, {QStringLiteral("region"), region}};
}

QJsonObject locationObject(const QJsonObject& thePhysicalLocation)
{
    return {{QStringLiteral("physicalLocation"), thePhysicalLocation}};
}

QJsonObject resultObject(const VelAuditFinding& theFinding, int theRuleIndex)
{
    QJsonObject result{
        {QStringLiteral("ruleId"), theFinding.myRule},
        {QStringLiteral("ruleIndex"), theRuleIndex},
        {STR_LEVEL, VelAuditFinding::nameOf(theFinding.mySeverity)},
        {STR_MESSAGE, textObject(theFinding.myMessage)},
        {QStringLiteral("locations"),
         QJsonArray{locationObject(physicalLocation(theFinding.myFile, theFinding.myPlace, theFinding.myLength))}}};
    if (theFinding.myOther.isValid()) {
        QJsonObject other = locationObject(physicalLocation(theFinding.myOtherFile, theFinding.myOther, 1));
        other.insert(QStringLiteral("id"), 1);
        other.insert(STR_MESSAGE, textObject(theFinding.myOtherMessage));
        result.insert(QStringLiteral("relatedLocations"), QJsonArray{other});
    }
    if (theFinding.myArticle)
        result.insert(QStringLiteral("properties"), QJsonObject{{QStringLiteral("article"), *theFinding.myArticle}});
    return result;
}

QJsonObject toolObject()
{
    QJsonArray rules;
    for (const VelAuditRule& rule : VelAuditRules::all())
        rules.append(ruleObject(rule));
    return {{QStringLiteral("driver"), QJsonObject{{QStringLiteral("name"), QCoreApplication::applicationName()},
                                                   {QStringLiteral("version"), QCoreApplication::applicationVersion()},
                                                   {QStringLiteral("rules"), rules}}}};
}

QJsonArray resultArray(const VelAudit& theAudit)
{
    QHash<QString, int> indices;
    for (const VelAuditRule& rule : VelAuditRules::all())
        indices.insert(QLatin1String(rule.myName), static_cast<int>(indices.size()));
    QJsonArray results;
    for (const VelAuditFinding& finding : theAudit.findings())
        results.append(resultObject(finding, indices.value(finding.myRule)));
    return results;
}

/// With a slash at its end, as others are to be resolved in it.
QString addressOf(const QDir& theFolder)
{
    return QString::fromLatin1(QUrl::fromLocalFile(theFolder.absolutePath() + QLatin1Char('/')).toEncoded());
}

} // namespace

QByteArray VelshopAuditSarif::ofFindings(const VelAudit& theAudit, const QDir& theFolder)
{
    const QJsonObject run{
        {QStringLiteral("tool"), toolObject()},
        {QStringLiteral("columnKind"), STR_COLUMN_KIND},
        {QStringLiteral("originalUriBaseIds"), QJsonObject{{STR_FOLDER, QJsonObject{{STR_URI, addressOf(theFolder)}}}}},
        {QStringLiteral("results"), resultArray(theAudit)}};
    return QJsonDocument(QJsonObject{{QStringLiteral("$schema"), STR_SCHEMA},
                                     {QStringLiteral("version"), STR_VERSION},
                                     {QStringLiteral("runs"), QJsonArray{run}}})
        .toJson();
}
