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
    QString text = wrapped(VelshopCommands::description(), 0) +
                   QStringLiteral("\nUsage: velshop COMMAND [options]\n\nCommands:\n");
    for (const VelshopCommand& command : VelshopCommands::all()) {
        text += wrapped(command.usage(), INDENT, 4 * INDENT);
        text += wrapped(QLatin1String(command.mySummary), 3 * INDENT);
    }
    text += QStringLiteral("\nOptions of every command:\n") + optionLines(VelshopOptions::general()) +
            QStringLiteral("\nExit codes:\n");
    for (const VelshopCommands::ExitMeaning& meaning : VelshopCommands::exitMeanings())
        text += wrapped(QStringLiteral("%1 %2").arg(meaning.myCode).arg(QLatin1String(meaning.myText)), INDENT);
    return text + QStringLiteral("\nvelshop COMMAND --help describes the command with its options and an example.\n");
}

QString VelshopHelp::of(const VelshopCommand& theCommand)
{
    QString text = wrapped(QStringList{QStringLiteral("Usage:")} + theCommand.usage(), 0, 4 * INDENT);
    text += QLatin1Char('\n') + wrapped(QLatin1String(theCommand.mySummary), INDENT);
    for (const QString& paragraph : QString::fromUtf8(theCommand.myDescription).split(QLatin1Char('\n')))
        text += QLatin1Char('\n') + wrapped(paragraph, 0);
    text += QStringLiteral("\nOptions:\n") + optionLines(theCommand.options());
    return text + QStringLiteral("\nExample:\n") + wrapped(QLatin1String(theCommand.myExample), INDENT);
}
