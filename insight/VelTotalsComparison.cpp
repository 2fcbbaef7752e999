#include "insight/VelTotalsComparison.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

using Interval = VelTotalsInterval;
using Runs = QVector<VelTotalsRun>;

/// Walks over the runs of one side; between two runs there is no price.
class Walker
{
public:
    explicit Walker(const Runs& theRuns) : myRun(theRuns.cbegin()), myEnd(theRuns.cend()) {}

    bool isAtEnd() const { return myRun == myEnd; }

    /// Leaves all that ends before the quantity.
    void goTo(qint64 theQuantity)
    {
        while (!isAtEnd() && myRun->myTo < theQuantity)
            ++myRun;
    }

    /// The first quantity from which it may be otherwise, seen from one that goTo() was asked for.
    qint64 nextChange(qint64 theQuantity) const
    {
        if (isAtEnd())
            return std::numeric_limits<qint64>::max();
        return theQuantity < myRun->myFrom ? myRun->myFrom : static_cast<qint64>(myRun->myTo) + 1;
    }

    Interval::Line lineAt(qint64 theQuantity) const
    {
        if (isAtEnd() || theQuantity < myRun->myFrom)
            return {};
        return {true, static_cast<int>(myRun->total(theQuantity)), myRun->myPerPiece};
    }

private:
    Runs::const_iterator myRun;
    const Runs::const_iterator myEnd;
};

qint64 totalAt(const Interval::Line& theLine, qint64 theSteps)
{
    return theLine.myFirst + theSteps * theLine.myPerPiece;
}

Interval::Line movedOn(Interval::Line theLine, qint64 theSteps)
{
    theLine.myFirst = static_cast<int>(totalAt(theLine, theSteps));
    return theLine;
}

bool goesOn(const Interval::Line& theLine, const Interval::Line& theNext, qint64 theSteps)
{
    if (!theLine.myHasPrice || !theNext.myHasPrice)
        return theLine.myHasPrice == theNext.myHasPrice;
    return theLine.myPerPiece == theNext.myPerPiece && totalAt(theLine, theSteps) == theNext.myFirst;
}

class IntervalCollector
{
public:
    /// Both sides are straight from the one to the other quantity. Two lines meet once at most; there nothing changed.
    void addStraight(qint64 theFrom, qint64 theTo, const Interval::Line& theOld, const Interval::Line& theNew)
    {
        if (!theOld.myHasPrice || !theNew.myHasPrice) {
            if (theOld.myHasPrice != theNew.myHasPrice)
                append(theFrom, theTo, theOld, theNew);
            return;
        }
        const qint64 distance = static_cast<qint64>(theOld.myFirst) - theNew.myFirst;
        const qint64 closing = static_cast<qint64>(theNew.myPerPiece) - theOld.myPerPiece;
        if (closing == 0 || distance % closing != 0 || distance / closing < 0 || distance / closing > theTo - theFrom) {
            if (distance != 0 || closing != 0)
                append(theFrom, theTo, theOld, theNew);
            return;
        }
        const qint64 meeting = distance / closing;
        if (meeting > 0)
            append(theFrom, theFrom + meeting - 1, theOld, theNew);
        if (theFrom + meeting < theTo)
            append(theFrom + meeting + 1, theTo, movedOn(theOld, meeting + 1), movedOn(theNew, meeting + 1));
    }

    const QVector<Interval>& intervals() const { return myIntervals; }

private:
    void append(qint64 theFrom, qint64 theTo, const Interval::Line& theOld, const Interval::Line& theNew)
    {
        if (!myIntervals.isEmpty()) {
            Interval& last = myIntervals.last();
            const qint64 steps = theFrom - last.myFrom;
            if (last.myTo + qint64(1) == theFrom && goesOn(last.myOld, theOld, steps) &&
                goesOn(last.myNew, theNew, steps)) {
                last.myTo = static_cast<int>(theTo);
                return;
            }
        }
        myIntervals.append({static_cast<int>(theFrom), static_cast<int>(theTo), theOld, theNew});
    }

    QVector<Interval> myIntervals;
};

/// The totals at an inherited level are those of the highest level up to it that the side tells about.
const Runs& runsAt(const VelShopEntry& theEntry, const VelShopTotals& theWanted)
{
    static const Runs none;
    const VelShopTotals* found = nullptr;
    for (const VelShopTotals& totals : theEntry.myTotals)
        if (totals.isOf(theWanted.mySource, theWanted.myVariable) && totals.myLevel <= theWanted.myLevel &&
            (!found || totals.myLevel > found->myLevel))
            found = &totals;
    return found ? found->myRuns : none;
}

/// Where no price depends on the sum of a bill, one of any sum costs what one piece costs.
Runs runsOf(const VelShopEntry& theEntry, const VelShopTotals& theWanted)
{
    const bool isBySum = theWanted.myVariable == VelPriceCurve::BY_SUM;
    const bool isTold =
        std::any_of(theEntry.myTotals.cbegin(), theEntry.myTotals.cend(), [&](const VelShopTotals& theTotals) {
            return theTotals.isOf(theWanted.mySource, theWanted.myVariable);
        });
    if (!isBySum || isTold)
        return runsAt(theEntry, theWanted);
    VelShopTotals byQuantity = theWanted;
    byQuantity.myVariable = VelPriceCurve::BY_QUANTITY;
    const Runs& runs = runsAt(theEntry, byQuantity);
    if (runs.isEmpty() || runs.first().myFrom > 1)
        return Runs();
    return {{1, std::numeric_limits<int>::max(), runs.first().myFirst, 0}};
}

/// What either side tells about, each once, in the order of the sources.
QVector<VelShopTotals> wantedOf(const VelShopEntry& theOld, const VelShopEntry& theNew)
{
    QVector<VelShopTotals> wanted;
    for (const VelShopEntry* entry : {&theOld, &theNew})
        for (const VelShopTotals& totals : entry->myTotals)
            wanted.append({totals.mySource, totals.myVariable, totals.myLevel, {}});
    const auto key = [](const VelShopTotals& theTotals) {
        return std::make_tuple(theTotals.mySource.inputSource(), theTotals.mySource.deliveryType(),
                               theTotals.myVariable, theTotals.myLevel);
    };
    std::sort(wanted.begin(), wanted.end(), [&](const VelShopTotals& theLeft, const VelShopTotals& theRight) {
        return key(theLeft) < key(theRight);
    });
    const auto end =
        std::unique(wanted.begin(), wanted.end(), [&](const VelShopTotals& theLeft, const VelShopTotals& theRight) {
            return key(theLeft) == key(theRight);
        });
    wanted.erase(end, wanted.end());
    return wanted;
}

} // namespace

QVector<VelTotalsInterval> VelTotalsComparison::intervals(const QVector<VelTotalsRun>& theOld,
                                                          const QVector<VelTotalsRun>& theNew)
{
    IntervalCollector collector;
    Walker before(theOld);
    Walker after(theNew);
    qint64 from = std::numeric_limits<int>::min();
    while (!before.isAtEnd() || !after.isAtEnd()) {
        const qint64 end = std::min(before.nextChange(from), after.nextChange(from));
        collector.addStraight(from, end - 1, before.lineAt(from), after.lineAt(from));
        from = end;
        before.goTo(from);
        after.goTo(from);
    }
    return collector.intervals();
}

QVector<VelTotalsChange> VelTotalsComparison::changes(const VelShopEntry& theOld, const VelShopEntry& theNew)
{
    QVector<VelTotalsChange> changes;
    if (theOld.myIsByProducts || theNew.myIsByProducts)
        return changes;
    for (const VelShopTotals& wanted : wantedOf(theOld, theNew)) {
        const QVector<VelTotalsInterval> found = intervals(runsOf(theOld, wanted), runsOf(theNew, wanted));
        if (!found.isEmpty())
            changes.append({wanted.mySource, wanted.myVariable, wanted.myLevel, found});
    }
    return changes;
}
