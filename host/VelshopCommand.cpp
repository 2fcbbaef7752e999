#include "host/VelshopCommand.h"

#include "host/VelshopOptions.h"

namespace {

QString countText(int theLeast, int theMost)
{
    if (theMost == std::numeric_limits<int>::max())
        return QStringLiteral("at least %1").arg(theLeast);
    return theLeast == theMost ? QString::number(theMost) : QStringLiteral("%1 to %2").arg(theLeast).arg(theMost);
}

bool hasEnoughWords(const VelshopCommand& theCommand, int theWords, VelshopError& theError)
{
    const int least = theCommand.leastWords();
    const int most = theCommand.mostWords();
    if (theWords >= least && theWords <= most)
        return true;
    const bool isOne = (most == std::numeric_limits<int>::max() ? least : most) == 1;
    theError = QStringLiteral("%1 takes %2 %3 behind its name, not %4; see velshop %1 --help")
                   .arg(QLatin1String(theCommand.myName), countText(least, most),
                        isOne ? QStringLiteral("argument") : QStringLiteral("arguments"), QString::number(theWords));
    return false;
}

bool isRepeatable(const QString& theWord)
{
    return theWord.contains(QLatin1String("..."));
}

bool isOptional(const QString& theWord)
{
    return theWord.startsWith(QLatin1Char('['));
}

} // namespace

VelshopReader justRun(int (*theRun)(const VelshopArguments&, QTextStream&, VelshopError&))
{
    return readAndRun<VelshopArguments>(
        [](const VelshopCommandLine&, VelshopArguments&, VelshopError&) { return true; }, theRun);
}

QStringList VelshopCommand::words() const
{
    return QString::fromLatin1(myWords).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QStringList VelshopCommand::options() const
{
    return myNeededOptions + myOptions + mySharedOptions + QStringList{VelshopOptions::STR_HELP};
}

int VelshopCommand::leastWords() const
{
    int count = 0;
    for (const QString& word : words())
        count += isOptional(word) ? 0 : 1;
    return count;
}

int VelshopCommand::mostWords() const
{
    for (const QString& word : words())
        if (isRepeatable(word))
            return std::numeric_limits<int>::max();
    return words().size();
}

QStringList VelshopCommand::usage() const
{
    QStringList parts{QStringLiteral("velshop"), QLatin1String(myName)};
    parts += words();
    for (const QString& name : myNeededOptions)
        parts += VelshopOptions::usage(VelshopOptions::option(name));
    for (const QString& name : myOptions) {
        const VelshopOption& option = VelshopOptions::option(name);
        parts += QStringLiteral("[%1]").arg(VelshopOptions::usage(option));
        if (option.myIsRepeatable)
            parts.last() += QStringLiteral("...");
    }
    return parts;
}

/// An option that the command would ignore is an error, not a wish.
bool VelshopCommand::accepts(const VelshopCommandLine& theLine, VelshopError& theError) const
{
    const QStringList own = options();
    for (const VelshopOption& option : VelshopOptions::all())
        if (theLine.isSet(option.myName) && !own.contains(option.myName))
            theError = QStringLiteral("--%1 does not belong to %2").arg(option.myName, QLatin1String(myName));
    if (!theError.isEmpty() || !hasEnoughWords(*this, theLine.words().size(), theError))
        return false;
    for (const QString& name : myNeededOptions)
        if (!theLine.isSet(name))
            theError = QStringLiteral("%1 needs --%2").arg(QLatin1String(myName), name);
    return theError.isEmpty();
}
