#ifndef VELSHOPCURVESVG_H
#define VELSHOPCURVESVG_H

#include "host/VelshopCurveData.h"

#include <QByteArray>

/// A curve as a picture, readable on light and dark ground.
namespace VelshopCurveSvg {

/// A whole SVG document: totals above, prices per piece below, with shaded bands and marked dips. Of a curve by sum the
/// totals alone.
QByteArray picture(const VelshopCurveSheet& theSheet);

} // namespace VelshopCurveSvg

#endif
