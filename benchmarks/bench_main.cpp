#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <limits>

#include <malloc.h>

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
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
