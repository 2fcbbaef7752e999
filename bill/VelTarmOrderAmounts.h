#ifndef VELTARMORDERAMOUNTS_H
#define VELTARMORDERAMOUNTS_H

#include <QtGlobal>

#include <array>
#include <limits>

/// What a bill or an order comes to, in cents. The parts need not add up to the total: a coupon never takes it below
/// the express fee.
struct VelTarmOrderAmounts
{
    qint64 myItems = 0;    ///< all products, add-ons included
    qint64 myShipping = 0; ///< the transfer fee
    qint64 myPayment = 0;  ///< the payment fee; each bill that comes to anything pays it
    qint64 myCoupon = 0;   ///< what the coupons add, so it is negative where they take something off
    qint64 myExpress = 0;  ///< the express fee, which no coupon lowers
    qint64 myTotal = 0;    ///< what is to be paid

    /// Adds each amount of the other.
    void add(const VelTarmOrderAmounts& theOther)
    {
        myItems += theOther.myItems;
        myShipping += theOther.myShipping;
        myPayment += theOther.myPayment;
        myCoupon += theOther.myCoupon;
        myExpress += theOther.myExpress;
        myTotal += theOther.myTotal;
    }

    /// Each amount, and what they add up to on the way to the total.
    std::array<qint64, 8> steps() const
    {
        const qint64 charges = myItems + myShipping + myPayment + myExpress;
        return {myItems, myShipping, myPayment, myCoupon, myExpress, myTotal, charges, charges + myCoupon};
    }

    /// Whether 32 bits hold each step. Bills reckon with 32 bits and wrap around: amounts that don't fit are not to be
    /// believed.
    bool fit() const
    {
        for (const qint64 amount : steps())
            if (!fits(amount))
                return false;
        return true;
    }

    /// Whether 32 bits hold that number.
    static bool fits(qint64 theAmount)
    {
        return theAmount >= std::numeric_limits<int>::min() && theAmount <= std::numeric_limits<int>::max();
    }
};

#endif
