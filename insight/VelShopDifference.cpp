#include "insight/VelShopDifference.h"

#include "insight/VelTotalsComparison.h"

#include <algorithm>

namespace {

// ---- fields

using Fields = QVector<VelShopField>;

/// The field of the same name and place that none of the earlier fields was held against.
int findSame(const Fields& theFields, const VelShopField& theWanted, const QVector<bool>& theTaken)
{
    for (int index = 0; index < theFields.size(); ++index)
        if (!theTaken.at(index) && theFields.at(index).isSameAs(theWanted))
            return index;
    return -1;
}

QVariantList common(const QVariantList& theList, const QVariantList& theOther)
{
    QVariantList common;
    for (const QVariant& value : theList)
        if (theOther.contains(value))
            common.append(value);
    return common;
}

/// Of a list that tells about an order, what came or went is left aside: other fields tell it.
bool isEqual(const VelShopField& theOld, const VelShopField& theNew)
{
    if (!theOld.myIsOrder)
        return theOld.myValue == theNew.myValue;
    const QVariantList before = theOld.myValue.toList();
    const QVariantList after = theNew.myValue.toList();
    return common(before, after) == common(after, before);
}

bool areEqual(const Fields& theOld, const Fields& theNew)
{
    return std::equal(theOld.cbegin(), theOld.cend(), theNew.cbegin(), theNew.cend(),
                      [](const VelShopField& theLeft, const VelShopField& theRight) {
                          return theLeft.isSameAs(theRight) && isEqual(theLeft, theRight);
                      });
}

QVector<VelShopFieldChange> compareFields(const Fields& theOld, const Fields& theNew)
{
    QVector<VelShopFieldChange> changes;
    if (areEqual(theOld, theNew))
        return changes;
    QVector<bool> taken(theNew.size(), false);
    for (const VelShopField& before : theOld) {
        const int index = findSame(theNew, before, taken);
        if (index >= 0)
            taken[index] = true;
        if (index < 0)
            changes.append({before.myName, before.myPlace, before.myValue, QVariant()});
        else if (!isEqual(before, theNew.at(index)))
            changes.append({before.myName, before.myPlace, before.myValue, theNew.at(index).myValue});
    }
    for (int index = 0; index < theNew.size(); ++index)
        if (!taken.at(index))
            changes.append({theNew.at(index).myName, theNew.at(index).myPlace, QVariant(), theNew.at(index).myValue});
    return changes;
}

bool areEqual(const QVector<VelShopTotals>& theOld, const QVector<VelShopTotals>& theNew)
{
    return std::equal(theOld.cbegin(), theOld.cend(), theNew.cbegin(), theNew.cend(),
                      [](const VelShopTotals& theLeft, const VelShopTotals& theRight) {
                          return theLeft.isOf(theRight.mySource, theRight.myVariable) &&
                                 theLeft.myLevel == theRight.myLevel && theLeft.myRuns == theRight.myRuns;
                      });
}

// ---- carts

bool isEqual(const VelShopTerm& theOld, const VelShopTerm& theNew)
{
    return theOld.myCount == theNew.myCount && theOld.myAmount == theNew.myAmount &&
           theOld.myHasPrice == theNew.myHasPrice;
}

const VelShopTerm* findTerm(const VelShopCart& theCart, const VelShopTerm& theWanted)
{
    for (const VelShopTerm& term : theCart.myTerms)
        if (term.isSameAs(theWanted))
            return &term;
    return nullptr;
}

/// A fee of 0 is as good as none, on a bill that isn't there any more, too.
bool isNothing(const VelShopTerm& theTerm)
{
    return theTerm.myKind != VelExplainedTerm::ITEM && theTerm.myAmount == 0;
}

QVector<VelShopCartChange::Term> compareTerms(const VelShopCart& theOld, const VelShopCart& theNew)
{
    QVector<VelShopCartChange::Term> terms;
    for (const VelShopTerm& before : theOld.myTerms) {
        const VelShopTerm* after = findTerm(theNew, before);
        if (after && !isEqual(before, *after))
            terms.append({true, true, before, *after});
        else if (!after && !isNothing(before))
            terms.append({true, false, before, VelShopTerm()});
    }
    for (const VelShopTerm& after : theNew.myTerms)
        if (!findTerm(theOld, after) && !isNothing(after))
            terms.append({false, true, VelShopTerm(), after});
    return terms;
}

} // namespace

bool VelShopCartChange::isEmpty() const
{
    return myOld.myTotal == myNew.myTotal && myOld.myReason == myNew.myReason && myTerms.isEmpty();
}

VelShopDifference::VelShopDifference(const VelShopSnapshot& theOld, const VelShopSnapshot& theNew)
    : myConditions(compareFields(theOld.conditions(), theNew.conditions()))
{
    compareEntries(theOld.entries(), theNew.entries());
    for (const VelShopCart& before : theOld.carts())
        for (const VelShopCart& after : theNew.carts())
            if (before.myName == after.myName)
                myCarts.append({before, after, compareTerms(before, after)});
}

bool VelShopDifference::isEmpty() const
{
    return myAdded.isEmpty() && myRemoved.isEmpty() && myChanged.isEmpty() && myConditions.isEmpty() &&
           std::all_of(myCarts.cbegin(), myCarts.cend(),
                       [](const VelShopCartChange& theCart) { return theCart.isEmpty(); });
}

void VelShopDifference::compareEntries(const QVector<VelShopEntry>& theOld, const QVector<VelShopEntry>& theNew)
{
    auto before = theOld.cbegin();
    auto after = theNew.cbegin();
    while (before != theOld.cend() || after != theNew.cend()) {
        if (after == theNew.cend() || (before != theOld.cend() && before->isBefore(*after)))
            myRemoved.append(*before++);
        else if (before == theOld.cend() || after->isBefore(*before))
            myAdded.append(*after++);
        else
            compareEntry(*before++, *after++);
    }
}

void VelShopDifference::compareEntry(const VelShopEntry& theOld, const VelShopEntry& theNew)
{
    VelShopEntryChange change{theOld, theNew, compareFields(theOld.myFields, theNew.myFields), {}};
    if (!areEqual(theOld.myTotals, theNew.myTotals))
        change.myTotals = VelTotalsComparison::changes(theOld, theNew);
    if (!change.myFields.isEmpty() || !change.myTotals.isEmpty())
        myChanged.append(change);
}
