#include "host/VelshopBillHtml.h"

#include "host/VelshopBillMoney.h"
#include "host/VelshopBillSheet.h"

#include <QRegularExpression>
#include <QXmlStreamWriter>

namespace {

/// Without any character that would have to be escaped, since a browser reads a style as it stands.
const QString STR_STYLE = QStringLiteral(R"(
:root { color-scheme: light dark; --ink: #1b1b1f; --paper: #ffffff; --rule: #c8c8d0; --alarm: #a3131d; }
@media (prefers-color-scheme: dark) { :root { --ink: #ececf1; --paper: #17171b; --rule: #4a4a55; --alarm: #ff8a8a; } }
@media print { :root { --ink: #000000; --paper: #ffffff; --rule: #999999; --alarm: #000000; } }
body { font: 16px/1.45 system-ui, sans-serif; color: var(--ink); background: var(--paper); max-width: 58rem;
  margin: 2rem auto; padding: 0 1rem; }
table { border-collapse: collapse; width: 100%; margin: 0.5rem 0 1.25rem; }
th, td { text-align: left; padding: 0.3rem 0.6rem; border-bottom: 1px solid var(--rule); }
.number { text-align: right; white-space: nowrap; font-variant-numeric: tabular-nums; }
.sums { width: auto; margin-left: auto; page-break-inside: avoid; }
.sums tr:last-child { font-weight: bold; }
.alarm { color: var(--alarm); font-weight: bold; }
)");

class Page
{
public:
    explicit Page(QByteArray& theBytes) : myWriter(&theBytes) {}

    void write(const VelshopBillSheet& theSheet)
    {
        myWriter.writeDTD(QStringLiteral("<!DOCTYPE html>\n"));
        start("html", {{QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/1999/xhtml")},
                       {QStringLiteral("lang"), QStringLiteral("en")}});
        writeHead();
        start("body");
        text("h1", QStringLiteral("Order"));
        text("p", QStringLiteral("By ") + theSheet.myHead);
        if (theSheet.myCoupon)
            text("p", QStringLiteral("Coupon ") + theSheet.myCoupon->text());
        for (const VelshopBillGroup& group : theSheet.myGroups)
            writeGroup(group);
        text("h2", QStringLiteral("Total of the order"));
        if (theSheet.isOrderable())
            writeSums(theSheet.mySums);
        else
            text("p", QStringLiteral("This order can't be placed."), "alarm");
        myWriter.writeEndDocument();
    }

private:
    void start(const char* theTag, const QVector<QXmlStreamAttribute>& theAttributes = {})
    {
        myWriter.writeStartElement(QLatin1String(theTag));
        for (const QXmlStreamAttribute& attribute : theAttributes)
            myWriter.writeAttribute(attribute);
    }

    void startWithClass(const char* theTag, const char* theClass)
    {
        start(theTag);
        if (*theClass)
            myWriter.writeAttribute(QStringLiteral("class"), QLatin1String(theClass));
    }

    void end() { myWriter.writeEndElement(); }

    void text(const char* theTag, const QString& theText, const char* theClass = "")
    {
        startWithClass(theTag, theClass);
        myWriter.writeCharacters(theText);
        end();
        newLine();
    }

    void newLine() { myWriter.writeCharacters(QStringLiteral("\n")); }

    void writeHead()
    {
        start("head");
        start("meta", {{QStringLiteral("charset"), QStringLiteral("utf-8")}});
        end();
        start("meta", {{QStringLiteral("name"), QStringLiteral("viewport")},
                       {QStringLiteral("content"), QStringLiteral("width=device-width, initial-scale=1")}});
        end();
        text("title", QStringLiteral("Order"));
        text("style", STR_STYLE);
        end();
    }

    void writeGroup(const VelshopBillGroup& theGroup)
    {
        text("h2", QStringLiteral("%1 (shipping group %2)").arg(theGroup.myName).arg(theGroup.myId));
        start("table");
        start("tr");
        for (const char* head : {"Pieces", "Product", "Unit price", "Formerly", "Discount", "Amount", "Days"})
            text("th", QLatin1String(head));
        end();
        for (const VelshopBillLine& line : theGroup.myLines)
            writeLine(line);
        end();
        for (const QString& problem : theGroup.myProblems)
            text("p", QStringLiteral("Not orderable: ") + problem, "alarm");
        if (theGroup.myProblems.isEmpty())
            writeSums(theGroup.mySums);
    }

    void writeLine(const VelshopBillLine& theLine)
    {
        start("tr");
        text("td", QString::number(theLine.myPieces), "number");
        text("td", theLine.myProduct);
        money("td", theLine.myUnitPrice, false);
        if (theLine.myOldPrice == -1)
            text("td", QString());
        else
            money("td", theLine.myOldPrice, false);
        text("td", theLine.discount());
        money("td", theLine.myAmount, false);
        text("td", theLine.myDays);
        end();
    }

    void writeSums(const VelshopBillSums& theSums)
    {
        startWithClass("table", "sums");
        for (const VelshopBillSums::Row& row : theSums.rows()) {
            start("tr");
            text("td", row.myName);
            money("td", row.myAmount, false);
            if (VelshopBillMoney::hasSecondary())
                money("td", row.myAmount, true);
            end();
        }
        end();
    }

    /// Numbered characters stay as they are; all else is escaped, whatever the currency's symbol holds.
    void money(const char* theTag, int theAmount, bool theSecondary)
    {
        static const QRegularExpression reference(QStringLiteral("&#([0-9]{1,5});"));
        const QString amount = VelshopBillMoney::html(theAmount, theSecondary);
        startWithClass(theTag, "number");
        int written = 0;
        for (auto matches = reference.globalMatch(amount); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            if (!isPrintable(match.captured(1).toInt()))
                continue;
            myWriter.writeCharacters(amount.mid(written, match.capturedStart() - written));
            myWriter.writeEntityReference(QLatin1Char('#') + match.captured(1));
            written = match.capturedEnd();
        }
        myWriter.writeCharacters(amount.mid(written));
        end();
        newLine();
    }

    /// Not a control character, nor half a character.
    static bool isPrintable(int theCode)
    {
        return theCode >= 0x20 && theCode < 0xfffe && !QChar::isSurrogate(static_cast<uint>(theCode));
    }

    QXmlStreamWriter myWriter;
};

} // namespace

QByteArray billPage(const VelshopBillSheet& theSheet)
{
    QByteArray bytes;
    Page(bytes).write(theSheet);
    return bytes;
}
