#include "benchmarks/PlainShop.h"

#include <benchmark/benchmark.h>

#include <map>

namespace {

const int CARTS = 500;

using Total = int (*)(PlainShop& theShop, const PlainCart& theCart);

/// Carts of so many lines, on which all ways of pricing agree.
const std::vector<PlainCart>& preparedCarts(benchmark::State& theState, int theCarts)
{
    static std::map<std::pair<int, int>, std::vector<PlainCart>> prepared;
    PlainShop& shop = PlainShop::instance();
    const auto lines = static_cast<int>(theState.range(0));
    std::vector<PlainCart>& carts = prepared[{lines, theCarts}];
    while (static_cast<int>(carts.size()) < theCarts)
        carts.push_back(shop.cart(lines, static_cast<int>(carts.size())));
    for (const PlainCart& cart : carts)
        if (const char* difference = shop.difference(cart))
            theState.SkipWithError(difference);
    return carts;
}

/// The argument is the number of articles in the cart.
void measure(benchmark::State& theState, int theCarts, Total theTotal)
{
    const std::vector<PlainCart>& carts = preparedCarts(theState, theCarts);
    PlainShop& shop = PlainShop::instance();
    std::size_t number = 0;
    for (auto _ : theState) {
        benchmark::DoNotOptimize(theTotal(shop, carts[number]));
        number = number + 1 < carts.size() ? number + 1 : 0;
    }
}

void plainBill(benchmark::State& theState, int theCarts)
{
    measure(theState, theCarts,
            [](PlainShop& theShop, const PlainCart& theCart) { return theShop.libraryTotal(theCart); });
}

void flatBill(benchmark::State& theState, int theCarts)
{
    measure(theState, theCarts,
            [](PlainShop& theShop, const PlainCart& theCart) { return theShop.flatTotal(theCart); });
}

void sqliteBill(benchmark::State& theState, int theCarts)
{
    measure(theState, theCarts,
            [](PlainShop& theShop, const PlainCart& theCart) { return theShop.sqliteTotal(theCart); });
}

BENCHMARK_CAPTURE(flatBill, sameCart, 1)->ArgName("lines")->Arg(1)->Arg(20)->Arg(200);
BENCHMARK_CAPTURE(plainBill, sameCart, 1)->ArgName("lines")->Arg(1)->Arg(20)->Arg(200);
BENCHMARK_CAPTURE(sqliteBill, sameCart, 1)->ArgName("lines")->Arg(20);
BENCHMARK_CAPTURE(flatBill, carts500, CARTS)->ArgName("lines")->Arg(20);
BENCHMARK_CAPTURE(plainBill, carts500, CARTS)->ArgName("lines")->Arg(20);
BENCHMARK_CAPTURE(sqliteBill, carts500, CARTS)->ArgName("lines")->Arg(20);

} // namespace
