#include "host/VelshopBill.h"

#include "host/VelshopAccount.h"
#include "host/VelshopBillData.h"
#include "host/VelshopBillDiscounts.h"
#include "host/VelshopBillHtml.h"
#include "host/VelshopBillSheet.h"
#include "host/VelshopBillText.h"
#include "host/VelshopCart.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
#include "host/VelshopOrder.h"
#include "host/VelshopOutputFile.h"
#include "product/VelProductAbstract.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTextStream>

namespace {

QList<QStringList> orderTexts(const VelTarmOrder& theOrder)
{
    QList<QStringList> texts;
    for (const VelTarmOrderBill& bill : theOrder.bills())
        for (const VelProductAbstract* product : bill.cart().products())
            texts.append(product->toOrderTxt());
    return texts;
}

void printJson(const VelTarmOrder& theOrder, const VelshopBillSheet& theSheet, const QStringList& theNotes,
               const QList<QStringList>& theOrderTexts, QTextStream& theOutput)
{
    QJsonObject json = billData(theOrder, theSheet);
    if (!theNotes.isEmpty())
        json.insert(QStringLiteral("notes"), QJsonArray::fromStringList(theNotes));
    QJsonArray texts;
    for (const QStringList& lines : theOrderTexts)
        texts.append(QJsonArray::fromStringList(lines));
    if (!texts.isEmpty())
        json.insert(QStringLiteral("orderText"), texts);
    theOutput << QJsonDocument(json).toJson();
}

void printText(const VelshopBillSheet& theSheet, const QStringList& theNotes, const QList<QStringList>& theOrderTexts,
               QTextStream& theOutput)
{
    for (const QString& note : theNotes)
        theOutput << note << '\n';
    VelshopBillText::print(theSheet, theOutput);
    for (const QStringList& lines : theOrderTexts)
        theOutput << '\n' << lines.join(QLatin1Char('\n')) << '\n';
}

bool areOutputsSafe(const VelshopBillArguments& theArguments, const VelshopCart& theCart, VelshopError& theError)
{
    QStringList inputs = accountDocuments(theArguments.myAccount);
    inputs.append(theCart.myFile);
    if (!theCart.myCouponFile.isEmpty())
        inputs.append(theCart.myCouponFile);
    return VelshopOutputFile::areSafe({theArguments.myHtmlFile, theArguments.myDiscountsFile}, inputs, theError);
}

bool writePage(const VelshopBillArguments& theArguments, const VelTarmOrder& theOrder, const VelshopBillSheet& theSheet,
               VelshopError& theError)
{
    VelshopBillPageHead head{QString(), theArguments.myLanguage};
    return readShopName(theArguments.myAccount, head.myShop, theError) &&
           VelshopOutputFile::write(theArguments.myHtmlFile, billPage(theOrder, theSheet, head), theError);
}

bool writeFiles(const VelshopBillArguments& theArguments, const VelTarmOrder& theOrder,
                const VelshopBillSheet& theSheet, VelshopError& theError)
{
    if (!theArguments.myHtmlFile.isEmpty() && !writePage(theArguments, theOrder, theSheet, theError))
        return false;
    return theArguments.myDiscountsFile.isEmpty() || !theSheet.isOrderable() ||
           VelshopOutputFile::write(theArguments.myDiscountsFile, discountDescription(theOrder), theError);
}

} // namespace

bool readBillArguments(const VelshopCommandLine& theLine, VelshopBillArguments& theArguments, VelshopError& theError)
{
    theArguments.myCart = theLine.words().at(0);
    theArguments.myHasOrderText = theLine.isSet(VelshopOptions::STR_ORDER_TEXT);
    return theArguments.myWhatIf.read(theLine, theError) &&
           theLine.readFileOption(VelshopOptions::STR_HTML, theArguments.myHtmlFile, theError) &&
           theLine.readFileOption(VelshopOptions::STR_DISCOUNTS, theArguments.myDiscountsFile, theError);
}

int billCart(const VelshopBillArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    VelshopCart cart;
    QStringList notes;
    if (!readCart(theArguments.myCart, cart, theError) || !areOutputsSafe(theArguments, cart, theError) ||
        !theArguments.myWhatIf.applyTo(cart, notes, theError))
        return EXIT_BAD_INPUT;
    const std::optional<VelTarmOrder> order = makeOrder(cart, theError);
    VelshopBillSheet sheet;
    if (!order || !makeBillSheet(*order, cart.myFile, sheet, theError) ||
        !writeFiles(theArguments, *order, sheet, theError))
        return EXIT_BAD_INPUT;
    const QList<QStringList> texts = theArguments.myHasOrderText ? orderTexts(*order) : QList<QStringList>();
    if (theArguments.myIsJson)
        printJson(*order, sheet, notes, texts, theOutput);
    else
        printText(sheet, notes, texts, theOutput);
    if (sheet.isOrderable())
        return EXIT_DONE;
    theError = {cart.myFile, 0, 0, QStringLiteral("not orderable: ") + sheet.myProblems.join(QStringLiteral("; "))};
    return EXIT_NO_PRICE;
}
