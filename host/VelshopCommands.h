#ifndef VELSHOPCOMMANDS_H
#define VELSHOPCOMMANDS_H

#include "host/VelshopCommand.h"

#include <QVector>

namespace VelshopCommands {

/// All commands, in the order in which help lists them.
const QVector<VelshopCommand>& all();

/// The command of a name, or one that velshop starts itself with and that help doesn't list; null when there is none.
const VelshopCommand* find(const QString& theName);

/// What velshop is, in sentences.
QString description();

/// An exit code, and what it means for all commands.
struct ExitMeaning
{
    int myCode;
    const char* myText;
};
const QVector<ExitMeaning>& exitMeanings();

} // namespace VelshopCommands

#endif
