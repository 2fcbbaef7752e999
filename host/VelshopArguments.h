#ifndef VELSHOPARGUMENTS_H
#define VELSHOPARGUMENTS_H

#include <QString>

/// What every command may be asked for; a command with arguments of its own derives from it.
struct VelshopArguments
{
    QString myAccount;                         ///< folder of the key account
    QString myLanguage = QStringLiteral("de"); ///< of the customer texts, "de" or "en"
    bool myIsJson = false;
};

#endif
