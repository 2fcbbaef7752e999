#include "host/VelshopGaps.h"

#include "host/VelshopAccount.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopGapsData.h"
#include "host/VelshopGapsPage.h"
#include "host/VelshopGapsSheet.h"
#include "host/VelshopGapsText.h"
#include "host/VelshopOptions.h"
#include "host/VelshopOutputFile.h"

#include <QJsonDocument>
#include <QTextStream>

namespace {

bool writePage(const VelshopGapsArguments& theArguments, const VelshopGapsSheet& theSheet, VelshopError& theError)
{
    QString shop;
    return theArguments.myHtmlFile.isEmpty() ||
           (VelshopOutputFile::areSafe({theArguments.myHtmlFile}, accountDocuments(theArguments.myAccount), theError) &&
            readShopName(theArguments.myAccount, shop, theError) &&
            VelshopOutputFile::write(theArguments.myHtmlFile, gapsPage(theSheet, shop), theError));
}

} // namespace

bool readGapsArguments(const VelshopCommandLine& theLine, VelshopGapsArguments& theArguments, VelshopError& theError)
{
    int group = 0;
    if (!theLine.readNumberOption(VelshopOptions::STR_GROUP, VelshopCommandLine::LOWEST_ID, group, theError))
        return false;
    if (theLine.isSet(VelshopOptions::STR_GROUP))
        theArguments.myGroup = group;
    return theLine.readFileOption(VelshopOptions::STR_HTML, theArguments.myHtmlFile, theError);
}

int showGaps(const VelshopGapsArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    const VelshopGapsSheet sheet = makeGapsSheet(theArguments.myGroup);
    if (theArguments.myGroup && sheet.myArticles.isEmpty())
        theError = QStringLiteral("no article is in the shipping group %1").arg(*theArguments.myGroup);
    if (!theError.isEmpty() || !writePage(theArguments, sheet, theError))
        return EXIT_BAD_INPUT;
    if (theArguments.myIsJson)
        theOutput << QJsonDocument(gapsData(sheet)).toJson();
    else
        printGaps(sheet, theOutput);
    return EXIT_DONE;
}
