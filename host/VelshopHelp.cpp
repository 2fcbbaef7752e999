#include "host/VelshopHelp.h"

#include "host/VelshopCommands.h"
#include "host/VelshopOptions.h"

namespace {

const int WIDTH = 79;
const int INDENT = 2;

/// Words in lines that fit the terminal, each line behind so many blanks, the lines behind the first behind some more.
QString wrapped(const QStringList& theWords, int theIndent, int theHanging = 0)
{
    QString text(theIndent, QLatin1Char(' '));
    int column = theIndent;
    for (const QString& word : theWords) {
        const bool isFirst = column == theIndent;
        if (!isFirst && column + 1 + word.size() > WIDTH) {
            text += QLatin1Char('\n') + QString(theIndent + theHanging, QLatin1Char(' '));
            column = theIndent + theHanging;
        } else if (!isFirst) {
            text += QLatin1Char(' ');
            ++column;
        }
        text += word;
        column += word.size();
    }
    return text + QLatin1Char('\n');
}

QString wrapped(const QString& theText, int theIndent)
{
    return wrapped(theText.split(QLatin1Char(' ')), theIndent);
}

QString optionLines(const QStringList& theNames)
{
    QString lines;
    for (const QString& name : theNames) {
        const VelshopOption& option = VelshopOptions::option(name);
        lines += wrapped(VelshopOptions::usage(option), INDENT);
        lines += wrapped(option.myDescription, 3 * INDENT);
    }
    return lines;
}

} // namespace

QString VelshopHelp::general()
{
    QString text = QStringLiteral("The order desk of a shop for photo products.\n\n"
                                  "Usage: velshop COMMAND [options]\n\nCommands:\n");
    for (const VelshopCommand& command : VelshopCommands::all()) {
        text += wrapped(command.usage(), INDENT, 4 * INDENT);
        text += wrapped(QLatin1String(command.mySummary), 3 * INDENT);
    }
    return text + QStringLiteral("\nOptions of every command:\n") +
           optionLines({VelshopOptions::STR_ACCOUNT, VelshopOptions::STR_JSON, VelshopOptions::STR_LANGUAGE,
                        VelshopOptions::STR_HELP, VelshopOptions::STR_VERSION}) +
           QStringLiteral("\nvelshop COMMAND --help describes the command with its options and an example.\n"
                          "Exit codes: 0 done, 1 there is no price, 2 a wrong argument or an unreadable\n"
                          "document.\n");
}

QString VelshopHelp::of(const VelshopCommand& theCommand)
{
    QString text =
        wrapped(QStringList{QStringLiteral("Usage:")} + theCommand.usage(), 0, 4 * INDENT) + QLatin1Char('\n');
    text += wrapped(QLatin1String(theCommand.mySummary), INDENT) + QLatin1Char('\n');
    text += wrapped(QLatin1String(theCommand.myDescription), 0);
    text += QStringLiteral("\nOptions:\n") +
            optionLines(theCommand.myNeededOptions + theCommand.myOptions + theCommand.mySharedOptions +
                        QStringList{VelshopOptions::STR_HELP});
    return text + QStringLiteral("\nExample:\n") + wrapped(QLatin1String(theCommand.myExample), INDENT);
}
