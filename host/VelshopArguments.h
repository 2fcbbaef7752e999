#ifndef VELSHOPARGUMENTS_H
#define VELSHOPARGUMENTS_H

#include "frame/VelOrderSource.h"

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct VelshopArguments
{
    QString myCommand; ///< "list" or "price"
    QString myAccount; ///< folder of the key account
    bool myIsJson = false;

    bool myHasGroup = false;
    int myGroup = 0; ///< shipping group to list

    int myArticle = 0;
    int myCount = 0;
    VelOrderSource mySource = VelOrderSource::onlineMailOrder();
};

/// Reads the command line. False, with the error in one line, when it can't be understood. `--help` and `--version`
/// print and end the process.
bool readArguments(const QStringList& theCommandLine, VelshopArguments& theArguments, QString& theError);

#endif
