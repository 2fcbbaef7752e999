#ifndef VELSHOPGAPSTEXT_H
#define VELSHOPGAPSTEXT_H

class QTextStream;
struct VelshopGapsSheet;

/// Prints the map of gaps in 80 columns: a line for each article and each fee, then what the marks mean.
void printGaps(const VelshopGapsSheet& theSheet, QTextStream& theOutput);

#endif
