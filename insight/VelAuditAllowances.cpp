#include "insight/VelAuditAllowances.h"

#include "insight/VelAuditReport.h"
#include "insight/VelAuditRules.h"
#include "insight/VelAuditShop.h"
#include "insight/VelAuditWords.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/// A comment that allows a rule for an element and what it holds.
struct Allowance
{
    VelDocumentPlace myPlace; ///< of the comment
    QString myRule;
    VelDocumentPlace myBegin; ///< of the element
    VelDocumentPlace myEnd;   ///< of the next element behind it, no place where there is none
};

const char* const BAD_ALLOWANCE = "bad-allow";
const char* const IDLE_ALLOWANCE = "idle-allow";

QStringList ruleNames()
{
    QStringList names;
    for (const VelAuditRule& rule : VelAuditRules::all())
        names.append(QLatin1String(rule.myName));
    return names;
}

/// What is wrong with it, null for nothing.
QString faultOf(const QRegularExpressionMatch& theMatch, int theElement)
{
    const QString rule = theMatch.captured(1);
    if (!theMatch.hasMatch())
        return QStringLiteral("a comment for the audit reads \"audit: allow RULE because ...\"");
    if (!VelAuditRules::find(rule))
        return QStringLiteral("there is no rule %1").arg(VelAuditWords::withSuggestion(rule, ruleNames()));
    if (theMatch.captured(2).isEmpty())
        return QStringLiteral("the comment gives no reason why %1 is allowed, so it allows nothing").arg(rule);
    if (theElement < 0)
        return QStringLiteral("the comment stands in front of no element, so it allows nothing");
    return QString();
}

/// The allowances of a document; comments that are none though they are meant so are reported.
QVector<Allowance> allowancesOf(const VelAuditDocument& theDocument, VelAuditReport& theReport)
{
    static const QRegularExpression meant(QStringLiteral("^\\s*audit\\s*:"));
    static const QRegularExpression allowance(
        QStringLiteral("^\\s*audit\\s*:\\s*allow\\s+([^\\s,]+)(?:\\s+because\\s+(\\S.*))?\\s*$"),
        QRegularExpression::DotMatchesEverythingOption);
    const VelDocumentPositions& positions = theDocument.myContent.positions();
    QVector<Allowance> allowances;
    for (const VelDocumentPositions::Comment& comment : positions.comments()) {
        if (!meant.match(comment.myText).hasMatch())
            continue;
        const QRegularExpressionMatch match = allowance.match(comment.myText);
        const VelDocumentPlace place = positions.text().place(comment.myOffset);
        const QString fault = faultOf(match, comment.myElement);
        if (!fault.isNull())
            theReport.at(BAD_ALLOWANCE, theDocument, place, QStringLiteral("<!--%1-->").arg(comment.myText), fault);
        else
            allowances.append({place, match.captured(1), positions.element(comment.myElement),
                               positions.element(positions.endOfElement(comment.myElement))});
    }
    return allowances;
}

bool allows(const Allowance& theAllowance, const VelAuditFinding& theFinding)
{
    const VelDocumentPlace& end = theAllowance.myEnd;
    return theFinding.myRule == theAllowance.myRule && !(theFinding.myPlace < theAllowance.myBegin) &&
           (!end.isValid() || theFinding.myPlace < end);
}

/// Takes what the comments of a document allow out of the findings.
void takeAllowed(const VelAuditDocument& theDocument, VelAuditReport& theReport, QVector<VelAuditFinding>& theFindings)
{
    const QVector<Allowance> allowances = allowancesOf(theDocument, theReport);
    QVector<bool> isUsed(allowances.size(), false);
    const auto isAllowed = [&](const VelAuditFinding& theFinding) {
        bool isTaken = false;
        for (int index = 0; index < allowances.size(); ++index)
            if (theFinding.myFile == theDocument.myFile && allows(allowances.at(index), theFinding))
                isTaken = isUsed[index] = true;
        return isTaken;
    };
    if (!allowances.isEmpty())
        theFindings.erase(std::remove_if(theFindings.begin(), theFindings.end(), isAllowed), theFindings.end());
    for (int index = 0; index < allowances.size(); ++index)
        if (!isUsed.at(index))
            theReport.at(
                IDLE_ALLOWANCE, theDocument, allowances.at(index).myPlace, QStringLiteral("<!--"),
                QStringLiteral("%1 finds nothing here that this comment could allow").arg(allowances.at(index).myRule));
}

} // namespace

QVector<VelAuditFinding> VelAuditAllowances::withoutAllowed(const VelAuditShop& theShop, VelAuditReport& theReport)
{
    QVector<VelAuditFinding> findings = theReport.findings();
    VelAuditReport ofComments;
    for (const auto& document : theShop.documents())
        if (document->myContent.isReadable())
            takeAllowed(*document, ofComments, findings);
    findings += ofComments.findings();
    std::sort(findings.begin(), findings.end());
    return findings;
}
