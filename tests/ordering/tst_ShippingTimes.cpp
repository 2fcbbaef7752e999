#include "ordering/VelTarmShippingTimeList.h"
#include "support/VelTestMain.h"

namespace {

VelTarmShippingTime timeOf(const QString& theAttributes)
{
    return VelTarmShippingTime(parsedElement(QStringLiteral("<any %1/>").arg(theAttributes)));
}

} // namespace

class TestShippingTimes : public QObject
{
    Q_OBJECT

private slots:
    void days_data()
    {
        readTable(R"(
            row                              | days                 | min | max
            word                             | bald                 | -1  | -1
            range downwards                  | 5-3                  | 5   | 3
            chain: first and last            | 3-5-7                | 3   | 7
            chain with open end              | 3-5-                 | 3   | 5
            open beginning                   | -3                   | 3   | 3
            amid text                        | ca. 2-4 Tage         | 2   | 4
            first match only                 | 3 oder 5-7           | 3   | 3
            two hyphens end the range        | 3--5                 | 3   | 3
            too large                        | 99999999999          | 0   | 0
            lower end too large              | 99999999999-5        | 0   | 5
            upper end too large              | 5-99999999999        | 5   | 5
            too large at the end of a chain  | 3-7-99999999999      | 3   | 3
        )");
    }

    void days()
    {
        const VelTarmShippingTime time =
            timeOf(QStringLiteral("delivery_type='1' express='0' days='%1'").arg(cell("days")));
        QCOMPARE(time.minDays(), number("min"));
        QCOMPARE(time.maxDays(), number("max"));
        QCOMPARE(time.varies(), number("min") != number("max"));
        QVERIFY(time.isValid()); // the days play no part
    }

    void validity_data()
    {
        readTable(R"(
            attributes                          | delivery | express | valid
            delivery_type=' 2 ' express=' 2 '   | 2        | 3       | yes
            delivery_type='1'                   | 1        | 0       | no
            delivery_type='1' express='7'       | 1        | 0       | no
            express='0'                         | -1       | 1       | yes
            delivery_type='abc' express='0'     | -2       | 1       | no
            delivery_type='abc,1' express='0'   | -1       | 1       | yes
            delivery_type='1,2' express='0,1'   | 3        | 3       | yes
        )");
    }

    void validity()
    {
        const VelTarmShippingTime time = timeOf(cell("attributes"));
        QCOMPARE(int(time.deliveryType()), number("delivery"));
        QCOMPARE(int(time.expressType().value()), number("express"));
        QCOMPARE(time.isValid(), answer("valid"));
        QCOMPARE(time.minDays(), -1);
    }

    void values()
    {
        const VelTarmShippingTime none;
        QCOMPARE((QList<int>{none.deliveryType(), none.expressType().value(), none.minDays()}),
                 (QList<int>{-2, 0, -1}));
        QVERIFY(!none.isValid() && !none.varies());

        const VelTarmShippingTime one = timeOf("days='3-5' delivery_type='1' express='0'");
        QVERIFY(one == timeOf("days='3-4-5' delivery_type=' 1' express='0'"));
        for (const char* other :
             {"days='4-5' delivery_type='1' express='0'", "days='3-6' delivery_type='1' express='0'",
              "days='3-5' delivery_type='0' express='0'", "days='3-5' delivery_type='1' express='1'"})
            QVERIFY2(!(one == timeOf(other)), other);
    }

    void list()
    {
        const MessageCatcher messages;
        VelTarmShippingTimeList times(parsedElement(R"(<shipping_times>
            <shipping_time days='1' delivery_type='1'/>
            <shipping_time days='2' delivery_type='1' express='0'/>
            <shipping_time days='3' delivery_type='1' express='0'/>
            <other days='4' delivery_type='0' express='0'/>
            <deeper><shipping_time days='5' delivery_type='0' express='0'/></deeper>
            <shipping_time days='6' delivery_type='x' express='0'/>
            <shipping_time days='7' express='1'/></shipping_times>)"));
        const QString warning = "VelTarmShippingTimeList::update(const QDomElement &), invalid shippingTime";
        QCOMPARE(messages.texts(), (QStringList{warning, warning}));
        const auto days = [&times](VelDeliveryType theDelivery, VelExpressTypeEnum theExpress) {
            const VelTarmShippingTime time = times.shippingTime(theDelivery, theExpress);
            return time.isValid() == times.isExpressable(theDelivery, theExpress) ? time.minDays() : -99;
        };
        QCOMPARE(days(DELIVERY_TYPE_MAILORDER, ExpressableType_STANDARD), 2); // the first of a pair wins
        QCOMPARE(days(DELIVERY_TYPE_POS, ExpressableType_STANDARD), -1);
        QCOMPARE(days(DELIVERY_TYPE_MAILORDER, ExpressableType_UNKNOWN), -1);
        QCOMPARE(days(DELIVERY_TYPE_MAILORDER, ExpressableType_EXPRESS_1), -1); // the wild type isn't spread
        QCOMPARE(days(DELIVERY_TYPE_ANY, ExpressableType_EXPRESS_1), 7);

        const VelTarmShippingTimeList full = times;
        for (const QDomElement& emptying :
             {QDomElement(), parsedElement("<times><shipping_time delivery_type='1' express='0'/></times>")}) {
            times = full;
            QVERIFY(!times.isEmpty());
            times.update(emptying);
            QVERIFY(times.isEmpty());
        }
    }
};

VEL_TEST_MAIN(TestShippingTimes)
#include "tst_ShippingTimes.moc"
