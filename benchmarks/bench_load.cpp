#include "benchmarks/PriceListFile.h"
#include "product/VelProductRegistry.h"
#include "product/VelProductStorage.h"

#include <QDomDocument>
#include <QFile>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>

#ifdef __GLIBC__
#include <malloc.h>
#include <unistd.h>
#endif

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
    const PriceListFile& file = PriceListFile::ofKeyAccount(countOf(theState));
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
    const PriceListFile& file = PriceListFile::ofKeyAccount(countOf(theState));
    const int expected = syntheticProductCount(countOf(theState));
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
    const PriceListFile& file = PriceListFile::ofKeyAccount(countOf(theState));
    VelProductRegistry registry;
    for (auto _ : theState)
        registry.loadAllProducts();
    countBytes(theState, file.bytes());
}

/// A reload without the parse: the products alone, each time from a new tree, as after each parse.
void reloadObjects(benchmark::State& theState)
{
    const PriceListFile& file = PriceListFile::ofKeyAccount(countOf(theState));
    VelProductRegistry registry;
    for (auto _ : theState) {
        theState.PauseTiming();
        auto document = std::make_unique<QDomDocument>();
        document->setContent(file.bytes());
        theState.ResumeTiming();
        registry.updateProducts(document->documentElement());
        theState.PauseTiming();
        document.reset();
        theState.ResumeTiming();
    }
    countBytes(theState, file.bytes());
}

/// Where the next object of a shelf would lie.
const char* nextOn(VelProductStorage::Shelf theShelf)
{
    void* next = VelProductStorage::allocate(theShelf, 1);
    VelProductStorage::release(next, 1);
    return static_cast<const char*>(next);
}

#ifdef __GLIBC__

/// In bytes: what the heap has handed out.
std::int64_t heapBytes()
{
    return static_cast<std::int64_t>(mallinfo2().uordblks) + static_cast<std::int64_t>(mallinfo2().hblkhd);
}

/// In bytes: the pages of the process that stand in memory now.
std::int64_t residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

void trimHeap()
{
    malloc_trim(0);
}

#else // no other C library tells in this way: the memory is shown as 0

std::int64_t heapBytes()
{
    return 0;
}

std::int64_t residentBytes()
{
    return 0;
}

void trimHeap() {}

#endif

/// What the heap and the shelves hold now. The shelves count from any point: only a difference says anything.
std::int64_t liveBytes()
{
    using namespace VelProductStorage;
    std::int64_t bytes = heapBytes();
    for (const Shelf shelf : {SHELF_MAIN_PRODUCTS, SHELF_ADD_ONS, SHELF_ARTICLES})
        bytes += reinterpret_cast<std::intptr_t>(nextOn(shelf));
    return bytes;
}

/// What a ready registry keeps, in bytes for each byte of the file. The first one fills what is made only once.
void liveMemory(benchmark::State& theState)
{
    const PriceListFile& file = PriceListFile::ofKeyAccount(countOf(theState));
    std::make_unique<VelProductRegistry>().reset();
    const std::int64_t before = liveBytes();
    std::unique_ptr<VelProductRegistry> registry;
    for (auto _ : theState)
        registry = std::make_unique<VelProductRegistry>();
    const auto live = static_cast<double>(liveBytes() - before);
    theState.counters["live_bytes"] = live;
    theState.counters["of_file"] = live / file.bytes().size();
}

/// By how much the process grows by a load and so many reloads, in bytes for each byte of the file.
void residentMemory(benchmark::State& theState, int theReloads)
{
    const PriceListFile& file = PriceListFile::ofKeyAccount(countOf(theState));
    trimHeap(); // what the making of the file left
    const std::int64_t before = residentBytes();
    std::unique_ptr<VelProductRegistry> registry;
    for (auto _ : theState) {
        registry = std::make_unique<VelProductRegistry>();
        for (int reload = 0; reload < theReloads; ++reload)
            registry->loadAllProducts();
    }
    if (before == 0)
        theState.SkipWithError("the system doesn't tell the resident memory");
    const auto growth = static_cast<double>(residentBytes() - before);
    theState.counters["resident_bytes"] = growth;
    theState.counters["of_file"] = growth / file.bytes().size();
}

#define SIZES Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond)
BENCHMARK(bareParse)->SIZES;
BENCHMARK(load)->SIZES;
BENCHMARK(reload)->SIZES;
BENCHMARK(reloadObjects)->SIZES;
BENCHMARK(liveMemory)->SIZES->Iterations(1);
BENCHMARK_CAPTURE(residentMemory, load, 0)->SIZES->Iterations(1);
BENCHMARK_CAPTURE(residentMemory, reloads10, 10)->SIZES->Iterations(1);

} // namespace
