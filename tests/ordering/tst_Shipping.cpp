#include "ordering/VelOrderCalculationResult.h"
#include "ordering/VelTarmShippingTimeList.h"
#include "support/VelTestMain.h"

/// The days that the shipping of an article takes, and the answer with the dates and taxes of an order.
class ShippingTest : public QObject
{
    Q_OBJECT

private slots:
    void times_data()
    {
        readTable(R"(
            attributes                                             | from | to | delivery | express | valid
            days='bald' delivery_type=' 2 ' express=' 2 '          | -1   | -1 | 2        | 3       | yes
            days='5-3' delivery_type='1'                           | 5    | 3  | 1        | 0       | no
            days='3-5-7' delivery_type='1' express='7'             | 3    | 7  | 1        | 0       | no
            days='3-5-' express='0'                                | 3    | 5  | -1       | 1       | yes
            days='ca. 2-4 Tage, 7' delivery_type='abc' express='0' | 2    | 4  | -2       | 1       | no
            days='3--5' delivery_type='1,2' express='0,1'          | 3    | 3  | 3        | 3       | yes
            days='99999999999-5'                                   | 0    | 5  | -1       | 0       | no
            days='3-7-99999999999'                                 | 3    | 3  | -1       | 0       | no
        )");
    }

    void times()
    {
        const VelTarmShippingTime time(parsedElement("<any " + cell("attributes") + "/>"));
        QCOMPARE(time.minDays(), number("from"));
        QCOMPARE(time.maxDays(), number("to"));
        QCOMPARE(int(time.deliveryType()), number("delivery"));
        QCOMPARE(int(time.expressType().value()), number("express"));
        QCOMPARE(time.isValid(), answer("valid"));
    }

    void timeList()
    {
        const MessageCatcher messages;
        VelTarmShippingTimeList times(parsedElement(R"(<shipping_times>
            <shipping_time days='1' delivery_type='1'/><other days='4' delivery_type='0' express='0'/>
            <shipping_time days='2' delivery_type='1' express='0'/>
            <shipping_time days='3' delivery_type='1' express='0'/>
            <shipping_time days='7' express='1'/></shipping_times>)"));
        QCOMPARE(messages.texts().join('\n'),
                 "VelTarmShippingTimeList::update(const QDomElement &), invalid shippingTime");
        // The first of a pair wins, and the wild type isn't spread.
        QCOMPARE(times.shippingTime(DELIVERY_TYPE_MAILORDER, ExpressableType_STANDARD).minDays(), 2);
        QCOMPARE(times.shippingTime(DELIVERY_TYPE_ANY, ExpressableType_EXPRESS_1).minDays(), 7);
        QCOMPARE(times.shippingTime(DELIVERY_TYPE_POS, ExpressableType_STANDARD).minDays(), -1);
        QVERIFY(!times.isExpressable(DELIVERY_TYPE_MAILORDER, ExpressableType_EXPRESS_1));
        times.update(parsedElement("<times><shipping_time delivery_type='1' express='0'/></times>"));
        QVERIFY(times.isEmpty());
    }

    void taxes_data()
    {
        readTable(R"(
            amounts                                                   | written
            <sales_tax>0</sales_tax>                                  | <sales_tax price="0"/>
            <sales_tax>-2</sales_tax>                                 |
            <provincial_sales_tax>-2</provincial_sales_tax>           | <provincial_sales_tax price="-2"/>
            <bill_sum>2147483647</bill_sum>                           |
            <sales_tax>1,5</sales_tax><bill_sum>2147483648</bill_sum> |
        )");
    }

    void taxes()
    {
        const VelOrderCalculationResult result(parsedElement("<r>" + cell("amounts") + "</r>"));
        QCOMPARE(result == VelOrderCalculationResult(QDomElement()), cell("amounts").contains("1,5"));
        QDomElement parent = parsedElement("<o><c/></o>");
        result.buildOrderDeclarationSalesTaxElement(parent);
        QString written;
        QTextStream stream(&written);
        parent.save(stream, -1);
        QCOMPARE(written, "<o><c/>" + cell("written") + "</o>");
    }

    void dates()
    {
        const VelOrderCalculationResult first(parsedElement(R"(<any><shipping_times>
            <shipping_time express='0' min='2024-03-01T08:00:00' max='2024-03-05T08:00:00'/>
            <shipping_time express='1' min='2024-03-01' max='2024-03-01'/>
            <shipping_time express=' 1 ' min='2024-03-02' max='2024-03-03'/>
            <shipping_time express='1' min='2024-03-09'/><shipping_time express='1' max='2024-03-09'/>
            <shipping_time min='2024-03-09' max='2024-03-09'/></shipping_times></any>)"));
        QCOMPARE(first.shippingDate(ExpressableType_STANDARD).maxDate(), QDate(2024, 3, 5));
        QCOMPARE(first.shippingDate(ExpressableType_EXPRESS_1).minDate(), QDate(2024, 3, 2));
        QVERIFY(!first.shippingDateIsValid(ExpressableType_UNKNOWN));
        VelOrderCalculationResult second = first;
        second.readShippingDates(parsedElement(R"(<any><shipping_times>
            <shipping_time express='0' min='2024-04-01' max='2024-04-01'/>
            <shipping_time express='2' min='2024-04-02' max='2024-04-03'/></shipping_times></any>)"));
        QCOMPARE(second.shippingDate(ExpressableType_STANDARD).maxDate(), QDate(2024, 4, 1));
        QCOMPARE(second.shippingDate(ExpressableType_EXPRESS_1).maxDate(), QDate(2024, 3, 3));
        QVERIFY(second.shippingDateIsValid(ExpressableType_EXPRESS_2));
        QVERIFY(second != first);
        second.clear();
        QVERIFY(second == VelOrderCalculationResult(QDomElement()));
    }
};

VEL_TEST_MAIN(ShippingTest)
#include "tst_Shipping.moc"
