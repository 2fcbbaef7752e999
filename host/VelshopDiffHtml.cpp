#include "host/VelshopDiffHtml.h"

#include "host/VelshopDiffWords.h"
#include "host/VelshopPage.h"

namespace {

using Row = VelshopDiffWords::Row;

const QString STR_STYLE = QStringLiteral(R"(
:root { --gone: #a3131d; --came: #14632f; }
@media (prefers-color-scheme: dark) { :root { --gone: #ff9a9a; --came: #8fdca8; } }
@media print { :root { --gone: #000000; --came: #000000; } :root, body { font-size: 11px; } }
body { max-width: 62rem; }
h3 { margin: 1.4rem 0 0.3rem; font-size: 1rem; break-after: avoid; }
h4 { margin: 0.7rem 0 0.2rem; font-size: 0.875rem; font-weight: 400; color: var(--faint); break-after: avoid; }
table { table-layout: fixed; }
th { font-weight: 400; font-size: 0.875rem; color: var(--faint); }
th:first-child { width: 34%; }
.old { color: var(--gone); }
.new { color: var(--came); }
ul { padding-left: 1.2rem; }
@media (max-width: 34rem) { td, th { font-size: 0.875rem; } th:first-child { width: 30%; } }
)");

class DiffPage
{
public:
    DiffPage(const VelShopDifference& theDifference, const VelshopDiffWords& theWords)
        : myDifference(theDifference)
        , myWords(theWords)
        , myPage(QStringLiteral("What changed"), QStringLiteral("en"), STR_STYLE)
    {
    }

    QByteArray made(const QString& theOld, const QString& theNew)
    {
        myPage.text("h1", QStringLiteral("What changed"));
        myPage.text("p",
                    QStringLiteral("From %1 to %2: %3.").arg(theOld, theNew, VelshopDiffWords::summary(myDifference)));
        writeCarts();
        writeEntries(QStringLiteral("Added"), myDifference.added(), QStringLiteral("new"));
        writeEntries(QStringLiteral("Removed"), myDifference.removed(), QStringLiteral("old"));
        writeChanges();
        if (!myDifference.conditions().isEmpty()) {
            myPage.text("h2", QStringLiteral("The shop as a whole"));
            writeRows(QStringLiteral("Field"), myWords.rows(myDifference.conditions()));
        }
        return myPage.finish();
    }

private:
    void writeCarts()
    {
        if (!myDifference.carts().isEmpty())
            myPage.text("h2", QStringLiteral("Carts"));
        for (const VelShopCartChange& cart : myDifference.carts()) {
            const Row total = myWords.total(cart);
            myPage.text("h3", total.myName);
            if (cart.isEmpty())
                myPage.text("p", total.myNew + QStringLiteral(", as before"));
            else
                writeRows(QStringLiteral("Amount"), myWords.terms(cart)
                                                        << Row{QStringLiteral("Total"), total.myOld, total.myNew});
        }
    }

    void writeEntries(const QString& theTitle, const QVector<VelShopEntry>& theEntries, const QString& theClass)
    {
        if (theEntries.isEmpty())
            return;
        myPage.text("h2", theTitle);
        myPage.start("ul");
        for (const VelShopEntry& entry : theEntries)
            myPage.text("li", VelshopDiffWords::title(entry), theClass);
        myPage.end();
    }

    void writeChanges()
    {
        if (!myDifference.changed().isEmpty())
            myPage.text("h2", QStringLiteral("Changed"));
        for (const VelShopEntryChange& change : myDifference.changed()) {
            myPage.text("h3", VelshopDiffWords::title(change.myNew));
            if (!change.myFields.isEmpty())
                writeRows(QStringLiteral("Field"), myWords.rows(change.myFields));
            for (const VelshopDiffWords::Totals& totals : myWords.totals(change.myTotals)) {
                myPage.text("h4", totals.myTitle);
                writeRows(QStringLiteral("Quantity"), totals.myRows);
            }
        }
    }

    void writeRows(const QString& theTitle, const QVector<Row>& theRows)
    {
        myPage.start("table");
        myPage.start("tr");
        for (const QString& title : {theTitle, QStringLiteral("Old"), QStringLiteral("New")})
            myPage.text("th", title);
        myPage.end();
        for (const Row& row : theRows) {
            myPage.start("tr");
            myPage.text("td", row.myName);
            myPage.text("td", row.myOld, QStringLiteral("old"));
            myPage.text("td", row.myNew, QStringLiteral("new"));
            myPage.end();
        }
        myPage.end();
    }

    const VelShopDifference& myDifference;
    const VelshopDiffWords& myWords;
    VelshopPage myPage;
};

} // namespace

QByteArray diffPage(const VelShopDifference& theDifference, const VelshopDiffWords& theWords, const QString& theOld,
                    const QString& theNew)
{
    return DiffPage(theDifference, theWords).made(theOld, theNew);
}
