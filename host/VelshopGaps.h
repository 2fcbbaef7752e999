#ifndef VELSHOPGAPS_H
#define VELSHOPGAPS_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"

#include <optional>

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop gaps`.
struct VelshopGapsArguments : VelshopArguments
{
    std::optional<int> myGroup; ///< shipping group to show alone
    QString myHtmlFile;         ///< page to write, empty for none
};

bool readGapsArguments(const VelshopCommandLine& theLine, VelshopGapsArguments& theArguments, VelshopError& theError);

/// Prints every article and fee by every order source. The exit code; for any but 0 the error in one line.
int showGaps(const VelshopGapsArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
