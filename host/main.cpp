#include "host/VelshopAccount.h"
#include "host/VelshopArguments.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopList.h"
#include "host/VelshopPrice.h"

#include <QCoreApplication>
#include <QTextStream>

namespace {

int runCommand(const VelshopArguments& theArguments, QString& theError)
{
    QTextStream output(stdout);
    output.setCodec("UTF-8");
    if (theArguments.myCommand == QLatin1String("list"))
        return listArticles(theArguments, output, theError);
    return priceArticle(theArguments, output, theError);
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
    if (readArguments(QCoreApplication::arguments(), arguments, error) && openAccount(arguments.myAccount, error))
        exitCode = runCommand(arguments, error);
    if (!error.isEmpty()) {
        QTextStream errors(stderr);
        errors.setCodec("UTF-8");
        errors << "velshop: " << error << '\n';
    }
    return exitCode;
}
