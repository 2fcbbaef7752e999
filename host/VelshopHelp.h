#ifndef VELSHOPHELP_H
#define VELSHOPHELP_H

#include <QString>

struct VelshopCommand;

/// What `--help` prints, made from the tables of commands and options.
namespace VelshopHelp {

QString general();
QString of(const VelshopCommand& theCommand);

} // namespace VelshopHelp

#endif
