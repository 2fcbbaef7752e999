#include "host/VelshopGapsText.h"

#include "host/VelshopFeeWords.h"
#include "host/VelshopGapsSheet.h"
#include "host/VelshopTable.h"
#include "product/VelProductAbstract.h"

#include <QMap>
#include <QTextStream>

namespace {

const int WIDTH = 80;
const int SPACE = 2;
const int LEAST_NAME = 10;

/// What a table leaves for that column, at least enough to know a name by.
int roomFor(const QVector<QStringList>& theRows, int theColumn)
{
    int room = WIDTH;
    for (int column = 0; column < theRows.first().size(); ++column) {
        int width = 0;
        for (const QStringList& row : theRows)
            width = qMax(width, static_cast<int>(row.at(column).size()));
        if (column != theColumn)
            room -= width + SPACE;
    }
    return qMax(LEAST_NAME, room);
}

QString shortened(const QString& theText, int theLength)
{
    return theText.size() <= theLength ? theText : theText.left(theLength - 1) + QChar(0x2026);
}

void printFitted(const QVector<QStringList>& theRows, int theNameColumn, QTextStream& theOutput)
{
    const int room = roomFor(theRows, theNameColumn);
    VelshopTable table(theRows.first());
    for (QStringList row : theRows.mid(1)) {
        row[theNameColumn] = shortened(row.at(theNameColumn), room);
        table.add(row);
    }
    table.print(theOutput);
}

/// Those that nobody can order by stand in brackets.
QStringList wayNames(const VelshopGapsSheet& theSheet)
{
    QStringList names;
    for (const VelPriceGaps::Way& way : theSheet.myWays) {
        const QString name = VelshopGapsWords::way(way.mySource);
        names.append(way.myIsOffered ? name : QStringLiteral("(%1)").arg(name));
    }
    return names;
}

QStringList marks(const QVector<VelPriceGaps::Cell>& theCells)
{
    QStringList marks;
    for (const VelPriceGaps::Cell& cell : theCells)
        marks.append(VelshopGapsWords::mark(cell));
    return marks;
}

void printArticles(const VelshopGapsSheet& theSheet, QTextStream& theOutput)
{
    QVector<QStringList> rows{QStringList{QStringLiteral("GROUP"), QStringLiteral("ID"), QStringLiteral("NAME")} +
                              wayNames(theSheet)};
    for (const VelPriceGaps::Row& row : theSheet.myArticles)
        rows.append(QStringList{QString::number(row.myProduct->shippingGroupId()),
                                QString::number(row.myProduct->articleID()), row.myProduct->name()} +
                    marks(row.myCells));
    printFitted(rows, 2, theOutput);
}

void printFees(const VelshopGapsSheet& theSheet, QTextStream& theOutput)
{
    QVector<QStringList> rows{
        QStringList{QStringLiteral("FEE"), QStringLiteral("GROUP"), QStringLiteral("ID"), QStringLiteral("NAME")} +
        wayNames(theSheet)};
    for (const VelPriceGaps::FeeRow& row : theSheet.myFees) {
        const VelShopFees::Fee& fee = row.myFee;
        const bool isOfGroup = fee.myKind != VelShopFees::FEE_PAYMENT;
        rows.append(QStringList{VelshopFeeWords::name(fee), isOfGroup ? QString::number(fee.myGroup) : QString(),
                                fee.myProduct ? QString::number(fee.myProduct->articleID()) : QString(),
                                fee.myProduct ? fee.myProduct->name() : QString()} +
                    marks(row.myCells));
    }
    if (rows.size() > 1)
        printFitted(rows, 3, theOutput);
}

/// A table of the marks that occur.
class Legend
{
public:
    void take(const QVector<VelPriceGaps::Cell>& theCells)
    {
        for (const VelPriceGaps::Cell& cell : theCells) {
            if (!cell.isPriced())
                myUnpriced.insert(cell.myWhy, VelshopGapsWords::mark(cell));
            myHasHoles = myHasHoles || !cell.myHoles.isEmpty();
            myHasSums = myHasSums || (cell.myIsBySum && !cell.isWhole());
        }
    }

    void print(QTextStream& theOutput) const
    {
        VelshopTable table({QStringLiteral("yes"), QStringLiteral("priced from the first piece on")});
        if (myHasHoles)
            table.add({QStringLiteral("holes"), QStringLiteral("quantities without a price between priced ones")});
        if (myHasSums)
            table.add({QStringLiteral("by sum"), QStringLiteral("priced for some bill sums alone")});
        for (auto why = myUnpriced.cbegin(); why != myUnpriced.cend(); ++why)
            table.add({why.value().isEmpty() ? QStringLiteral("(blank)") : why.value(),
                       VelshopGapsWords::whyUnpriced(why.key())});
        table.print(theOutput);
    }

private:
    QMap<VelPriceGaps::Why, QString> myUnpriced;
    bool myHasHoles = false;
    bool myHasSums = false;
};

} // namespace

void printGaps(const VelshopGapsSheet& theSheet, QTextStream& theOutput)
{
    Legend legend;
    for (const VelPriceGaps::Row& row : theSheet.myArticles)
        legend.take(row.myCells);
    for (const VelPriceGaps::FeeRow& row : theSheet.myFees)
        legend.take(row.myCells);
    printArticles(theSheet, theOutput);
    theOutput << '\n';
    printFees(theSheet, theOutput);
    theOutput << '\n';
    legend.print(theOutput);
}
