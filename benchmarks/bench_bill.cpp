#include "benchmarks/PriceListFile.h"
#include "bill/VelTarmBill.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

#include <benchmark/benchmark.h>

#include <limits>
#include <vector>

namespace {

const int ARTICLES = 10000;
const int CARTS = 500;
const int GROUP_MODEL_1 = 1;
const int GROUP_MODEL_2 = 2;
const int HIGHEST_LEVEL = 3;

/// The floor: what the rules need of one article, side by side, and the rules without any model of positions.
struct FlatBand
{
    int myQuantity;
    int myUpperLimit;
    int myPrice;
    bool myIsPackage;
};

struct FlatArticle
{
    std::vector<FlatBand> myBulk; ///< by level
    std::vector<FlatBand> myPackages;
    int myBaseTransfer;
    int myUnitTransfer;
};

int levelReached(const std::vector<FlatBand>& theBands, int theCount, bool thePackagesOnly)
{
    for (auto level = static_cast<int>(theBands.size()) - 1; level > 0; --level) {
        const FlatBand& band = theBands[static_cast<std::size_t>(level)];
        if (band.myQuantity <= theCount && (!thePackagesOnly || band.myIsPackage))
            return level;
    }
    return 0;
}

int flatPrice(const FlatArticle& theArticle, int theCount)
{
    const auto at = [](const std::vector<FlatBand>& theBands, int theLevel) {
        return theBands[static_cast<std::size_t>(theLevel)];
    };
    const int best = levelReached(theArticle.myPackages, theCount, false);
    if (best == 0)
        return at(theArticle.myBulk, levelReached(theArticle.myBulk, theCount, false)).myPrice * theCount;
    const int package = levelReached(theArticle.myPackages, theCount, true);
    if (package == best)
        return at(theArticle.myPackages, package).myPrice;
    const int rest = theCount - at(theArticle.myPackages, package).myUpperLimit;
    return at(theArticle.myPackages, package).myPrice + rest * at(theArticle.myPackages, best).myPrice;
}

struct Line
{
    VelProductAbstract* myProduct;
    const FlatArticle* myArticle;
    int myCount;
};
using Cart = std::vector<Line>;

/// Items and shipping; a package makes shipping free.
int flatTotal(const Cart& theCart, int theGroup)
{
    int sum = 0;
    int count = 0;
    int base = 0;
    int units = 0;
    int leadersUnit = 0;
    bool isFree = false;
    for (const Line& line : theCart) {
        sum += flatPrice(*line.myArticle, line.myCount);
        count += line.myCount;
        units += line.myArticle->myUnitTransfer * line.myCount;
        isFree |= levelReached(line.myArticle->myPackages, line.myCount, false) > 0;
        if (line.myArticle->myBaseTransfer > base) {
            base = line.myArticle->myBaseTransfer;
            leadersUnit = line.myArticle->myUnitTransfer;
        }
    }
    if (isFree)
        return sum;
    return sum + (theGroup == GROUP_MODEL_2 ? base + units - leadersUnit : (count >= 100 ? 495 : 295));
}

std::vector<FlatBand> flatBands(const VelProductAbstract* theProduct, VelDiscountModel theModel, int theFirstLevel)
{
    std::vector<FlatBand> bands;
    if (theFirstLevel == 1)
        bands.push_back({0, -1, -1, false});
    for (int level = theFirstLevel; level <= HIGHEST_LEVEL; ++level) {
        const VelTarmPriceKey key(VelOrderSource::onlineMailOrder(), level, theModel);
        for (const VelDiscountLimit& limit : theProduct->discountLimits(key))
            bands.push_back(
                {limit.lowerLimit(), limit.upperLimit(), theProduct->priceAtBound(key, limit), limit.isPackage()});
    }
    return bands.size() > 1 || theFirstLevel == 0 ? bands : std::vector<FlatBand>();
}

/// The application's registry with the synthetic list, and its articles once more, flat.
class Shop
{
public:
    Shop() : myFile(ARTICLES)
    {
        VelProductRegistry::instance()->loadAllProducts();
        const VelTarmPriceKey key(VelOrderSource::onlineMailOrder(), 0, DISCOUNT_MODEL_BULK);
        for (int number = 0; number < ARTICLES; ++number) {
            VelProductAbstract* product =
                VelProductRegistry::instance()->productWithArticleID(FIRST_ARTICLE_ID + number);
            myProducts.push_back(product);
            myArticles.push_back({flatBands(product, DISCOUNT_MODEL_BULK, 0),
                                  flatBands(product, DISCOUNT_MODEL_PACKAGE, 1), product->baseTransferPrice(key),
                                  product->unitTransferPrice(key)});
        }
    }

    /// So many lines, spread over the list; carts of different numbers differ.
    Cart cart(int theLines, int theNumber) const
    {
        Cart cart;
        for (int line = 0; line < theLines; ++line) {
            const auto index = static_cast<std::size_t>((theNumber * 7919 + line * 4973) % ARTICLES);
            cart.push_back({myProducts[index], &myArticles[index], 1 + (line * 13 + theNumber) % 130});
        }
        return cart;
    }

private:
    PriceListFile myFile;
    std::vector<VelProductAbstract*> myProducts;
    std::vector<FlatArticle> myArticles;
};

const Shop& shop()
{
    static const Shop theShop;
    return theShop;
}

VelOrderStatistic statisticOf(const Cart& theCart)
{
    VelOrderStatistic statistic;
    for (const Line& line : theCart)
        statistic.add(line.myProduct, line.myCount);
    return statistic;
}

int total(const VelOrderStatistic& theStatistic, int theGroup)
{
    return VelTarmBill(theGroup, theStatistic, VelExpressType(), VelTarmStatus()).totalFinalCostWithoutCoupon();
}

struct PreparedCarts
{
    PreparedCarts(benchmark::State& theState, int theCount)
    {
        const auto lines = static_cast<int>(theState.range(0));
        const auto group = static_cast<int>(theState.range(1));
        for (int number = 0; number < theCount; ++number) {
            myCarts.push_back(shop().cart(lines, number));
            myStatistics.push_back(statisticOf(myCarts.back()));
            if (total(myStatistics.back(), group) != flatTotal(myCarts.back(), group))
                theState.SkipWithError("the amounts differ");
        }
    }
    std::vector<Cart> myCarts;
    std::vector<VelOrderStatistic> myStatistics;
};

void bill(benchmark::State& theState, int theCarts)
{
    const PreparedCarts carts(theState, theCarts);
    const auto group = static_cast<int>(theState.range(1));
    std::size_t number = 0;
    for (auto _ : theState) {
        benchmark::DoNotOptimize(total(carts.myStatistics[number], group));
        number = (number + 1) % carts.myStatistics.size();
    }
}

void flat(benchmark::State& theState, int theCarts)
{
    const PreparedCarts carts(theState, theCarts);
    const auto group = static_cast<int>(theState.range(1));
    std::size_t number = 0;
    for (auto _ : theState) {
        benchmark::DoNotOptimize(flatTotal(carts.myCarts[number], group));
        number = (number + 1) % carts.myCarts.size();
    }
}

#define BILL_SIZES                                                                                                     \
    Args({1, GROUP_MODEL_1})->Args({20, GROUP_MODEL_1})->Args({20, GROUP_MODEL_2})->Args({200, GROUP_MODEL_1})
BENCHMARK_CAPTURE(flat, sameCart, 1)->BILL_SIZES;
BENCHMARK_CAPTURE(bill, sameCart, 1)->BILL_SIZES;
BENCHMARK_CAPTURE(flat, carts500, CARTS)->Args({20, GROUP_MODEL_1})->Args({20, GROUP_MODEL_2});
BENCHMARK_CAPTURE(bill, carts500, CARTS)->Args({20, GROUP_MODEL_1})->Args({20, GROUP_MODEL_2});

} // namespace
