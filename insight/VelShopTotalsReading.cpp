#include "insight/VelShopReading.h"

#include "price/VelTarmPriceBand.h"
#include "price/VelTarmPriceView.h"

#include <algorithm>
#include <limits>

namespace {

/// Runs along one straight line are one, whichever model or level they come from.
QVector<VelTotalsRun> runsOf(const VelPriceCurve& theCurve)
{
    QVector<VelTotalsRun> runs;
    for (const VelPriceCurvePiece& piece : theCurve.pieces()) {
        const bool goesOn = !runs.isEmpty() && runs.last().myTo + 1 == piece.myFrom &&
                            runs.last().myPerPiece == piece.myPerPiece &&
                            runs.last().total(piece.myFrom) == piece.myFirst;
        if (goesOn)
            runs.last().myTo = piece.myTo;
        else
            runs.append({piece.myFrom, piece.myTo, piece.myFirst, piece.myPerPiece});
    }
    return runs;
}

QVector<int> inheritedLevels(const VelTarmPriceView& theView)
{
    QVector<int> levels;
    for (const VelTarmPriceBand& band : theView.bands(DISCOUNT_MODEL_INHERITED_DISCOUNT))
        if (band.discountLevel() > 0)
            levels.append(band.discountLevel());
    return levels;
}

class TotalsReader
{
public:
    TotalsReader(const VelProductAbstract& theProduct, VelDiscountModel theKeyModel) : myProduct(theProduct)
    {
        myRange.myModel = theKeyModel;
        myRange.myReading = VelPriceCurve::AS_SOLD;
    }

    QVector<VelShopTotals> read()
    {
        const QList<VelOrderSource>& sources = VelShopReading::orderSources();
        const QVector<VelPriceCurve> curves = VelPriceCurve::bySources(myProduct, sources, myRange);
        for (int index = 0; index < sources.size(); ++index)
            addSource(sources.at(index), curves.at(index));
        return myTotals;
    }

private:
    void addSource(const VelOrderSource& theSource, const VelPriceCurve& theCurve)
    {
        const VelTarmPriceView view(myProduct, theSource);
        if (!theCurve.pieces().isEmpty())
            add(theSource, VelPriceCurve::BY_QUANTITY, 0, theCurve);
        for (const int level : inheritedLevels(view))
            addLevel(theSource, level);
        if (!view.bands(DISCOUNT_MODEL_BILLING_SUM_TRANSFER).isEmpty())
            addSums(theSource);
    }

    void add(const VelOrderSource& theSource, VelPriceCurve::Variable theVariable, int theLevel,
             const VelPriceCurve& theCurve)
    {
        myTotals.append({theSource, theVariable, theLevel, runsOf(theCurve)});
    }

    void addLevel(const VelOrderSource& theSource, int theLevel)
    {
        VelPriceCurve::Range range = myRange;
        range.myInheritedLevel = theLevel;
        add(theSource, VelPriceCurve::BY_QUANTITY, theLevel, VelPriceCurve(myProduct, theSource, range));
    }

    void addSums(const VelOrderSource& theSource)
    {
        VelPriceCurve::Range range = myRange;
        range.myVariable = VelPriceCurve::BY_SUM;
        range.myTo = std::numeric_limits<int>::max();
        add(theSource, VelPriceCurve::BY_SUM, 0, VelPriceCurve(myProduct, theSource, range));
    }

    const VelProductAbstract& myProduct;
    VelPriceCurve::Range myRange;
    QVector<VelShopTotals> myTotals;
};

} // namespace

QVector<VelShopTotals> VelShopReading::totals(const VelProductAbstract& theProduct, VelDiscountModel theKeyModel)
{
    return TotalsReader(theProduct, theKeyModel).read();
}
