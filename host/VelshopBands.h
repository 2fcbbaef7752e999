#ifndef VELSHOPBANDS_H
#define VELSHOPBANDS_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"
#include "host/VelshopSourceChoice.h"

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop bands`.
struct VelshopBandsArguments : VelshopArguments
{
    int myGroup = 0; ///< shipping group whose bands are shown
    VelshopSourceChoice mySource;
};

bool readBandsArguments(const VelshopCommandLine& theLine, VelshopBandsArguments& theArguments, VelshopError& theError);

/// Prints the discount bands of a shipping group, and what each of its products costs in each band, by the chosen order
/// source; then the bands of the fees that its orders may be charged. The exit code; for any but 0 the error in one
/// line.
int showBands(const VelshopBandsArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
