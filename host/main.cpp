#include "frame/VelTarmTranslation.h"
#include "host/VelshopAccount.h"
#include "host/VelshopCommands.h"
#include "host/VelshopCompletion.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopHelp.h"
#include "host/VelshopManual.h"
#include "host/VelshopMessages.h"
#include "host/VelshopOptions.h"
#include "host/VelshopStream.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace {

/// Knows whether anything was printed: an error may only stand where an answer would.
class StandardOutput : public QFile
{
public:
    StandardOutput() { open(stdout, WriteOnly); }
    bool isUsed() const { return myIsUsed; }

protected:
    qint64 writeData(const char* theBytes, qint64 theCount) override
    {
        myIsUsed = myIsUsed || theCount > 0;
        return QFile::writeData(theBytes, theCount);
    }

private:
    bool myIsUsed = false;
};

const VelshopCommand* findCommand(const VelshopCommandLine& theLine, VelshopError& theError)
{
    const VelshopCommand* command = VelshopCommands::find(theLine.command());
    if (theLine.command().isEmpty())
        theError = QStringLiteral("no command given, see velshop --help");
    else if (!command)
        theError = QStringLiteral("unknown command \"%1\", see velshop --help").arg(theLine.command());
    return command;
}

int runCommand(const VelshopCommand& theCommand, const VelshopCommandLine& theLine, QTextStream& theOutput,
               VelshopError& theError)
{
    if (!theCommand.accepts(theLine, theError))
        return EXIT_BAD_INPUT;
    const VelshopRun run = theCommand.myReader(theLine, theError);
    VelshopArguments shared;
    if (!run || !theLine.readShared(shared, theError))
        return EXIT_BAD_INPUT;
    VelTarmTranslation::install(shared.myLanguage);
    if (theCommand.myAccountUse == OPENS_ACCOUNT && !openAccount(shared.myAccount, theError))
        return EXIT_BAD_INPUT;
    return run(theOutput, theError);
}

/// What is told without any command; null when the line asks for none of it.
QString textWithoutCommand(const VelshopCommandLine& theLine)
{
    if (theLine.isSet(VelshopOptions::STR_VERSION))
        return QStringLiteral("velshop %1\n").arg(QCoreApplication::applicationVersion());
    if (theLine.isSet(VelshopOptions::STR_MANUAL))
        return manualPage();
    if (theLine.isSet(VelshopOptions::STR_COMPLETION))
        return bashCompletion();
    const bool isGeneralHelp = theLine.isSet(VelshopOptions::STR_HELP) && theLine.command().isEmpty();
    return isGeneralHelp ? VelshopHelp::general() : QString();
}

int answer(const VelshopCommandLine& theLine, QTextStream& theOutput, VelshopError& theError)
{
    const QString text = textWithoutCommand(theLine);
    theOutput << text;
    if (!text.isNull())
        return EXIT_DONE;
    const VelshopCommand* command = findCommand(theLine, theError);
    if (!command)
        return EXIT_BAD_INPUT;
    if (!theLine.isSet(VelshopOptions::STR_HELP))
        return runCommand(*command, theLine, theOutput, theError);
    theOutput << VelshopHelp::of(*command);
    return EXIT_DONE;
}

/// A caller that reads JSON gets errors as such; but behind an answer that tells what is wrong there is no second one.
void writeError(const VelshopError& theError, bool theIsJson, StandardOutput& theOutput)
{
    if (theIsJson && !theOutput.isUsed() && theOutput.write(theError.json()) >= 0 && theOutput.flush())
        return;
    QTextStream errors(stderr);
    useUtf8(errors);
    errors << "velshop: " << theError.text() << '\n';
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velshop"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELSHOP_VERSION));
    VelshopMessages::holdBack();

    StandardOutput output;
    QTextStream stream(&output);
    useUtf8(stream);
    VelshopCommandLine line;
    VelshopError error;
    int exitCode = EXIT_BAD_INPUT;
    if (line.parse(QCoreApplication::arguments(), error))
        exitCode = answer(line, stream, error);
    stream.flush();
    if (stream.status() != QTextStream::Ok || !output.flush()) {
        error = QStringLiteral("the answer can't be written");
        exitCode = EXIT_BAD_INPUT;
    }
    if (exitCode != EXIT_BAD_INPUT)
        VelshopMessages::write();
    if (!error.isEmpty())
        writeError(error, line.isSet(VelshopOptions::STR_JSON), output);
    return exitCode;
}
