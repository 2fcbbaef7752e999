#include "benchmarks/PriceListFile.h"
#include "insight/VelShopDifference.h"
#include "sibling/VelDirectoryConfig.h"

#include <QDataStream>

#include <benchmark/benchmark.h>

namespace {

const char* const CONFIGURATION = VELTARM_SOURCE_DIR "/shop";

/// What comparing two shops costs beside their loads: both snapshots, their way from one process to another, and the
/// comparison. Half of it stands beside one load.
void halfOfDifference(benchmark::State& theState)
{
    VelDirectoryConfig::instance()->setConfigurationDirectory(QString::fromUtf8(CONFIGURATION));
    PriceListFile::load(static_cast<int>(theState.range(0)));
    for (auto _ : theState) {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << VelShopSnapshot::taken();
        VelShopSnapshot snapshot;
        QDataStream in(bytes);
        in >> snapshot;
        const VelShopDifference difference(snapshot, snapshot);
        if (!difference.isEmpty() || snapshot.entries().size() < theState.range(0))
            theState.SkipWithError("a shop differs from itself");
    }
}

BENCHMARK(halfOfDifference)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace
