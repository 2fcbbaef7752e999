#include "ordering/VelTarmShippingTimeList.h"
#include "support/VelTestMain.h"

namespace {

QDomElement xml(const char* theXml)
{
    return parsedElement(QString::fromUtf8(theXml));
}

} // namespace

class TestShippingTimes : public QObject
{
    Q_OBJECT

private slots:
    void days_data()
    {
        QTest::addColumn<QString>("days");
        QTest::addColumn<int>("min");
        QTest::addColumn<int>("max");
        QTest::newRow("absent") << QString() << -1 << -1;
        QTest::newRow("word") << "bald" << -1 << -1;
        QTest::newRow("range") << "3-5" << 3 << 5;
        QTest::newRow("range downwards") << "5-3" << 5 << 3;
        QTest::newRow("chain: first and last") << "3-5-7" << 3 << 7;
        QTest::newRow("chain with open end") << "3-5-" << 3 << 5;
        QTest::newRow("open beginning") << "-3" << 3 << 3;
        QTest::newRow("amid text") << "ca. 2-4 Tage" << 2 << 4;
        QTest::newRow("first match only") << "3 oder 5-7" << 3 << 3;
        QTest::newRow("two hyphens end the range") << "3--5" << 3 << 3;
        QTest::newRow("too large") << "99999999999" << 0 << 0;
        QTest::newRow("lower end too large") << "99999999999-5" << 0 << 5;
        QTest::newRow("upper end too large") << "5-99999999999" << 5 << 5;
        QTest::newRow("too large at the end of a chain") << "3-7-99999999999" << 3 << 3;
    }

    void days()
    {
        QFETCH(QString, days);
        QFETCH(int, min);
        QFETCH(int, max);
        QDomElement element = xml("<any delivery_type='1' express='0'/>");
        if (!days.isNull())
            element.setAttribute(QStringLiteral("days"), days);
        const VelTarmShippingTime time(element);
        QCOMPARE(time.minDays(), min);
        QCOMPARE(time.maxDays(), max);
        QCOMPARE(time.varies(), min != max);
        QVERIFY(time.isValid()); // the days play no part
    }

    void validity_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<int>("delivery");
        QTest::addColumn<int>("express");
        QTest::addColumn<bool>("valid");
        QTest::newRow("both") << "delivery_type='1' express='0'" << 1 << 1 << true;
        QTest::newRow("blanks") << "delivery_type=' 2 ' express=' 2 '" << 2 << 3 << true;
        QTest::newRow("no express") << "delivery_type='1'" << 1 << 0 << false;
        QTest::newRow("unknown express") << "delivery_type='1' express='7'" << 1 << 0 << false;
        QTest::newRow("no delivery is any") << "express='0'" << -1 << 1 << true;
        QTest::newRow("unknown delivery") << "delivery_type='abc' express='0'" << -2 << 1 << false;
        QTest::newRow("unknown with known delivery") << "delivery_type='abc,1' express='0'" << -1 << 1 << true;
        QTest::newRow("combined") << "delivery_type='1,2' express='0,1'" << 3 << 3 << true;
    }

    void validity()
    {
        QFETCH(QString, attributes);
        const VelTarmShippingTime time(parsedElement(QStringLiteral("<shipping_time %1/>").arg(attributes)));
        QTEST(int(time.deliveryType()), "delivery");
        QTEST(int(time.expressType().value()), "express");
        QTEST(time.isValid(), "valid");
    }

    void values()
    {
        const VelTarmShippingTime none;
        QCOMPARE(int(none.deliveryType()), -2);
        QCOMPARE(int(none.expressType().value()), 0);
        QCOMPARE(none.minDays(), -1);
        QVERIFY(!none.isValid() && !none.varies());

        const VelTarmShippingTime one(xml("<t days='3-5' delivery_type='1' express='0'/>"));
        QVERIFY(one == VelTarmShippingTime(xml("<t days='3-4-5' delivery_type=' 1' express='0'/>")));
        for (const char* other :
             {"<t days='4-5' delivery_type='1' express='0'/>", "<t days='3-6' delivery_type='1' express='0'/>",
              "<t days='3-5' delivery_type='0' express='0'/>", "<t days='3-5' delivery_type='1' express='1'/>"})
            QVERIFY2(!(one == VelTarmShippingTime(xml(other))), other);
    }

    void list()
    {
        for (int dropped = 0; dropped < 2; ++dropped)
            QTest::ignoreMessage(QtWarningMsg,
                                 "VelTarmShippingTimeList::update(const QDomElement &), invalid shippingTime");
        VelTarmShippingTimeList times(xml("<shipping_times><shipping_time days='1' delivery_type='1'/>" // dropped
                                          "<shipping_time days='2' delivery_type='1' express='0'/>"
                                          "<shipping_time days='3' delivery_type='1' express='0'/>"
                                          "<other days='4' delivery_type='0' express='0'/>"
                                          "<deeper><shipping_time days='5' delivery_type='0' express='0'/></deeper>"
                                          "<shipping_time days='6' delivery_type='x' express='0'/>" // dropped
                                          "<shipping_time days='7' express='1'/></shipping_times>"));
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
        for (const QDomElement& emptying : {QDomElement(), xml("<shipping_times/>"),
                                            xml("<times><shipping_time delivery_type='1' express='0'/></times>")}) {
            times = full;
            QVERIFY(!times.isEmpty());
            times.update(emptying);
            QVERIFY(times.isEmpty());
        }
    }
};

VEL_TEST_MAIN(TestShippingTimes)
#include "tst_ShippingTimes.moc"
