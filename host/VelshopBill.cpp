#include "host/VelshopBill.h"

#include "host/VelshopBillData.h"
#include "host/VelshopBillDiscounts.h"
#include "host/VelshopBillHtml.h"
#include "host/VelshopBillSheet.h"
#include "host/VelshopBillText.h"
#include "host/VelshopCart.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
#include "product/VelProductAbstract.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QTextStream>

namespace {

/// Either the whole file is there or the former one stays. Flushed by hand: a disk that turns out to be full when
/// commit() flushes would not keep it from replacing the former file.
bool save(const QString& theFile, const QByteArray& theContent, VelshopError& theError)
{
    QSaveFile file(theFile);
    if (file.open(QIODevice::WriteOnly) && file.write(theContent) == theContent.size() && file.flush() && file.commit())
        return true;
    theError = {theFile, 0, 0, file.errorString()};
    return false;
}

QList<QStringList> orderTexts(const VelshopCart& theCart)
{
    QList<QStringList> texts;
    for (const VelOrderStatistic& group : theCart.myGroups)
        for (const VelProductAbstract* product : group.products())
            texts.append(product->toOrderTxt());
    return texts;
}

void printJson(const VelshopBillSheet& theSheet, const QList<QStringList>& theOrderTexts, QTextStream& theOutput)
{
    QJsonObject json = billData(theSheet);
    QJsonArray texts;
    for (const QStringList& lines : theOrderTexts)
        texts.append(QJsonArray::fromStringList(lines));
    if (!texts.isEmpty())
        json.insert(QStringLiteral("orderText"), texts);
    theOutput << QJsonDocument(json).toJson();
}

void printText(const VelshopBillSheet& theSheet, const QList<QStringList>& theOrderTexts, QTextStream& theOutput)
{
    VelshopBillText::print(theSheet, theOutput);
    for (const QStringList& lines : theOrderTexts)
        theOutput << '\n' << lines.join(QLatin1Char('\n')) << '\n';
}

bool writeFiles(const VelshopBillArguments& theArguments, const VelshopCart& theCart, const VelshopBillSheet& theSheet,
                VelshopError& theError)
{
    if (!theArguments.myHtmlFile.isEmpty() && !save(theArguments.myHtmlFile, billPage(theSheet), theError))
        return false;
    return theArguments.myDiscountsFile.isEmpty() || !theSheet.isOrderable() ||
           save(theArguments.myDiscountsFile, discountDescription(theCart), theError);
}

} // namespace

bool readBillArguments(const VelshopCommandLine& theLine, VelshopBillArguments& theArguments, VelshopError& theError)
{
    theArguments.myCart = theLine.words().at(0);
    theArguments.myHasOrderText = theLine.isSet(VelshopOptions::STR_ORDER_TEXT);
    return theLine.readFileOption(VelshopOptions::STR_HTML, theArguments.myHtmlFile, theError) &&
           theLine.readFileOption(VelshopOptions::STR_DISCOUNTS, theArguments.myDiscountsFile, theError);
}

int billCart(const VelshopBillArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    VelshopCart cart;
    VelshopBillSheet sheet;
    if (!readCart(theArguments.myCart, cart, theError) || !makeBillSheet(cart, sheet, theError) ||
        !writeFiles(theArguments, cart, sheet, theError))
        return EXIT_BAD_INPUT;
    const QList<QStringList> texts = theArguments.myHasOrderText ? orderTexts(cart) : QList<QStringList>();
    if (theArguments.myIsJson)
        printJson(sheet, texts, theOutput);
    else
        printText(sheet, texts, theOutput);
    if (sheet.isOrderable())
        return EXIT_DONE;
    theError = {cart.myFile, 0, 0, QStringLiteral("not orderable: ") + sheet.myProblems.join(QStringLiteral("; "))};
    return EXIT_NO_PRICE;
}
