#include "benchmarks/PriceListFile.h"
#include "insight/VelAudit.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

/// A folder with a made price list and the other documents of the sample shop.
class AuditedFolder
{
public:
    explicit AuditedFolder(int theArticleCount)
    {
        for (const char* name : {"orderingdetails.xml", "currencies.xml", "appearance.xml"})
            QFile::copy(QStringLiteral(VELTARM_SOURCE_DIR "/shop/") + QLatin1String(name),
                        myFolder.filePath(QLatin1String(name)));
        const PriceListFile& list = PriceListFile::ofKeyAccount(theArticleCount);
        QFile file(myFolder.filePath(QStringLiteral("pricelist.xml")));
        if (!file.open(QIODevice::WriteOnly) || file.write(list.bytes()) != list.bytes().size())
            qFatal("The price list of the benchmark can't be written");
    }
    QDir folder() const { return QDir(myFolder.path()); }

private:
    QTemporaryDir myFolder;
};

/// All documents of a shop, read and checked, to be held beside the load that `velshop list` begins with.
void audit(benchmark::State& theState)
{
    const AuditedFolder shop(static_cast<int>(theState.range(0)));
    for (auto _ : theState) {
        const VelAudit audit(shop.folder());
        if (!audit.isReadable())
            theState.SkipWithError("a document can't be read");
        theState.counters["findings"] = static_cast<double>(audit.findings().size());
    }
}

BENCHMARK(audit)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);

} // namespace
