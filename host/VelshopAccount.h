#ifndef VELSHOPACCOUNT_H
#define VELSHOPACCOUNT_H

#include "host/VelshopError.h"

/// Makes the folder the key account and starts the library on it. False, with the error in one line that names file,
/// line and column, when one of its documents can't be read.
bool openAccount(const QString& theFolder, VelshopError& theError);

#endif
