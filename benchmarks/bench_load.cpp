#include "benchmarks/PriceListFile.h"
#include "product/VelProductRegistry.h"

#include <QDomDocument>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

int countOf(const benchmark::State& theState)
{
    return static_cast<int>(theState.range(0));
}

void countBytes(benchmark::State& theState, const QByteArray& theBytes)
{
    theState.SetBytesProcessed(static_cast<int64_t>(theState.iterations()) * theBytes.size());
    const auto articles = static_cast<double>(theState.range(0)) * static_cast<double>(theState.iterations());
    theState.counters["per_article"] =
        benchmark::Counter(articles, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/// The floor: the tree alone, parsed and freed.
void bareParse(benchmark::State& theState)
{
    const PriceListFile file(countOf(theState));
    for (auto _ : theState) {
        QDomDocument document;
        if (!document.setContent(file.bytes()))
            theState.SkipWithError("not XML");
    }
    countBytes(theState, file.bytes());
}

/// From the file to a ready registry, the tree freed.
void load(benchmark::State& theState)
{
    const PriceListFile file(countOf(theState));
    const int expected = countOf(theState) + countOf(theState) / 20;
    for (auto _ : theState) {
        auto registry = std::make_unique<VelProductRegistry>();
        theState.PauseTiming();
        if (registry->productList().size() != expected)
            theState.SkipWithError("the registry misses products");
        registry.reset();
        theState.ResumeTiming();
    }
    countBytes(theState, file.bytes());
}

/// The same file again, into the products at hand.
void reload(benchmark::State& theState)
{
    const PriceListFile file(countOf(theState));
    VelProductRegistry registry;
    for (auto _ : theState)
        registry.loadAllProducts();
    countBytes(theState, file.bytes());
}

/// A reload without the parse: the products alone.
void reloadObjects(benchmark::State& theState)
{
    const PriceListFile file(countOf(theState));
    QDomDocument document;
    document.setContent(file.bytes());
    VelProductRegistry registry;
    for (auto _ : theState)
        registry.updateProducts(document.documentElement());
    countBytes(theState, file.bytes());
}

BENCHMARK(bareParse)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(load)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(reload)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(reloadObjects)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);

} // namespace
