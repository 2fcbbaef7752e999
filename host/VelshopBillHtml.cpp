#include "host/VelshopBillHtml.h"

#include "bill/VelTarmOrder.h"
#include "host/VelshopBillMoney.h"
#include "host/VelshopBillSheet.h"
#include "host/VelshopBillWords.h"

#include <QRegularExpression>
#include <QXmlStreamWriter>

namespace {

/// Without any character that would have to be escaped, since a browser reads a style as it stands.
const QString STR_STYLE = QStringLiteral(R"(
:root { color-scheme: light dark; --ink: #1b1b1f; --faint: #5c5c66; --paper: #ffffff; --rule: #d4d4dc; --alarm: #a3131d; }
@media (prefers-color-scheme: dark) {
  :root { --ink: #ececf1; --faint: #a9a9b5; --paper: #17171b; --rule: #43434e; --alarm: #ff9a9a; } }
@media print {
  :root { color-scheme: light; --ink: #000000; --faint: #444444; --paper: #ffffff; --rule: #999999; --alarm: #000000; } }
body { font: 16px/1.45 system-ui, sans-serif; color: var(--ink); background: var(--paper); max-width: 46rem;
  margin: 2rem auto; padding: 0 1rem; overflow-wrap: anywhere; }
header { display: flex; flex-wrap: wrap; justify-content: space-between; gap: 0 2rem; color: var(--faint); }
h1 { margin: 0.5rem 0 1rem; }
h2 { margin: 2rem 0 0.5rem; font-size: 1.2rem; break-after: avoid; }
dl { display: grid; grid-template-columns: max-content 1fr; gap: 0.15rem 1.25rem; margin: 0 0 1.5rem; }
dt { color: var(--faint); }
dd { margin: 0; }
table { border-collapse: collapse; width: 100%; }
th, td { text-align: left; vertical-align: top; padding: 0.4rem 0 0.4rem 1rem; border-bottom: 1px solid var(--rule); }
th:first-child, td:first-child { padding-left: 0; }
th { font-weight: 600; overflow-wrap: normal; }
tr { break-inside: avoid; }
.number { text-align: right; white-space: nowrap; font-variant-numeric: tabular-nums; }
.note { display: block; font-size: 0.875rem; color: var(--faint); }
.sums { width: auto; margin: 0.75rem 0 0 auto; break-inside: avoid; }
.sums td { border-bottom: 0; padding-top: 0.15rem; padding-bottom: 0.15rem; }
.sums tr:last-child td { font-weight: 600; border-top: 1px solid var(--rule); }
.alarm { color: var(--alarm); font-weight: 600; }
@media (max-width: 34rem) { th, td { padding-left: 0.6rem; } body { margin: 1rem auto; font-size: 15px; } }
)");

class Page
{
public:
    Page(const VelTarmOrder& theOrder, const VelshopBillSheet& theSheet, const VelshopBillPageHead& theHead,
         QByteArray& theBytes)
        : myOrder(theOrder), mySheet(theSheet), myHead(theHead), myWriter(&theBytes)
    {
    }

    void write()
    {
        myWriter.writeDTD(QStringLiteral("<!DOCTYPE html>\n"));
        start("html", {{QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/1999/xhtml")},
                       {QStringLiteral("lang"), myHead.myLanguage}});
        writeHead();
        start("body");
        writeTitle();
        writeChoices();
        for (int index = 0; index < mySheet.myGroups.size(); ++index)
            writeGroup(mySheet.myGroups.at(index), myOrder.bills().at(index));
        writeTotal();
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
        const QString title = VelshopBillWords::tr("Bestellung");
        text("title", myHead.myShop.isEmpty() ? title : title + QStringLiteral(" - ") + myHead.myShop);
        text("style", STR_STYLE);
        end();
    }

    void writeTitle()
    {
        start("header");
        text("span", myHead.myShop);
        text("span", VelshopBillWords::today(myHead.myLanguage));
        end();
        text("h1", VelshopBillWords::tr("Bestellung"));
    }

    void writeChoices()
    {
        start("dl");
        writeChoice(VelshopBillWords::tr("Bestellt"), VelshopBillWords::ordered(myOrder.status().inputSource()));
        writeChoice(VelshopBillWords::tr("Lieferung"), VelshopBillWords::delivered(myOrder.status().deliveryType()));
        writeChoice(VelshopBillWords::tr("Tempo"), VelshopBillWords::speed(myOrder.expressType()));
        writeChoice(VelshopBillWords::tr("Zahlung"), VelshopBillWords::payment(myOrder.status().payment()));
        if (mySheet.myCoupon)
            writeChoice(VelshopBillWords::tr("Gutschein"), VelshopBillWords::coupon(*mySheet.myCoupon));
        end();
    }

    void writeChoice(const QString& theName, const QString& theChoice)
    {
        if (theChoice.isEmpty())
            return;
        text("dt", theName);
        text("dd", theChoice);
    }

    void writeGroup(const VelshopBillGroup& theGroup, const VelTarmOrderBill& theBill)
    {
        text("h2", theGroup.myName.isEmpty() ? VelshopBillWords::tr("Artikel") : theGroup.myName);
        if (!theGroup.myLines.isEmpty())
            writeLines(theGroup.myLines);
        for (const VelTarmOrderObjection& objection : theBill.objections())
            text("p", VelshopBillWords::problem(objection), "alarm");
        if (mySheet.isOrderable() && mySheet.myGroups.size() > 1) // those of a single group are the order's
            writeSums(theGroup.mySums);
    }

    void writeLines(const QList<VelshopBillLine>& theLines)
    {
        start("table");
        start("tr");
        text("th", VelshopBillWords::tr("Artikel"));
        text("th", VelshopBillWords::tr("Stück"), "number");
        text("th", VelshopBillWords::tr("Einzelpreis"), "number");
        text("th", VelshopBillWords::tr("Betrag"), "number");
        end();
        for (const VelshopBillLine& line : theLines)
            writeLine(line);
        end();
    }

    void writeLine(const VelshopBillLine& theLine)
    {
        start("tr");
        start("td");
        myWriter.writeCharacters(theLine.myProduct);
        const QStringList notes = VelshopBillWords::notes(theLine);
        if (!notes.isEmpty())
            text("span", notes.join(QStringLiteral(", ")), "note");
        end();
        text("td", QString::number(theLine.myPieces), "number");
        startWithClass("td", "number");
        if (theLine.myOldPrice != -1) {
            start("s");
            money(theLine.myOldPrice, false);
            end();
            start("br");
            end();
        }
        money(theLine.myUnitPrice, false);
        end();
        amount(theLine.myAmount, false);
        end();
    }

    void writeTotal()
    {
        text("h2", VelshopBillWords::tr("Gesamte Bestellung"));
        for (const VelTarmOrderObjection& objection : myOrder.objections())
            if (objection.myGroup == VelTarmOrderObjection::NO_GROUP)
                text("p", VelshopBillWords::problem(objection), "alarm");
        if (mySheet.isOrderable())
            writeSums(mySheet.mySums);
        else
            text("p", VelshopBillWords::tr("Diese Bestellung kann so nicht aufgegeben werden."), "alarm");
    }

    void writeSums(const VelTarmOrderAmounts& theSums)
    {
        startWithClass("table", "sums");
        for (const VelshopBillWords::Sum& sum : VelshopBillWords::sums(theSums)) {
            start("tr");
            text("td", sum.myName);
            amount(sum.myAmount, false);
            if (VelshopBillMoney::hasSecondary())
                amount(sum.myAmount, true);
            end();
        }
        end();
    }

    void amount(int theAmount, bool theSecondary)
    {
        startWithClass("td", "number");
        money(theAmount, theSecondary);
        end();
        newLine();
    }

    /// Numbered characters stay as they are; all else is escaped, whatever the currency's symbol holds.
    void money(int theAmount, bool theSecondary)
    {
        static const QRegularExpression reference(QStringLiteral("&#([0-9]{1,5});"));
        const QString amount = VelshopBillMoney::html(theAmount, theSecondary);
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
    }

    /// Not a control character, nor half a character.
    static bool isPrintable(int theCode)
    {
        return theCode >= 0x20 && theCode < 0xfffe && !QChar::isSurrogate(static_cast<uint>(theCode));
    }

    const VelTarmOrder& myOrder;
    const VelshopBillSheet& mySheet;
    const VelshopBillPageHead& myHead;
    QXmlStreamWriter myWriter;
};

} // namespace

QByteArray billPage(const VelTarmOrder& theOrder, const VelshopBillSheet& theSheet, const VelshopBillPageHead& theHead)
{
    QByteArray bytes;
    Page(theOrder, theSheet, theHead, bytes).write();
    return bytes;
}
