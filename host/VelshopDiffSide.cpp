#include "host/VelshopDiffSide.h"

#include "host/VelshopAccount.h"
#include "host/VelshopCart.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
#include "host/VelshopOrder.h"
#include "host/VelshopProblems.h"
#include "insight/VelPriceExplainer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

const QDataStream::Version VERSION = QDataStream::Qt_5_15;

QString option(const QString& theName)
{
    return QStringLiteral("--") + theName;
}

QStringList commandLine(const VelshopSnapshotArguments& theArguments)
{
    QStringList words{QStringLiteral("snapshot"),           option(VelshopOptions::STR_JSON),
                      option(VelshopOptions::STR_ACCOUNT),  theArguments.myAccount,
                      option(VelshopOptions::STR_LANGUAGE), theArguments.myLanguage};
    for (const QString& cart : theArguments.myCarts)
        words << option(VelshopOptions::STR_CART) << cart;
    return words << QStringLiteral("--") << theArguments.myShop;
}

bool openShop(const VelshopSnapshotArguments& theArguments, VelshopError& theError)
{
    const QString& shop = theArguments.myShop;
    return QFileInfo(shop).isDir() ? openAccount(shop, theError)
                                   : openAccountWith(shop, theArguments.myAccount, theError);
}

/// A cart that one of the shops doesn't take is no error: that is a difference, too.
void addCart(const QString& theFile, VelShopSnapshot& theSnapshot)
{
    VelshopCart cart;
    VelshopError error;
    if (!readCart(theFile, cart, error))
        return theSnapshot.addRefusedCart(theFile, error.text());
    const std::optional<VelTarmOrder> order = makeOrder(cart, error);
    if (!order)
        return theSnapshot.addRefusedCart(theFile, error.text());
    const VelPriceExplainer explainer(cart.myCouponFile.isEmpty() ? QStringList() : QStringList{cart.myCouponFile});
    theSnapshot.addOrder(theFile, explainer.order(*order),
                         VelshopProblems::texts(order->objections(), *order).join(QStringLiteral("; ")));
}

} // namespace

// ---- the process that reads

bool readSnapshotArguments(const VelshopCommandLine& theLine, VelshopSnapshotArguments& theArguments, VelshopError&)
{
    theArguments.myShop = theLine.words().at(0);
    theArguments.myCarts = theLine.values(VelshopOptions::STR_CART);
    return true;
}

int takeSnapshot(const VelshopSnapshotArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    if (!openShop(theArguments, theError))
        return EXIT_BAD_INPUT;
    VelShopSnapshot snapshot = VelShopSnapshot::taken();
    for (const QString& cart : theArguments.myCarts)
        addCart(cart, snapshot);
    QDataStream stream(theOutput.device());
    stream.setVersion(VERSION);
    stream << snapshot;
    return EXIT_DONE;
}

// ---- the process that compares

VelshopDiffSide::VelshopDiffSide(const VelshopSnapshotArguments& theArguments) : myShop(theArguments.myShop)
{
    myProcess.setStandardInputFile(QProcess::nullDevice());
    myProcess.start(QCoreApplication::applicationFilePath(), commandLine(theArguments));
}

bool VelshopDiffSide::take(VelShopSnapshot& theSnapshot, VelshopError& theError)
{
    const QByteArray answer = myProcess.readAllStandardOutput();
    if (myProcess.exitStatus() == QProcess::NormalExit && myProcess.exitCode() == EXIT_DONE &&
        myProcess.error() == QProcess::UnknownError) {
        QDataStream stream(answer);
        stream.setVersion(VERSION);
        stream >> theSnapshot;
        if (stream.status() == QDataStream::Ok && stream.atEnd())
            return true;
    }
    const QJsonObject told = QJsonDocument::fromJson(answer).object();
    const QString reason = told.value(QStringLiteral("error")).toString();
    if (reason.isEmpty())
        theError = {myShop, 0, 0, QStringLiteral("the process that reads it failed: %1").arg(myProcess.errorString())};
    else
        theError = {told.value(QStringLiteral("file")).toString(), told.value(QStringLiteral("line")).toInt(),
                    told.value(QStringLiteral("column")).toInt(), reason};
    return false;
}
