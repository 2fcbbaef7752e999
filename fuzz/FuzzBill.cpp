#include "fuzz/FuzzBill.h"

#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "frame/VelArithmetic.h"
#include "fuzz/FuzzShop.h"
#include "product/VelProductAbstract.h"

#include <limits>

namespace {

const int COUPONS[] = {0, -1, -500, 500, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};

int sumOf(const VelTarmBillPositionList& thePositions)
{
    int sum = 0;
    for (const VelTarmBillPositionAbstract* position : thePositions)
        if (position->product()->productGroup().matches(PRODUCT_GROUP_ALL))
            sum = VelArithmetic::sum(sum, position->positionPrice());
    return sum;
}

void askPositions(const VelTarmBill& theBill)
{
    for (VelTarmBillPositionAbstract* position : theBill.orderPositions()) {
        position->dump();
        const VelTarmBillPosition* found = theBill.billPosition(position->product());
        FUZZ_REQUIRE(!found || found->product() == position->product());
    }
    FUZZ_REQUIRE(theBill.sortedBillPositions().size() == theBill.orderPositions().size());
    FUZZ_REQUIRE(sumOf(theBill.orderPositions()) == theBill.totalItemCost(VelProductGroup(PRODUCT_GROUP_ALL)));
}

} // namespace

void askBill(const VelTarmBill& theBill)
{
    askPositions(theBill);
    const VelTarmBill copy(theBill);
    for (const int coupon : COUPONS) {
        const int total = theBill.totalFinalCost(coupon);
        FUZZ_REQUIRE(copy.totalFinalCost(coupon) == total);
        FUZZ_REQUIRE(VelArithmetic::difference(total, theBill.priceOfExpressAgio(nullptr)) >= 0);
        FUZZ_REQUIRE(theBill.priceOfPaymentAgio(coupon) >= 0);
    }
    FUZZ_REQUIRE(copy.isValid() == theBill.isValid());
    FUZZ_REQUIRE(theBill.totalFinalCostWithoutCoupon() >= 0);
    FUZZ_REQUIRE(copy.transferFee() == theBill.transferFee());
    theBill.totalItemCount(VelProductGroup(PRODUCT_GROUP_ALL));
    theBill.unitPriceOfCheapestArticle();
    theBill.priceOfTransfer();
    theBill.priceOfUnitTransfer();
    theBill.idOfTransferProduct();
    theBill.idOfPaymentAgioProduct();
    theBill.dump();
}
