#include <QByteArray>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <iterator>

/// Prints the ratios between benchmarks that belong together, with their aims: bench_ratios FILE...
/// The files are what bench_veltarm writes as JSON. Ratios are those of the medians, by processor time.

namespace {

const QString OF_FILE = QStringLiteral("of_file");

enum class Bound { AT_MOST, AT_LEAST, NONE };

/// Two families of benchmarks, whose names go on alike behind these beginnings. The first that fits a name counts.
struct Comparison
{
    const char* myName;
    const char* myBase; ///< null where the benchmark's counter is the ratio itself
    Bound myBound;
    double myAim;
};

const Comparison COMPARISONS[] = {
    {"load", "bareParse", Bound::AT_MOST, 1.4},
    {"allCurves", "load", Bound::AT_MOST, 0.5},
    {"allGaps", "load", Bound::AT_MOST, 0.1},
    {"halfOfDifference", "load", Bound::AT_MOST, 0.5},
    {"reloadObjects", "bareParse", Bound::AT_MOST, 0.35},
    {"reload", "bareParse", Bound::NONE, 0},
    {"audit", "load", Bound::AT_MOST, 3},
    {"liveMemory", nullptr, Bound::AT_MOST, 4.5},
    {"residentMemory", nullptr, Bound::AT_MOST, 4},
    {"plainBill/sameCart/lines:20", "flatBill/sameCart/lines:20", Bound::AT_MOST, 25},
    {"plainBill/sameCart", "flatBill/sameCart", Bound::NONE, 0},
    {"plainBill/carts500", "flatBill/carts500", Bound::AT_MOST, 20},
    {"sqliteBill/sameCart", "plainBill/sameCart", Bound::AT_LEAST, 8},
    {"sqliteBill/carts500", "plainBill/carts500", Bound::AT_LEAST, 2},
    {"billOfKind/offers", "billOfKind/ladders", Bound::AT_MOST, 1.3},
    {"billInShop/addOnsOfFew/50000", "billInShop/addOnsOfFew/1000", Bound::AT_MOST, 1.5},
    {"billInShop/addOnsOfMany/50000", "billInShop/addOnsOfMany/1000", Bound::AT_MOST, 1.5},
    {"sortByNumberPerComparison", "sortByNumberOnce", Bound::AT_LEAST, 20},
    {"discountLimitsCalculated", "discountLimitsCached", Bound::NONE, 0},
};

struct Results
{
    QMap<QList<int>, QString> myNames; ///< by file, family and place in the family, whatever the order of the runs
    QMap<QString, double> mySeconds;   ///< of processor time, for one iteration
    QMap<QString, double> myOfFile;    ///< the counter of that name
    bool myHasErrors = false;
};

double seconds(const QJsonObject& theRun)
{
    const QString unit = theRun.value(QStringLiteral("time_unit")).toString();
    const double factor = unit == QLatin1String("ms")   ? 1e-3
                          : unit == QLatin1String("us") ? 1e-6
                          : unit == QLatin1String("ns") ? 1e-9
                                                        : 1;
    return theRun.value(QStringLiteral("cpu_time")).toDouble() * factor;
}

/// A single run, or the median of several.
void note(int theFile, const QJsonObject& theRun, Results& theResults)
{
    const QString name = theRun.value(QStringLiteral("run_name")).toString();
    if (theRun.value(QStringLiteral("error_occurred")).toBool()) {
        std::printf("%s: %s\n", qPrintable(name), qPrintable(theRun.value(QStringLiteral("error_message")).toString()));
        theResults.myHasErrors = true;
        return;
    }
    const QString aggregate = theRun.value(QStringLiteral("aggregate_name")).toString();
    if (!aggregate.isEmpty() && aggregate != QLatin1String("median"))
        return;
    theResults.myNames.insert({theFile, theRun.value(QStringLiteral("family_index")).toInt(),
                               theRun.value(QStringLiteral("per_family_instance_index")).toInt()},
                              name);
    theResults.mySeconds.insert(name, seconds(theRun));
    if (theRun.contains(OF_FILE))
        theResults.myOfFile.insert(name, theRun.value(OF_FILE).toDouble());
}

bool readResults(int theNumber, const QString& theFile, Results& theResults)
{
    QFile file(theFile);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
    for (const QJsonValue& run : root.value(QStringLiteral("benchmarks")).toArray())
        note(theNumber, run.toObject(), theResults);
    return !root.isEmpty();
}

/// What follows the beginning, null when the name doesn't begin so.
QString restOf(const QString& theName, const QString& theBeginning)
{
    const bool fits = theName.startsWith(theBeginning) &&
                      (theName.size() == theBeginning.size() || theName.at(theBeginning.size()) == QLatin1Char('/'));
    return fits ? QStringLiteral("") + theName.mid(theBeginning.size()) : QString();
}

QString inUnit(double theSeconds)
{
    const char* const units[] = {"s", "ms", "us", "ns"};
    const char* const* unit = units;
    while (theSeconds < 1 && unit + 1 != std::end(units)) {
        theSeconds *= 1000;
        ++unit;
    }
    return QStringLiteral("%1 %2")
        .arg(theSeconds, 0, 'f',
             theSeconds < 10    ? 2
             : theSeconds < 100 ? 1
                                : 0)
        .arg(QLatin1String(*unit));
}

QString aimOf(const Comparison& theComparison, double theRatio)
{
    if (theComparison.myBound == Bound::NONE)
        return QStringLiteral("-");
    const bool isAtMost = theComparison.myBound == Bound::AT_MOST;
    const bool holds = isAtMost ? theRatio <= theComparison.myAim : theRatio >= theComparison.myAim;
    return QStringLiteral("%1 %2%3")
        .arg(QLatin1String(isAtMost ? "at most" : "at least"))
        .arg(theComparison.myAim)
        .arg(QLatin1String(holds ? "" : ", MISSED"));
}

void printRow(const QString& theName, const QString& theTime, const QString& theBase, const QString& theRatio,
              const QString& theAim)
{
    std::printf("%-50s %9s %9s %8s  %s\n", qPrintable(theName), qPrintable(theTime), qPrintable(theBase),
                qPrintable(theRatio), qPrintable(theAim));
}

void printRatio(const QString& theName, const Results& theResults)
{
    const auto comparison =
        std::find_if(std::begin(COMPARISONS), std::end(COMPARISONS), [&](const Comparison& theComparison) {
            return !restOf(theName, QLatin1String(theComparison.myName)).isNull();
        });
    const double own = theResults.mySeconds.value(theName);
    if (comparison == std::end(COMPARISONS)) {
        printRow(theName, inUnit(own), QString(), QString(), QString());
        return;
    }
    if (!comparison->myBase) {
        const double ratio = theResults.myOfFile.value(theName);
        printRow(theName, QString(), QString(), QString::number(ratio, 'g', 3), aimOf(*comparison, ratio));
        return;
    }
    const QString base = QLatin1String(comparison->myBase) + restOf(theName, QLatin1String(comparison->myName));
    if (!theResults.mySeconds.contains(base))
        return;
    const double ratio = own / theResults.mySeconds.value(base);
    printRow(theName, inUnit(own), inUnit(theResults.mySeconds.value(base)), QString::number(ratio, 'g', 3),
             aimOf(*comparison, ratio));
}

} // namespace

int main(int argc, char* argv[])
{
    Results results;
    for (int argument = 1; argument < argc; ++argument) {
        if (!readResults(argument, QFile::decodeName(argv[argument]), results)) {
            std::fprintf(stderr, "%s can't be read\n", argv[argument]);
            return 2;
        }
    }
    printRow(QStringLiteral("benchmark"), QStringLiteral("median"), QStringLiteral("beside"), QStringLiteral("ratio"),
             QStringLiteral("aim"));
    for (const QString& name : qAsConst(results.myNames))
        printRatio(name, results);
    return results.myHasErrors ? 1 : 0;
}
