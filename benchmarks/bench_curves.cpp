#include "benchmarks/PriceListFile.h"
#include "insight/VelPriceCurve.h"
#include "insight/VelPriceGaps.h"
#include "product/VelProductAbstract.h"

#include <benchmark/benchmark.h>

namespace {

/// Every curve of a shop up to the highest quantity, by five order ways, to be held beside the load of that shop.
void allCurves(benchmark::State& theState)
{
    PriceListFile::load(static_cast<int>(theState.range(0)));
    const QList<VelOrderSource> sources{VelOrderSource::onlinePointOfSale(), VelOrderSource::onlineMailOrder(),
                                        VelOrderSource::cdPointOfSale(), VelOrderSource::cdMailOrder(),
                                        VelOrderSource::kioskOnSite()};
    const VelProductList products = VelProductRegistry::instance()->productList();
    for (auto _ : theState) {
        int pieces = 0;
        for (const VelProductAbstract* product : products)
            if (!product->isDeprecated())
                for (const VelPriceCurve& curve : VelPriceCurve::bySources(*product, sources, VelPriceCurve::Range()))
                    pieces += curve.pieces().size();
        if (pieces < theState.range(0))
            theState.SkipWithError("the curves miss pieces");
    }
}

/// The map of the same shop: what is priced by which order way, fees included.
void allGaps(benchmark::State& theState)
{
    PriceListFile::load(static_cast<int>(theState.range(0)));
    for (auto _ : theState) {
        const VelPriceGaps gaps(VelPriceCurve::AS_SOLD);
        if (gaps.articles().size() < theState.range(0) || gaps.ways().isEmpty())
            theState.SkipWithError("the map misses articles or ways");
    }
}

BENCHMARK(allCurves)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(allGaps)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);

} // namespace
