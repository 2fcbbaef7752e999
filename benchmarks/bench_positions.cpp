#include "benchmarks/PriceListFile.h"
#include "insight/VelDocumentPositions.h"

#include <benchmark/benchmark.h>

namespace {

/// From the bytes to the index, to be held beside the bare parse of the same file.
void positions(benchmark::State& theState)
{
    const QByteArray& bytes = PriceListFile::ofKeyAccount(static_cast<int>(theState.range(0))).bytes();
    for (auto _ : theState) {
        const VelDocumentPositions index((VelDocumentText(bytes)));
        if (index.elementCount() <= theState.range(0) || index.error().myPlace.isValid())
            theState.SkipWithError("the index misses elements");
    }
    theState.SetBytesProcessed(static_cast<int64_t>(theState.iterations()) * bytes.size());
}

BENCHMARK(positions)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);

} // namespace
