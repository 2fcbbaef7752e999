#include "host/VelshopAuditHtml.h"

#include "host/VelshopAuditText.h"
#include "host/VelshopPage.h"
#include "insight/VelAudit.h"
#include "insight/VelAuditRules.h"

#include <QDateTime>
#include <QDir>

namespace {

const QString STR_ENGLISH = QStringLiteral("en");
const QString STR_STYLE = QStringLiteral(R"(
:root { --warning: #7a5200; --tint: #f2f2f6; }
@media (prefers-color-scheme: dark) { :root { --warning: #f0bf5f; --tint: #25252c; } }
@media print { :root { --warning: #000000; --tint: #ffffff; } }
.finding { margin: 0 0 1.25rem; break-inside: avoid; }
.finding p { margin: 0; }
.finding .place { color: var(--faint); font-variant-numeric: tabular-nums; }
.finding .error { color: var(--alarm); font-weight: 600; }
.finding .warning { color: var(--warning); font-weight: 600; }
.finding code { display: block; margin: 0.3rem 0; padding: 0.3rem 0.6rem; background: var(--tint); font-size: 0.875rem;
  white-space: pre-wrap; border-left: 3px solid var(--rule); }
.finding mark { background: none; color: inherit; font-weight: 700; text-decoration: underline 2px;
  text-underline-offset: 3px; }
)");

constexpr int MOST_AROUND = 160; ///< characters of a line shown on each side of the place

/// Some code points of a line; what XML doesn't allow becomes a replacement character.
QString part(const QVector<uint>& theLine, int theBegin, int theEnd)
{
    QVector<uint> characters = theLine.mid(theBegin, theEnd - theBegin);
    for (uint& character : characters)
        if (character < ' ' && character != '\t')
            character = QChar::ReplacementCharacter;
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()),
                             static_cast<int>(characters.size()));
}

QString withoutIndent(const QString& theText)
{
    int begin = 0;
    while (begin < theText.size() && theText.at(begin).isSpace())
        ++begin;
    return theText.mid(begin);
}

class Section
{
public:
    Section(const VelAudit& theAudit, VelshopPage& thePage) : myAudit(theAudit), myPage(thePage) {}

    void write(const VelAuditFinding& theFinding)
    {
        myPage.startWithClass("div", QStringLiteral("finding"));
        writeHead(theFinding);
        myPage.text("p", theFinding.myMessage);
        writeLine(theFinding);
        if (theFinding.myOther.isValid())
            myPage.text("p", QStringLiteral("%1: %2").arg(theFinding.otherPlaceText(), theFinding.myOtherMessage),
                        QStringLiteral("place"));
        if (const VelAuditRule* rule = VelAuditRules::find(theFinding.myRule))
            myPage.text("span", QStringLiteral("%1 [%2]").arg(QString::fromUtf8(rule->myRemedy), theFinding.myRule),
                        QStringLiteral("note"));
        myPage.end();
    }

private:
    void writeHead(const VelAuditFinding& theFinding)
    {
        const QString severity = VelAuditFinding::nameOf(theFinding.mySeverity);
        myPage.start("p");
        myPage.text("span", severity, severity);
        myPage.text(
            "span",
            QStringLiteral("line %1, column %2").arg(theFinding.myPlace.myLine).arg(theFinding.myPlace.myColumn),
            QStringLiteral("place"));
        if (theFinding.myArticle)
            myPage.text("span", QStringLiteral(", article %1").arg(*theFinding.myArticle), QStringLiteral("place"));
        myPage.end();
    }

    void writeLine(const VelAuditFinding& theFinding)
    {
        const QVector<uint> line = myAudit.lineOf(theFinding).toUcs4();
        const int size = static_cast<int>(line.size());
        const int begin = qMin(theFinding.myPlace.myColumn - 1, size);
        const int end = qMin(begin + theFinding.myLength, size);
        if (begin == end)
            return;
        myPage.start("code");
        myPage.characters(withoutIndent(part(line, qMax(0, begin - MOST_AROUND), begin)));
        myPage.start("mark");
        myPage.characters(part(line, begin, qMin(end, begin + MOST_AROUND)));
        myPage.end();
        myPage.characters(part(line, qMin(end, begin + MOST_AROUND), qMin(size, end + MOST_AROUND)));
        myPage.end();
    }

    const VelAudit& myAudit;
    VelshopPage& myPage;
};

} // namespace

QByteArray VelshopAuditHtml::page(const VelAudit& theAudit, const QDir& theFolder)
{
    VelshopPage page(QStringLiteral("Audit of %1").arg(theFolder.dirName()), STR_ENGLISH, style());
    page.start("header");
    page.text("span", QDir::toNativeSeparators(theFolder.path()));
    page.text("span", QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm")));
    page.end();
    page.text("h1", QStringLiteral("Audit: ") + VelshopAuditText::counts(theAudit));
    writeFindings(theAudit, page);
    return page.finish();
}

void VelshopAuditHtml::writeFindings(const VelAudit& theAudit, VelshopPage& thePage)
{
    QString file;
    Section section(theAudit, thePage);
    for (const VelAuditFinding& finding : theAudit.findings()) {
        if (finding.myFile != file)
            thePage.text("h2", finding.myFile);
        file = finding.myFile;
        section.write(finding);
    }
}

QString VelshopAuditHtml::style()
{
    return STR_STYLE;
}
