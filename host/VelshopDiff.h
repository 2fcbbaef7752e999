#ifndef VELSHOPDIFF_H
#define VELSHOPDIFF_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"

#include <QStringList>

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop diff`.
struct VelshopDiffArguments : VelshopArguments
{
    QString myOld; ///< folder of an account, or a price list beside the other documents of the account
    QString myNew;
    QStringList myCarts;
    QString myHtmlFile; ///< empty for none
};

bool readDiffArguments(const VelshopCommandLine& theLine, VelshopDiffArguments& theArguments, VelshopError& theError);

/// Prints what changed from the one shop to the other. The exit code: 0 nothing, 1 something, 2 with the error for a
/// document that can't be read.
int compareShops(const VelshopDiffArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
