#include "host/VelshopDiff.h"

#include "host/VelshopAccount.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopDiffData.h"
#include "host/VelshopDiffHtml.h"
#include "host/VelshopDiffSide.h"
#include "host/VelshopDiffText.h"
#include "host/VelshopDiffWords.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
#include "host/VelshopOutputFile.h"
#include "insight/VelShopDifference.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTextStream>

namespace {

VelshopSnapshotArguments sideOf(const VelshopDiffArguments& theArguments, const QString& theShop)
{
    VelshopSnapshotArguments side;
    static_cast<VelshopArguments&>(side) = theArguments;
    side.myShop = theShop;
    side.myCarts = theArguments.myCarts;
    return side;
}

bool readBoth(const VelshopDiffArguments& theArguments, VelShopSnapshot& theOld, VelShopSnapshot& theNew,
              VelshopError& theError)
{
    VelshopDiffSide before(sideOf(theArguments, theArguments.myOld));
    VelshopDiffSide after(sideOf(theArguments, theArguments.myNew));
    while (before.isRunning() || after.isRunning())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return before.take(theOld, theError) && after.take(theNew, theError);
}

/// What no shop can make sense of isn't a difference of shops.
bool areCartsUsable(const VelShopDifference& theDifference, VelshopError& theError)
{
    for (const VelShopCartChange& cart : theDifference.carts())
        if (theError.isEmpty() && cart.myOld.myTerms.isEmpty() && cart.myOld.myReason == cart.myNew.myReason)
            theError = cart.myOld.myReason;
    return theError.isEmpty();
}

QStringList inputsOf(const VelshopDiffArguments& theArguments)
{
    QStringList inputs = theArguments.myCarts + accountDocuments(theArguments.myAccount);
    for (const QString& shop : {theArguments.myOld, theArguments.myNew})
        inputs += QFileInfo(shop).isDir() ? accountDocuments(shop) : QStringList{shop};
    return inputs;
}

} // namespace

bool readDiffArguments(const VelshopCommandLine& theLine, VelshopDiffArguments& theArguments, VelshopError& theError)
{
    theArguments.myOld = theLine.words().at(0);
    theArguments.myNew = theLine.words().at(1);
    theArguments.myCarts = theLine.values(VelshopOptions::STR_CART);
    theArguments.myCarts.removeDuplicates();
    for (const QString& file : QStringList{theArguments.myOld, theArguments.myNew} + theArguments.myCarts)
        if (theError.isEmpty() && !QFileInfo::exists(file))
            theError = {file, 0, 0, QStringLiteral("there is no such file or folder")};
    for (const QString& cart : qAsConst(theArguments.myCarts)) // both shops read it, so it can't be a pipe
        if (theError.isEmpty() && !QFileInfo(cart).isFile())
            theError = {cart, 0, 0, QStringLiteral("a cart to compare has to be a file")};
    return theError.isEmpty() && theLine.readFileOption(VelshopOptions::STR_HTML, theArguments.myHtmlFile, theError) &&
           VelshopOutputFile::areSafe({theArguments.myHtmlFile}, inputsOf(theArguments), theError);
}

int compareShops(const VelshopDiffArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    VelShopSnapshot before;
    VelShopSnapshot after;
    if (!readBoth(theArguments, before, after, theError))
        return EXIT_BAD_INPUT;
    const VelShopDifference difference(before, after);
    const VelshopDiffWords words(before, after);
    if (!areCartsUsable(difference, theError))
        return EXIT_BAD_INPUT;
    if (!theArguments.myHtmlFile.isEmpty() &&
        !VelshopOutputFile::write(theArguments.myHtmlFile,
                                  diffPage(difference, words, theArguments.myOld, theArguments.myNew), theError))
        return EXIT_BAD_INPUT;
    if (theArguments.myIsJson)
        theOutput << QJsonDocument(differenceData(difference)).toJson();
    else
        printDifference(difference, words, theOutput);
    return difference.isEmpty() ? EXIT_DONE : EXIT_DIFFERENT;
}
