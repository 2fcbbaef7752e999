#ifndef VELTOTALSCOMPARISON_H
#define VELTOTALSCOMPARISON_H

#include "insight/VelShopSnapshot.h"

/// Compares totals, which are known as straight runs, without asking quantity by quantity.
namespace VelTotalsComparison {

/// Exactly the quantities whose totals differ, as few intervals as straight lines allow.
QVector<VelTotalsInterval> intervals(const QVector<VelTotalsRun>& theOld, const QVector<VelTotalsRun>& theNew);

/// Those of each order source, level and variable that either side tells about. None where the products of an order
/// decide.
QVector<VelTotalsChange> changes(const VelShopEntry& theOld, const VelShopEntry& theNew);

} // namespace VelTotalsComparison

#endif
