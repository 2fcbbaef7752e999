#include "ordering/VelOrderCalculationResult.h"
#include "support/VelTestMain.h"

namespace {

VelOrderCalculationResult resultOf(const QString& theChildren)
{
    return VelOrderCalculationResult(parsedElement("<result>" + theChildren + "</result>"));
}

QString shown(const VelOrderCalculationResult& theResult, VelExpressTypeEnum theType)
{
    const VelTarmShippingDate date = theResult.shippingDate(theType);
    if (theResult.shippingDateIsValid(theType) != date.isValid())
        return "contradiction";
    return date.isValid() ? date.minDate().toString("d.M.") + date.maxDate().toString("-d.M.") : "none";
}

/// Standard and the two express classes.
QString shownDates(const VelOrderCalculationResult& theResult)
{
    return shown(theResult, ExpressableType_STANDARD) + ' ' + shown(theResult, ExpressableType_EXPRESS_1) + ' ' +
           shown(theResult, ExpressableType_EXPRESS_2);
}

const QString TAXES = "<sales_tax>%1</sales_tax><bill_sum>%2</bill_sum><provincial_sales_tax>%3</provincial_sales_tax>";

} // namespace

class OrderCalculationResultTest : public QObject
{
    Q_OBJECT

private slots:
    void amounts_data()
    {
        readTable(R"(
            row         | sales | sum        | provincial | amounts           | written
            all         | 19    | 2147483647 | 7          | 19 2147483647 7   | sales_tax=19 provincial_sales_tax=7
            zero        | 0     | 0          | 0          | 0 0 0             | sales_tax=0 provincial_sales_tax=0
            negative    | -2    | -2         | -2         | -2 -2 -2          | provincial_sales_tax=-2
            minus one   | -1    | -1         | -1         | -1 -1 -1          |
            malformed   | 1,5   | 2147483648 | 7 cents    | -1 -1 -1          |
        )");
    }

    void amounts()
    {
        const auto result = resultOf(TAXES.arg(cell("sales"), cell("sum"), cell("provincial")));
        QCOMPARE(
            QString::asprintf("%d %d %d", result.salesTaxValue(), result.billSumValue(), result.provincialSalesTax()),
            cell("amounts"));
        QDomElement parent = parsedElement("<order/>");
        result.buildOrderDeclarationSalesTaxElement(parent);
        QStringList written;
        for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
            written.append(child.tagName() + "=" + child.attribute("price"));
        QCOMPARE(written.join(' '), cell("written"));
        QCOMPARE(result.salesTaxIsValid(), written.value(0).startsWith("sales"));
        QCOMPARE(result.provincialSalesTaxIsValid(), written.value(written.size() - 1).startsWith("prov"));
    }

    void dates()
    {
        auto result = resultOf(R"(<shipping_times>
            <shipping_time express='0' min='2024-03-01T08:00:00' max='2024-03-05T08:00:00'/>
            <shipping_time express='1' min='2024-03-01' max='2024-03-01'/>
            <shipping_time express=' 1 ' min='2024-03-02' max='2024-03-03'/>
            <shipping_time express='1' min='2024-03-09'/>
            <shipping_time express='1' min='2024-02-30' max='2024-03-09'/>
            <shipping_time min='2024-03-09' max='2024-03-09'/>
            <shipping_time express='3' min='2024-03-09' max='2024-03-09'/>
            <other express='2' min='2024-03-09' max='2024-03-09'/></shipping_times>
            <shipping_times><shipping_time express='2' min='2024-03-09' max='2024-03-09'/></shipping_times>)");
        QCOMPARE(shownDates(result), "1.3.-5.3. 2.3.-3.3. none");
        QVERIFY(!result.shippingDateIsValid(ExpressableType_UNKNOWN));

        result.readShippingDates(QDomElement());
        result.readShippingDates(parsedElement(R"(<any><shipping_times>
            <shipping_time express='0' min='2024-04-01' max='2024-04-01'/>
            <shipping_time express='2' min='2024-04-02' max='2024-04-03'/></shipping_times></any>)"));
        QCOMPARE(shownDates(result), "1.4.-1.4. 2.3.-3.3. 2.4.-3.4.");
    }

    void equality()
    {
        const auto full = resultOf(TAXES.arg("1", "2", "3"));
        QVERIFY(full == resultOf(TAXES.arg("1", "2", "3")));
        QVector<VelOrderCalculationResult> others(4, full);
        others[0].setSalesTaxValue(4);
        others[1].setBillSumValue(4);
        others[2].setProvincialSalesTaxValue(4);
        others[3].setShippingDate(ExpressableType_STANDARD, VelTarmShippingDate()); // an entry, though an invalid one
        for (VelOrderCalculationResult& other : others) {
            QVERIFY(other != full && !(other == full));
            other.clear();
            QVERIFY(other == VelOrderCalculationResult(QDomElement()));
        }
    }
};

VEL_TEST_MAIN(OrderCalculationResultTest)
#include "tst_OrderCalculationResult.moc"
