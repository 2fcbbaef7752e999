#ifndef VELSHOPCOMMAND_H
#define VELSHOPCOMMAND_H

#include "host/VelshopCommandLine.h"
#include "host/VelshopError.h"

#include <functional>

class QTextStream;

/// A command whose arguments are read: prints its answer and gives the exit code; for any but 0 there is an error.
using VelshopRun = std::function<int(QTextStream& theOutput, VelshopError& theError)>;

/// Reads the arguments of a command; an empty function, with the error, when they can't be understood.
using VelshopReader = std::function<VelshopRun(const VelshopCommandLine& theLine, VelshopError& theError)>;

/// Whether the key account has to be open when a command runs, or the command opens by itself what it needs.
enum VelshopAccountUse { OPENS_ACCOUNT, OPENS_NO_ACCOUNT };

/// A command of velshop: one row of the table in VelshopCommands.cpp, from which the command line is read, and help,
/// manual and completion are made.
struct VelshopCommand
{
    const char* myName;
    const char* myWords;         ///< behind the name, as "ARTICLE [COUNT]"; "CART..." is one or more
    QStringList myNeededOptions; ///< that it can't do without
    QStringList myOptions;       ///< that belong to it, too
    QStringList mySharedOptions; ///< that mean the same in each command
    VelshopAccountUse myAccountUse;
    const char* mySummary;     ///< what it prints, in a few words
    const char* myDescription; ///< sentences, in paragraphs that end with a line
    const char* myExample;     ///< one call, as typed
    VelshopReader myReader;

    QStringList words() const;
    /// All that it takes, `--help` included.
    QStringList options() const;
    int leastWords() const;
    int mostWords() const;
    /// How it is called, in parts that stay together: "velshop", "bands", "GROUP".
    QStringList usage() const;
    /// Whether the line has as many words as the command takes, what it needs, and no option that it would ignore.
    bool accepts(const VelshopCommandLine& theLine, VelshopError& theError) const;
};

/// The reader of a command that takes arguments of its own, put together from a function that reads them behind the
/// shared ones, and one that runs with them.
template <typename Arguments>
VelshopReader readAndRun(bool (*theRead)(const VelshopCommandLine&, Arguments&, VelshopError&),
                         int (*theRun)(const Arguments&, QTextStream&, VelshopError&))
{
    return [=](const VelshopCommandLine& theLine, VelshopError& theError) -> VelshopRun {
        Arguments arguments;
        if (!theLine.readShared(arguments, theError) || !theRead(theLine, arguments, theError))
            return VelshopRun();
        return [=](QTextStream& theOutput, VelshopError& theRunError) {
            return theRun(arguments, theOutput, theRunError);
        };
    };
}

/// The reader of a command without arguments of its own.
VelshopReader justRun(int (*theRun)(const VelshopArguments&, QTextStream&, VelshopError&));

#endif
