#ifndef VELSHOPTOTALS_H
#define VELSHOPTOTALS_H

#include "frame/VelOrderSource.h"
#include "insight/VelPriceCurve.h"

#include <QVector>

/// Neighbouring quantities whose totals lie on a straight line.
struct VelTotalsRun
{
    int myFrom;     ///< the first quantity, or the first bill sum in cents
    int myTo;       ///< the last one, included
    int myFirst;    ///< total of the first one, in cents
    int myPerPiece; ///< cents that each further one adds

    /// The total of a quantity, in cents; beyond the run that of a run that goes on.
    qint64 total(qint64 theQuantity) const
    {
        return myFirst + (theQuantity - myFrom) * static_cast<qint64>(myPerPiece);
    }
    bool operator==(const VelTotalsRun& theOther) const
    {
        return myFrom == theOther.myFrom && myTo == theOther.myTo && myFirst == theOther.myFirst &&
               myPerPiece == theOther.myPerPiece;
    }
};

Q_DECLARE_TYPEINFO(VelTotalsRun, Q_PRIMITIVE_TYPE);

/// What an article or a fee comes to by one order source.
struct VelShopTotals
{
    VelOrderSource mySource = VelOrderSource::onlineMailOrder();     ///< by which is ordered
    VelPriceCurve::Variable myVariable = VelPriceCurve::BY_QUANTITY; ///< what runs along
    int myLevel = 0;              ///< the level of the main product that an add-on inherits
    QVector<VelTotalsRun> myRuns; ///< by rising quantity; those without a price stand in none

    /// Whether they are those of that order source and variable.
    bool isOf(const VelOrderSource& theSource, VelPriceCurve::Variable theVariable) const
    {
        return mySource == theSource && myVariable == theVariable;
    }
};

/// Neighbouring quantities whose total differs, where both sides are straight.
struct VelTotalsInterval
{
    /// A straight line; none where the quantities have no price.
    struct Line
    {
        bool myHasPrice = false; ///< whether there is one
        int myFirst = 0;         ///< total of the interval's first quantity, in cents
        int myPerPiece = 0;      ///< cents that each further one adds
    };

    int myFrom; ///< the first quantity, or the first bill sum in cents
    int myTo;   ///< the last one, included
    Line myOld; ///< before
    Line myNew; ///< now
};

/// The changed totals by one order source.
struct VelTotalsChange
{
    VelOrderSource mySource = VelOrderSource::onlineMailOrder();     ///< by which is ordered
    VelPriceCurve::Variable myVariable = VelPriceCurve::BY_QUANTITY; ///< what runs along
    int myLevel = 0;                        ///< the level of the main product that an add-on inherits
    QVector<VelTotalsInterval> myIntervals; ///< by rising quantity
};

#endif
