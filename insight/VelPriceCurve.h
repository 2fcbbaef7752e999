#ifndef VELPRICECURVE_H
#define VELPRICECURVE_H

#include "frame/VelOrderSource.h"
#include "insight/VelInsightExport.h"
#include "insight/VelPriceCurvePiece.h"
#include "insight/VelPriceDip.h"

#include <QList>
#include <QVector>

#include <utility>

class VelProductAbstract;
class VelTarmPriceView;

/**
 * The exact total of every quantity of a product by one order source, as runs of quantities between which another rule
 * takes over. It looks where bands, packages and models meet and asks the rules that price there; no quantity in
 * between is asked.
 *
 *     const VelPriceCurve curve(*product, VelOrderSource::onlineMailOrder());
 *     for (const VelPriceCurvePiece& piece : curve.pieces())
 *         qDebug() << piece.myFrom << piece.myTo << piece.myFirst << piece.myPerPiece;
 *
 * A value: it stays as it is when the price list is read again. The pieces of one that nobody keeps come by value, so
 * that a loop may run over them.
 */
class VELINSIGHT_EXPORT VelPriceCurve
{
public:
    /// What runs along the curve.
    enum Variable {
        BY_QUANTITY, ///< pieces, at a bill sum of 1 cent
        BY_SUM       ///< the bill sum in cents, at a count of 1: shipping by bill sum
    };

    /// Which quantities have a price.
    enum Reading {
        AS_PRICED, ///< all but those that VelProductAbstract::priceFor answers -1 for
        AS_SOLD    ///< without those, either, that have a line of a price below 0, or a package of less than one piece
    };

    /// The highest quantity that a curve goes to; sums go as far as 32 bits hold.
    static constexpr int HIGHEST_QUANTITY = 100000;

    /// What a curve is asked for.
    struct Range
    {
        int myFrom = 1;              ///< at least 1
        int myTo = HIGHEST_QUANTITY; ///< a curve by quantity ends at HIGHEST_QUANTITY at the latest
        int myInheritedLevel = 0;    ///< the level of the main product that an add-on inherits
        /// That of the price key: DISCOUNT_MODEL_EXPRESS_FEE, as a bill asks for the fee of an express, wants exactly
        /// that model; with any other the models compete.
        VelDiscountModel myModel = DISCOUNT_MODEL_UNDEFINED;
        Variable myVariable = BY_QUANTITY; ///< what the curve goes along
        Reading myReading = AS_PRICED;     ///< what it tells
    };

    /// The curve of an article, an add-on or a fee. Shipping that is charged by the products of an order has no curve:
    /// it has no pieces, and isByProducts() is true.
    VelPriceCurve(const VelProductAbstract& theProduct, const VelOrderSource& theSource, const Range& theRange);

    /// The whole curve by quantity, as priced.
    VelPriceCurve(const VelProductAbstract& theProduct, const VelOrderSource& theSource);

    /// The curves by several order sources, in their order. Those under which the same entries stand are drawn once.
    static QVector<VelPriceCurve> bySources(const VelProductAbstract& theProduct,
                                            const QList<VelOrderSource>& theSources, const Range& theRange);

    /// By rising quantity; neighbours can't be merged. Quantities without a price stand in none.
    const QVector<VelPriceCurvePiece>& pieces() const& { return myPieces; }
    QVector<VelPriceCurvePiece> pieces() && { return std::move(myPieces); }

    /// The quantities beyond which a larger one of the curve is cheaper, by rising quantity.
    QVector<VelPriceDip> dips() const;

    /// Whether an amount would no longer fit into 32 bits within the range. The curve ends with endsAt(), the last
    /// quantity for which all amounts fit; that is one less than the range's begin where none does.
    bool endsEarly() const { return myEndsEarly; }
    int endsAt() const { return myEndsAt; }

    /// Whether the product is a shipping that the products of an order are charged for.
    bool isByProducts() const { return myIsByProducts; }

    /// The piece that a quantity stands in; null for one without a price or out of the range.
    const VelPriceCurvePiece* pieceOf(int theQuantity) const;

    /// The total of a quantity in cents. Look at pieceOf() first where prices below 0 are: -1 stands for none here.
    int total(int theQuantity) const;

    /// How many pieces more it takes to where another piece begins, 0 when none comes.
    int stepsToNext(int theQuantity) const;

    /// Ten beyond the start of the last band by that order source, and at least 100: a range that shows all bands.
    static int telling(const VelProductAbstract& theProduct, const VelOrderSource& theSource, Variable theVariable);

private:
    friend class VelPriceCurveMaker;

    VelPriceCurve(const VelTarmPriceView& theView, const Range& theRange);

    QVector<VelPriceCurvePiece> myPieces;
    bool myEndsEarly = false;
    int myEndsAt;
    bool myIsByProducts = false;
};

#endif
