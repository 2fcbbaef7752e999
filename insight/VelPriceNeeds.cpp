#include "insight/VelPriceNeeds.h"

#include "product/VelProductAddOn.h"

#include <limits>
#include <set>

namespace {

const int NO_QUANTITY = std::numeric_limits<int>::max();

/// Where the first quantity with a price can be. Between two thresholds every model is a line, and a line that is -1 at
/// its begin and behind it is -1 all along.
std::set<int> possibleQuantities(const VelTarmPriceView& theView)
{
    std::set<int> quantities{1, 2};
    for (const VelTarmPriceBand& band : theView.bands()) {
        const int limit = band.value().lowerLimit();
        if (limit > 0 && limit < NO_QUANTITY - 1)
            quantities.insert({limit, limit + 1});
    }
    return quantities;
}

int smallestQuantity(const VelTarmPriceView& theView, VelPriceQuestion theQuestion)
{
    for (const int quantity : possibleQuantities(theView)) {
        theQuestion.myCount = quantity;
        if (theQuestion.answer(theView).myPrice != -1)
            return quantity;
    }
    return NO_QUANTITY;
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
        int smallest = NO_QUANTITY;
        for (const int level : levelsOf(theProduct, view)) {
            question.myInheritedLevel = level;
            const int quantity = smallestQuantity(view, question);
            if (quantity < smallest)
                needs.append({source, quantity, level});
            smallest = qMin(smallest, quantity);
        }
    }
    return needs;
}
