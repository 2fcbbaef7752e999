#include "host/VelshopDiffText.h"

#include "host/VelshopDiffWords.h"

#include <QTextStream>

namespace {

using Row = VelshopDiffWords::Row;

const int WIDTH = 80;
const int MOST_ROWS = 8; // of one ladder: all of them stand in the page and in JSON

class Printer
{
public:
    Printer(const VelshopDiffWords& theWords, QTextStream& theOutput) : myWords(theWords), myOutput(theOutput) {}

    void print(const VelShopDifference& theDifference)
    {
        myOutput << firstInUpperCase(VelshopDiffWords::summary(theDifference)) << '\n';
        for (const VelShopCartChange& cart : theDifference.carts())
            printCart(cart);
        printEntries(theDifference.added(), "Added");
        printEntries(theDifference.removed(), "Removed");
        if (!theDifference.changed().isEmpty())
            myOutput << "\nChanged\n";
        for (const VelShopEntryChange& change : theDifference.changed())
            printChange(change);
        if (!theDifference.conditions().isEmpty())
            myOutput << "\nShop\n";
        printRows(myWords.rows(theDifference.conditions()), 2);
    }

private:
    static QString firstInUpperCase(QString theText)
    {
        theText[0] = theText.at(0).toUpper();
        return theText;
    }

    void printEntries(const QVector<VelShopEntry>& theEntries, const char* theTitle)
    {
        if (theEntries.isEmpty())
            return;
        myOutput << '\n' << theTitle << '\n';
        for (const VelShopEntry& entry : theEntries)
            myOutput << "  " << VelshopDiffWords::title(entry) << '\n';
    }

    void printChange(const VelShopEntryChange& theChange)
    {
        myOutput << "  " << VelshopDiffWords::title(theChange.myNew) << '\n';
        printRows(myWords.rows(theChange.myFields), 4);
        for (const VelshopDiffWords::Totals& totals : myWords.totals(theChange.myTotals)) {
            myOutput << "    " << totals.myTitle << '\n';
            printRows(totals.myRows.mid(0, MOST_ROWS), 6);
            if (totals.myRows.size() > MOST_ROWS)
                myOutput << "      and " << totals.myRows.size() - MOST_ROWS << " more\n";
        }
    }

    void printCart(const VelShopCartChange& theCart)
    {
        const Row total = myWords.total(theCart);
        if (theCart.isEmpty()) {
            myOutput << '\n' << total.myName << ": " << total.myNew << ", as before\n";
            return;
        }
        myOutput << '\n';
        printRow(total, 0);
        printRows(myWords.terms(theCart), 2);
    }

    void printRows(const QVector<Row>& theRows, int theIndent)
    {
        for (const Row& row : theRows)
            printRow(row, theIndent);
    }

    /// In one line where it fits, otherwise what was and what is in lines of their own.
    void printRow(const Row& theRow, int theIndent)
    {
        const QString indent(theIndent, QLatin1Char(' '));
        const QString line = QStringLiteral("%1%2: %3 -> %4").arg(indent, theRow.myName, theRow.myOld, theRow.myNew);
        if (line.size() <= WIDTH)
            myOutput << line << '\n';
        else
            myOutput << indent << theRow.myName << ":\n"
                     << indent << "  old " << theRow.myOld << '\n'
                     << indent << "  new " << theRow.myNew << '\n';
    }

    const VelshopDiffWords& myWords;
    QTextStream& myOutput;
};

} // namespace

void printDifference(const VelShopDifference& theDifference, const VelshopDiffWords& theWords, QTextStream& theOutput)
{
    Printer(theWords, theOutput).print(theDifference);
}
