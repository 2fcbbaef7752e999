#include "benchmarks/BillShop.h"

#include "benchmarks/PriceListFile.h"
#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPositionAbstract.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

namespace {

const int MAX_COUNT = 130;

void add(Cart& theCart, int theId, int theCount)
{
    theCart.myStatistic.add(VelProductRegistry::instance()->productWithArticleID(theId), theCount);
}

} // namespace

BillShop BillShop::of(int theArticleCount)
{
    PriceListFile::load(theArticleCount);
    return BillShop(theArticleCount);
}

// ---- carts

Cart BillShop::cart(int theArticles, AddOns theAddOns, int theNumber) const
{
    const auto article = [&](int theLine) { return (theNumber * 7919 + theLine * 4973) % myArticleCount; };
    Cart cart;
    for (int line = 0; line < theArticles; ++line)
        add(cart, firstArticleId(myArticleCount) + article(line), 1 + (line * 13 + theNumber) % MAX_COUNT);
    for (int number = 0; theAddOns != AddOns::NONE && number < ADD_ONS_IN_CART; ++number) {
        const int neighbour = article(number % theArticles) / ARTICLES_PER_ADD_ON + number / theArticles;
        const int count = 1 + number;
        if (theAddOns == AddOns::OF_MANY_ARTICLES)
            add(cart, firstWideAddOnId(myArticleCount) + number, count);
        else
            add(cart, firstAddOnId(myArticleCount) + neighbour % (myArticleCount / ARTICLES_PER_ADD_ON), count);
    }
    return cart;
}

Cart BillShop::cartOfKind(int theArticles, int theKind) const
{
    Cart cart;
    for (int line = 0; line < theArticles; ++line)
        add(cart, firstArticleId(myArticleCount) + (line * 37 * KINDS + theKind) % myArticleCount,
            1 + line * 13 % MAX_COUNT);
    return cart;
}

// ---- bills

VelTarmBill libraryBill(const Cart& theCart, int theGroup)
{
    return VelTarmBill(theGroup, theCart.myStatistic, VelExpressType(ExpressableType_EXPRESS_1), VelTarmStatus());
}

const char* faultOf(const VelTarmBill& theBill)
{
    int sum = theBill.transferFee();
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions())
        sum += position->positionPrice();
    if (!theBill.isValid())
        return "something has no price";
    return sum == theBill.totalFinalCostWithoutCoupon() ? nullptr : "the lines don't come to the total";
}
