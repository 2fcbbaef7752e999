#ifndef VELSHOPCOMMANDS_H
#define VELSHOPCOMMANDS_H

#include "host/VelshopCommand.h"

#include <QVector>

namespace VelshopCommands {

/// All commands, in the order in which help lists them.
const QVector<VelshopCommand>& all();

/// The command of a name; null when there is none.
const VelshopCommand* find(const QString& theName);

} // namespace VelshopCommands

#endif
