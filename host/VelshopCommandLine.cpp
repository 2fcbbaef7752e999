#include "host/VelshopCommandLine.h"

#include "host/VelshopOptions.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

namespace {

/// Stands for the dash of a number while the parser looks for options; no word of a command line can hold it.
const QChar DASH_OF_NUMBER = QChar::Null;

/// The sample shop of the installation that the program runs from, otherwise that of the source folder.
QString sampleAccount()
{
    const QDir installed(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/veltarm/shop"));
    return installed.exists() ? QDir::cleanPath(installed.path()) : QStringLiteral(VELSHOP_SAMPLE_ACCOUNT);
}

/// The parser would take a word like "-5" for an option.
QStringList withHiddenDashes(QStringList theWords)
{
    static const QRegularExpression number(QStringLiteral("^-\\d+$"));
    for (QString& word : theWords)
        if (number.match(word).hasMatch())
            word[0] = DASH_OF_NUMBER;
    return theWords;
}

QStringList withDashes(QStringList theWords)
{
    for (QString& word : theWords)
        if (word.startsWith(DASH_OF_NUMBER))
            word[0] = QLatin1Char('-');
    return theWords;
}

} // namespace

VelshopCommandLine::VelshopCommandLine()
{
    for (const VelshopOption& option : VelshopOptions::all()) {
        const QStringList names = option.myName == VelshopOptions::STR_HELP
                                      ? QStringList{QStringLiteral("h"), option.myName}
                                      : QStringList{option.myName};
        myParser.addOption({names, option.myDescription, option.myValue});
    }
}

QString VelshopCommandLine::value(const QString& theOption) const
{
    return values(theOption).isEmpty() ? QString() : values(theOption).last();
}

QStringList VelshopCommandLine::values(const QString& theOption) const
{
    return withDashes(myParser.values(theOption));
}

bool VelshopCommandLine::parse(const QStringList& theWords, VelshopError& theError)
{
    const bool isParsed = myParser.parse(withHiddenDashes(theWords));
    if (!isParsed)
        theError = myParser.errorText();
    myWords = withDashes(myParser.positionalArguments());
    return isParsed;
}

bool VelshopCommandLine::readShared(VelshopArguments& theArguments, VelshopError& theError) const
{
    theArguments.myIsJson = isSet(VelshopOptions::STR_JSON);
    if (isSet(VelshopOptions::STR_LANGUAGE))
        theArguments.myLanguage = value(VelshopOptions::STR_LANGUAGE);
    theArguments.myAccount = isSet(VelshopOptions::STR_ACCOUNT) ? value(VelshopOptions::STR_ACCOUNT) : sampleAccount();
    if (theArguments.myAccount.isEmpty())
        theError = QStringLiteral("--account names no folder");
    else if (theArguments.myLanguage != QLatin1String("de") && theArguments.myLanguage != QLatin1String("en"))
        theError = QStringLiteral("--language must be de or en, not \"%1\"").arg(theArguments.myLanguage);
    return theError.isEmpty();
}

bool VelshopCommandLine::readNumber(const QString& theText, const QString& theName, int theLowest, int& theNumber,
                                    VelshopError& theError)
{
    bool isNumber = false;
    theNumber = theText.toInt(&isNumber);
    if (isNumber && theNumber >= theLowest)
        return true;
    if (isNumber)
        theError = QStringLiteral("%1 must be %2 or more, not %3").arg(theName).arg(theLowest).arg(theNumber);
    else
        theError = QStringLiteral("%1 must be a whole number from %2 to %3, not \"%4\"")
                       .arg(theName)
                       .arg(theLowest)
                       .arg(std::numeric_limits<int>::max())
                       .arg(theText);
    return false;
}

bool VelshopCommandLine::readNumberOption(const QString& theOption, int theLowest, int& theNumber,
                                          VelshopError& theError) const
{
    return !isSet(theOption) ||
           readNumber(value(theOption), QStringLiteral("--") + theOption, theLowest, theNumber, theError);
}

bool VelshopCommandLine::readFileOption(const QString& theOption, QString& theFile, VelshopError& theError) const
{
    theFile = value(theOption);
    if (isSet(theOption) && theFile.isEmpty())
        theError = QStringLiteral("--%1 names no file").arg(theOption);
    return theError.isEmpty();
}
