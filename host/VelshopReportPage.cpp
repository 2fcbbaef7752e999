#include "host/VelshopReportPage.h"

#include "host/VelshopAuditText.h"
#include "host/VelshopCurveSvg.h"
#include "host/VelshopGapsPage.h"
#include "host/VelshopGapsSheet.h"
#include "host/VelshopPage.h"
#include "host/VelshopShop.h"
#include "host/VelshopWords.h"
#include "insight/VelAudit.h"
#include "insight/VelPriceCurve.h"
#include "insight/VelShopFees.h"
#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QMap>

#include <algorithm>

namespace {

const QString STR_STYLE = QStringLiteral(R"(
body { max-width: 62rem; }
nav a { margin-right: 1rem; white-space: nowrap; }
a { color: inherit; }
h3 { margin: 1.2rem 0 0.3rem; font-size: 1rem; break-after: avoid; }
.prices td:first-child { width: 12rem; }
.ladder { margin: 0; padding: 0; list-style: none; }
.ladder li { display: inline-block; margin-right: 1rem; white-space: nowrap; }
.spark { width: 7.5rem; height: 2.25rem; display: block; }
.spark path { fill: none; stroke: var(--ink); stroke-width: 1.5; stroke-linecap: round; }
.picture { width: 8rem; }
.finding { margin: 0.75rem 0; break-inside: avoid; }
.finding code { font-size: 0.875em; }
@media (max-width: 34rem) { .picture { display: none; } .prices td:first-child { width: 6rem; } .ladder li { white-space: normal; } }
@media print { nav { display: none; } body { font-size: 11px; } }
)");

QString numberAndName(int theNumber, const QString& theName)
{
    return QStringLiteral("%1 %2").arg(theNumber).arg(theName).trimmed();
}

QString textOf(const QJsonObject& theObject, const char* theKey)
{
    return theObject.value(QLatin1String(theKey)).toString();
}

QString sourceText(const QJsonObject& theWay)
{
    const QJsonObject source = theWay.value(QStringLiteral("orderSource")).toObject();
    return QStringLiteral("%1, %2").arg(textOf(source, "source"), textOf(source, "delivery"));
}

QStringList namesOf(const QJsonArray& theObjects)
{
    QStringList names;
    for (const QJsonValue& object : theObjects)
        names.append(object.isObject() ? textOf(object.toObject(), "name") : object.toString());
    return names;
}

/// The order ways under which the same prices stand, and their curve.
struct Ladder
{
    QStringList mySources;
    VelPriceCurve myCurve;
    VelPriceCurve::Range myRange;
};

bool isSame(const VelPriceCurve& theLeft, const VelPriceCurve& theRight)
{
    const QVector<VelPriceCurvePiece>& left = theLeft.pieces();
    const QVector<VelPriceCurvePiece>& right = theRight.pieces();
    return left.size() == right.size() &&
           std::equal(left.cbegin(), left.cend(), right.cbegin(),
                      [](const VelPriceCurvePiece& theOne, const VelPriceCurvePiece& theOther) {
                          return theOne.myFrom == theOther.myFrom && theOne.myTo == theOther.myTo &&
                                 theOne.myFirst == theOther.myFirst && theOne.myPerPiece == theOther.myPerPiece;
                      });
}

/// By the order ways that are offered and have a price. A range of one piece stays one.
QList<Ladder> laddersOf(const VelProductAbstract& theProduct, VelPriceCurve::Range theRange)
{
    QList<Ladder> ladders;
    const QList<VelOrderSource> sources = VelOrderingDetails::instance()->availableOrderSources();
    theRange.myReading = VelPriceCurve::AS_SOLD;
    const bool isOfOnePiece = theRange.myTo == 1;
    theRange.myTo = 1;
    for (const VelOrderSource& source : isOfOnePiece ? QList<VelOrderSource>() : sources)
        theRange.myTo = qMax(theRange.myTo, VelPriceCurve::telling(theProduct, source, theRange.myVariable));
    const QVector<VelPriceCurve> curves = VelPriceCurve::bySources(theProduct, sources, theRange);
    for (int index = 0; index < curves.size(); ++index) {
        const VelPriceCurve& curve = curves.at(index);
        if (curve.pieces().isEmpty())
            continue;
        const auto same = std::find_if(ladders.begin(), ladders.end(),
                                       [&](const Ladder& theLadder) { return isSame(theLadder.myCurve, curve); });
        const QString source = VelshopWords::orderSource(sources.at(index));
        if (same == ladders.end())
            ladders.append({{source}, curve, theRange});
        else
            same->mySources.append(source);
    }
    return ladders;
}

/// As "0,95 €", "from 50: 0,10 € each", "1 to 50: 5,90 €" or "from 101: 9,99 € and 0,09 € for each more".
QString runText(const VelPriceCurvePiece& thePiece, const VelPriceCurve::Range& theRange)
{
    const bool isBySum = theRange.myVariable == VelPriceCurve::BY_SUM;
    const auto amount = [=](int theQuantity) {
        return isBySum ? VelshopWords::money(theQuantity) : QString::number(theQuantity);
    };
    const QString run = thePiece.myTo == theRange.myTo
                            ? QStringLiteral("from %1").arg(amount(thePiece.myFrom))
                            : QStringLiteral("%1 to %2").arg(amount(thePiece.myFrom), amount(thePiece.myTo));
    const QString first = VelshopWords::money(thePiece.myFirst);
    const bool isWhole = thePiece.myFrom == theRange.myFrom && thePiece.myTo == theRange.myTo;
    if (isWhole && (thePiece.myPerPiece == 0 || theRange.myTo == 1))
        return first;
    if (thePiece.myPerPiece == 0)
        return QStringLiteral("%1: %2").arg(run, first);
    const QString each = VelshopWords::money(thePiece.myPerPiece);
    return thePiece.total(0) == 0 ? QStringLiteral("%1: %2 each").arg(run, each)
                                  : QStringLiteral("%1: %2 and %3 for each more").arg(run, first, each);
}

class ReportPage : private VelshopPage
{
public:
    ReportPage(const QString& theShop, const QString& theAccount)
        : VelshopPage(theShop, QStringLiteral("en"), STR_STYLE + VelshopGapsMap::style(), VelshopGapsMap::script())
        , myShop(theShop)
        , myConditions(shopConditions())
        , myAudit(QDir(theAccount))
    {
    }

    QByteArray write()
    {
        start("header");
        text("span", QStringLiteral("Report of the shop"));
        text("span", QDate::currentDate().toString(Qt::ISODate));
        end();
        text("h1", myShop);
        writeContents();
        writeConditions();
        writeArticles();
        writeFees();
        section("Gaps");
        VelshopGapsMap::write(makeGapsSheet(std::nullopt), *this);
        writeFindings();
        return finish();
    }

private:
    void writeContents()
    {
        start("nav");
        for (const char* title : {"Conditions", "Articles", "Fees", "Gaps", "Findings"}) {
            start("a", {{QStringLiteral("href"), QLatin1Char('#') + idOf(title)}});
            characters(QLatin1String(title));
            end();
        }
        end();
    }

    static QString idOf(const char* theTitle) { return QString::fromLatin1(theTitle).toLower(); }

    void section(const char* theTitle)
    {
        start("h2", {{QStringLiteral("id"), idOf(theTitle)}});
        characters(QLatin1String(theTitle));
        end();
    }

    void row(const char* theCell, const QStringList& theTexts)
    {
        start("tr");
        for (const QString& cell : theTexts)
            text(theCell, cell);
        end();
    }

    // ---- conditions

    void writeConditions()
    {
        section("Conditions");
        writeOrderWays();
        writeCurrencies();
        writeShippingGroups();
        const QJsonArray groups = myConditions.value(QStringLiteral("productGroups")).toArray();
        text("p", QStringLiteral("Product groups: ") + namesOf(groups).join(QStringLiteral(", ")));
        if (myConditions.value(QStringLiteral("priceListOutdated")).toBool())
            text("p", QStringLiteral("The price list is older than its shipping groups."), QStringLiteral("alarm"));
    }

    void writeOrderWays()
    {
        start("table");
        row("th", {QStringLiteral("Order way"), QStringLiteral("Payments")});
        for (const QJsonValue& value : myConditions.value(QStringLiteral("orderWays")).toArray()) {
            const QJsonObject way = value.toObject();
            const bool isEnabled = way.value(QStringLiteral("enabled")).toBool();
            row("td", {sourceText(way) + (isEnabled ? QString() : QStringLiteral(" (not enabled)")),
                       namesOf(way.value(QStringLiteral("payments")).toArray()).join(QStringLiteral(", "))});
        }
        end();
        const QJsonObject begin = myConditions.value(QStringLiteral("start")).toObject();
        text("p", QStringLiteral("Orders start with %1, %2.")
                      .arg(sourceText(begin),
                           begin.value(QStringLiteral("payment")).toString(QStringLiteral("no payment"))));
    }

    void writeCurrencies()
    {
        for (const QJsonValue& value : myConditions.value(QStringLiteral("currencies")).toArray()) {
            const QJsonObject currency = value.toObject();
            text("p", QStringLiteral("Currency: %1 %2, as %3")
                          .arg(textOf(currency, "isoCode"), textOf(currency, "name"), textOf(currency, "sample")));
        }
    }

    void writeShippingGroups()
    {
        start("table");
        row("th", {QStringLiteral("Shipping group"), QStringLiteral("Most items"), QStringLiteral("Last change")});
        for (const VelTarmShippingGroup* group : VelTarmShippingGroupManager::instance()->shippingGroups())
            row("td", {numberAndName(group->id(), group->name()), VelshopWords::limit(group->maxOrderItems()),
                       group->lastChange().toString(QStringLiteral("yyyy-MM-dd"))});
        end();
    }

    // ---- prices

    void writeArticles()
    {
        section("Articles");
        QMap<int, VelProductList> articles;
        for (VelProductAbstract* product : VelProductRegistry::instance()->productList())
            if (!product->isDeprecated())
                articles[product->shippingGroupId()].append(product);
        for (auto group = articles.cbegin(); group != articles.cend(); ++group)
            writeGroup(group.key(), group.value());
    }

    void writeGroup(int theGroup, const VelProductList& theArticles)
    {
        const QString name = VelTarmShippingGroupManager::instance()->shippingGroupName(theGroup);
        text("h3", theGroup == -1 ? QStringLiteral("Without a shipping group") : numberAndName(theGroup, name));
        startWithClass("table", QStringLiteral("prices"));
        for (const VelProductAbstract* article : theArticles)
            writePrices(numberAndName(article->articleID(), article->name()), QString(), *article,
                        VelPriceCurve::Range());
        end();
    }

    void writeFees()
    {
        section("Fees");
        startWithClass("table", QStringLiteral("prices"));
        for (const VelShopFees::Fee& fee : VelShopFees::all())
            writeFee(fee);
        end();
    }

    void writeFee(const VelShopFees::Fee& theFee)
    {
        VelPriceCurve::Range range;
        range.myModel = VelShopFees::keyModel(theFee.myKind);
        if (theFee.myKind == VelShopFees::FEE_PAYMENT)
            range.myTo = 1; // once for a bill
        if (!theFee.myProduct)
            return writeNote(noteOf(theFee), QStringLiteral("costs nothing"));
        const QString name = numberAndName(theFee.myProduct->articleID(), theFee.myProduct->name());
        if (theFee.myProduct->transferModel() == TRANSFER_MODEL_2)
            return writeNote(name, QStringLiteral("charged by the products of an order"), noteOf(theFee));
        writePrices(name, noteOf(theFee), *theFee.myProduct, range);
        range.myVariable = VelPriceCurve::BY_SUM;
        if (theFee.myKind == VelShopFees::FEE_TRANSFER && isBySum(*theFee.myProduct))
            writePrices(name, QStringLiteral("by the sum of the bill"), *theFee.myProduct, range);
    }

    static bool isBySum(const VelProductAbstract& theFee)
    {
        const QList<Ladder> ladders = laddersOf(theFee, bySum());
        return std::any_of(ladders.cbegin(), ladders.cend(),
                           [](const Ladder& theLadder) { return theLadder.myCurve.pieces().size() > 1; });
    }

    static VelPriceCurve::Range bySum()
    {
        VelPriceCurve::Range range;
        range.myVariable = VelPriceCurve::BY_SUM;
        return range;
    }

    static QString noteOf(const VelShopFees::Fee& theFee)
    {
        const QString group = QStringLiteral("shipping group %1").arg(theFee.myGroup);
        switch (theFee.myKind) {
        case VelShopFees::FEE_TRANSFER:
            return group;
        case VelShopFees::FEE_PAYMENT:
            return VelOrderingDetails::instance()->nameOfOrderingDetail(PAYMENT_CLASS_PAY_METHODS, theFee.myPayment);
        case VelShopFees::FEE_EXPRESS:
            return group + QStringLiteral(", ") + VelshopWords::express(theFee.myExpress);
        }
        return QString();
    }

    void writeName(const QString& theName, const QString& theNote)
    {
        start("td");
        characters(theName);
        if (!theNote.isEmpty())
            text("span", theNote, QStringLiteral("note"));
        end();
    }

    void writeNote(const QString& theName, const QString& theText, const QString& theNote = QString())
    {
        start("tr");
        writeName(theName, theNote);
        text("td", theText);
        text("td", QString(), QStringLiteral("picture"));
        end();
    }

    /// A line for each ladder, the name beside the first.
    void writePrices(const QString& theName, const QString& theNote, const VelProductAbstract& theProduct,
                     const VelPriceCurve::Range& theRange)
    {
        const QList<Ladder> ladders = laddersOf(theProduct, theRange);
        if (ladders.isEmpty())
            return writeNote(theName, QStringLiteral("no price by any order way that is offered"), theNote);
        for (int index = 0; index < ladders.size(); ++index) {
            start("tr");
            writeName(index == 0 ? theName : QString(), index == 0 ? theNote : QString());
            writeLadder(ladders.at(index));
            end();
        }
    }

    void writeLadder(const Ladder& theLadder)
    {
        start("td");
        text("span", theLadder.mySources.join(QStringLiteral("; ")), QStringLiteral("note"));
        startWithClass("ul", QStringLiteral("ladder"));
        for (const VelPriceCurvePiece& piece : theLadder.myCurve.pieces())
            text("li", runText(piece, theLadder.myRange));
        end();
        end();
        startWithClass("td", QStringLiteral("picture"));
        if (theLadder.myCurve.pieces().size() > 1)
            VelshopCurveSvg::writeSmall(theLadder.myCurve, theLadder.myRange.myFrom, theLadder.myRange.myTo, writer());
        end();
    }

    // ---- what the audit says

    void writeFindings()
    {
        section("Findings");
        text("p", QStringLiteral("On the documents: %1.").arg(VelshopAuditText::counts(myAudit)));
        for (const VelAuditFinding& finding : myAudit.findings())
            writeFinding(finding);
    }

    void writeFinding(const VelAuditFinding& theFinding)
    {
        startWithClass("div", QStringLiteral("finding"));
        text("b", VelAuditFinding::nameOf(theFinding.mySeverity),
             theFinding.mySeverity == SEVERITY_ERROR ? QStringLiteral("alarm") : QString());
        characters(QStringLiteral(" %1 [%2]").arg(theFinding.myMessage, theFinding.myRule));
        text("span", theFinding.placeText(), QStringLiteral("note"));
        text("code", myAudit.lineOf(theFinding).trimmed());
        end();
    }

    QString myShop;
    QJsonObject myConditions;
    VelAudit myAudit;
};

} // namespace

QByteArray reportPage(const QString& theShop, const QString& theAccount)
{
    return ReportPage(theShop, theAccount).write();
}
