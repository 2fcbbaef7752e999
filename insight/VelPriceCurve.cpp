#include "insight/VelPriceCurve.h"

#include "insight/VelPriceCurveMaker.h"
#include "price/VelTarmPriceView.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

const int LEAST_TELLING = 100;
const int BEYOND_LAST_BAND = 10;

/// The cheapest of the quantities that were looked at, the smallest of equally cheap ones.
struct Cheapest
{
    qint64 myTotal = std::numeric_limits<int>::max(); // no total is higher
    int myQuantity = 0;

    void take(qint64 theTotal, int theQuantity)
    {
        if (theTotal > myTotal)
            return;
        myTotal = theTotal;
        myQuantity = theQuantity;
    }
};

/// Found from the right to the left: what is larger is known then.
class DipFinder
{
public:
    QVector<VelPriceDip> find(const QVector<VelPriceCurvePiece>& thePieces)
    {
        for (auto piece = thePieces.crbegin(); piece != thePieces.crend(); ++piece) {
            if (piece->myPerPiece >= 0)
                lookAtRising(*piece);
            else
                lookAtFalling(*piece);
        }
        std::reverse(myDips.begin(), myDips.end());
        return myDips;
    }

private:
    /// Within the piece nothing larger is cheaper.
    void lookAtRising(const VelPriceCurvePiece& thePiece)
    {
        addDip(thePiece.myFrom, thePiece.myTo, thePiece);
        myCheapest.take(thePiece.myFirst, thePiece.myFrom);
    }

    /// Its last quantity is the cheapest of the piece.
    void lookAtFalling(const VelPriceCurvePiece& thePiece)
    {
        addDip(thePiece.myTo, thePiece.myTo, thePiece);
        myCheapest.take(thePiece.last(), thePiece.myTo);
        addDip(thePiece.myFrom, thePiece.myTo - 1, thePiece);
    }

    /// The quantities of a piece from the one to the other that cost more than the cheapest larger one.
    void addDip(int theFrom, int theTo, const VelPriceCurvePiece& thePiece)
    {
        const qint64 cheapest = myCheapest.myTotal;
        const qint64 saves = qMax(thePiece.total(theFrom), thePiece.total(theTo)) - cheapest;
        if (theFrom > theTo || saves <= 0)
            return;
        int from = theFrom;
        if (thePiece.myPerPiece > 0 && thePiece.total(from) <= cheapest)
            from += static_cast<int>((cheapest - thePiece.total(from)) / thePiece.myPerPiece + 1);
        append({from, theTo, myCheapest.myQuantity, static_cast<int>(qMin<qint64>(saves, MOST))});
    }

    void append(const VelPriceDip& theDip)
    {
        if (myDips.isEmpty() || myDips.last().myBetter != theDip.myBetter || myDips.last().myFrom - 1 != theDip.myTo)
            return myDips.append(theDip);
        myDips.last().myFrom = theDip.myFrom;
        myDips.last().mySaves = qMax(myDips.last().mySaves, theDip.mySaves);
    }

    static constexpr int MOST = std::numeric_limits<int>::max();

    Cheapest myCheapest;
    QVector<VelPriceDip> myDips;
};

} // namespace

VelPriceCurve::VelPriceCurve(const VelTarmPriceView& theView, const Range& theRange) : myEndsAt(theRange.myTo)
{
    myIsByProducts = theView.transferModel() == TRANSFER_MODEL_2;
    if (!myIsByProducts)
        VelPriceCurveMaker(theView, theRange, *this).make();
}

VelPriceCurve::VelPriceCurve(const VelProductAbstract& theProduct, const VelOrderSource& theSource,
                             const Range& theRange)
    : VelPriceCurve(VelTarmPriceView(theProduct, theSource), theRange)
{
}

VelPriceCurve::VelPriceCurve(const VelProductAbstract& theProduct, const VelOrderSource& theSource)
    : VelPriceCurve(theProduct, theSource, Range())
{
}

QVector<VelPriceCurve> VelPriceCurve::bySources(const VelProductAbstract& theProduct,
                                                const QList<VelOrderSource>& theSources, const Range& theRange)
{
    QVector<VelPriceCurve> curves;
    curves.reserve(theSources.size());
    std::vector<VelTarmPriceView> views;
    for (const VelOrderSource& source : theSources) {
        const VelTarmPriceView view(theProduct, source);
        const auto same = std::find_if(views.cbegin(), views.cend(),
                                       [&](const VelTarmPriceView& theView) { return theView.hasSameBands(view); });
        curves.append(same == views.cend() ? VelPriceCurve(view, theRange)
                                           : VelPriceCurve(curves.at(static_cast<int>(same - views.cbegin()))));
        views.push_back(view);
    }
    return curves;
}

QVector<VelPriceDip> VelPriceCurve::dips() const
{
    return DipFinder().find(myPieces);
}

const VelPriceCurvePiece* VelPriceCurve::pieceOf(int theQuantity) const
{
    const auto piece =
        std::lower_bound(myPieces.cbegin(), myPieces.cend(), theQuantity,
                         [](const VelPriceCurvePiece& thePiece, int theWanted) { return thePiece.myTo < theWanted; });
    return piece == myPieces.cend() || piece->myFrom > theQuantity ? nullptr : &*piece;
}

int VelPriceCurve::total(int theQuantity) const
{
    const VelPriceCurvePiece* piece = pieceOf(theQuantity);
    return piece ? static_cast<int>(piece->total(theQuantity)) : -1;
}

int VelPriceCurve::stepsToNext(int theQuantity) const
{
    for (const VelPriceCurvePiece& piece : myPieces)
        if (piece.myFrom > theQuantity)
            return piece.myFrom - theQuantity;
    return 0;
}

int VelPriceCurve::telling(const VelProductAbstract& theProduct, const VelOrderSource& theSource, Variable theVariable)
{
    int last = 0;
    for (const VelTarmPriceBand& band : VelTarmPriceView(theProduct, theSource).bands())
        if ((band.discountModel() == DISCOUNT_MODEL_BILLING_SUM_TRANSFER) == (theVariable == BY_SUM))
            last = qMax(last, band.value().lowerLimit());
    const int highest = theVariable == BY_SUM ? std::numeric_limits<int>::max() : HIGHEST_QUANTITY;
    return qBound(LEAST_TELLING, qMin(last, highest - BEYOND_LAST_BAND) + BEYOND_LAST_BAND, highest);
}
