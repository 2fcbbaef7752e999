#include "host/VelshopGapsPage.h"

#include "host/VelshopFeeWords.h"
#include "host/VelshopGapsSheet.h"
#include "host/VelshopPage.h"
#include "product/VelProductAbstract.h"

namespace {

const QString STR_STYLE = QStringLiteral(R"(
.gaps { --yes: #dff2e1; --part: #fdf0c8; --none: #f9dada; --main: #e3e9fb; }
@media (prefers-color-scheme: dark) { .gaps { --yes: #1e3d26; --part: #4b3d10; --none: #552427; --main: #28335c; } }
.gaps form { display: flex; flex-wrap: wrap; gap: 0.6rem 1rem; align-items: end; margin: 1rem 0; }
.gaps form[hidden] { display: none; }
.gaps label { display: flex; flex-direction: column; font-size: 0.875rem; color: var(--faint); }
.gaps input, .gaps select { font: inherit; color: var(--ink); background: var(--paper); border: 1px solid var(--rule);
  border-radius: 4px; padding: 0.3rem; max-width: 16rem; }
.gaps ul { list-style: none; display: flex; flex-wrap: wrap; gap: 0.4rem 1.2rem; margin: 0 0 1rem; padding: 0;
  font-size: 0.875rem; }
.gaps li span { display: inline-block; min-width: 1.5rem; padding: 0 0.4rem; margin-right: 0.4rem; text-align: center; }
.gaps .scroll { overflow-x: auto; }
.gaps table { margin: 0 0 2rem; font-size: 0.9375rem; }
.gaps caption { text-align: left; font-weight: 600; font-size: 1.2rem; padding: 0.5rem 0; }
.gaps th, .gaps td { padding: 0.25rem 0.5rem; }
.gaps td { text-align: center; white-space: nowrap; border-left: 2px solid var(--paper); }
.gaps thead th { text-align: center; vertical-align: bottom; background: var(--paper); }
.gaps thead th:first-child { text-align: left; }
.gaps tbody th { font-weight: 400; position: sticky; left: 0; background: var(--paper); min-width: 8rem; }
.gaps .group th { font-weight: 600; padding-top: 0.9rem; position: static; }
.gaps .id { color: var(--faint); font-variant-numeric: tabular-nums; margin-right: 0.5rem; }
.gaps .note { font-size: 0.8em; }
.gaps .unsold { opacity: 0.75; font-style: italic; }
.gaps .yes { background: var(--yes); } .gaps .part { background: var(--part); }
.gaps .none { background: var(--none); } .gaps .main { background: var(--main); }
@media (min-width: 60rem) { .gaps .scroll { overflow: visible; } .gaps thead th { position: sticky; top: 0; z-index: 1; } }
@media print { .gaps { --yes: #ffffff; --part: #eeeeee; --none: #cccccc; --main: #ffffff; print-color-adjust: exact; }
  .gaps form { display: none; } .gaps .scroll { overflow: visible; } .gaps table { font-size: 9pt; }
  .gaps th, .gaps td { padding: 0.1rem 0.3rem; } .gaps thead th, .gaps tbody th { position: static; }
  .gaps .group { break-after: avoid; } }
)");

/// Without any character that would have to be escaped.
const QString STR_SCRIPT = QStringLiteral(R"(
document.querySelectorAll('.gaps').forEach(function (map) {
  var form = map.querySelector('form');
  var tables = Array.from(map.querySelectorAll('table'));
  function has(cell, states) { return states.includes(cell.className); }
  var shown = {
    all: function () { return true; },
    gap: function (offered) { return offered.some(function (cell) { return has(cell, ['none', 'part']); }); },
    never: function (offered) { return offered.every(function (cell) { return has(cell, ['none']); }); },
    part: function (offered) { return offered.some(function (cell) { return has(cell, ['part']); }); },
    unsold: function (offered, unsold) {
      return unsold.some(function (cell) { return has(cell, ['yes', 'part']); }); }
  };
  function matches(row, unsold) {
    var way = form.way.value;
    var group = form.group.value;
    var text = row.cells[0].textContent.toLowerCase();
    var cells = Array.from(row.cells).slice(1);
    function chosen(wanted) {
      return cells.filter(function (cell, index) {
        return way === '' ? unsold[index] === wanted : way === String(index); });
    }
    return [group === '' || (row.dataset.group || group) === group, text.includes(form.text.value.toLowerCase().trim()),
      shown[form.show.value](chosen(false), chosen(true))].every(Boolean);
  }
  function filter() {
    var count = 0;
    var all = 0;
    tables.forEach(function (table) {
      var unsold = Array.from(table.tHead.rows[0].cells).slice(1).map(function (cell) {
        return cell.className === 'unsold'; });
      Array.from(table.tBodies).forEach(function (body) {
        var rows = Array.from(body.rows).filter(function (row) { return row.className !== 'group'; });
        rows.forEach(function (row) { row.hidden = !matches(row, unsold); });
        var visible = rows.filter(function (row) { return !row.hidden; }).length;
        body.hidden = visible === 0;
        count += visible;
        all += rows.length;
      });
    });
    form.querySelector('output').textContent = count + ' of ' + all + ' rows';
  }
  form.hidden = false;
  form.addEventListener('input', filter);
  form.addEventListener('submit', function (event) { event.preventDefault(); });
  filter();
});
)");

const QString STR_UNSOLD = QStringLiteral("unsold");

QXmlStreamAttribute attribute(const char* theName, const QString& theValue)
{
    return {QLatin1String(theName), theValue};
}

/// What the colours tell, and the filters ask for.
QString stateOf(const VelPriceGaps::Cell& theCell)
{
    if (theCell.isPriced())
        return theCell.isWhole() ? QStringLiteral("yes") : QStringLiteral("part");
    switch (theCell.myWhy) {
    case VelPriceGaps::WHY_WITH_MAIN_PRODUCT:
        return QStringLiteral("main");
    case VelPriceGaps::WHY_NO_FEE:
    case VelPriceGaps::WHY_NOT_PERMITTED:
        return QStringLiteral("off");
    default:
        return QStringLiteral("none");
    }
}

class Map
{
public:
    Map(const VelshopGapsSheet& theSheet, VelshopPage& thePage) : mySheet(theSheet), myPage(thePage) {}

    void write()
    {
        myPage.startWithClass("div", QStringLiteral("gaps"));
        writeFilters();
        writeColours();
        writeArticles();
        if (!mySheet.myFees.isEmpty())
            writeFees();
        myPage.end();
    }

private:
    // ---- above the matrix

    /// Hidden without the script that they need.
    void writeFilters()
    {
        myPage.start("form", {attribute("hidden", QStringLiteral("hidden"))});
        startLabel(QStringLiteral("Number or name"));
        myPage.start("input", {attribute("type", QStringLiteral("search")), attribute("name", QStringLiteral("text"))});
        myPage.end();
        myPage.end();
        writeGroupFilter();
        writeWayFilter();
        writeStateFilter();
        myPage.text("output", QString());
        myPage.end();
    }

    void startLabel(const QString& theText)
    {
        myPage.start("label");
        myPage.characters(theText);
    }

    void startChoice(const QString& theText, const QString& theName)
    {
        startLabel(theText);
        myPage.start("select", {attribute("name", theName)});
    }

    void endChoice()
    {
        myPage.end();
        myPage.end();
    }

    void writeOption(const QString& theValue, const QString& theText)
    {
        myPage.start("option", {attribute("value", theValue)});
        myPage.characters(theText);
        myPage.end();
    }

    void writeGroupFilter()
    {
        startChoice(QStringLiteral("Shipping group"), QStringLiteral("group"));
        writeOption(QString(), QStringLiteral("all"));
        for (int index = 0; index < mySheet.myArticles.size(); ++index)
            if (beginsGroup(index))
                writeOption(QString::number(groupAt(index)), VelshopGapsWords::group(groupAt(index)));
        endChoice();
    }

    void writeWayFilter()
    {
        startChoice(QStringLiteral("Order way"), QStringLiteral("way"));
        writeOption(QString(), QStringLiteral("all"));
        for (int way = 0; way < mySheet.myWays.size(); ++way)
            writeOption(QString::number(way), VelshopGapsWords::way(mySheet.myWays.at(way).mySource));
        endChoice();
    }

    void writeStateFilter()
    {
        startChoice(QStringLiteral("Show"), QStringLiteral("show"));
        writeOption(QStringLiteral("all"), QStringLiteral("everything"));
        writeOption(QStringLiteral("gap"), QStringLiteral("what has a gap by an offered way"));
        writeOption(QStringLiteral("never"), QStringLiteral("what has no price by an offered way"));
        writeOption(QStringLiteral("part"), QStringLiteral("what has a price for some quantities alone"));
        writeOption(STR_UNSOLD, QStringLiteral("what has a price by a way that isn't offered"));
        endChoice();
    }

    void writeColours()
    {
        myPage.start("ul");
        writeColour("yes", "yes", "priced from the first piece on");
        writeColour("part", "from 25", "not every quantity is priced");
        writeColour("main", "with main", "priced with its main product alone");
        writeColour("none", "-", "no price by that way; a word says another reason");
        writeColour("off", "free", "no such fee, nothing is charged; empty: not a payment of that way");
        myPage.end();
    }

    void writeColour(const char* theState, const char* theMark, const char* theMeaning)
    {
        myPage.start("li");
        myPage.startWithClass("span", QLatin1String(theState));
        myPage.characters(QLatin1String(theMark));
        myPage.end();
        myPage.characters(QLatin1String(theMeaning));
        myPage.end();
    }

    // ---- the matrices

    int groupAt(int theIndex) const { return mySheet.myArticles.at(theIndex).myProduct->shippingGroupId(); }
    bool beginsGroup(int theIndex) const { return theIndex == 0 || groupAt(theIndex - 1) != groupAt(theIndex); }

    void startTable(const QString& theCaption, const QString& theFirstColumn)
    {
        myPage.startWithClass("div", QStringLiteral("scroll"));
        myPage.start("table");
        myPage.text("caption", theCaption);
        myPage.start("thead");
        myPage.start("tr");
        myPage.text("th", theFirstColumn);
        for (const VelPriceGaps::Way& way : mySheet.myWays)
            writeWay(way);
        myPage.end();
        myPage.end();
    }

    void writeWay(const VelPriceGaps::Way& theWay)
    {
        myPage.startWithClass("th", theWay.myIsOffered ? QString() : STR_UNSOLD);
        myPage.characters(VelshopGapsWords::way(theWay.mySource));
        if (!theWay.myIsOffered)
            myPage.text("span", QStringLiteral("not offered"), QStringLiteral("note"));
        myPage.end();
    }

    void endTable()
    {
        myPage.end();
        myPage.end();
    }

    void writeArticles()
    {
        startTable(QStringLiteral("Articles and add-ons"), QStringLiteral("Article"));
        for (int index = 0; index < mySheet.myArticles.size(); ++index) {
            if (beginsGroup(index))
                startGroup(VelshopGapsWords::group(groupAt(index)), index > 0);
            const VelPriceGaps::Row& row = mySheet.myArticles.at(index);
            startRow(QString::number(groupAt(index)), QString::number(row.myProduct->articleID()),
                     row.myProduct->name());
            writeCells(row.myCells);
        }
        if (!mySheet.myArticles.isEmpty())
            myPage.end();
        endTable();
    }

    void startGroup(const QString& theName, bool theEndsAnother)
    {
        if (theEndsAnother)
            myPage.end();
        myPage.start("tbody");
        myPage.startWithClass("tr", QStringLiteral("group"));
        myPage.start("th", {attribute("colspan", QString::number(mySheet.myWays.size() + 1))});
        myPage.characters(theName);
        myPage.end();
        myPage.end();
    }

    void writeFees()
    {
        startTable(QStringLiteral("Fees"), QStringLiteral("Fee"));
        for (int index = 0; index < mySheet.myFees.size(); ++index) {
            const VelShopFees::Fee& fee = mySheet.myFees.at(index).myFee;
            if (index == 0 || mySheet.myFees.at(index - 1).myFee.myKind != fee.myKind)
                startGroup(headOf(fee.myKind), index > 0);
            const bool isOfGroup = fee.myKind != VelShopFees::FEE_PAYMENT;
            startRow(isOfGroup ? QString::number(fee.myGroup) : QString(),
                     fee.myProduct ? QString::number(fee.myProduct->articleID()) : QString(), nameOf(fee));
            writeCells(mySheet.myFees.at(index).myCells);
        }
        myPage.end();
        endTable();
    }

    static QString headOf(VelShopFees::Kind theKind)
    {
        if (theKind == VelShopFees::FEE_TRANSFER)
            return QStringLiteral("Shipping");
        return theKind == VelShopFees::FEE_PAYMENT ? QStringLiteral("Payment") : QStringLiteral("Express");
    }

    static QString nameOf(const VelShopFees::Fee& theFee)
    {
        QString name = VelshopFeeWords::name(theFee);
        if (theFee.myKind != VelShopFees::FEE_PAYMENT)
            name += QStringLiteral(", group %1").arg(theFee.myGroup);
        return theFee.myProduct ? QStringLiteral("%1 (%2)").arg(theFee.myProduct->name(), name) : name;
    }

    void startRow(const QString& theGroup, const QString& theId, const QString& theName)
    {
        myPage.start("tr", {attribute("data-group", theGroup)});
        myPage.start("th", {attribute("scope", QStringLiteral("row"))});
        if (!theId.isEmpty())
            myPage.text("span", theId, QStringLiteral("id"));
        myPage.characters(theName);
        myPage.end();
    }

    void writeCells(const QVector<VelPriceGaps::Cell>& theCells)
    {
        for (const VelPriceGaps::Cell& cell : theCells) {
            myPage.startWithClass("td", stateOf(cell));
            const QString explanation = VelshopGapsWords::explanation(cell);
            if (!explanation.isEmpty())
                myPage.writer().writeAttribute(QStringLiteral("title"), explanation);
            myPage.characters(VelshopGapsWords::mark(cell));
            myPage.end();
        }
        myPage.end();
        myPage.characters(QStringLiteral("\n"));
    }

    const VelshopGapsSheet& mySheet;
    VelshopPage& myPage;
};

} // namespace

QString VelshopGapsMap::style()
{
    return STR_STYLE;
}

QString VelshopGapsMap::script()
{
    return STR_SCRIPT;
}

void VelshopGapsMap::write(const VelshopGapsSheet& theSheet, VelshopPage& thePage)
{
    Map(theSheet, thePage).write();
}

QByteArray gapsPage(const VelshopGapsSheet& theSheet, const QString& theShop)
{
    const QString title = QStringLiteral("What is sold by which order way");
    VelshopPage page(theShop.isEmpty() ? title : title + QStringLiteral(" - ") + theShop, QStringLiteral("en"),
                     QStringLiteral("body { max-width: 70rem; }") + STR_STYLE, STR_SCRIPT);
    page.text("header", theShop);
    page.text("h1", title);
    VelshopGapsMap::write(theSheet, page);
    return page.finish();
}
