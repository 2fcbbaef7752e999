#include "host/VelshopCompletion.h"

#include "host/VelshopCommands.h"
#include "host/VelshopOptions.h"

#include <QMap>

namespace {

/// A word like "--account=shop" comes in three. The command is the first word that is neither an option nor the value
/// of one.
const char HEAD[] = R"(# bash completion for velshop, made by velshop --bash-completion
_velshop()
{
    local word=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD - 1]} command='' index
    local kind=none words=''
    [[ $word == = ]] && word=''
    [[ $option == = ]] && option=${COMP_WORDS[COMP_CWORD - 2]}
    for ((index = 1; index < COMP_CWORD && ${#command} == 0; index++)); do
        case ${COMP_WORDS[index]} in
        %1)
            ((index++))
            [[ ${COMP_WORDS[index]} == = ]] && ((index++))
            ;;
        -*) ;;
        *) command=${COMP_WORDS[index]} ;;
        esac
    done
)";

const char TAIL[] = R"(    COMPREPLY=()
    [[ $kind == words || $word == -* ]] && mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
    [[ $kind == file && $word != -* ]] && mapfile -t COMPREPLY < <(compgen -f -- "$word")
    [[ $kind == dir && $word != -* ]] && mapfile -t COMPREPLY < <(compgen -d -- "$word")
    [[ $kind == file || $kind == dir ]] && compopt -o filenames
    return 0
}
complete -F _velshop velshop
)";

const QString STR_FILE = QStringLiteral("file");
const QString STR_DIR = QStringLiteral("dir");
const QString STR_WORDS = QStringLiteral("words");
const QString STR_NONE = QStringLiteral("none");

/// What to offer for a word, by its name in the tables.
QString kindOf(const QString& theWord)
{
    for (const char* name : {"FILE", "CART", "OLD", "NEW"})
        if (theWord.contains(QLatin1String(name)))
            return STR_FILE;
    return theWord.contains(QLatin1String("DIR")) ? STR_DIR : STR_NONE;
}

QString dashed(const QString& theName)
{
    return QStringLiteral("--") + theName;
}

QString dashed(const QStringList& theNames)
{
    QStringList words;
    for (const QString& name : theNames)
        words.append(dashed(name));
    return words.join(QLatin1Char(' '));
}

QString caseOf(const QString& thePattern, const QString& theKind, const QString& theWords = QString())
{
    const QString words = theWords.isEmpty() ? QString() : QStringLiteral(" words='%1'").arg(theWords);
    return QStringLiteral("    %1) kind=%2%3 ;;\n").arg(thePattern, theKind, words);
}

QString caseOf(const VelshopOption& theOption)
{
    const QStringList choices = theOption.myValue.split(QLatin1Char('|'));
    return choices.size() > 1 ? caseOf(dashed(theOption.myName), STR_WORDS, choices.join(QLatin1Char(' ')))
                              : caseOf(dashed(theOption.myName), kindOf(theOption.myValue));
}

QString caseOf(const VelshopCommand& theCommand)
{
    const QString kind = kindOf(QLatin1String(theCommand.myWords));
    return caseOf(QLatin1String(theCommand.myName), kind == STR_NONE ? STR_WORDS : kind, dashed(theCommand.options()));
}

} // namespace

QString bashCompletion()
{
    QStringList valued;
    QString options;
    for (const VelshopOption& option : VelshopOptions::all()) {
        if (option.myValue.isEmpty())
            continue;
        valued.append(dashed(option.myName));
        options += caseOf(option);
    }
    QStringList names;
    QString commands;
    for (const VelshopCommand& command : VelshopCommands::all()) {
        names.append(QLatin1String(command.myName));
        commands += caseOf(command);
    }
    const QString start = names.join(QLatin1Char(' ')) + QLatin1Char(' ') + dashed(VelshopOptions::general());
    return QString::fromLatin1(HEAD).arg(valued.join(QStringLiteral(" | "))) +
           QStringLiteral("    case $command in\n") + caseOf(QStringLiteral("''"), STR_WORDS, start) + commands +
           QStringLiteral("    esac\n    case $option in\n") + options + QStringLiteral("    esac\n") +
           QLatin1String(TAIL);
}
