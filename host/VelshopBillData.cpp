#include "host/VelshopBillData.h"

#include "bill/VelTarmOrder.h"
#include "host/VelshopBillMoney.h"
#include "host/VelshopBillSheet.h"
#include "host/VelshopProblems.h"
#include "host/VelshopWords.h"
#include "product/VelProductAbstract.h"

#include <QJsonArray>

namespace {

QJsonObject toJson(const VelshopBillLine& theLine)
{
    QJsonObject json{{QStringLiteral("article"), theLine.myArticle},
                     {QStringLiteral("product"), theLine.myProduct},
                     {QStringLiteral("pieces"), theLine.myPieces},
                     {QStringLiteral("units"), theLine.myUnits},
                     {QStringLiteral("unitPrice"), theLine.myUnitPrice},
                     {QStringLiteral("package"), theLine.myIsPackage},
                     {QStringLiteral("model"), VelshopWords::discountModel(theLine.myModel)},
                     {QStringLiteral("level"), theLine.myLevel},
                     {QStringLiteral("amount"), theLine.myAmount}};
    if (theLine.myOldPrice != -1)
        json.insert(QStringLiteral("nonOfferPrice"), theLine.myOldPrice);
    if (!theLine.myDays.isEmpty())
        json.insert(QStringLiteral("days"), theLine.myDays);
    return json;
}

QJsonObject toJson(const VelshopBillSums& theSums)
{
    QJsonObject amounts;
    QJsonObject secondary;
    for (const VelshopBillSums::Row& row : theSums.rows()) {
        amounts.insert(row.myName, row.myAmount);
        secondary.insert(row.myName, VelshopBillMoney::text(row.myAmount, true));
    }
    if (VelshopBillMoney::hasSecondary())
        amounts.insert(VelshopBillMoney::code(true), secondary);
    return amounts;
}

QJsonArray toJson(const QList<VelshopAdvice>& theAdvice)
{
    QJsonArray cheaper;
    for (const VelshopAdvice& advice : theAdvice)
        cheaper.append(QJsonObject{{QStringLiteral("article"), advice.myProduct->articleID()},
                                   {QStringLiteral("count"), advice.myCount},
                                   {QStringLiteral("better"), advice.myBetter},
                                   {QStringLiteral("saves"), advice.mySaves}});
    return cheaper;
}

QJsonObject toJson(const VelshopBillGroup& theGroup, const VelTarmOrderBill& theBill)
{
    QJsonArray lines;
    for (const VelshopBillLine& line : theGroup.myLines)
        lines.append(toJson(line));
    const bool isOrderable = theGroup.myProblems.isEmpty();
    return {{QStringLiteral("group"), theGroup.myId},
            {QStringLiteral("name"), theGroup.myName},
            {QStringLiteral("lines"), lines},
            {QStringLiteral("problems"), QJsonArray::fromStringList(theGroup.myProblems)},
            {QStringLiteral("objections"), VelshopProblems::data(theBill.objections())},
            {QStringLiteral("cheaper"), toJson(theGroup.myAdvice)},
            {QStringLiteral("sums"), isOrderable ? QJsonValue(toJson(theGroup.mySums)) : QJsonValue()}};
}

/// What is left is told of a coupon of value alone.
QJsonObject toJson(const VelshopBillCoupon& theCoupon)
{
    QJsonArray shares;
    for (const VelshopBillCoupon::Share& share : theCoupon.myShares)
        shares.append(QJsonObject{{QStringLiteral("group"), share.myGroup},
                                  {QStringLiteral("name"), share.myName},
                                  {QStringLiteral("amount"), share.myAmount}});
    const bool hasRest = theCoupon.myIsSpent && theCoupon.myIsValid && theCoupon.myType == COUPON_TYPE_VALUE;
    return {
        {QStringLiteral("id"), theCoupon.myId},
        {QStringLiteral("valid"), theCoupon.myIsValid},
        {QStringLiteral("campaign"), theCoupon.myCampaign.isNull() ? QJsonValue() : QJsonValue(theCoupon.myCampaign)},
        {QStringLiteral("type"), VelshopWords::couponType(theCoupon.myType)},
        {QStringLiteral("shares"), shares},
        {QStringLiteral("left"), hasRest ? QJsonValue(theCoupon.myLeft) : QJsonValue()}};
}

} // namespace

QJsonObject billData(const VelTarmOrder& theOrder, const VelshopBillSheet& theSheet)
{
    QJsonArray groups;
    for (int index = 0; index < theSheet.myGroups.size(); ++index)
        groups.append(toJson(theSheet.myGroups.at(index), theOrder.bills().at(index)));
    const bool isOrderable = theSheet.isOrderable();
    const VelPaymentType payment = theOrder.status().payment();
    const QString name = VelshopWords::paymentName(payment);
    QJsonObject json{
        {QStringLiteral("orderSource"), VelshopWords::orderSourceData(theOrder.status().orderSource())},
        {QStringLiteral("payment"),
         QJsonObject{{QStringLiteral("type"), payment},
                     {QStringLiteral("name"), name.isNull() ? QJsonValue() : QJsonValue(name)}}},
        {QStringLiteral("express"), QString::number(theOrder.expressType().value() - ExpressableType_STANDARD)},
        {QStringLiteral("currency"), VelshopBillMoney::code(false)},
        {QStringLiteral("groups"), groups},
        {QStringLiteral("orderable"), isOrderable},
        {QStringLiteral("problems"), QJsonArray::fromStringList(theSheet.myOrderProblems)},
        {QStringLiteral("objections"), VelshopProblems::data(VelshopProblems::ofOrder(theOrder))},
        {QStringLiteral("sums"), isOrderable ? QJsonValue(toJson(theSheet.mySums)) : QJsonValue()}};
    if (theSheet.myCoupon)
        json.insert(QStringLiteral("coupon"), toJson(*theSheet.myCoupon));
    return json;
}
