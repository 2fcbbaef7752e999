#ifndef VELSHOPCURVE_H
#define VELSHOPCURVE_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"
#include "host/VelshopSourceChoice.h"

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop curve`.
struct VelshopCurveArguments : VelshopArguments
{
    int myArticle = 0;
    int myTo = 0; ///< 0 without a limit of its own
    int myLevel = 0;
    bool myIsBySum = false;
    bool myWantsDips = false; ///< the dips of the whole shop instead of the curve of an article
    bool myHasGroup = false;
    int myGroup = 0;
    VelshopSourceChoice mySource;
    QString mySvgFile; ///< picture to write, empty for none
};

bool readCurveArguments(const VelshopCommandLine& theLine, VelshopCurveArguments& theArguments, VelshopError& theError);

/// Prints the total of every quantity of an article, or all dips of the shop. The exit code; for any but 0 the error.
int drawCurve(const VelshopCurveArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
