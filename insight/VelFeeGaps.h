#ifndef VELFEEGAPS_H
#define VELFEEGAPS_H

#include "insight/VelPriceGaps.h"

class VelGapFinder;

/// The fees in the map of gaps.
namespace VelFeeGaps {

/// The fees of the shop, and without a product those that its articles lack.
QVector<VelShopFees::Fee> fees(const QVector<const VelProductAbstract*>& theProducts);

/// A fee by each order source of the finder.
QVector<VelPriceGaps::Cell> cellsOf(const VelShopFees::Fee& theFee, const VelGapFinder& theFinder);

} // namespace VelFeeGaps

#endif
