#ifndef VELSHOPSCHEMA_H
#define VELSHOPSCHEMA_H

#include "host/VelshopArguments.h"

class QTextStream;
class VelshopCommandLine;
class VelshopError;

/// Arguments of `velshop schema`.
struct VelshopSchemaArguments : VelshopArguments
{
    QString myFolder;
};

bool readSchemaArguments(const VelshopCommandLine& theLine, VelshopSchemaArguments& theArguments,
                         VelshopError& theError);

/// Writes the schemas of all documents into the folder, which is made if it isn't there, and prints their names. The
/// exit code; for any but 0 the error.
int writeSchemas(const VelshopSchemaArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

#endif
