#ifndef VELSHOPCURVETEXT_H
#define VELSHOPCURVETEXT_H

#include "host/VelshopCurveData.h"

#include <QList>

class QTextStream;

/// A curve as text for a terminal of 80 columns.
namespace VelshopCurveText {

/// As "131 Fotopaket 10x15 by NET, MAIL".
QString head(const VelshopCurveSheet& theSheet);

/// The pieces, a plot of the totals, and the dips.
void print(const VelshopCurveSheet& theSheet, QTextStream& theOutput);

/// The dips of all curves that have any.
void printDips(const QList<VelshopCurveSheet>& theSheets, QTextStream& theOutput);

} // namespace VelshopCurveText

#endif
