#include "host/VelshopExplainHtml.h"

#include "host/VelshopExplainText.h"
#include "host/VelshopPage.h"
#include "host/VelshopWords.h"
#include "insight/VelPriceWords.h"

namespace {

const QString STR_STYLE = QStringLiteral(R"(
details { border-bottom: 1px solid var(--rule); padding: 0.5rem 0; }
details details { border: 0; padding: 0.25rem 0 0.25rem 1rem; }
summary { cursor: pointer; }
.row { display: inline-flex; width: calc(100% - 1.1rem); justify-content: space-between; gap: 1rem;
  vertical-align: top; }
.total { display: flex; justify-content: space-between; font-weight: 600; padding: 0.75rem 0; }
details p, summary .note { margin: 0.35rem 0 0.35rem 1.1rem; }
summary .note { margin-top: 0; }
ul { margin: 0.35rem 0; padding-left: 2rem; }
code { font-size: 0.8125rem; }
summary { break-inside: avoid; break-after: avoid; }
@media print {
  :root, body { font-size: 12px; max-width: none; }
  summary { list-style: none; } summary::-webkit-details-marker { display: none; } }
)");

/// On paper nothing unfolds: each term is opened, and what decides it. The places of the candidates, which repeat them,
/// and those that were only compared are printed where the reader has opened them.
const QString STR_SCRIPT = QStringLiteral(R"(
var unfolded = [];
addEventListener('beforeprint', function () {
  unfolded = Array.from(document.querySelectorAll('details.printed:not([open])'));
  unfolded.forEach(function (part) { part.open = true; });
});
addEventListener('afterprint', function () {
  unfolded.forEach(function (part) { part.open = false; });
});
)");

const QString STR_PRINTED = QStringLiteral("printed");

class ExplanationPage : private VelshopPage
{
public:
    explicit ExplanationPage(const QString& theHead)
        : VelshopPage(QStringLiteral("Why this price"), QStringLiteral("en"), STR_STYLE, STR_SCRIPT)
    {
        text("h1", QStringLiteral("Why this price"));
        text("p", theHead);
    }

    QByteArray write(const VelPriceExplanation& theExplanation, const QStringList& theNotes)
    {
        for (const QString& note : theNotes)
            text("p", note, QStringLiteral("alarm"));
        const VelExplainedTerm* former = nullptr;
        for (const VelExplainedTerm& term : theExplanation.terms()) {
            if (beginsGroup(former, term))
                text("h2", groupText(term.myGroup));
            writeTerm(term);
            former = &term;
        }
        startWithClass("div", QStringLiteral("total"));
        text("span", QStringLiteral("Total"));
        text("span", amountText(theExplanation.hasPrice(), theExplanation.total()), QStringLiteral("number"));
        end();
        return finish();
    }

private:
    void writeTerm(const VelExplainedTerm& theTerm)
    {
        startWithClass("details", STR_PRINTED);
        start("summary");
        startWithClass("span", QStringLiteral("row"));
        text("span", termText(theTerm));
        text("span", amountText(theTerm.myHasPrice, theTerm.myAmount),
             theTerm.myHasPrice ? QStringLiteral("number") : QStringLiteral("number alarm"));
        end();
        text("span", theTerm.myReason, QStringLiteral("note"));
        end();
        if (!theTerm.myComputed.isEmpty())
            text("p", QStringLiteral("In cents: ") + theTerm.myComputed);
        for (const VelExplainedNeed& need : theTerm.myNeeds)
            text("p", QStringLiteral("Has a price by ") + needText(need));
        for (const VelExplainedCandidate& candidate : theTerm.myCandidates)
            writeCandidate(candidate);
        writePlaces(theTerm.myPlaces);
        end();
    }

    void writeCandidate(const VelExplainedCandidate& theCandidate)
    {
        start("details");
        text("summary", candidateText(theCandidate));
        writePlaces(theCandidate.myPlaces);
        end();
    }

    void writePlaces(const VelExplainedPlaces& thePlaces)
    {
        writePlaces(QStringLiteral("Decides"), thePlaces.myDecides, STR_PRINTED);
        writePlaces(QStringLiteral("Compared"), thePlaces.myCompared, QString());
    }

    void writePlaces(const QString& theHead, const QVector<VelExplainedPlace>& thePlaces, const QString& theClass)
    {
        if (thePlaces.isEmpty())
            return;
        startWithClass("details", theClass);
        text("summary",
             QStringLiteral("%1: %2").arg(theHead, VelPriceWords::counted(thePlaces.size(), QStringLiteral("place"))));
        start("ul");
        for (const VelExplainedPlace& place : thePlaces) {
            start("li");
            text("code", placeText(place));
            end();
        }
        end();
        end();
    }
};

} // namespace

QByteArray explanationPage(const VelPriceExplanation& theExplanation, const QString& theHead,
                           const QStringList& theNotes)
{
    return ExplanationPage(theHead).write(theExplanation, theNotes);
}
