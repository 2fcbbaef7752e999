#ifndef VELSHOPCOMPLETION_H
#define VELSHOPCOMPLETION_H

#include <QString>

/// What bash needs to complete commands, options, their words and files, made from the tables of commands and options.
QString bashCompletion();

#endif
