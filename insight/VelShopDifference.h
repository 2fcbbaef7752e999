#ifndef VELSHOPDIFFERENCE_H
#define VELSHOPDIFFERENCE_H

#include "insight/VelInsightExport.h"
#include "insight/VelShopSnapshot.h"

#include <utility>

/// An article, an add-on or a fee of both shops that isn't the same any more.
struct VelShopEntryChange
{
    VelShopEntry myOld;                   ///< with all fields and totals
    VelShopEntry myNew;                   ///< with all fields and totals
    QVector<VelShopFieldChange> myFields; ///< that differ
    QVector<VelTotalsChange> myTotals;    ///< that differ
};

/// A cart that comes to something else.
struct VELINSIGHT_EXPORT VelShopCartChange
{
    /// A term that differs; one of kind, group and article stands on both sides or on one.
    struct Term
    {
        bool myIsInOld = false; ///< whether it stood in the bill before
        bool myIsInNew = false; ///< whether it stands there now
        VelShopTerm myOld;      ///< of no meaning where it didn't
        VelShopTerm myNew;      ///< of no meaning where it doesn't
    };

    VelShopCart myOld;     ///< before
    VelShopCart myNew;     ///< now
    QVector<Term> myTerms; ///< none where the carts come to the same

    /// Whether both come to the same.
    bool isEmpty() const;
};

/**
 * What changed from one shop to another, by effect: what is written another way and read alike is no difference, nor is
 * an order of elements that nothing depends on.
 *
 *     const VelShopDifference difference(before, VelShopSnapshot::taken());
 *     for (const VelShopEntryChange& change : difference.changed())
 *         qDebug() << change.myNew.myArticle << change.myFields.size() << change.myTotals.size();
 *
 * The lists of one that nobody keeps come by value, so that a loop may run over them.
 */
class VELINSIGHT_EXPORT VelShopDifference
{
public:
    /// Compares two shops, of which both may be gone afterwards.
    VelShopDifference(const VelShopSnapshot& theOld, const VelShopSnapshot& theNew);

    /// Whether there is none. Carts without any are no difference.
    bool isEmpty() const;

    /// Only in the new shop, by id; fees are those that are charged for something that had none.
    const QVector<VelShopEntry>& added() const& { return myAdded; }
    QVector<VelShopEntry> added() && { return std::move(myAdded); }
    /// Only in the old shop.
    const QVector<VelShopEntry>& removed() const& { return myRemoved; }
    QVector<VelShopEntry> removed() && { return std::move(myRemoved); }
    const QVector<VelShopEntryChange>& changed() const& { return myChanged; }
    QVector<VelShopEntryChange> changed() && { return std::move(myChanged); }
    /// Of the shop as a whole.
    const QVector<VelShopFieldChange>& conditions() const& { return myConditions; }
    QVector<VelShopFieldChange> conditions() && { return std::move(myConditions); }
    /// Every cart that both snapshots hold, in their order, the same ones too.
    const QVector<VelShopCartChange>& carts() const& { return myCarts; }
    QVector<VelShopCartChange> carts() && { return std::move(myCarts); }

private:
    void compareEntries(const QVector<VelShopEntry>& theOld, const QVector<VelShopEntry>& theNew);
    void compareEntry(const VelShopEntry& theOld, const VelShopEntry& theNew);

    QVector<VelShopEntry> myAdded;
    QVector<VelShopEntry> myRemoved;
    QVector<VelShopEntryChange> myChanged;
    QVector<VelShopFieldChange> myConditions;
    QVector<VelShopCartChange> myCarts;
};

#endif
