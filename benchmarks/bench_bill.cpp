#include "benchmarks/BillShop.h"
#include "benchmarks/SyntheticShop.h"
#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPositionAbstract.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>
#include <tuple>
#include <vector>

namespace {

const int ARTICLES = 10000;
const int CARTS = 500;

/// Carts whose bills add up, or what is wrong with one.
struct Carts
{
    std::vector<Cart> myCarts;
    const char* myFault = nullptr;
};

const Carts& preparedCarts(int theShopSize, int theCarts, int theArticles, int theGroup, AddOns theAddOns)
{
    static std::map<std::tuple<int, int, int, int, AddOns>, Carts> prepared;
    Carts& carts = prepared[std::make_tuple(theShopSize, theCarts, theArticles, theGroup, theAddOns)];
    if (!carts.myCarts.empty())
        return carts;
    const BillShop shop = BillShop::of(theShopSize);
    for (int number = 0; number < theCarts; ++number) {
        carts.myCarts.push_back(shop.cart(theArticles, theAddOns, number));
        if (const char* fault = faultOf(libraryBill(carts.myCarts.back(), theGroup)))
            carts.myFault = fault;
    }
    return carts;
}

template <typename Pricing>
void measure(benchmark::State& theState, const Carts& theCarts, Pricing thePricing)
{
    if (theCarts.myFault)
        theState.SkipWithError(theCarts.myFault);
    std::size_t number = 0;
    for (auto _ : theState) {
        benchmark::DoNotOptimize(thePricing(theCarts.myCarts[number]));
        number = number + 1 < theCarts.myCarts.size() ? number + 1 : 0;
    }
}

/// The arguments are the articles in the cart, the shipping group, and the add-ons beside them.
template <typename Pricing>
void measureCarts(benchmark::State& theState, int theCarts, Pricing thePricing)
{
    const auto group = static_cast<int>(theState.range(1));
    const AddOns addOns = theState.range(2) == 0 ? AddOns::NONE : AddOns::OF_FEW_ARTICLES;
    BillShop::of(ARTICLES);
    const Carts& carts = preparedCarts(ARTICLES, theCarts, static_cast<int>(theState.range(0)), group, addOns);
    measure(theState, carts, [&](const Cart& theCart) { return thePricing(theCart, group); });
}

int libraryTotal(const Cart& theCart, int theGroup)
{
    return libraryBill(theCart, theGroup).totalFinalCostWithoutCoupon();
}

void bill(benchmark::State& theState, int theCarts)
{
    measureCarts(theState, theCarts, libraryTotal);
}

/// With the fees for payment and express.
void billFinalCost(benchmark::State& theState, int theCarts)
{
    measureCarts(theState, theCarts,
                 [](const Cart& theCart, int theGroup) { return libraryBill(theCart, theGroup).totalFinalCost(0); });
}

/// With the position objects, which the total alone doesn't need.
void billPositions(benchmark::State& theState, int theCarts)
{
    measureCarts(theState, theCarts, [](const Cart& theCart, int theGroup) {
        const VelTarmBill bill = libraryBill(theCart, theGroup);
        return bill.totalFinalCostWithoutCoupon() + bill.orderPositions().size();
    });
}

/// The same cart in shops of different sizes: twenty articles and four add-ons.
void billInShop(benchmark::State& theState, AddOns theAddOns)
{
    const auto size = static_cast<int>(theState.range(0));
    BillShop::of(size);
    const Carts& carts = preparedCarts(size, 1, 20, GROUP_BY_QUANTITY, theAddOns);
    measure(theState, carts, [](const Cart& theCart) { return libraryTotal(theCart, GROUP_BY_QUANTITY); });
}

/// Twenty articles that are all plain ladders, or all such ladders on offer.
void billOfKind(benchmark::State& theState, int theKind)
{
    Carts carts;
    carts.myCarts.push_back(BillShop::of(ARTICLES).cartOfKind(20, theKind));
    const VelTarmBill bill = libraryBill(carts.myCarts.front(), GROUP_BY_QUANTITY);
    const VelTarmBillPositionList lines = bill.orderPositions();
    const auto isOnOffer = [](const auto* theLine) { return theLine->nonOfferPrice() != -1; };
    carts.myFault = faultOf(bill);
    if (std::count_if(lines.begin(), lines.end(), isOnOffer) != (theKind == KIND_OFFER ? 20 : 0))
        carts.myFault = "not the offers that were asked for";
    measure(theState, carts, [](const Cart& theCart) { return libraryTotal(theCart, GROUP_BY_QUANTITY); });
}

#define CARTS_OF_SIZES                                                                                                 \
    ArgNames({"lines", "group", "addons"})                                                                             \
        ->ArgsProduct({{1, 20, 200}, {GROUP_BY_QUANTITY, GROUP_TRANSFER_MODEL_2}, {0, ADD_ONS_IN_CART}})               \
        ->Args({20, GROUP_BY_SUM, 0})
#define CARTS_OF_20                                                                                                    \
    ArgNames({"lines", "group", "addons"})                                                                             \
        ->ArgsProduct({{20}, {GROUP_BY_QUANTITY, GROUP_TRANSFER_MODEL_2}, {0, ADD_ONS_IN_CART}})
#define ONE_CART ArgNames({"lines", "group", "addons"})->Args({20, GROUP_BY_QUANTITY, 0})

BENCHMARK_CAPTURE(bill, sameCart, 1)->CARTS_OF_SIZES;
BENCHMARK_CAPTURE(bill, carts500, CARTS)->CARTS_OF_20;
BENCHMARK_CAPTURE(billFinalCost, sameCart, 1)->ONE_CART;
BENCHMARK_CAPTURE(billPositions, sameCart, 1)->ONE_CART;
BENCHMARK_CAPTURE(billOfKind, offers, KIND_OFFER);
BENCHMARK_CAPTURE(billOfKind, ladders, KIND_LADDER);
BENCHMARK_CAPTURE(billInShop, addOnsOfFew, AddOns::OF_FEW_ARTICLES)->Arg(1000)->Arg(10000)->Arg(50000);
BENCHMARK_CAPTURE(billInShop, addOnsOfMany, AddOns::OF_MANY_ARTICLES)->Arg(1000)->Arg(10000)->Arg(50000);

} // namespace
