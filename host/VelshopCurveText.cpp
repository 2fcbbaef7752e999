#include "host/VelshopCurveText.h"

#include "host/VelshopTable.h"
#include "host/VelshopWords.h"
#include "product/VelProductAbstract.h"

#include <QTextStream>

#include <algorithm>
#include <limits>

namespace {

const int PLOT_WIDTH = 62;
const int PLOT_HEIGHT = 12;

/// A quantity, or a sum of money.
QString amountOf(const VelshopCurveSheet& theSheet, int theQuantity)
{
    return theSheet.isBySum() ? VelshopWords::money(theQuantity) : QString::number(theQuantity);
}

QString nameOf(const VelshopCurveSheet& theSheet)
{
    return QStringLiteral("%1 %2").arg(QString::number(theSheet.myProduct->articleID()), theSheet.myProduct->name());
}

bool differInSourceAlone(const VelshopCurveSheet& theLeft, const VelshopCurveSheet& theRight)
{
    return theLeft.myProduct == theRight.myProduct && theLeft.myDips == theRight.myDips;
}

QString runOf(const VelshopCurveSheet& theSheet, int theFrom, int theTo)
{
    const QString from = amountOf(theSheet, theFrom);
    return theFrom == theTo ? from : QStringLiteral("%1 to %2").arg(from, amountOf(theSheet, theTo));
}

void printPieces(const VelshopCurveSheet& theSheet, QTextStream& theOutput)
{
    VelshopTable table({theSheet.isBySum() ? QStringLiteral("SUM") : QStringLiteral("PIECES"), QStringLiteral("FIRST"),
                        QStringLiteral("LAST"), QStringLiteral("EACH MORE"), QStringLiteral("MODEL"),
                        QStringLiteral("LEVEL")});
    for (const VelPriceCurvePiece& piece : theSheet.myCurve.pieces())
        table.add({runOf(theSheet, piece.myFrom, piece.myTo), VelshopWords::money(piece.myFirst),
                   VelshopWords::money(piece.last()), VelshopWords::money(piece.myPerPiece),
                   VelshopWords::discountModel(piece.myModel), QString::number(piece.myLevel)});
    table.print(theOutput, QStringLiteral("  "));
}

/// How many pieces, or the bill sum.
QString quantity(const VelshopCurveSheet& theSheet, int theAmount)
{
    return theSheet.isBySum() ? amountOf(theSheet, theAmount) : VelshopWords::pieces(theAmount);
}

QString dipText(const VelshopCurveSheet& theSheet, const VelPriceDip& theDip)
{
    const QString last = quantity(theSheet, theDip.myTo);
    const QString run =
        theDip.myFrom == theDip.myTo ? last : QStringLiteral("%1 to %2").arg(amountOf(theSheet, theDip.myFrom), last);
    return QStringLiteral("%1: %2 cost up to %3 less")
        .arg(run, quantity(theSheet, theDip.myBetter), VelshopWords::money(theDip.mySaves));
}

/// The totals in columns of as many quantities each; a column stands at the highest of its totals.
class Plot
{
public:
    explicit Plot(const VelshopCurveSheet& theSheet) : mySheet(theSheet), myFrom(theSheet.myRange.myFrom)
    {
        const VelPriceCurve& curve = theSheet.myCurve;
        myTo = curve.endsEarly() ? curve.endsAt() : theSheet.myRange.myTo;
        myTo = qMax(myTo, myFrom);
        for (int column = 0; column < columns(); ++column)
            addColumn(begin(column), begin(column + 1) - 1);
    }

    void print(QTextStream& theOutput) const
    {
        const QString top = VelshopWords::money(static_cast<int>(myHighest));
        const QString bottom = VelshopWords::money(static_cast<int>(myLowest));
        const int margin = qMax(top.length(), bottom.length());
        for (int row = PLOT_HEIGHT - 1; row >= 0; --row) {
            const QString label = row == PLOT_HEIGHT - 1 ? top : row == 0 ? bottom : QString();
            theOutput << trimmedEnd(QStringLiteral("  %1 |").arg(label, margin) + rowText(row)) << '\n';
        }
        printAxis(margin, theOutput);
    }

private:
    int columns() const { return static_cast<int>(qMin<qint64>(PLOT_WIDTH, myTo - Q_INT64_C(1) * myFrom + 1)); }
    int begin(int theColumn) const
    {
        return static_cast<int>(myFrom + (myTo - Q_INT64_C(1) * myFrom + 1) * theColumn / columns());
    }

    /// Totals are straight between the ends of a piece, so that the ends tell the highest.
    void addColumn(int theFrom, int theTo)
    {
        qint64 highest = std::numeric_limits<qint64>::min();
        for (const VelPriceCurvePiece& piece : mySheet.myCurve.pieces()) {
            const int from = qMax(theFrom, piece.myFrom);
            const int to = qMin(theTo, piece.myTo);
            if (from <= to)
                highest = qMax(highest, qMax(piece.total(from), piece.total(to)));
        }
        myTotals.append(highest);
        if (highest == std::numeric_limits<qint64>::min())
            return;
        myHighest = qMax(myHighest, highest);
        myLowest = qMin(myLowest, highest);
    }

    int rowOf(qint64 theTotal) const
    {
        return myHighest == myLowest
                   ? 0
                   : static_cast<int>((theTotal - myLowest) * (PLOT_HEIGHT - 1) / (myHighest - myLowest));
    }

    QString rowText(int theRow) const
    {
        QString text;
        for (const qint64 total : myTotals)
            text += total != std::numeric_limits<qint64>::min() && rowOf(total) == theRow ? QLatin1Char('*')
                                                                                          : QLatin1Char(' ');
        return text;
    }

    bool hasDip(int theColumn) const
    {
        return std::any_of(mySheet.myDips.cbegin(), mySheet.myDips.cend(), [&](const VelPriceDip& theDip) {
            return theDip.myFrom < begin(theColumn + 1) && theDip.myTo >= begin(theColumn);
        });
    }

    void printAxis(int theMargin, QTextStream& theOutput) const
    {
        const QString indent(theMargin + 2, QLatin1Char(' '));
        QString axis;
        for (int column = 0; column < columns(); ++column)
            axis += hasDip(column) ? QLatin1Char('v') : QLatin1Char('-');
        theOutput << indent << " +" << axis << '\n';
        const QString from = amountOf(mySheet, myFrom);
        theOutput << indent << "  " << from
                  << amountOf(mySheet, myTo).rightJustified(qMax(columns() - from.length(), 0), QLatin1Char(' '))
                  << '\n';
        if (!mySheet.myDips.isEmpty())
            theOutput << indent << "  v: a larger quantity costs less\n";
    }

    static QString trimmedEnd(QString theText)
    {
        while (theText.endsWith(QLatin1Char(' ')))
            theText.chop(1);
        return theText;
    }

    const VelshopCurveSheet& mySheet;
    int myFrom;
    int myTo;
    QVector<qint64> myTotals; ///< the lowest number for a column without a price
    qint64 myHighest = 0;
    qint64 myLowest = 0;
};

} // namespace

QString VelshopCurveText::head(const VelshopCurveSheet& theSheet)
{
    return QStringLiteral("%1 by %2").arg(nameOf(theSheet), VelshopWords::orderSource(theSheet.mySource));
}

void VelshopCurveText::print(const VelshopCurveSheet& theSheet, QTextStream& theOutput)
{
    theOutput << head(theSheet) << '\n';
    if (theSheet.myCurve.pieces().isEmpty())
        return;
    printPieces(theSheet, theOutput);
    theOutput << '\n';
    Plot(theSheet).print(theOutput);
    for (const VelPriceDip& dip : theSheet.myDips)
        theOutput << "  " << dipText(theSheet, dip) << '\n';
    if (theSheet.myCurve.endsEarly())
        theOutput << "  ends at " << amountOf(theSheet, theSheet.myCurve.endsAt())
                  << ": one more is beyond what 32 bits of cents can hold\n";
}

void VelshopCurveText::printDips(const QList<VelshopCurveSheet>& theSheets, QTextStream& theOutput)
{
    if (theSheets.isEmpty())
        theOutput << "No larger quantity costs less than a smaller one.\n";
    QString sources;
    for (int index = 0; index < theSheets.size(); ++index) {
        const VelshopCurveSheet& sheet = theSheets.at(index);
        sources += (sources.isEmpty() ? QString() : QStringLiteral("; ")) + VelshopWords::orderSource(sheet.mySource);
        if (index + 1 < theSheets.size() && differInSourceAlone(sheet, theSheets.at(index + 1)))
            continue;
        theOutput << nameOf(sheet) << " by " << sources << '\n';
        for (const VelPriceDip& dip : sheet.myDips)
            theOutput << "  " << dipText(sheet, dip) << '\n';
        sources.clear();
    }
}
