#include "host/VelshopBillSheet.h"

#include "bill/VelTarmBillPositionAbstract.h"
#include "bill/VelTarmOrder.h"
#include "host/VelshopBillMoney.h"
#include "host/VelshopProblems.h"
#include "host/VelshopWords.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductAddOn.h"

namespace {

QString daysText(const VelTarmShippingTime& theTime)
{
    if (!theTime.isValid() || theTime.minDays() < 0)
        return QString();
    return theTime.varies() ? QStringLiteral("%1-%2").arg(theTime.minDays()).arg(theTime.maxDays())
                            : QString::number(theTime.minDays());
}

/// An article that can't go by express goes at the standard pace.
QString daysOf(const VelProductAbstract& theProduct, const VelTarmOrder& theOrder)
{
    const VelDeliveryType delivery = theOrder.status().deliveryType();
    const bool isExpress = theProduct.isExpressable(delivery, theOrder.expressType());
    return daysText(theProduct.shippingTime(delivery, isExpress ? theOrder.expressType()
                                                                : VelExpressType(ExpressableType_STANDARD)));
}

VelshopBillLine lineOf(const VelTarmBillPositionAbstract& thePosition, const VelTarmOrder& theOrder)
{
    const VelProductAbstract& product = *thePosition.product();
    const bool isPackage = thePosition.isPackage() || thePosition.unitCount() != thePosition.countItems();
    return {
        product.articleID(),         thePosition.productName(),   thePosition.countItems(),    thePosition.unitCount(),
        thePosition.unitPrice(),     thePosition.nonOfferPrice(), thePosition.positionPrice(), isPackage,
        thePosition.discountModel(), thePosition.discountLevel(), daysOf(product, theOrder)};
}

QString groupName(int theId)
{
    return VelTarmShippingGroupManager::instance()->shippingGroupName(theId);
}

QString paymentText(VelPaymentType thePayment)
{
    if (thePayment == PAYMENT_TYPE_UNKNOWN)
        return QStringLiteral("no payment");
    const QString name = VelshopWords::paymentName(thePayment);
    return QStringLiteral("payment %1").arg(thePayment) + (name.isNull() ? name : QStringLiteral(" (%1)").arg(name));
}

QString headOf(const VelTarmOrder& theOrder)
{
    const QString text =
        QStringLiteral("%1; %2; ")
            .arg(VelshopWords::orderSource(theOrder.status().orderSource()), paymentText(theOrder.status().payment()));
    return text + (theOrder.hasExpress() ? VelshopWords::express(theOrder.expressType())
                                         : theOrder.expressType().humanReadableName());
}

/// An add-on whose level is inherited is looked at with the level that it has in this bill.
QList<VelshopAdvice> adviceOf(const VelTarmOrderBill& theBill, const VelTarmOrder& theOrder)
{
    QList<VelshopAdvice> all;
    const QMap<VelProductAbstract*, int> items = theBill.cart().items();
    for (auto item = items.cbegin(); item != items.cend(); ++item) {
        const auto* addOn = dynamic_cast<const VelProductAddOn*>(item.key());
        const int level = addOn ? theBill.bill().highestLevelOfMainProducts(*addOn) : 0;
        const VelshopAdvice advice = adviceFor(item.key(), item.value(), theOrder.status().orderSource(), level);
        if (advice.isGiven())
            all.append(advice);
    }
    return all;
}

VelshopBillGroup groupOf(const VelTarmOrderBill& theBill, const VelTarmOrder& theOrder)
{
    VelshopBillGroup group{theBill.group(), groupName(theBill.group()), {}, {}, {}, adviceOf(theBill, theOrder)};
    for (const VelTarmBillPositionAbstract* position : theBill.bill().orderPositions())
        if (VelshopProblems::hasPrice(position->product(), theOrder))
            group.myLines.append(lineOf(*position, theOrder));
    group.myProblems = VelshopProblems::texts(theBill.objections(), theOrder);
    group.mySums = VelshopBillSums(theBill.amounts());
    return group;
}

/// The desk takes one coupon for an order.
VelshopBillCoupon couponOf(const VelTarmOrder& theOrder)
{
    const VelTarmOrderCoupon& used = theOrder.coupons().first();
    const VelCoupon& coupon = used.coupon();
    VelshopBillCoupon result{
        coupon.id(), coupon.campaign(), coupon.type(), coupon.isValid(), theOrder.canBePlaced(), {}, 0};
    if (!theOrder.canBePlaced())
        return result;
    result.myLeft = used.left();
    for (const VelTarmOrderBill& bill : theOrder.bills())
        if (const int share = bill.couponShares().first())
            result.myShares.append({bill.group(), groupName(bill.group()), share});
    return result;
}

VelshopBillSheet sheetOf(const VelTarmOrder& theOrder)
{
    VelshopBillSheet sheet;
    sheet.myHead = headOf(theOrder);
    if (!theOrder.coupons().isEmpty())
        sheet.myCoupon = couponOf(theOrder);
    for (const VelTarmOrderBill& bill : theOrder.bills())
        sheet.myGroups.append(groupOf(bill, theOrder));
    sheet.mySums = VelshopBillSums(theOrder.amounts());
    sheet.myOrderProblems = VelshopProblems::texts(VelshopProblems::ofOrder(theOrder), theOrder);
    sheet.myProblems = VelshopProblems::texts(theOrder.objections(), theOrder);
    return sheet;
}

} // namespace

QString VelshopBillLine::discount() const
{
    if (myLevel == 0)
        return QStringLiteral("-");
    const QString level = QStringLiteral("level %1").arg(myLevel);
    if (myIsPackage)
        return QStringLiteral("package, ") + level;
    return myModel == DISCOUNT_MODEL_INHERITED_DISCOUNT ? QStringLiteral("inherited ") + level : level;
}

QList<VelshopBillSums::Row> VelshopBillSums::rows() const
{
    return {{QStringLiteral("items"), static_cast<int>(myItems)},
            {QStringLiteral("shipping"), static_cast<int>(myShipping)},
            {QStringLiteral("payment"), static_cast<int>(myPayment)},
            {QStringLiteral("coupon"), static_cast<int>(myCoupon)},
            {QStringLiteral("express"), static_cast<int>(myExpress)},
            {QStringLiteral("total"), static_cast<int>(myTotal)}};
}

bool VelshopBillSums::fitInBoth() const
{
    for (const qint64 amount : steps())
        if (!VelshopBillMoney::fits(amount))
            return false;
    return true;
}

QString VelshopBillCoupon::text() const
{
    QString text = myId + QStringLiteral(": ");
    if (!myIsValid)
        return text + QStringLiteral("not valid, it lacks a campaign or a known type");
    text += QStringLiteral("valid, campaign ") + myCampaign;
    if (!myIsSpent)
        return text;
    return text + QStringLiteral(", ") + (myShares.isEmpty() ? QStringLiteral("takes nothing off this order") : use());
}

QString VelshopBillCoupon::use() const
{
    QStringList uses;
    for (const Share& share : myShares) {
        const QString group = QStringLiteral("%1 (%2)").arg(share.myName).arg(share.myGroup);
        uses.append(myType == COUPON_TYPE_VALUE
                        ? QStringLiteral("%1 on %2").arg(VelshopBillMoney::text(share.myAmount, false), group)
                        : QStringLiteral("counts on ") + group);
    }
    const QString left = QStringLiteral("; %1 left").arg(VelshopBillMoney::text(myLeft, false));
    return uses.join(QStringLiteral(", ")) + (myType == COUPON_TYPE_VALUE ? left : QString());
}

bool makeBillSheet(const VelTarmOrder& theOrder, const QString& theCart, VelshopBillSheet& theSheet,
                   VelshopError& theError)
{
    theSheet = sheetOf(theOrder);
    QString tooLarge;
    for (const VelshopBillGroup& group : qAsConst(theSheet.myGroups))
        if (tooLarge.isEmpty() && group.myProblems.isEmpty() && !group.mySums.fitInBoth())
            tooLarge = QStringLiteral("shipping group %1").arg(group.myId);
    if (tooLarge.isEmpty() && theSheet.isOrderable() && !theSheet.mySums.fitInBoth())
        tooLarge = QStringLiteral("the order");
    if (!tooLarge.isEmpty())
        theError = {theCart, 0, 0,
                    QStringLiteral("items: an amount of %1 is beyond what 32 bits of cents can hold").arg(tooLarge)};
    return tooLarge.isEmpty();
}
