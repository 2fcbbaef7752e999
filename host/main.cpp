#include "host/VelshopAccount.h"
#include "host/VelshopArguments.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopList.h"
#include "host/VelshopPrice.h"
#include "host/VelshopShop.h"
#include "host/VelshopTypes.h"

#include <QCoreApplication>
#include <QTextStream>
#include <QTranslator>

namespace {

int runCommand(const VelshopArguments& theArguments, QString& theError)
{
    QTextStream output(stdout);
    output.setCodec("UTF-8");
    if (theArguments.myCommand == QLatin1String("list"))
        return listArticles(theArguments, output, theError);
    if (theArguments.myCommand == QLatin1String("price"))
        return priceArticle(theArguments, output, theError);
    if (theArguments.myCommand == QLatin1String("shop"))
        return showShop(theArguments, output);
    return listTypes(theArguments, output);
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

    VelshopArguments arguments;
    QString error;
    int exitCode = EXIT_BAD_INPUT;
    QTranslator translator;
    if (readArguments(QCoreApplication::arguments(), arguments, error)) {
        installLanguage(translator, arguments.myLanguage);
        if (openAccount(arguments.myAccount, error))
            exitCode = runCommand(arguments, error);
    }
    if (!error.isEmpty()) {
        QTextStream errors(stderr);
        errors.setCodec("UTF-8");
        errors << "velshop: " << error << '\n';
    }
    return exitCode;
}
