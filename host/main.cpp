#include "host/VelshopAccount.h"
#include "host/VelshopArguments.h"
#include "host/VelshopBands.h"
#include "host/VelshopBill.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopList.h"
#include "host/VelshopMessages.h"
#include "host/VelshopPrice.h"
#include "host/VelshopShop.h"
#include "host/VelshopStream.h"
#include "host/VelshopTypes.h"
#include "host/VelshopUnit.h"

#include <QCoreApplication>
#include <QTranslator>

#include <cstdio>

namespace {

int runCommand(const VelshopArguments& theArguments, QTextStream& theOutput, QString& theError)
{
    if (theArguments.myCommand == QLatin1String("list"))
        return listArticles(theArguments, theOutput, theError);
    if (theArguments.myCommand == QLatin1String("price"))
        return priceArticle(theArguments, theOutput, theError);
    if (theArguments.myCommand == QLatin1String("bands"))
        return showBands(theArguments, theOutput, theError);
    if (theArguments.myCommand == QLatin1String("unit"))
        return priceUnit(theArguments, theOutput, theError);
    if (theArguments.myCommand == QLatin1String("bill"))
        return billCart(theArguments, theOutput, theError);
    if (theArguments.myCommand == QLatin1String("shop"))
        return showShop(theArguments, theOutput);
    return listTypes(theArguments, theOutput);
}

/// Runs the command and makes sure that its answer reached the output.
int answer(const VelshopArguments& theArguments, QString& theError)
{
    QTextStream output(stdout);
    useUtf8(output);
    const int exitCode = runCommand(theArguments, output, theError);
    output.flush();
    if (output.status() == QTextStream::Ok && fflush(stdout) == 0)
        return exitCode;
    theError = QStringLiteral("the answer can't be written");
    return EXIT_BAD_INPUT;
}

/// One line, whatever stands in a document's names.
void writeError(const QString& theError)
{
    QTextStream errors(stderr);
    useUtf8(errors);
    errors << "velshop: " << QString(theError).replace(QLatin1Char('\n'), QLatin1Char(' ')) << '\n';
}

/// The texts stand in German; any other language needs a translation.
void installLanguage(QTranslator& theTranslator, const QString& theLanguage)
{
    if (theLanguage != QLatin1String("de") && theTranslator.load(QStringLiteral(":/veltarm_%1.qm").arg(theLanguage)))
        QCoreApplication::installTranslator(&theTranslator);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velshop"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELSHOP_VERSION));

    VelshopMessages::holdBack();

    VelshopArguments arguments;
    QString error;
    int exitCode = EXIT_BAD_INPUT;
    QTranslator translator;
    if (readArguments(QCoreApplication::arguments(), arguments, error)) {
        installLanguage(translator, arguments.myLanguage);
        if (openAccount(arguments.myAccount, error))
            exitCode = answer(arguments, error);
    }
    if (exitCode != EXIT_BAD_INPUT)
        VelshopMessages::write();
    if (!error.isEmpty())
        writeError(error);
    return exitCode;
}
