#ifndef VELTARMORDERBILL_H
#define VELTARMORDERBILL_H

#include "bill/VelOrderStatistic.h"
#include "bill/VelTarmBill.h"
#include "bill/VelTarmOrderAmounts.h"
#include "bill/VelTarmOrderObjection.h"

#include <QList>
#include <QSharedPointer>

#include <utility>

/// The part of an order that one shipping group makes up. A value; copies share the bill, which nobody changes.
/// The lists of one that nobody keeps come by value, so that a loop may run over them.
class VelTarmOrderBill
{
public:
    /// Id of the shipping group, as the products' attribute `group` says it; -1 for products that name none.
    int group() const { return myBill->shippingGroup(); }

    /// The group's products with their counts.
    const VelOrderStatistic& cart() const { return myCart; }

    /// The bill as the library makes it of cart, express type and status; alive as long as any copy of this.
    const VelTarmBill& bill() const { return *myBill; }

    /// What each coupon of the order adds to the bill, in the order of VelTarmOrder::coupons(); 0 for one that doesn't
    /// count here. A bill that something stands against is given no coupon.
    const QList<int>& couponShares() const& { return myCouponShares; }
    QList<int> couponShares() && { return std::move(myCouponShares); }

    /// Cents, 0 or more, that each coupon can still take off behind this bill, in the same order: what
    /// VelTarmOrderCoupon::left() says there.
    const QList<int>& couponRests() const& { return myCouponRests; }
    QList<int> couponRests() && { return std::move(myCouponRests); }

    /// All shares together: what VelTarmBill::totalFinalCost() and priceOfPaymentAgio() are asked with.
    int couponAmount() const { return myCouponAmount; }

    /// The answers of the bill, given also when something stands against it; then they are not to be charged.
    const VelTarmOrderAmounts& amounts() const { return myAmounts; }

    /// What stands against this bill.
    const QList<VelTarmOrderObjection>& objections() const& { return myObjections; }
    QList<VelTarmOrderObjection> objections() && { return std::move(myObjections); }

private:
    friend class VelTarmOrder;

    VelTarmOrderBill(const QSharedPointer<const VelTarmBill>& theBill, const VelOrderStatistic& theCart)
        : myBill(theBill), myCart(theCart)
    {
    }

    QSharedPointer<const VelTarmBill> myBill;
    VelOrderStatistic myCart;
    QList<int> myCouponShares;
    QList<int> myCouponRests;
    int myCouponAmount = 0;
    VelTarmOrderAmounts myAmounts;
    QList<VelTarmOrderObjection> myObjections;
};

#endif
