#include "host/VelshopCurveData.h"

#include "host/VelshopWords.h"
#include "product/VelProductAbstract.h"

#include <QJsonArray>

namespace {

const QString STR_REASON = QStringLiteral("an amount of one more is beyond what 32 bits of cents can hold");

QJsonArray piecesData(const VelPriceCurve& theCurve)
{
    QJsonArray pieces;
    for (const VelPriceCurvePiece& piece : theCurve.pieces())
        pieces.append(QJsonObject{{QStringLiteral("from"), piece.myFrom},
                                  {QStringLiteral("to"), piece.myTo},
                                  {QStringLiteral("first"), piece.myFirst},
                                  {QStringLiteral("perPiece"), piece.myPerPiece},
                                  {QStringLiteral("model"), VelshopWords::discountModel(piece.myModel)},
                                  {QStringLiteral("level"), piece.myLevel}});
    return pieces;
}

QJsonArray dipsData(const QVector<VelPriceDip>& theDips)
{
    QJsonArray dips;
    for (const VelPriceDip& dip : theDips)
        dips.append(QJsonObject{{QStringLiteral("from"), dip.myFrom},
                                {QStringLiteral("to"), dip.myTo},
                                {QStringLiteral("better"), dip.myBetter},
                                {QStringLiteral("saves"), dip.mySaves}});
    return dips;
}

QJsonValue endsData(const VelPriceCurve& theCurve)
{
    if (!theCurve.endsEarly())
        return QJsonValue();
    return QJsonObject{{QStringLiteral("at"), theCurve.endsAt()}, {QStringLiteral("reason"), STR_REASON}};
}

} // namespace

VelshopCurveSheet makeCurveSheet(const VelProductAbstract* theProduct, const VelOrderSource& theSource,
                                 VelPriceCurve::Range theRange)
{
    theRange.myReading = VelPriceCurve::AS_SOLD;
    const VelPriceCurve curve(*theProduct, theSource, theRange);
    return {theProduct, theSource, theRange, curve, curve.dips()};
}

QJsonObject curveData(const VelshopCurveSheet& theSheet, bool theWithPieces)
{
    QJsonObject data{{QStringLiteral("article"), theSheet.myProduct->articleID()},
                     {QStringLiteral("orderSource"), VelshopWords::orderSourceData(theSheet.mySource)},
                     {QStringLiteral("by"), theSheet.isBySum() ? QStringLiteral("sum") : QStringLiteral("quantity")},
                     {QStringLiteral("dips"), dipsData(theSheet.myDips)},
                     {QStringLiteral("ends"), endsData(theSheet.myCurve)}};
    if (theWithPieces)
        data.insert(QStringLiteral("pieces"), piecesData(theSheet.myCurve));
    return data;
}
