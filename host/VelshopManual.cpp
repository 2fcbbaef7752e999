#include "host/VelshopManual.h"

#include "host/VelshopCommands.h"
#include "host/VelshopOptions.h"

#include <QCoreApplication>

namespace {

/// Text that holds nothing that the formatter would take for its own. A dash is one that can be typed, not a hyphen.
QString escaped(QString theText)
{
    theText.replace(QLatin1Char('\\'), QLatin1String("\\e")).replace(QLatin1Char('-'), QLatin1String("\\-"));
    const bool isRequest = theText.startsWith(QLatin1Char('.')) || theText.startsWith(QLatin1Char('\''));
    return isRequest ? QLatin1String("\\&") + theText : theText;
}

QString request(const char* theRequest, const QString& theText = QString())
{
    return QLatin1Char('.') + QLatin1String(theRequest) + (theText.isEmpty() ? QString() : QLatin1Char(' ') + theText) +
           QLatin1Char('\n');
}

QString section(const char* theName)
{
    return request("SH", QLatin1String(theName));
}

QString line(const QString& theText)
{
    return escaped(theText) + QLatin1Char('\n');
}

QString bold(const QString& theText)
{
    return QLatin1String("\\fB") + escaped(theText) + QLatin1String("\\fR");
}

QString italic(const QString& theText)
{
    return QLatin1String("\\fI") + escaped(theText) + QLatin1String("\\fR");
}

QString options(const QStringList& theNames)
{
    QString text;
    for (const QString& name : theNames) {
        const VelshopOption& option = VelshopOptions::option(name);
        const QString value = option.myValue.isEmpty() ? QString() : QLatin1Char(' ') + italic(option.myValue);
        text +=
            request("TP") + bold(QStringLiteral("--") + name) + value + QLatin1Char('\n') + line(option.myDescription);
    }
    return text;
}

QString paragraphs(const char* theText)
{
    QString text;
    for (const QString& paragraph : QString::fromUtf8(theText).split(QLatin1Char('\n')))
        text += request("PP") + line(paragraph);
    return text;
}

QString command(const VelshopCommand& theCommand)
{
    const QString usage = theCommand.usage().mid(1).join(QLatin1Char(' '));
    const QStringList own = theCommand.myNeededOptions + theCommand.myOptions;
    QString text = request("SS", bold(usage)) + line(QLatin1String(theCommand.mySummary));
    text += paragraphs(theCommand.myDescription) + options(own);
    return text + request("PP") + line(QStringLiteral("Example:")) + request("PP") + request("nf") +
           request("RS", QStringLiteral("4")) + line(QLatin1String(theCommand.myExample)) + request("RE") +
           request("fi");
}

} // namespace

QString manualPage()
{
    QString text = QStringLiteral(".TH VELSHOP 1 \"\" \"velshop %1\" \"User Commands\"\n")
                       .arg(QCoreApplication::applicationVersion());
    text += section("NAME") + QStringLiteral("velshop \\- order desk of a shop for photo products\n");
    text += section("SYNOPSIS") + bold(QStringLiteral("velshop")) + QLatin1Char(' ') +
            italic(QStringLiteral("COMMAND")) + QStringLiteral(" [") + italic(QStringLiteral("options")) +
            QStringLiteral("]\n");
    text += section("DESCRIPTION") + line(VelshopCommands::description());
    text += section("COMMANDS");
    for (const VelshopCommand& each : VelshopCommands::all())
        text += command(each);
    text += section("OPTIONS OF EVERY COMMAND") + options(VelshopOptions::general());
    text += section("EXIT STATUS");
    for (const VelshopCommands::ExitMeaning& meaning : VelshopCommands::exitMeanings())
        text += request("TP") + bold(QString::number(meaning.myCode)) + QLatin1Char('\n') +
                line(QLatin1String(meaning.myText));
    return text;
}
