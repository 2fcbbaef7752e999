#include "host/VelshopAuditText.h"

#include "insight/VelAudit.h"
#include "insight/VelAuditRules.h"
#include "insight/VelPriceWords.h"

#include <QTextStream>
#include <QVector>

namespace {

constexpr int WIDTH = 78;         ///< of an excerpt, without its indent
constexpr int MOST_IN_FRONT = 50; ///< of the place, when the line has to be cut
constexpr int RULE_WIDTH = 18;
constexpr int SEVERITY_WIDTH = 8;
constexpr int TERMINAL_WIDTH = 80;

const QString STR_INDENT = QStringLiteral("  ");
const char32_t CUT = 0x2026;

QString fromCodePoints(const QVector<uint>& theCodePoints)
{
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(theCodePoints.constData()),
                             static_cast<int>(theCodePoints.size()));
}

/// Control characters would move the cursor of a terminal; a tab may.
void makePrintable(QVector<uint>& theCodePoints)
{
    for (uint& character : theCodePoints)
        if ((character < ' ' && character != '\t') || (character >= 0x7f && character < 0xa0))
            character = QChar::ReplacementCharacter;
}

/// Cuts a long line so that the place stays in it; gives the place's index in what is left.
int cutAround(QVector<uint>& theLine, int theIndex)
{
    if (theLine.size() <= WIDTH)
        return theIndex;
    const int first = qBound(0, theIndex - MOST_IN_FRONT, static_cast<int>(theLine.size()) - WIDTH);
    const bool isCutBehind = first + WIDTH < theLine.size();
    theLine = theLine.mid(first, WIDTH);
    if (first > 0)
        theLine[0] = CUT;
    if (isCutBehind)
        theLine[WIDTH - 1] = CUT;
    return theIndex - first;
}

void print(const VelAudit& theAudit, const VelAuditFinding& theFinding, QTextStream& theOutput)
{
    theOutput << QStringLiteral("%1: %2: ").arg(theFinding.placeText(), VelAuditFinding::nameOf(theFinding.mySeverity))
              << theFinding.myMessage << QStringLiteral(" [%1]").arg(theFinding.myRule) << '\n';
    const QString line = theAudit.lineOf(theFinding);
    if (!line.trimmed().isEmpty())
        theOutput << VelshopAuditText::excerpt(line, theFinding.myPlace.myColumn, theFinding.myLength);
    if (theFinding.myOther.isValid())
        theOutput << STR_INDENT << theFinding.otherPlaceText() << QStringLiteral(": note: ")
                  << theFinding.myOtherMessage << '\n';
}

/// The sentence in lines behind its column.
QString wrapped(const QString& theSentence, int theIndent)
{
    QString text;
    int column = theIndent;
    for (const QString& word : theSentence.split(QLatin1Char(' '))) {
        if (column > theIndent && column + 1 + word.size() > TERMINAL_WIDTH) {
            text += QLatin1Char('\n') + QString(theIndent, QLatin1Char(' '));
            column = theIndent;
        } else if (column > theIndent) {
            text += QLatin1Char(' ');
            ++column;
        }
        text += word;
        column += static_cast<int>(word.size());
    }
    return text;
}

} // namespace

void VelshopAuditText::printFindings(const VelAudit& theAudit, QTextStream& theOutput)
{
    for (const VelAuditFinding& finding : theAudit.findings())
        print(theAudit, finding, theOutput);
    theOutput << counts(theAudit) << '\n';
}

void VelshopAuditText::printRules(QTextStream& theOutput)
{
    for (const VelAuditRule& rule : VelAuditRules::all())
        theOutput << QString::fromLatin1(rule.myName).leftJustified(RULE_WIDTH) << ' '
                  << VelAuditFinding::nameOf(rule.mySeverity).leftJustified(SEVERITY_WIDTH)
                  << wrapped(QString::fromUtf8(rule.mySentence), RULE_WIDTH + 1 + SEVERITY_WIDTH) << '\n';
}

QString VelshopAuditText::counts(const VelAudit& theAudit)
{
    QStringList parts;
    for (const VelAuditSeverity severity : {SEVERITY_ERROR, SEVERITY_WARNING, SEVERITY_NOTE})
        if (const int count = theAudit.count(severity))
            parts.append(VelPriceWords::counted(count, VelAuditFinding::nameOf(severity)));
    return parts.isEmpty() ? QStringLiteral("nothing found") : parts.join(QStringLiteral(", "));
}

QString VelshopAuditText::excerpt(const QString& theLine, int theColumn, int theLength)
{
    QVector<uint> line = theLine.toUcs4();
    makePrintable(line);
    const int index = cutAround(line, qBound(0, theColumn - 1, static_cast<int>(line.size())));
    QString caret;
    for (int at = 0; at < index; ++at)
        caret += line.at(at) == '\t' ? QLatin1Char('\t') : QLatin1Char(' ');
    caret += QLatin1Char('^');
    caret += QString(qMax(0, qMin(theLength, static_cast<int>(line.size()) - index) - 1), QLatin1Char('~'));
    return STR_INDENT + fromCodePoints(line) + QLatin1Char('\n') + STR_INDENT + caret + QLatin1Char('\n');
}
