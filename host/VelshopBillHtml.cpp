#include "host/VelshopBillHtml.h"

#include "bill/VelTarmOrder.h"
#include "host/VelshopBillMoney.h"
#include "host/VelshopBillSheet.h"
#include "host/VelshopBillWords.h"
#include "host/VelshopPage.h"
#include "host/VelshopProblems.h"

#include <QRegularExpression>

namespace {

const QString STR_STYLE = QStringLiteral(R"(
dl { display: grid; grid-template-columns: max-content 1fr; gap: 0.15rem 1.25rem; margin: 0 0 1.5rem; }
dt { color: var(--faint); }
dd { margin: 0; }
.sums { width: auto; margin: 0.75rem 0 0 auto; break-inside: avoid; }
.sums td { border-bottom: 0; padding-top: 0.15rem; padding-bottom: 0.15rem; }
.sums tr:last-child td { font-weight: 600; border-top: 1px solid var(--rule); }
)");

QString titleOf(const VelshopBillPageHead& theHead)
{
    const QString title = VelshopBillWords::tr("Bestellung");
    return theHead.myShop.isEmpty() ? title : title + QStringLiteral(" - ") + theHead.myShop;
}

class BillPage : private VelshopPage
{
public:
    BillPage(const VelTarmOrder& theOrder, const VelshopBillSheet& theSheet, const VelshopBillPageHead& theHead)
        : VelshopPage(titleOf(theHead), theHead.myLanguage, STR_STYLE)
        , myOrder(theOrder)
        , mySheet(theSheet)
        , myHead(theHead)
    {
    }

    QByteArray write()
    {
        writeTitle();
        writeChoices();
        for (int index = 0; index < mySheet.myGroups.size(); ++index)
            writeGroup(mySheet.myGroups.at(index), myOrder.bills().at(index));
        writeTotal();
        return finish();
    }

private:
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
            text("p", VelshopBillWords::problem(objection), QStringLiteral("alarm"));
        if (mySheet.isOrderable() && mySheet.myGroups.size() > 1) // those of a single group are the order's
            writeSums(theGroup.mySums);
    }

    void writeLines(const QList<VelshopBillLine>& theLines)
    {
        start("table");
        start("tr");
        text("th", VelshopBillWords::tr("Artikel"));
        text("th", VelshopBillWords::tr("Stück"), QStringLiteral("number"));
        text("th", VelshopBillWords::tr("Einzelpreis"), QStringLiteral("number"));
        text("th", VelshopBillWords::tr("Betrag"), QStringLiteral("number"));
        end();
        for (const VelshopBillLine& line : theLines)
            writeLine(line);
        end();
    }

    void writeLine(const VelshopBillLine& theLine)
    {
        start("tr");
        start("td");
        characters(theLine.myProduct);
        const QStringList notes = VelshopBillWords::notes(theLine);
        if (!notes.isEmpty())
            text("span", notes.join(QStringLiteral(", ")), QStringLiteral("note"));
        end();
        text("td", QString::number(theLine.myPieces), QStringLiteral("number"));
        startWithClass("td", QStringLiteral("number"));
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
        for (const VelTarmOrderObjection& objection : VelshopProblems::ofOrder(myOrder))
            text("p", VelshopBillWords::problem(objection), QStringLiteral("alarm"));
        if (mySheet.isOrderable())
            writeSums(mySheet.mySums);
        else
            text("p", VelshopBillWords::tr("Diese Bestellung kann so nicht aufgegeben werden."),
                 QStringLiteral("alarm"));
    }

    void writeSums(const VelTarmOrderAmounts& theSums)
    {
        startWithClass("table", QStringLiteral("sums"));
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
        startWithClass("td", QStringLiteral("number"));
        money(theAmount, theSecondary);
        end();
        characters(QStringLiteral("\n"));
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
            characters(amount.mid(written, match.capturedStart() - written));
            writer().writeEntityReference(QLatin1Char('#') + match.captured(1));
            written = match.capturedEnd();
        }
        characters(amount.mid(written));
    }

    /// Not a control character, nor half a character.
    static bool isPrintable(int theCode)
    {
        return theCode >= 0x20 && theCode < 0xfffe && !QChar::isSurrogate(static_cast<uint>(theCode));
    }

    const VelTarmOrder& myOrder;
    const VelshopBillSheet& mySheet;
    const VelshopBillPageHead& myHead;
};

} // namespace

QByteArray billPage(const VelTarmOrder& theOrder, const VelshopBillSheet& theSheet, const VelshopBillPageHead& theHead)
{
    return BillPage(theOrder, theSheet, theHead).write();
}
