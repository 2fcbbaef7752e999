#ifndef VELSHOPPRICE_H
#define VELSHOPPRICE_H

#include "frame/VelEnumerations.h"
#include "host/VelshopArguments.h"
#include "host/VelshopError.h"
#include "host/VelshopSourceChoice.h"

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop price`.
struct VelshopPriceArguments : VelshopArguments
{
    int myArticle = 0;
    int myCount = 0;
    VelshopSourceChoice mySource;
};

bool readPriceArguments(const VelshopCommandLine& theLine, VelshopPriceArguments& theArguments, VelshopError& theError);

/// Prints what so many pieces of an article cost. The exit code; for any but 0 the error in one line.
int priceArticle(const VelshopPriceArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
