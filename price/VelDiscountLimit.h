#ifndef VELDISCOUNTLIMIT_H
#define VELDISCOUNTLIMIT_H

#include "frame/VelEnumerations.h"
#include "frame/VelTarmExport.h"

#include <QDebug>
#include <QDomElement>
#include <QSet>

/// When a price entry holds: its model, its band, its level, and whether the price is one for a package. A value.
class VELTARM_EXPORT VelDiscountLimit
{
public:
    /// DISCOUNT_MODEL_NONE, from 0 without an upper limit, level 0, no package.
    VelDiscountLimit() = default;

    /// The parts as they are given.
    VelDiscountLimit(VelDiscountModel theDiscountModel, int theLowerLimit, int theUpperLimit, int theLevel,
                     bool theIsPackage);

    VelDiscountLimit(const VelDiscountLimit&) = default;

    /// A copy with the model in place of the copied one, unless it is DISCOUNT_MODEL_UNDEFINED.
    VelDiscountLimit(const VelDiscountLimit& theLimit, VelDiscountModel theDiscountModel);

    /// Reads a price entry: `quantity` (default 0), `level` (default 0) and `type`. Without a type the element two
    /// levels above decides: "F" below `transfer`, "X" below `express_fee`, else "B". The upper limit stays open.
    explicit VelDiscountLimit(const QDomElement& theEntry);

    VelDiscountLimit& operator=(const VelDiscountLimit&) = default;

    /// Removes base limits (from 0, open above), one after the other, as long as the set holds another limit of their
    /// model: a model with real bands is shown by these alone, and of nothing but base limits one is left.
    static void removeSupersededBaseLimits(QSet<VelDiscountLimit>& theLimits);

    /// Whether the entry belongs to a `transfer` element, the second level above it.
    static bool isTransferEntry(const QDomElement& theEntry);

    /// From 0 and open above, as the entry that says no quantity.
    bool isBaseLimit() const { return myUpperLimit == -1 && myLowerLimit == 0; }

    /// The pricing rule that the entry belongs to.
    VelDiscountModel discountModel() const { return myDiscountModel; }

    /// The smallest number of items at which the entry holds; of cents for DISCOUNT_MODEL_BILLING_SUM_TRANSFER.
    int lowerLimit() const { return myLowerLimit; }

    /// The largest number at which the entry holds; -1 for no limit.
    int upperLimit() const { return myUpperLimit; }
    /// Replaces the upper limit; -1 for no limit.
    void setUpperLimit(int theUpperLimit) { myUpperLimit = theUpperLimit; }

    /// The discount level, 0 for the base price.
    int level() const { return myLevel; }

    /// Whether the price is one for a whole package and not for an item: the type began with an upper-case letter,
    /// and the entry is one of neither a transfer nor an express fee. Plain bulk entries carry the flag as well.
    bool isPackage() const { return myIsPackage; }

    /// By all five parts.
    bool operator==(const VelDiscountLimit& theOther) const;
    bool operator!=(const VelDiscountLimit& theOther) const { return !(*this == theOther); }

    /// By model, lower limit, upper limit, as signed numbers; level and package flag take no part.
    bool operator<(const VelDiscountLimit& theOther) const;

private:
    VelDiscountModel myDiscountModel = DISCOUNT_MODEL_NONE;
    int myLowerLimit = 0;
    int myUpperLimit = -1;
    int myLevel = 0;
    bool myIsPackage = false;
};

Q_DECLARE_TYPEINFO(VelDiscountLimit, Q_MOVABLE_TYPE);

/// Leaves the process's seed aside: a set of limits is walked in the same order on every run.
inline uint qHash(const VelDiscountLimit& theLimit, uint = 0)
{
    return static_cast<uint>(theLimit.discountModel()) + static_cast<uint>(theLimit.lowerLimit()) * 100U;
}

VELTARM_EXPORT QDebug operator<<(QDebug theDebug, const VelDiscountLimit& theLimit);

#endif
