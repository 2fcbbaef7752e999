#ifndef VELPRICECURVEPIECE_H
#define VELPRICECURVEPIECE_H

#include "frame/VelEnumerations.h"

#include <QtGlobal>

/// A run of neighbouring quantities that one rule prices: one discount model, one level, one package.
struct VelPriceCurvePiece
{
    int myFrom;               ///< the first quantity, or the first sum in cents
    int myTo;                 ///< the last one, included
    int myFirst;              ///< total of the first quantity, in cents
    int myPerPiece;           ///< cents that one more piece costs; 0 inside a package, and for a fee
    VelDiscountModel myModel; ///< the model that is taken
    int myLevel;              ///< that of the last line of a bill, 0 for an amount without a line

    /// The total of a quantity of the piece, in cents; beyond the piece that of a piece that goes on.
    qint64 total(qint64 theQuantity) const
    {
        return myFirst + (theQuantity - myFrom) * static_cast<qint64>(myPerPiece);
    }

    /// The total of the last quantity, in cents.
    int last() const { return static_cast<int>(total(myTo)); }

    /// Whether the other one goes on behind this one as if nothing were between them.
    bool isContinuedBy(const VelPriceCurvePiece& theNext) const
    {
        return theNext.myFrom - 1 == myTo && theNext.myModel == myModel && theNext.myLevel == myLevel &&
               theNext.myPerPiece == myPerPiece && theNext.myFirst == total(theNext.myFrom);
    }
};

Q_DECLARE_TYPEINFO(VelPriceCurvePiece, Q_MOVABLE_TYPE);

#endif
