#ifndef VELSHOPBANDS_H
#define VELSHOPBANDS_H

#include <QString>

struct VelshopArguments;
class QTextStream;

/// Prints the discount bands of a shipping group, and what each of its products costs in each band, under the shop's
/// starting choice. The exit code; for any but 0 the error in one line.
int showBands(const VelshopArguments& theArguments, QTextStream& theOutput, QString& theError);

#endif
