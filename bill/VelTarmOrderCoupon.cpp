#include "bill/VelTarmOrderCoupon.h"

#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPositionAbstract.h"
#include "bill/VelTarmOrderAmounts.h"
#include "frame/VelArithmetic.h"

namespace {

/// The most that a coupon can take off for one free piece.
qint64 highestUnitPrice(const VelTarmBill& theBill)
{
    int highest = 0;
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions())
        highest = qMax(highest, position->unitPrice());
    return highest;
}

} // namespace

int VelTarmOrderCoupon::left() const
{
    if (!myCoupon.isValid() || myCoupon.type() != COUPON_TYPE_VALUE)
        return 0;
    const qint64 left = static_cast<qint64>(myTaken) - myCoupon.maximumDiscountValue();
    return static_cast<int>(qBound(qint64(0), left, qint64(std::numeric_limits<int>::max())));
}

bool VelTarmOrderCoupon::canCount() const
{
    return myCoupon.isValid() && (myTaken == 0 || myCoupon.type() == COUPON_TYPE_VALUE);
}

bool VelTarmOrderCoupon::fitsOn(const VelTarmBill& theBill) const
{
    if (!canCount())
        return true;
    const qint64 value = myCoupon.totalValueOfOrder(theBill);
    const qint64 rest = static_cast<qint64>(myCoupon.maximumDiscountValue()) - myTaken;
    const qint64 free = myCoupon.freeQuantity() * highestUnitPrice(theBill) + theBill.transferFee();
    return VelTarmOrderAmounts::fits(value * myCoupon.discountPercentage()) && VelTarmOrderAmounts::fits(rest) &&
           VelTarmOrderAmounts::fits(value + rest) &&
           (myCoupon.type() != COUPON_TYPE_QUANTITY || VelTarmOrderAmounts::fits(free));
}

/// The offset is in the coupon's own sign, and so is what was taken.
int VelTarmOrderCoupon::spendOn(const VelTarmBill& theBill, int theFormerCoupons)
{
    if (!canCount())
        return 0;
    const int open = qMax(0, VelArithmetic::sum(theBill.totalFinalCostWithoutCoupon(), theFormerCoupons));
    const int share = qMax(-open, myCoupon.discountForOrder(theBill, myTaken));
    myTaken = VelArithmetic::sum(myTaken, share);
    return share;
}
