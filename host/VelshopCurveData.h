#ifndef VELSHOPCURVEDATA_H
#define VELSHOPCURVEDATA_H

#include "insight/VelPriceCurve.h"

#include <QJsonObject>

class VelProductAbstract;

/// A curve with all that belongs to it, ready to be shown.
struct VelshopCurveSheet
{
    const VelProductAbstract* myProduct;
    VelOrderSource mySource;
    VelPriceCurve::Range myRange;
    VelPriceCurve myCurve;
    QVector<VelPriceDip> myDips;

    bool isBySum() const { return myRange.myVariable == VelPriceCurve::BY_SUM; }
};

/// The curve of a product as the desk sells it, whatever the reading of the range.
VelshopCurveSheet makeCurveSheet(const VelProductAbstract* theProduct, const VelOrderSource& theSource,
                                 VelPriceCurve::Range theRange);

/// As `velshop curve --json` prints it, the pieces as wanted.
QJsonObject curveData(const VelshopCurveSheet& theSheet, bool theWithPieces);

#endif
