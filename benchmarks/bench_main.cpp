#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <limits>

#include <malloc.h>

namespace {

/// The usual table, which also knows whether a benchmark was given up because its amounts are wrong.
class Reporter : public benchmark::ConsoleReporter
{
public:
    Reporter() : ConsoleReporter(OO_Tabular) {}
    void ReportRuns(const std::vector<Run>& theRuns) override
    {
        ConsoleReporter::ReportRuns(theRuns);
        myHasErrors |=
            std::any_of(theRuns.begin(), theRuns.end(), [](const Run& theRun) { return theRun.error_occurred; });
    }
    bool hasErrors() const { return myHasErrors; }

private:
    bool myHasErrors = false;
};

} // namespace

int main(int argc, char* argv[])
{
    // Freed memory stays in the process. Otherwise it depends on what else lives at the top of the heap whether a
    // tree's memory goes back to the system after each round, and a load would look cheaper than the bare parse inside
    // it.
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_THRESHOLD, std::numeric_limits<int>::max());
    QCoreApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}); // of no use in a table
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return reporter.hasErrors() ? 1 : 0;
}
