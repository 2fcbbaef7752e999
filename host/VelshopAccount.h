#ifndef VELSHOPACCOUNT_H
#define VELSHOPACCOUNT_H

#include "host/VelshopError.h"

#include <QStringList>

/// Makes the folder the key account and starts the library on it. False, with the error in one line that names file,
/// line and column, when one of its documents can't be read.
bool openAccount(const QString& theFolder, VelshopError& theError);

/// The same with another price list in place of that of the folder.
bool openAccountWith(const QString& thePriceList, const QString& theFolder, VelshopError& theError);

/// The shop's name for customers: `shop` in the order desk's own settings of the key account, the file velshop.json. It
/// stays as it is without the file. False, with the error, for a file of anything else.
bool readShopName(const QString& theFolder, QString& theName, VelshopError& theError);

/// The files that make up the key account, whether they are there or not.
QStringList accountDocuments(const QString& theFolder);

#endif
