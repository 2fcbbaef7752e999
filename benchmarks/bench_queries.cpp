#include "benchmarks/PriceListFile.h"
#include "price/VelDiscountLimit.h"
#include "price/VelTarmPriceKey.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "product/VelProductSorting.h"

#include <QRegularExpression>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

/// One registry for each size, kept for all queries.
const VelProductRegistry& registry(int theArticleCount)
{
    static QMap<int, std::shared_ptr<VelProductRegistry>> registries;
    std::shared_ptr<VelProductRegistry>& known = registries[theArticleCount];
    if (!known) {
        PriceListFile::ofKeyAccount(theArticleCount);
        known = std::make_shared<VelProductRegistry>();
    }
    return *known;
}

const VelProductRegistry& registryOf(const benchmark::State& theState)
{
    return registry(static_cast<int>(theState.range(0)));
}

template <typename Query>
void measure(benchmark::State& theState, Query theQuery)
{
    const VelProductRegistry& products = registryOf(theState);
    benchmark::DoNotOptimize(theQuery(products)); // fills what is made on first use
    for (auto _ : theState)
        benchmark::DoNotOptimize(theQuery(products));
}

void productWithArticleID(benchmark::State& theState)
{
    const auto size = static_cast<int>(theState.range(0));
    const int last = firstArticleId(size) + size - 1;
    measure(theState, [=](const VelProductRegistry& theRegistry) { return theRegistry.productWithArticleID(last); });
}

void productsForShippingGroup(benchmark::State& theState)
{
    measure(theState,
            [](const VelProductRegistry& theRegistry) { return theRegistry.productsForShippingGroup(1, true); });
}

void productsForProductGroup(benchmark::State& theState)
{
    measure(theState, [](const VelProductRegistry& theRegistry) {
        return theRegistry.productsForProductGroup(VelProductGroup(PRODUCT_GROUP_FOTO), false);
    });
}

void discountLimits(benchmark::State& theState)
{
    const VelTarmPriceKey key(VelOrderSource::onlineMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED);
    measure(theState, [&](const VelProductRegistry& theRegistry) { return theRegistry.discountLimits(1, key); });
}

void possibleAddOns(benchmark::State& theState)
{
    const int first = firstArticleId(static_cast<int>(theState.range(0)));
    measure(theState, [=](const VelProductRegistry& theRegistry) { return theRegistry.possibleAddOns(first); });
}

void orderTxtHeadNotFound(benchmark::State& theState)
{
    measure(theState, [](const VelProductRegistry& theRegistry) {
        return theRegistry.findProductWithOrderTXTHead(QStringLiteral("[?]"), VelProductGroup(PRODUCT_GROUP_ALL));
    });
}

/// The order by number with a regular expression for each comparison: what the sorted lists would cost without care.
bool sortByExpression(VelProductAbstract* theLeft, VelProductAbstract* theRight)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d+)"));
    const QString left = theLeft->name();
    const QString right = theRight->name();
    const QRegularExpressionMatch leftMatch = pattern.match(left);
    const QRegularExpressionMatch rightMatch = pattern.match(right);
    if (leftMatch.hasMatch() && rightMatch.hasMatch()) {
        const int leftNumber = leftMatch.captured(1).toInt();
        const int rightNumber = rightMatch.captured(1).toInt();
        return leftNumber != rightNumber ? leftNumber < rightNumber : left.length() < right.length();
    }
    if (left.length() != right.length())
        return left.length() < right.length();
    return QString::compare(left, right, Qt::CaseInsensitive) < 0;
}

/// The first shipping group with all add-ons, as the document has them.
VelProductList unsortedGroup(const benchmark::State& theState)
{
    VelProductList products;
    for (VelProductAbstract* product : registryOf(theState).productList())
        if (product->isAddOn() || product->shippingGroupId() == 1)
            products.append(product);
    return products;
}

template <typename Sort>
void measureSort(benchmark::State& theState, Sort theSort)
{
    const VelProductList products = unsortedGroup(theState);
    for (auto _ : theState) {
        VelProductList sorted = products;
        theSort(sorted);
        benchmark::DoNotOptimize(sorted);
    }
}

void sortByNumberOnce(benchmark::State& theState)
{
    VelProductList expected = unsortedGroup(theState);
    VelProductList sorted = expected;
    quickSort(expected.begin(), expected.end(), sortByExpression);
    sortProductsByNumber(sorted);
    if (sorted != expected)
        theState.SkipWithError("another order");
    measureSort(theState, [](VelProductList& theProducts) { sortProductsByNumber(theProducts); });
}

void sortByNumberPerComparison(benchmark::State& theState)
{
    measureSort(theState, [](VelProductList& theProducts) {
        quickSort(theProducts.begin(), theProducts.end(), sortByExpression);
    });
}

BENCHMARK(productWithArticleID)->Arg(1000)->Arg(10000);
BENCHMARK(productsForShippingGroup)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(productsForProductGroup)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(discountLimits)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(possibleAddOns)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(orderTxtHeadNotFound)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(sortByNumberOnce)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(sortByNumberPerComparison)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

} // namespace
