#include "host/VelshopReport.h"

#include "host/VelshopAccount.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
#include "host/VelshopOutputFile.h"
#include "host/VelshopReportPage.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

bool readReportArguments(const VelshopCommandLine& theLine, VelshopReportArguments& theArguments,
                         VelshopError& theError)
{
    return theLine.readFileOption(VelshopOptions::STR_HTML, theArguments.myHtmlFile, theError);
}

int reportShop(const VelshopReportArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    QString shop;
    const QString& file = theArguments.myHtmlFile;
    if (!VelshopOutputFile::areSafe({file}, accountDocuments(theArguments.myAccount), theError) ||
        !readShopName(theArguments.myAccount, shop, theError))
        return EXIT_BAD_INPUT;
    if (shop.isEmpty())
        shop = QDir(theArguments.myAccount).dirName();
    if (!VelshopOutputFile::write(file, reportPage(shop, theArguments.myAccount), theError))
        return EXIT_BAD_INPUT;
    if (theArguments.myIsJson)
        theOutput << QJsonDocument(QJsonObject{{QStringLiteral("file"), file}}).toJson();
    return EXIT_DONE;
}
