#include "benchmarks/BillShop.h"
#include "benchmarks/SyntheticShop.h"
#include "bill/VelCoupon.h"
#include "bill/VelProductPriceCalculator.h"
#include "bill/VelTarmBill.h"
#include "price/VelDiscountLimitCache.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

#include <QDomDocument>

#include <benchmark/benchmark.h>

namespace {

const int ARTICLES = 10000;
const int LINES = 20;

VelTarmPriceKey mailOrder()
{
    return VelTarmPriceKey(VelOrderSource::onlineMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED);
}

/// A coupon for the first two articles of the cart.
VelCoupon coupon(const Cart& theCart, const QString& theTerms)
{
    QString conditions;
    for (const VelProductAbstract* product : theCart.myStatistic.products().mid(0, 2))
        conditions += QStringLiteral("<condition art_id='%1'/>").arg(product->articleID());
    QDomDocument document;
    document.setContent(QStringLiteral("<terms><coupons><coupon campaign_no='1' %1>%2</coupon></coupons></terms>")
                            .arg(theTerms, conditions));
    return VelCoupon(QStringLiteral("A"), document.documentElement());
}

int worthOfFirstTwo(const Cart& theCart)
{
    int worth = 0;
    for (VelProductAbstract* product : theCart.myStatistic.products().mid(0, 2))
        worth += product->price(mailOrder(), theCart.myStatistic.value(product, 0), 0);
    return worth;
}

/// A bill of twenty lines, its coupon, and what is left to pay.
void billWithCoupon(benchmark::State& theState, const char* theTerms, bool theIsPercent)
{
    const Cart cart = BillShop::of(ARTICLES).cart(LINES, AddOns::NONE, 0);
    const VelCoupon voucher = coupon(cart, QLatin1String(theTerms));
    const int expected = theIsPercent ? worthOfFirstTwo(cart) * -10 / 100 : -50;
    if (voucher.discountForOrder(libraryBill(cart, GROUP_BY_QUANTITY), 0) != expected)
        theState.SkipWithError("wrong discount");
    for (auto _ : theState) {
        const VelTarmBill bill = libraryBill(cart, GROUP_BY_QUANTITY);
        benchmark::DoNotOptimize(bill.totalFinalCost(voucher.discountForOrder(bill, 0)));
    }
}

/// A book with pages, maps, a video and templates of two price classes.
void unitPriceOfBook(benchmark::State& theState)
{
    BillShop::of(ARTICLES);
    const VelProductPriceCalculator calculator(
        VelProductRegistry::instance()->productWithArticleID(BOOK_ID), 50, 2, 1,
        {{QStringLiteral("100"), 4}, {QStringLiteral("200"), 2}}); // four of a class with 1 in front count as one
    if (calculator.unitPrice(mailOrder()) != 2795 + 3 * 249 + 2 * 150 + 99 + 60 + 2 * 80)
        theState.SkipWithError("wrong amount");
    for (auto _ : theState)
        benchmark::DoNotOptimize(calculator.unitPrice(mailOrder()));
}

void discountLimitsCached(benchmark::State& theState)
{
    BillShop::of(ARTICLES);
    VelDiscountLimitCache* cache = VelDiscountLimitCache::instance();
    const VelTarmPriceKey key = mailOrder();
    if (cache->discountLimit(1, key).isEmpty())
        theState.SkipWithError("no limits");
    for (auto _ : theState)
        benchmark::DoNotOptimize(cache->discountLimit(1, key));
}

void discountLimitsCalculated(benchmark::State& theState)
{
    BillShop::of(ARTICLES);
    const VelTarmPriceKey key = mailOrder();
    for (auto _ : theState)
        benchmark::DoNotOptimize(VelDiscountLimitCache::instance()->calculateList(1, key));
}

BENCHMARK_CAPTURE(billWithCoupon, percent, "type='percent' price='-10'", true);
BENCHMARK_CAPTURE(billWithCoupon, value, "type='value' price='-50'", false);
BENCHMARK(unitPriceOfBook)->Unit(benchmark::kMicrosecond);
BENCHMARK(discountLimitsCached);
BENCHMARK(discountLimitsCalculated)->Unit(benchmark::kMicrosecond);

} // namespace
