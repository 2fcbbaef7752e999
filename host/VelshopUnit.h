#ifndef VELSHOPUNIT_H
#define VELSHOPUNIT_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"
#include "host/VelshopParts.h"

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop unit`.
struct VelshopUnitArguments : VelshopArguments
{
    int myArticle = 0;
    VelshopParts myParts;
};

bool readUnitArguments(const VelshopCommandLine& theLine, VelshopUnitArguments& theArguments, VelshopError& theError);

/// Prints the unit price of a composed book or calendar, part by part, under the shop's starting choice. What a cart
/// can't hold is refused in the same words. The exit code;
/// for any but 0 the error in one line.
int priceUnit(const VelshopUnitArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
