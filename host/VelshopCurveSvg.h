#ifndef VELSHOPCURVESVG_H
#define VELSHOPCURVESVG_H

#include "host/VelshopCurveData.h"

#include <QByteArray>

class QXmlStreamWriter;

/// A curve as a picture, readable on light and dark ground.
namespace VelshopCurveSvg {

/// A whole SVG document: totals above, prices per piece below, with shaded bands and marked dips. Of a curve by sum the
/// totals alone.
QByteArray picture(const VelshopCurveSheet& theSheet);

/// The totals alone, as a small picture within a page: an element `svg` of the class `spark`, which the page's style
/// gives its colour.
void writeSmall(const VelPriceCurve& theCurve, int theFrom, int theTo, QXmlStreamWriter& theWriter);

} // namespace VelshopCurveSvg

#endif
