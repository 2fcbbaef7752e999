#ifndef VELSHOPMESSAGES_H
#define VELSHOPMESSAGES_H

#include <QString>

/// The library's log messages, held back until it is known how the command ended: an error is told in one line.
namespace VelshopMessages {

/// From now on messages are kept in place of being written.
void holdBack();

/// Writes what is kept to stderr.
void write();

} // namespace VelshopMessages

#endif
