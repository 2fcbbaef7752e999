#include "host/VelshopBillText.h"

#include "host/VelshopBillMoney.h"
#include "host/VelshopBillSheet.h"
#include "host/VelshopTable.h"
#include "product/VelProductAbstract.h"

#include <QTextStream>

namespace {

const QString STR_INDENT = QStringLiteral("  ");

QString money(int theAmount)
{
    return VelshopBillMoney::text(theAmount, false);
}

void printLines(const QList<VelshopBillLine>& theLines, QTextStream& theOutput)
{
    VelshopTable table({QStringLiteral("PIECES"), QStringLiteral("PRODUCT"), QStringLiteral("UNIT PRICE"),
                        QStringLiteral("FORMERLY"), QStringLiteral("DISCOUNT"), QStringLiteral("AMOUNT"),
                        QStringLiteral("DAYS")});
    for (const VelshopBillLine& line : theLines)
        table.add({QString::number(line.myPieces), line.myProduct, money(line.myUnitPrice),
                   line.myOldPrice == -1 ? QString() : money(line.myOldPrice), line.discount(), money(line.myAmount),
                   line.myDays});
    table.print(theOutput, STR_INDENT);
}

void printSums(const VelshopBillSums& theSums, QTextStream& theOutput)
{
    const bool hasSecondary = VelshopBillMoney::hasSecondary();
    VelshopTable table({QStringLiteral("SUMS"), VelshopBillMoney::code(false),
                        hasSecondary ? VelshopBillMoney::code(true) : QString()});
    for (const VelshopBillSums::Row& row : theSums.rows())
        table.add(
            {row.myName, money(row.myAmount), hasSecondary ? VelshopBillMoney::text(row.myAmount, true) : QString()});
    table.print(theOutput, STR_INDENT);
}

void printProblems(const QStringList& theProblems, QTextStream& theOutput)
{
    for (const QString& problem : theProblems)
        theOutput << STR_INDENT << "NOT ORDERABLE  " << problem << '\n';
}

void printGroup(const VelshopBillGroup& theGroup, QTextStream& theOutput)
{
    theOutput << '\n' << "Shipping group " << theGroup.myId << ' ' << theGroup.myName << '\n';
    printLines(theGroup.myLines, theOutput);
    for (const VelshopAdvice& advice : theGroup.myAdvice)
        theOutput << STR_INDENT << advice.myProduct->name() << ": " << advice.text() << '\n';
    printProblems(theGroup.myProblems, theOutput);
    if (theGroup.myProblems.isEmpty())
        printSums(theGroup.mySums, theOutput);
}

} // namespace

void VelshopBillText::print(const VelshopBillSheet& theSheet, QTextStream& theOutput)
{
    theOutput << "Order by " << theSheet.myHead << '\n';
    if (theSheet.myCoupon)
        theOutput << "Coupon " << theSheet.myCoupon->text() << '\n';
    for (const VelshopBillGroup& group : theSheet.myGroups)
        printGroup(group, theOutput);
    theOutput << '\n' << (theSheet.isOrderable() ? "Order" : "Order: NOT ORDERABLE") << '\n';
    printProblems(theSheet.myOrderProblems, theOutput);
    if (theSheet.isOrderable())
        printSums(theSheet.mySums, theOutput);
}
