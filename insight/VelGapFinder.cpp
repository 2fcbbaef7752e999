#include "insight/VelGapFinder.h"

#include "price/VelTarmPriceView.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductRegistry.h"

#include <algorithm>

namespace {

using Cell = VelPriceGaps::Cell;
using Range = VelPriceCurve::Range;

Cell pricedCell(const VelPriceCurve& theCurve)
{
    const QVector<VelPriceCurvePiece>& pieces = theCurve.pieces();
    Cell cell;
    cell.myFrom = pieces.first().myFrom;
    for (int index = 1; index < pieces.size(); ++index)
        if (pieces.at(index).myFrom > pieces.at(index - 1).myTo + 1)
            cell.myHoles.append({pieces.at(index - 1).myTo + 1, pieces.at(index).myFrom - 1});
    if (pieces.last().myTo < theCurve.endsAt())
        cell.myUpTo = pieces.last().myTo;
    return cell;
}

bool isWithoutAmount(const VelTarmPriceBand& theBand)
{
    return theBand.price() == -1;
}

bool beginsBeyondRange(const VelTarmPriceBand& theBand)
{
    return theBand.value().lowerLimit() > VelPriceCurve::HIGHEST_QUANTITY;
}

bool allBands(const VelTarmPriceView& theView, bool (*theCondition)(const VelTarmPriceBand&))
{
    const VelTarmPriceBands bands = theView.bands();
    return std::all_of(bands.begin(), bands.end(), theCondition);
}

} // namespace

QVector<Cell> VelGapFinder::cellsOf(const VelProductAbstract& theProduct) const
{
    const Range range = wholeRange();
    const QVector<VelPriceCurve> curves = VelPriceCurve::bySources(theProduct, mySources, range);
    QVector<Cell> cells;
    cells.reserve(curves.size());
    for (int index = 0; index < curves.size(); ++index)
        cells.append(cellOf(curves.at(index), theProduct, mySources.at(index), range));
    return cells;
}

Cell VelGapFinder::cellOf(const VelProductAbstract& theProduct, const VelOrderSource& theSource, Range theRange) const
{
    theRange.myReading = myReading;
    return cellOf(VelPriceCurve(theProduct, theSource, theRange), theProduct, theSource, theRange);
}

Cell VelGapFinder::cellOf(const VelPriceCurve& theCurve, const VelProductAbstract& theProduct,
                          const VelOrderSource& theSource, const Range& theRange) const
{
    if (!theCurve.pieces().isEmpty())
        return pricedCell(theCurve);
    Cell cell;
    cell.myWhy = whyUnpriced(theCurve, theProduct, theSource, theRange);
    return cell;
}

VelPriceGaps::Why VelGapFinder::whyUnpriced(const VelPriceCurve& theCurve, const VelProductAbstract& theProduct,
                                            const VelOrderSource& theSource, Range theRange) const
{
    const VelTarmPriceView view(theProduct, theSource);
    if (view.bands().isEmpty())
        return view.pricedOrderSources().isEmpty() ? VelPriceGaps::WHY_NO_ENTRIES : VelPriceGaps::WHY_NO_ENTRY_HERE;
    if (isPricedWithMainProduct(theProduct, theSource, theRange))
        return VelPriceGaps::WHY_WITH_MAIN_PRODUCT;
    if (allBands(view, isWithoutAmount))
        return VelPriceGaps::WHY_NO_AMOUNT;
    if (allBands(view, beginsBeyondRange))
        return VelPriceGaps::WHY_BEYOND_RANGE;
    if (theCurve.endsEarly())
        return VelPriceGaps::WHY_TOO_LARGE;
    theRange.myReading = VelPriceCurve::AS_PRICED;
    return VelPriceCurve(theProduct, theSource, theRange).pieces().isEmpty() ? VelPriceGaps::WHY_OUT_OF_REACH
                                                                             : VelPriceGaps::WHY_REFUSED;
}

/// Whether some quantity of some main product hands down a level that the add-on is priced at.
bool VelGapFinder::isPricedWithMainProduct(const VelProductAbstract& theProduct, const VelOrderSource& theSource,
                                           Range theRange) const
{
    const auto* addOn = dynamic_cast<const VelProductAddOn*>(&theProduct);
    if (!addOn || VelTarmPriceView(theProduct, theSource).bands(DISCOUNT_MODEL_INHERITED_DISCOUNT).isEmpty())
        return false;
    QVector<int> levels;
    for (const int id : addOn->articleIDs()) {
        const VelProductAbstract* main = VelProductRegistry::instance()->productWithArticleID(id);
        if (main && !main->isDeprecated())
            addLevels(*main, theSource, levels);
    }
    return std::any_of(levels.cbegin(), levels.cend(), [&](int theLevel) {
        theRange.myInheritedLevel = theLevel;
        return !VelPriceCurve(theProduct, theSource, theRange).pieces().isEmpty();
    });
}

/// A bill hands down the level of the first line, which is that of the package where something goes beyond it.
void VelGapFinder::addLevels(const VelProductAbstract& theMainProduct, const VelOrderSource& theSource,
                             QVector<int>& theLevels) const
{
    const VelTarmPriceView view(theMainProduct, theSource);
    const VelPriceCurve curve(theMainProduct, theSource, wholeRange());
    for (const VelPriceCurvePiece& piece : curve.pieces()) {
        const VelTarmPriceAnswer answer = view.best(piece.myFrom);
        const int level = answer.myChargeCount > 0 ? answer.begin()->myLevel : 0;
        if (level > 0 && !theLevels.contains(level))
            theLevels.append(level);
    }
}

Range VelGapFinder::wholeRange() const
{
    Range range;
    range.myReading = myReading;
    return range;
}
