#ifndef VELSHOPMANUAL_H
#define VELSHOPMANUAL_H

#include <QString>

/// The manual page, made from the tables of commands and options, as `man` formats it.
QString manualPage();

#endif
