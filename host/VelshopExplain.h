#ifndef VELSHOPEXPLAIN_H
#define VELSHOPEXPLAIN_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"
#include "host/VelshopSourceChoice.h"

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop explain`.
struct VelshopExplainArguments : VelshopArguments
{
    int myArticle = 0;
    int myCount = 0;
    VelshopSourceChoice mySource;
    int myLevel = 0; ///< that an add-on inherits
    bool myIsAll = false;
};

bool readExplainArguments(const VelshopCommandLine& theLine, VelshopExplainArguments& theArguments,
                          VelshopError& theError);

/// Prints why so many pieces of an article cost what they do. The exit code; for any but 0 the error in one line.
int explain(const VelshopExplainArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
