#ifndef VELSHOPCURVETEXT_H
#define VELSHOPCURVETEXT_H

#include "host/VelshopCurveData.h"

#include <QList>

class QTextStream;

/// A curve as text for a terminal of 80 columns.
namespace VelshopCurveText {

/// As "131 Fotopaket 10x15 by NET, MAIL".
QString head(const VelshopCurveSheet& theSheet);

/// As "50 pieces cost 0,10 € less than these 48"; null where no larger quantity costs less. The curve is that of
/// the product, as the desk sells it.
QString advice(const VelPriceCurve& theCurve, int theCount);

/// The pieces, a plot of the totals, and the dips.
void print(const VelshopCurveSheet& theSheet, QTextStream& theOutput);

/// The dips of all curves that have any.
void printDips(const QList<VelshopCurveSheet>& theSheets, QTextStream& theOutput);

} // namespace VelshopCurveText

#endif
