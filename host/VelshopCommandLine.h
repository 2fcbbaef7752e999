#ifndef VELSHOPCOMMANDLINE_H
#define VELSHOPCOMMANDLINE_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"

#include <QCommandLineParser>
#include <QMap>
#include <QStringList>

#include <limits>

/// The words and options of one call. A word that is a number below 0 is a word, not an option.
class VelshopCommandLine
{
public:
    static const int LOWEST_ID = std::numeric_limits<int>::min();

    VelshopCommandLine();

    /// False, with the error, for an option that no command has, or that lacks its value.
    bool parse(const QStringList& theWords, VelshopError& theError);

    /// Whether the options that every command shares are right.
    bool readShared(VelshopArguments& theArguments, VelshopError& theError) const;

    /// The command's name, null without one.
    QString command() const { return myWords.value(0); }
    /// The words behind the command's name.
    QStringList words() const { return myWords.mid(1); }

    bool isSet(const QString& theOption) const { return myParser.isSet(theOption); }
    /// The last value given, null without one.
    QString value(const QString& theOption) const;
    QStringList values(const QString& theOption) const;

    /// A number of the command line from the lowest one upward; the name is for the error.
    static bool readNumber(const QString& theText, const QString& theName, int theLowest, int& theNumber,
                           VelshopError& theError);
    /// The number that an option gives; it stays as it is without the option.
    bool readNumberOption(const QString& theOption, int theLowest, int& theNumber, VelshopError& theError) const;
    /// The file that an option names, empty without the option.
    bool readFileOption(const QString& theOption, QString& theFile, VelshopError& theError) const;

private:
    QCommandLineParser myParser;
    QStringList myWords;
};

#endif
