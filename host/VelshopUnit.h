#ifndef VELSHOPUNIT_H
#define VELSHOPUNIT_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"

#include <QMap>

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop unit`.
struct VelshopUnitArguments : VelshopArguments
{
    int myArticle = 0;
    int myPages = 0; ///< of a composed product
    int myMaps = 0;
    int myVideos = 0;
    QMap<QString, int> myTemplates; ///< uses by price class
};

bool readUnitArguments(const VelshopCommandLine& theLine, VelshopUnitArguments& theArguments, VelshopError& theError);

/// Prints the unit price of a composed book or calendar, part by part, under the shop's starting choice. The exit code;
/// for any but 0 the error in one line.
int priceUnit(const VelshopUnitArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
