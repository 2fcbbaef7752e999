#ifndef VELTARMORDERCOUPON_H
#define VELTARMORDERCOUPON_H

#include "bill/VelCoupon.h"
#include "frame/VelTarmExport.h"

class VelTarmBill;

/**
 * A coupon on its way over the bills of an order. A coupon of value is spent bill by bill: each takes what the ones
 * before have left of it, 50 euros over bills of 9.45 and 61.85 as 9.45 and 40.55. A coupon of percent or quantity
 * counts on the first bill on which it takes anything. One that isn't valid takes nothing. A value.
 */
class VELTARM_EXPORT VelTarmOrderCoupon
{
public:
    /// Of which nothing is taken yet.
    explicit VelTarmOrderCoupon(const VelCoupon& theCoupon) : myCoupon(theCoupon) {}

    /// The terms.
    const VelCoupon& coupon() const { return myCoupon; }

    /// Cents over all bills so far, negative where something was taken off.
    int taken() const { return myTaken; }

    /// Cents, 0 or more, that a valid coupon of value can still take off; 0 for every other coupon.
    int left() const;

    /// Whether 32 bits hold what the coupon reckons with on its way to a discount on the bill.
    bool fitsOn(const VelTarmBill& theBill) const;

    /// What the coupon takes off the bill next, in cents, negative to take off; it counts as taken from then on.
    /// Other coupons have added so much to the bill already: together they take off no more than items and shipping.
    int spendOn(const VelTarmBill& theBill, int theFormerCoupons);

private:
    bool canCount() const;

    VelCoupon myCoupon;
    int myTaken = 0;
};

#endif
