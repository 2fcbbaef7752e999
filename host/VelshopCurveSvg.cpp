#include "host/VelshopCurveSvg.h"

#include "host/VelshopCurveText.h"
#include "host/VelshopWords.h"

#include <QPointF>
#include <QXmlStreamWriter>

#include <cmath>

namespace {

const double WIDTH = 900;
const double LEFT = 84;
const double RIGHT = 880;
const double TOP = 64;
const double PANEL_HEIGHT = 250;
const double GAP = 56;
const double SMALL_WIDTH = 120;
const double SMALL_HEIGHT = 36;
const int SAMPLES = 48; ///< of a price per piece, which is no straight line within a piece
const int TICKS = 5;

const QString STR_STYLE = QStringLiteral(R"(
svg { --ink: #1b1b1f; --rule: #d4d4dc; --band: #f1f1f6; --line: #1f5fbf; --dip: #c0392b; --paper: #ffffff; }
@media (prefers-color-scheme: dark) {
  svg { --ink: #ececf1; --rule: #44444f; --band: #22222a; --line: #7fb2ff; --dip: #ff8a7a; --paper: #17171b; } }
@media print {
  svg { --ink: #000000; --rule: #bbbbbb; --band: #f3f3f3; --line: #000000; --dip: #000000; --paper: #ffffff; } }
.paper { fill: var(--paper); } .band { fill: var(--band); } .rule { stroke: var(--rule); stroke-width: 1; }
text { fill: var(--ink); font: 13px system-ui, sans-serif; } .head { font-size: 17px; font-weight: bold; }
.small { font-size: 11px; } .end { text-anchor: end; } .middle { text-anchor: middle; }
.curve { fill: none; stroke: var(--line); stroke-width: 2; stroke-linejoin: round; stroke-linecap: round; }
.dip { fill: var(--dip); fill-opacity: 0.25; stroke: var(--dip); stroke-width: 1; }
)");

/// 1, 2 or 5 times a power of ten, so that so many steps reach the range.
double niceStep(double theRange)
{
    const double rough = qMax(theRange, 1.0) / TICKS;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * power >= rough)
            return qMax(factor * power, 1.0);
    return qMax(10 * power, 1.0);
}

/// Where numbers stand in the picture.
struct Axis
{
    double myLowest;
    double myHighest;
    double myBegin; ///< where the lowest number stands
    double myEnd;

    double at(double theNumber) const
    {
        const double range = myHighest - myLowest;
        return range == 0 ? myBegin : myBegin + (theNumber - myLowest) / range * (myEnd - myBegin);
    }
};

class Picture
{
public:
    Picture(const VelshopCurveSheet& theSheet, QByteArray& theBytes)
        : mySheet(theSheet), myWriter(&theBytes), myQuantities(quantities())
    {
    }

    void draw()
    {
        const bool hasPrices = !mySheet.isBySum();
        const double height = TOP + PANEL_HEIGHT + (hasPrices ? GAP + PANEL_HEIGHT : 0) + GAP;
        myWriter.writeStartDocument();
        start("svg", {{QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/2000/svg")},
                      {QStringLiteral("viewBox"), QStringLiteral("0 0 %1 %2").arg(WIDTH).arg(height)},
                      {QStringLiteral("role"), QStringLiteral("img")}});
        writeText("title", VelshopCurveText::head(mySheet));
        writeText("style", STR_STYLE);
        rectangle("paper", {0, 0}, {WIDTH, height});
        label("head", {LEFT, 28}, VelshopCurveText::head(mySheet));
        panel(TOP, QStringLiteral("total"), &Picture::totalsOf);
        if (hasPrices)
            panel(TOP + PANEL_HEIGHT + GAP, QStringLiteral("price per piece"), &Picture::pricesOf);
        myWriter.writeEndDocument();
    }

private:
    using Points = QVector<QPointF>;
    using Reader = Points (Picture::*)(const VelPriceCurvePiece&) const;

    Axis quantities() const
    {
        const VelPriceCurve& curve = mySheet.myCurve;
        const int end = curve.endsEarly() ? curve.endsAt() : mySheet.myRange.myTo;
        return {static_cast<double>(mySheet.myRange.myFrom), static_cast<double>(qMax(end, mySheet.myRange.myFrom)),
                LEFT, RIGHT};
    }

    // ---- the numbers of a piece

    Points totalsOf(const VelPriceCurvePiece& thePiece) const
    {
        return {{static_cast<double>(thePiece.myFrom), static_cast<double>(thePiece.myFirst)},
                {static_cast<double>(thePiece.myTo), static_cast<double>(thePiece.last())}};
    }

    Points pricesOf(const VelPriceCurvePiece& thePiece) const
    {
        Points points;
        const int steps = qMax(1, qMin(SAMPLES, thePiece.myTo - thePiece.myFrom));
        for (int step = 0; step <= steps; ++step) {
            const qint64 quantity =
                thePiece.myFrom + (static_cast<qint64>(thePiece.myTo) - thePiece.myFrom) * step / steps;
            points.append({static_cast<double>(quantity),
                           static_cast<double>(thePiece.total(quantity)) / static_cast<double>(quantity)});
        }
        return points;
    }

    // ---- a panel

    void panel(double theTop, const QString& theTitle, Reader theReader)
    {
        QVector<Points> curves;
        Axis amounts{0, 1, theTop + PANEL_HEIGHT, theTop};
        for (const VelPriceCurvePiece& piece : mySheet.myCurve.pieces()) {
            curves.append((this->*theReader)(piece));
            for (const QPointF& point : curves.last()) {
                amounts.myLowest = qMin(amounts.myLowest, point.y());
                amounts.myHighest = qMax(amounts.myHighest, point.y());
            }
        }
        label("", {LEFT, theTop - 10}, theTitle);
        drawBands(theTop);
        drawDips(theTop);
        drawAmounts(amounts);
        drawQuantities(theTop + PANEL_HEIGHT);
        for (const Points& points : curves)
            drawCurve(points, amounts);
    }

    /// Each second piece is shaded; the widths tell which have room for a name.
    void drawBands(double theTop)
    {
        bool isShaded = false;
        for (const VelPriceCurvePiece& piece : mySheet.myCurve.pieces()) {
            const double from = myQuantities.at(piece.myFrom);
            const double to = myQuantities.at(piece.myTo);
            isShaded = !isShaded;
            if (isShaded)
                rectangle("band", {from, theTop}, {to - from, PANEL_HEIGHT});
            const QString name =
                QStringLiteral("%1 %2").arg(VelshopWords::discountModel(piece.myModel)).arg(piece.myLevel);
            if (to - from > 7.0 * name.length())
                label("small middle", {(from + to) / 2, theTop + 14}, name);
        }
    }

    void drawDips(double theTop)
    {
        for (const VelPriceDip& dip : mySheet.myDips) {
            const double from = myQuantities.at(dip.myFrom);
            const double to = myQuantities.at(dip.myTo);
            rectangle("dip", {from, theTop + 20}, {qMax(to - from, 1.0), PANEL_HEIGHT - 20}, dipText(dip));
        }
    }

    QString dipText(const VelPriceDip& theDip) const
    {
        return QStringLiteral("%1 costs up to %2 less than %3 to %4")
            .arg(quantityText(theDip.myBetter), VelshopWords::money(theDip.mySaves), quantityText(theDip.myFrom),
                 quantityText(theDip.myTo));
    }

    void drawAmounts(const Axis& theAmounts)
    {
        const double step = niceStep(theAmounts.myHighest - theAmounts.myLowest);
        for (double amount = std::ceil(theAmounts.myLowest / step) * step; amount <= theAmounts.myHighest;
             amount += step) {
            const double y = theAmounts.at(amount);
            line({LEFT, y}, {RIGHT, y});
            label("end", {LEFT - 8, y + 4}, VelshopWords::money(static_cast<int>(amount)));
        }
    }

    void drawQuantities(double theBottom)
    {
        line({LEFT, theBottom}, {RIGHT, theBottom});
        const double step = niceStep(myQuantities.myHighest - myQuantities.myLowest);
        for (double quantity = std::ceil(myQuantities.myLowest / step) * step; quantity <= myQuantities.myHighest;
             quantity += step)
            label("middle", {myQuantities.at(quantity), theBottom + 18}, quantityText(static_cast<int>(quantity)));
    }

    QString quantityText(int theQuantity) const
    {
        return mySheet.isBySum() ? VelshopWords::money(theQuantity) : QString::number(theQuantity);
    }

    /// A single quantity is a dot.
    void drawCurve(const Points& thePoints, const Axis& theAmounts)
    {
        QString path;
        for (const QPointF& point : thePoints)
            path += QStringLiteral("%1%2 %3").arg(path.isEmpty() ? QStringLiteral("M") : QStringLiteral("L"),
                                                  number(myQuantities.at(point.x())), number(theAmounts.at(point.y())));
        start("path", {{QStringLiteral("class"), QStringLiteral("curve")}, {QStringLiteral("d"), path}});
        myWriter.writeEndElement();
    }

    // ---- shapes

    void start(const char* theTag, const QVector<QXmlStreamAttribute>& theAttributes)
    {
        myWriter.writeStartElement(QLatin1String(theTag));
        for (const QXmlStreamAttribute& attribute : theAttributes)
            myWriter.writeAttribute(attribute);
    }

    void writeText(const char* theTag, const QString& theText)
    {
        myWriter.writeTextElement(QLatin1String(theTag), theText);
    }

    void rectangle(const char* theClass, const QPointF& thePlace, const QPointF& theSize,
                   const QString& theTitle = QString())
    {
        start("rect", {{QStringLiteral("class"), QLatin1String(theClass)},
                       {QStringLiteral("x"), number(thePlace.x())},
                       {QStringLiteral("y"), number(thePlace.y())},
                       {QStringLiteral("width"), number(theSize.x())},
                       {QStringLiteral("height"), number(theSize.y())}});
        if (!theTitle.isEmpty())
            writeText("title", theTitle);
        myWriter.writeEndElement();
    }

    void line(const QPointF& theBegin, const QPointF& theEnd)
    {
        start("line", {{QStringLiteral("class"), QStringLiteral("rule")},
                       {QStringLiteral("x1"), number(theBegin.x())},
                       {QStringLiteral("y1"), number(theBegin.y())},
                       {QStringLiteral("x2"), number(theEnd.x())},
                       {QStringLiteral("y2"), number(theEnd.y())}});
        myWriter.writeEndElement();
    }

    void label(const char* theClass, const QPointF& thePlace, const QString& theText)
    {
        start("text", {{QStringLiteral("class"), QLatin1String(theClass)},
                       {QStringLiteral("x"), number(thePlace.x())},
                       {QStringLiteral("y"), number(thePlace.y())}});
        myWriter.writeCharacters(theText);
        myWriter.writeEndElement();
    }

    static QString number(double theNumber) { return QString::number(theNumber, 'f', 1); }

    const VelshopCurveSheet& mySheet;
    QXmlStreamWriter myWriter;
    Axis myQuantities;
};

} // namespace

QByteArray VelshopCurveSvg::picture(const VelshopCurveSheet& theSheet)
{
    QByteArray bytes;
    Picture(theSheet, bytes).draw();
    return bytes;
}

void VelshopCurveSvg::writeSmall(const VelPriceCurve& theCurve, int theFrom, int theTo, QXmlStreamWriter& theWriter)
{
    Axis amounts{0, 1, SMALL_HEIGHT - 1, 1};
    for (const VelPriceCurvePiece& piece : theCurve.pieces())
        for (const int amount : {piece.myFirst, piece.last()}) {
            amounts.myLowest = qMin<double>(amounts.myLowest, amount);
            amounts.myHighest = qMax<double>(amounts.myHighest, amount);
        }
    const Axis quantities{static_cast<double>(theFrom), static_cast<double>(theTo), 1, SMALL_WIDTH - 1};
    QString path;
    for (const VelPriceCurvePiece& piece : theCurve.pieces())
        path += QStringLiteral("M%1 %2L%3 %4")
                    .arg(QString::number(quantities.at(piece.myFrom), 'f', 1),
                         QString::number(amounts.at(piece.myFirst), 'f', 1),
                         QString::number(quantities.at(piece.myTo), 'f', 1),
                         QString::number(amounts.at(piece.last()), 'f', 1));
    theWriter.writeStartElement(QStringLiteral("svg"));
    theWriter.writeAttribute(QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/2000/svg"));
    theWriter.writeAttribute(QStringLiteral("class"), QStringLiteral("spark"));
    theWriter.writeAttribute(QStringLiteral("viewBox"), QStringLiteral("0 0 %1 %2").arg(SMALL_WIDTH).arg(SMALL_HEIGHT));
    theWriter.writeAttribute(QStringLiteral("aria-hidden"), QStringLiteral("true"));
    theWriter.writeEmptyElement(QStringLiteral("path"));
    theWriter.writeAttribute(QStringLiteral("d"), path);
    theWriter.writeEndElement();
}
