#include "insight/VelPriceNeeds.h"

#include "product/VelProductAddOn.h"

#include <limits>
#include <optional>
#include <set>

namespace {

const int HIGHEST = std::numeric_limits<int>::max();

/// Where the first quantity with a price can be. Between two thresholds every model is a line, and a line that is -1 at
/// its begin and behind it is -1 all along.
std::set<int> possibleQuantities(const VelTarmPriceView& theView)
{
    std::set<int> quantities{1, 2};
    for (const VelTarmPriceBand& band : theView.bands()) {
        const int limit = band.value().lowerLimit();
        if (limit > 0)
            quantities.insert({limit, limit == HIGHEST ? limit : limit + 1});
    }
    return quantities;
}

std::optional<int> smallestQuantity(const VelTarmPriceView& theView, VelPriceQuestion theQuestion)
{
    for (const int quantity : possibleQuantities(theView)) {
        theQuestion.myCount = quantity;
        if (theQuestion.answer(theView).myPrice != -1)
            return quantity;
    }
    return std::nullopt;
}

/// Those of which an add-on may inherit another price; all others inherit none.
std::set<int> levelsOf(const VelProductAbstract& theProduct, const VelTarmPriceView& theView)
{
    std::set<int> levels{0};
    if (dynamic_cast<const VelProductAddOn*>(&theProduct))
        for (const VelTarmPriceBand& band : theView.bands(DISCOUNT_MODEL_INHERITED_DISCOUNT))
            levels.insert(band.discountLevel());
    return levels;
}

} // namespace

QVector<VelExplainedNeed> needsOf(const VelProductAbstract& theProduct, const VelPriceQuestion& theQuestion)
{
    QVector<VelExplainedNeed> needs;
    VelPriceQuestion question = theQuestion;
    for (const VelOrderSource& source : VelTarmPriceView(theProduct, theQuestion.mySource).pricedOrderSources()) {
        if (!source.isValid()) // such as a kiosk that sends by mail: entries may name it, but nobody can order so
            continue;
        const VelTarmPriceView view(theProduct, source);
        std::optional<int> smallest;
        for (const int level : levelsOf(theProduct, view)) {
            question.myInheritedLevel = level;
            const std::optional<int> quantity = smallestQuantity(view, question);
            if (!quantity || (smallest && *quantity >= *smallest))
                continue;
            needs.append({source, *quantity, level});
            smallest = quantity;
        }
    }
    return needs;
}
