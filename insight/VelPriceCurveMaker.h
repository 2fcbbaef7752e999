#ifndef VELPRICECURVEMAKER_H
#define VELPRICECURVEMAKER_H

#include "insight/VelPriceCurve.h"
#include "price/VelTarmPriceView.h"

#include <QVarLengthArray>

/**
 * Draws one curve. Between two neighbouring limits of bands each model's amount is a straight line over the quantity:
 * what it answers at the first one, and so much for each further one. Where two such lines cross, where one is exactly
 * -1 (no price) and where one leaves 32 bits, a new stretch begins; in a stretch one answer speaks for all.
 */
class VelPriceCurveMaker
{
public:
    VelPriceCurveMaker(const VelTarmPriceView& theView, const VelPriceCurve::Range& theRange, VelPriceCurve& theCurve);

    void make();

private:
    /// The amount of a model over a stretch, as if no word had an end.
    struct Line
    {
        bool myWinsAtOnce;
        qint64 myFirst; ///< at the first quantity of the stretch
        qint64 mySlope;
    };
    using Quantities = QVarLengthArray<qint64, 64>;
    using Lines = QVarLengthArray<Line, 8>;

    bool isExpressFee() const { return myRange.myModel == DISCOUNT_MODEL_EXPRESS_FEE; }
    void addLimits(Quantities& theBegins) const;
    void drawBetweenLimits(qint64 theFrom, qint64 theTo);
    Lines linesAt(qint64 theQuantity) const;
    bool drawStretch(qint64 theFrom, qint64 theTo, const Lines& theLines, qint64 theOrigin);
    bool fits(qint64 theQuantity, const Lines& theLines, qint64 theOrigin) const;
    VelTarmPriceAnswer best(qint64 theQuantity) const;
    VelTarmPriceAnswer inModel(VelDiscountModel theModel, qint64 theQuantity) const;
    int slopeOf(const VelTarmPriceAnswer& theAnswer) const;
    void append(const VelPriceCurvePiece& thePiece);

    const VelTarmPriceView& myView;
    const VelPriceCurve::Range& myRange;
    VelPriceCurve& myCurve;
    QVarLengthArray<VelDiscountModel, 8> myModels;
    qint64 myEnd;
};

#endif
