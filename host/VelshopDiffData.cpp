#include "host/VelshopDiffData.h"

#include "host/VelshopDiffWords.h"
#include "host/VelshopExplainData.h"
#include "host/VelshopWords.h"
#include "insight/VelShopDifference.h"

#include <QJsonArray>

namespace {

const QString STR_ARTICLE = QStringLiteral("article");
const QString STR_NAME = QStringLiteral("name");
const QString STR_KIND = QStringLiteral("kind");
const QString STR_GROUP = QStringLiteral("group");
const QString STR_EXPRESS = QStringLiteral("express");
const QString STR_ORDER_SOURCE = QStringLiteral("orderSource");
const QString STR_LEVEL = QStringLiteral("level");
const QString STR_OLD = QStringLiteral("old");
const QString STR_NEW = QStringLiteral("new");
const QString STR_TOTAL = QStringLiteral("total");

template <typename Part, typename ToJson>
QJsonArray arrayOf(const QVector<Part>& theParts, ToJson theToJson)
{
    QJsonArray array;
    for (const Part& part : theParts)
        array.append(theToJson(part));
    return array;
}

QJsonObject entryData(const VelShopEntry& theEntry)
{
    QJsonObject json{{STR_ARTICLE, theEntry.myArticle},
                     {STR_NAME, theEntry.myName},
                     {STR_KIND, VelshopDiffWords::kind(theEntry.myKind)}};
    if (theEntry.myKind == VelShopEntry::PAYMENT_FEE)
        json.insert(QStringLiteral("payment"), theEntry.myPayment);
    else if (theEntry.isFee())
        json.insert(STR_GROUP, theEntry.myGroup);
    if (theEntry.myKind == VelShopEntry::EXPRESS_FEE)
        json.insert(STR_EXPRESS, VelshopDiffWords::expressKey(theEntry.myExpress));
    return json;
}

// ---- fields

void insertPlace(QJsonObject& theJson, const VelShopPlace& thePlace)
{
    const VelOrderSource source(thePlace.myInputSource, thePlace.myDeliveryType);
    if (!thePlace.myElement.isNull())
        theJson.insert(QStringLiteral("element"), thePlace.myElement);
    if (thePlace.myId != VelShopPlace::NONE)
        theJson.insert(QStringLiteral("id"), thePlace.myId);
    if (source.inputSource() != INPUT_SOURCE_UNKNOWN)
        theJson.insert(STR_ORDER_SOURCE, VelshopWords::orderSourceData(source));
    else if (source.deliveryType() != DELIVERY_TYPE_UNKNOWN)
        theJson.insert(QStringLiteral("delivery"),
                       VelshopWords::orderSourceData(source).value(QStringLiteral("delivery")));
    if (thePlace.myExpressType != ExpressableType_UNKNOWN)
        theJson.insert(STR_EXPRESS, VelshopDiffWords::expressKey(thePlace.myExpressType));
    if (thePlace.myDiscountModel != DISCOUNT_MODEL_UNDEFINED)
        theJson.insert(QStringLiteral("model"), VelshopWords::discountModel(thePlace.myDiscountModel));
    if (thePlace.myDiscountLevel != VelShopPlace::NONE)
        theJson.insert(STR_LEVEL, thePlace.myDiscountLevel);
}

QJsonObject fieldData(const VelShopFieldChange& theChange)
{
    QJsonObject json{{STR_NAME, theChange.myName},
                     {STR_OLD, QJsonValue::fromVariant(theChange.myOld)},
                     {STR_NEW, QJsonValue::fromVariant(theChange.myNew)}};
    insertPlace(json, theChange.myPlace);
    return json;
}

// ---- totals

QJsonValue lineData(const VelTotalsInterval::Line& theLine)
{
    if (!theLine.myHasPrice)
        return QJsonValue();
    return QJsonObject{{QStringLiteral("first"), theLine.myFirst}, {QStringLiteral("perPiece"), theLine.myPerPiece}};
}

QJsonObject intervalData(const VelTotalsInterval& theInterval)
{
    return {{QStringLiteral("from"), theInterval.myFrom},
            {QStringLiteral("to"), theInterval.myTo},
            {STR_OLD, lineData(theInterval.myOld)},
            {STR_NEW, lineData(theInterval.myNew)}};
}

QJsonObject totalsData(const VelTotalsChange& theChange)
{
    const bool isBySum = theChange.myVariable == VelPriceCurve::BY_SUM;
    return {{STR_ORDER_SOURCE, VelshopWords::orderSourceData(theChange.mySource)},
            {QStringLiteral("by"), isBySum ? QStringLiteral("sum") : QStringLiteral("quantity")},
            {STR_LEVEL, theChange.myLevel},
            {QStringLiteral("intervals"), arrayOf(theChange.myIntervals, intervalData)}};
}

QJsonObject changeData(const VelShopEntryChange& theChange)
{
    QJsonObject json = entryData(theChange.myNew);
    json.insert(QStringLiteral("fields"), arrayOf(theChange.myFields, fieldData));
    json.insert(QStringLiteral("totals"), arrayOf(theChange.myTotals, totalsData));
    return json;
}

// ---- carts

QJsonObject cartSideData(const VelShopCart& theCart)
{
    if (theCart.myReason.isEmpty())
        return {{STR_TOTAL, theCart.myTotal}};
    return {{STR_TOTAL, QJsonValue()}, {QStringLiteral("reason"), theCart.myReason}};
}

QJsonValue termSideData(bool theIsThere, const VelShopTerm& theTerm)
{
    if (!theIsThere)
        return QJsonValue();
    return QJsonObject{{QStringLiteral("count"), theTerm.myCount},
                       {QStringLiteral("amount"), theTerm.myHasPrice ? QJsonValue(theTerm.myAmount) : QJsonValue()},
                       {QStringLiteral("computed"), theTerm.myComputed},
                       {QStringLiteral("reason"), theTerm.myReason}};
}

QJsonObject termData(const VelShopCartChange::Term& theTerm)
{
    const VelShopTerm& term = theTerm.myIsInNew ? theTerm.myNew : theTerm.myOld;
    return {{STR_KIND, kindWord(term.myKind)},
            {STR_GROUP, term.myGroup},
            {STR_ARTICLE, term.myArticle != 0 ? QJsonValue(term.myArticle) : QJsonValue()},
            {STR_NAME, term.myName},
            {STR_OLD, termSideData(theTerm.myIsInOld, theTerm.myOld)},
            {STR_NEW, termSideData(theTerm.myIsInNew, theTerm.myNew)}};
}

QJsonObject cartData(const VelShopCartChange& theCart)
{
    return {{QStringLiteral("cart"), theCart.myNew.myName},
            {STR_OLD, cartSideData(theCart.myOld)},
            {STR_NEW, cartSideData(theCart.myNew)},
            {QStringLiteral("terms"), arrayOf(theCart.myTerms, termData)}};
}

} // namespace

QJsonObject differenceData(const VelShopDifference& theDifference)
{
    return {{QStringLiteral("added"), arrayOf(theDifference.added(), entryData)},
            {QStringLiteral("removed"), arrayOf(theDifference.removed(), entryData)},
            {QStringLiteral("changed"), arrayOf(theDifference.changed(), changeData)},
            {QStringLiteral("shop"), arrayOf(theDifference.conditions(), fieldData)},
            {QStringLiteral("carts"), arrayOf(theDifference.carts(), cartData)}};
}
