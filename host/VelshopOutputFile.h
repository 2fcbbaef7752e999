#ifndef VELSHOPOUTPUTFILE_H
#define VELSHOPOUTPUTFILE_H

#include "host/VelshopError.h"

#include <QStringList>

/// The files that a command writes beside its answer.
namespace VelshopOutputFile {

/// Whether the files can be written without taking anything away: none is a folder, one of the inputs, standard output,
/// or the same as another one, by whatever name or link. Empty names are none. "-" among the inputs is standard input.
bool areSafe(const QStringList& theFiles, const QStringList& theInputs, VelshopError& theError);

/// A regular file is replaced as a whole or stays as it was. To anything else, a device or a pipe, is written directly;
/// `/dev/stdout` and `/dev/fd/N` are the program's own streams, wherever they lead.
bool write(const QString& theFile, const QByteArray& theContent, VelshopError& theError);

} // namespace VelshopOutputFile

#endif
