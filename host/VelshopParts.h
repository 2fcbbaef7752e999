#ifndef VELSHOPPARTS_H
#define VELSHOPPARTS_H

#include "bill/VelProductPriceCalculator.h"

#include <QMap>
#include <QString>

#include <optional>

/// What a customer puts into one piece of a book or calendar. What isn't said costs nothing; without a number of pages
/// it has as many as the product has at least.
struct VelshopParts
{
    static const int HIGHEST_COUNT = 100000; ///< of one part, and of the pieces of one article

    std::optional<int> myPages;
    std::optional<int> myMaps;
    std::optional<int> myVideos;
    std::optional<QMap<QString, int>> myTemplates; ///< uses by price class

    VelProductPriceCalculator calculator(VelProductAbstract* theProduct) const;
};

/// Why a product can't be made of its parts: the part as a cart names it, such as "pages" or "templates.12".
struct VelshopPartRefusal
{
    QString myPart; ///< empty when nothing is refused
    QString myReason;
};

/// The first part that the product can't have. What the price list has no article for would cost nothing, so it can't
/// be had either; a free price class needs none.
VelshopPartRefusal refusalOf(const VelshopParts& theParts, VelProductAbstract* theProduct);

#endif
