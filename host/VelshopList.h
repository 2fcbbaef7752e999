#ifndef VELSHOPLIST_H
#define VELSHOPLIST_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"
#include "host/VelshopSourceChoice.h"

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop list`.
struct VelshopListArguments : VelshopArguments
{
    bool myHasGroup = false;
    int myGroup = 0; ///< shipping group to list
    VelshopSourceChoice mySource;
};

bool readListArguments(const VelshopCommandLine& theLine, VelshopListArguments& theArguments, VelshopError& theError);

/// Prints the articles of the price list, sorted by shipping group and then as the price list has them: whether each
/// can be ordered at all, and in any number by the chosen order source. The exit code; for any but 0 the error in
/// one line.
int listArticles(const VelshopListArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
