#include "bill/VelCoupon.h"
#include "bill/VelTarmBill.h"
#include "frame/VelArithmetic.h"
#include "fuzz/FuzzAudit.h"
#include "fuzz/FuzzBill.h"
#include "fuzz/FuzzShop.h"
#include "product/VelProductRegistry.h"

#include <limits>

namespace {

const int OFFSETS[] = {0, -300, std::numeric_limits<int>::min()};

VelTarmBill makeBill(int theGroup, const QMap<int, int>& theCounts)
{
    VelOrderStatistic cart;
    for (auto count = theCounts.cbegin(); count != theCounts.cend(); ++count)
        cart.add(VelProductRegistry::instance()->productWithArticleID(count.key()), *count);
    return VelTarmBill(theGroup, cart, VelExpressType(ExpressableType_EXPRESS_1), VelTarmStatus());
}

/// Bills of the sample shop: prints with a package, books with add-ons, calendars, and prints without end.
const QList<VelTarmBill>& bills()
{
    static const QList<VelTarmBill> bills = {makeBill(1, {{101, 7}, {131, 120}, {133, 3}}),
                                             makeBill(3, {{9171, 3}, {9210, 1}, {5202, 3}}), makeBill(5, {{8026, 2}}),
                                             makeBill(1, {{103, 100000000}})};
    return bills;
}

void askCoupon(const VelCoupon& theCoupon, const VelTarmBill& theBill)
{
    const int total = theBill.totalFinalCost(0);
    const int value = theCoupon.totalValueOfOrder(theBill);
    FUZZ_REQUIRE(value >= 0);
    theCoupon.percentDiscount(theBill);
    theCoupon.quantityDiscount(theBill);
    for (const int offset : OFFSETS) {
        const int discount = theCoupon.discountForOrder(theBill, offset);
        FUZZ_REQUIRE(VelArithmetic::sum(discount, value) >= 0 || theCoupon.type() == COUPON_TYPE_UNKNOWN);
        theBill.totalFinalCost(discount);
    }
    FUZZ_REQUIRE(theBill.totalFinalCost(0) == total);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzShop::open();
    for (const VelTarmBill& bill : bills())
        askBill(bill);
    return 0;
}

/// A coupon's terms, used on several bills; further documents are read into the same coupon.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    const QList<QByteArray> documents = FuzzShop::documents(theData, theSize);
    VelCoupon coupon(QStringLiteral("4711-0815"), FuzzShop::load(documents.first()));
    for (const QByteArray& document : documents.mid(1))
        coupon.parseXML(FuzzShop::load(document));
    for (const VelTarmBill& bill : bills())
        askCoupon(coupon, bill);
    FUZZ_REQUIRE(!coupon.isValid() || coupon.type() != COUPON_TYPE_UNKNOWN);
    FUZZ_REQUIRE(!coupon.validArticles().contains(0));
    coupon.validArticleNames();
    auditDocument(QStringLiteral("coupons/coupon.xml"), documents.first());
    return 0;
}
