#include "bill/VelTarmOrder.h"

#include "bill/VelTarmBillPosition.h"
#include "bill/VelTarmOrderScrutiny.h"
#include "frame/VelArithmetic.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductAbstract.h"

#include <QMap>

#include <algorithm>

namespace {

/// A cart would wrap around, and too many pieces become a few.
int sumOf(qint64 theLeft, qint64 theRight)
{
    const qint64 lowest = std::numeric_limits<int>::min();
    return static_cast<int>(qBound(lowest, theLeft + theRight, qint64(std::numeric_limits<int>::max())));
}

VelOrderStatistic cartOf(const QList<VelTarmOrder::Item>& theItems)
{
    VelOrderStatistic cart;
    for (const VelTarmOrder::Item& item : theItems)
        cart.insert(item.first, sumOf(cart.value(item.first, 0), item.second));
    return cart;
}

/// The cart by shipping group; an add-on lies in the group of its own. A null product is in none.
QMap<int, VelOrderStatistic> groupsOf(const VelOrderStatistic& theCart)
{
    QMap<int, VelOrderStatistic> groups;
    const QMap<VelProductAbstract*, int> items = theCart.items();
    for (auto item = items.cbegin(); item != items.cend(); ++item)
        if (item.key())
            groups[item.key()->shippingGroupId()].insert(item.key(), item.value());
    return groups;
}

/// The sum of the positions without wrapping around.
qint64 itemsOf(const VelTarmBill& theBill)
{
    qint64 sum = 0;
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions())
        sum += static_cast<qint64>(position->unitPrice()) * position->unitCount();
    return sum;
}

VelTarmOrderObjection objection(VelTarmOrderObjection::Kind theKind, int theGroup = VelTarmOrderObjection::NO_GROUP,
                                qint64 theNumber = 0)
{
    VelTarmOrderObjection objection;
    objection.myKind = theKind;
    objection.myGroup = theGroup;
    objection.myNumber = theNumber;
    return objection;
}

/// Nobody asks for a payment where the order source has none to choose.
bool permitsPayment(const VelTarmStatus& theStatus)
{
    const QList<VelPaymentType> payments = VelOrderingDetails::instance()->availablePayments(theStatus.orderSource());
    return payments.isEmpty() || payments.contains(theStatus.payment());
}

} // namespace

VelTarmOrder::VelTarmOrder(const VelOrderStatistic& theCart, const VelTarmStatus& theStatus,
                           const VelExpressType& theExpressType, const QList<VelCoupon>& theCoupons)
    : myCart(theCart), myStatus(theStatus), myExpressType(theExpressType)
{
    for (const VelCoupon& coupon : theCoupons)
        myCoupons.append(VelTarmOrderCoupon(coupon));
    makeBills();
    myObjections = objectionsToOrder();
    for (const VelTarmOrderBill& bill : qAsConst(myBills))
        myObjections += bill.objections();
}

VelTarmOrder::VelTarmOrder(const QList<Item>& theItems, const VelTarmStatus& theStatus,
                           const VelExpressType& theExpressType, const QList<VelCoupon>& theCoupons)
    : VelTarmOrder(cartOf(theItems), theStatus, theExpressType, theCoupons)
{
}

// ---- queries

bool VelTarmOrder::hasExpress() const
{
    return myExpressType.isValid() && myExpressType != VelExpressType(ExpressableType_STANDARD);
}

/// Whether anything of the cart can be had by the chosen express type.
bool VelTarmOrder::isExpressPossible() const
{
    const QList<VelProductAbstract*> products = myCart.products();
    return std::any_of(products.cbegin(), products.cend(), [this](const VelProductAbstract* theProduct) {
        return theProduct && theProduct->isExpressable(myStatus.deliveryType(), myExpressType);
    });
}

// ---- computing

void VelTarmOrder::makeBills()
{
    const bool expressExists = isExpressPossible();
    const QMap<int, VelOrderStatistic> groups = groupsOf(myCart);
    for (auto group = groups.cbegin(); group != groups.cend(); ++group)
        addBill(group.key(), group.value(), expressExists);
}

void VelTarmOrder::addBill(int theGroup, const VelOrderStatistic& theCart, bool theExpressExists)
{
    const auto bill = QSharedPointer<const VelTarmBill>::create(theGroup, theCart, myExpressType, myStatus);
    VelTarmOrderBill part(bill, theCart);
    VelTarmOrderScrutiny scrutiny(*bill, theCart, *this, theExpressExists);
    part.myObjections = scrutiny.objections();
    part.myAmounts.myItems = itemsOf(*bill);
    const bool fit = VelTarmOrderAmounts::fits(part.myAmounts.myItems) && scrutiny.countsFit();
    const bool couponsFit = useCoupons(part, fit && part.myObjections.isEmpty());
    reckon(part);
    if (!fit || !couponsFit || !part.myAmounts.fit())
        part.myObjections.append(objection(VelTarmOrderObjection::OBJECTION_AMOUNT, theGroup));
    myAmounts.add(part.myAmounts);
    myBills.append(part);
}

/// False when a coupon reckons with more than 32 bits hold. A bill that can't be placed takes nothing of any coupon.
bool VelTarmOrder::useCoupons(VelTarmOrderBill& theBill, bool theIsPlaceable)
{
    bool fit = true;
    for (VelTarmOrderCoupon& coupon : myCoupons) {
        fit = fit && (!theIsPlaceable || coupon.fitsOn(*theBill.myBill));
        const int share = theIsPlaceable && fit ? coupon.spendOn(*theBill.myBill, theBill.myCouponAmount) : 0;
        theBill.myCouponShares.append(share);
        theBill.myCouponRests.append(coupon.left());
        theBill.myCouponAmount = VelArithmetic::sum(theBill.myCouponAmount, share);
    }
    return fit;
}

void VelTarmOrder::reckon(VelTarmOrderBill& theBill)
{
    const VelTarmBill& bill = *theBill.myBill;
    VelTarmOrderAmounts& amounts = theBill.myAmounts;
    amounts.myCoupon = theBill.myCouponAmount;
    amounts.myShipping = bill.transferFee();
    amounts.myPayment = bill.priceOfPaymentAgio(theBill.myCouponAmount);
    amounts.myExpress = bill.priceOfExpressAgio(nullptr);
    amounts.myTotal = bill.totalFinalCost(theBill.myCouponAmount);
}

QList<VelTarmOrderObjection> VelTarmOrder::objectionsToOrder() const
{
    QList<VelTarmOrderObjection> objections;
    if (!VelOrderingDetails::instance()->orderSourceEnabled(myStatus.orderSource()))
        objections.append(objection(VelTarmOrderObjection::OBJECTION_ORDER_SOURCE));
    else if (!permitsPayment(myStatus))
        objections.append(
            objection(VelTarmOrderObjection::OBJECTION_PAYMENT, VelTarmOrderObjection::NO_GROUP, myStatus.payment()));
    if (myCart.products().contains(nullptr))
        objections.append(objection(VelTarmOrderObjection::OBJECTION_NO_PRODUCT, VelTarmOrderObjection::NO_GROUP,
                                    myCart.value(nullptr, 0)));
    const auto fits = [](const VelTarmOrderBill& theBill) { return theBill.amounts().fit(); };
    if (!myAmounts.fit() && std::all_of(myBills.cbegin(), myBills.cend(), fits))
        objections.append(objection(VelTarmOrderObjection::OBJECTION_AMOUNT));
    return objections;
}
