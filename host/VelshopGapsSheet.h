#ifndef VELSHOPGAPSSHEET_H
#define VELSHOPGAPSSHEET_H

#include "insight/VelPriceGaps.h"

#include <QString>

#include <optional>

/// The map of gaps as the desk sells, or the part of it that a shipping group needs, by shipping group.
struct VelshopGapsSheet
{
    QVector<VelPriceGaps::Way> myWays;
    QVector<VelPriceGaps::Row> myArticles; ///< by shipping group, within it as in the price list
    QVector<VelPriceGaps::FeeRow> myFees;  ///< payment fees belong to every group
};

VelshopGapsSheet makeGapsSheet(std::optional<int> theGroup);

/// The words of the map.
namespace VelshopGapsWords {

/// As "NET/MAIL"; KIOSK alone, since it goes with nothing but ONSITE.
QString way(const VelOrderSource& theSource);

/// As "31 Klassenfotos", and that the shop doesn't sell the group where its ordering details don't list it.
QString group(int theGroup);

/// What stands in a cell, in as few letters as tell it: "yes", "from 25", "-".
QString mark(const VelPriceGaps::Cell& theCell);

/// Why a cell has no price, null where there is one.
QString whyUnpriced(VelPriceGaps::Why theWhy);

/// The quantities that have no price, or why none has; null where each has one.
QString explanation(const VelPriceGaps::Cell& theCell);

} // namespace VelshopGapsWords

#endif
