#ifndef VELSHOPREPORT_H
#define VELSHOPREPORT_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop report`.
struct VelshopReportArguments : VelshopArguments
{
    QString myHtmlFile;
};

bool readReportArguments(const VelshopCommandLine& theLine, VelshopReportArguments& theArguments,
                         VelshopError& theError);

/// Writes one page on the whole shop. The exit code; for any but 0 the error in one line.
int reportShop(const VelshopReportArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
