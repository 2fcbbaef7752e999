#include "host/VelshopGapsData.h"

#include "host/VelshopFeeWords.h"
#include "host/VelshopGapsSheet.h"
#include "host/VelshopWords.h"
#include "product/VelProductAbstract.h"

#include <QJsonArray>

namespace {

QJsonValue textOrNull(const QString& theText)
{
    return theText.isNull() ? QJsonValue() : QJsonValue(theText);
}

QJsonArray holesData(const QVector<VelPriceGaps::Hole>& theHoles)
{
    QJsonArray holes;
    for (const VelPriceGaps::Hole& hole : theHoles)
        holes.append(QJsonObject{{QStringLiteral("from"), hole.myFrom}, {QStringLiteral("to"), hole.myTo}});
    return holes;
}

/// What the quantities of a cell leave unsaid.
QString reasonOf(const VelPriceGaps::Cell& theCell)
{
    if (!theCell.isPriced())
        return VelshopGapsWords::whyUnpriced(theCell.myWhy);
    return theCell.myUpTo > 0 ? QStringLiteral("no price above ") + VelshopWords::pieces(theCell.myUpTo) : QString();
}

QJsonObject cellData(const VelProductAbstract& theProduct, const VelPriceGaps::Way& theWay,
                     const VelPriceGaps::Cell& theCell)
{
    return {{QStringLiteral("article"), theProduct.articleID()},
            {QStringLiteral("orderSource"), VelshopWords::orderSourceData(theWay.mySource)},
            {QStringLiteral("offered"), theWay.myIsOffered},
            {QStringLiteral("from"), theCell.isPriced() ? QJsonValue(theCell.myFrom) : QJsonValue()},
            {QStringLiteral("holes"), holesData(theCell.myHoles)},
            {QStringLiteral("reason"), textOrNull(reasonOf(theCell))}};
}

QJsonObject feeData(const VelShopFees::Fee& theFee, const VelPriceGaps::Way& theWay, const VelPriceGaps::Cell& theCell)
{
    const bool isPayment = theFee.myKind == VelShopFees::FEE_PAYMENT;
    return {{QStringLiteral("kind"), VelshopFeeWords::kind(theFee.myKind)},
            {QStringLiteral("article"), theFee.myProduct ? QJsonValue(theFee.myProduct->articleID()) : QJsonValue()},
            {QStringLiteral("group"), isPayment ? QJsonValue() : QJsonValue(theFee.myGroup)},
            {QStringLiteral("payment"), isPayment ? QJsonValue(theFee.myPayment) : QJsonValue()},
            {QStringLiteral("express"), VelshopFeeWords::expressData(theFee)},
            {QStringLiteral("orderSource"), VelshopWords::orderSourceData(theWay.mySource)},
            {QStringLiteral("priced"), theCell.isPriced()},
            {QStringLiteral("reason"), textOrNull(VelshopGapsWords::explanation(theCell))}};
}

} // namespace

QJsonObject gapsData(const VelshopGapsSheet& theSheet)
{
    QJsonArray cells;
    for (const VelPriceGaps::Row& row : theSheet.myArticles)
        for (int way = 0; way < theSheet.myWays.size(); ++way)
            cells.append(cellData(*row.myProduct, theSheet.myWays.at(way), row.myCells.at(way)));
    QJsonArray fees;
    for (const VelPriceGaps::FeeRow& row : theSheet.myFees)
        for (int way = 0; way < theSheet.myWays.size(); ++way)
            fees.append(feeData(row.myFee, theSheet.myWays.at(way), row.myCells.at(way)));
    return {{QStringLiteral("cells"), cells}, {QStringLiteral("fees"), fees}};
}
