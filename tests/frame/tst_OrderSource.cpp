#include "frame/VelExpressType.h"
#include "frame/VelLookUpTable.h"
#include "frame/VelOrderSource.h"
#include "support/VelTestMain.h"

/// The two small values of order routing: order source and express type.
class OrderSourceTest : public QObject
{
    Q_OBJECT

private slots:
    void orderSource_data()
    {
        readTable(R"(
            row                  | attributes                           | input | delivery | valid | squish | names
            empty                | input_source='' delivery_type=''     | -1    | -1       | yes   | _      | UNKNOWN UNKNOWN
            delivery type only   | delivery_type='1'                    | -1    | 1        | yes   | _1     | UNKNOWN MAILORDER
            trimmed              | input_source=' 1 ' delivery_type=' ' | 1     | -1       | yes   | 1_     | CD UNKNOWN
            kiosk on site        | input_source='4' delivery_type='2'   | 4     | 2        | yes   | 4_2    | KIOSK ON_SITE
            kiosk elsewhere      | input_source='4' delivery_type='0'   | 4     | 0        | no    | 4_0    | KIOSK POS
            kiosk anywhere       | input_source='4'                     | 4     | -1       | no    | 4_     | KIOSK UNKNOWN
            net on site          | input_source='0' delivery_type='2'   | 0     | 2        | no    | 0_2    | NET ON_SITE
            unknown OR known     | input_source='X,1'                   | -1    | -1       | yes   | _      | UNKNOWN UNKNOWN
            unknown input source | input_source='2' delivery_type='1'   | -2    | 1        | no    | INPUT_SOURCE_UNKNOWN_1 | UNKNOWN MAILORDER
            unknown pair         | input_source='net' delivery_type='X' | -2    | -2       | no    | INPUT_SOURCE_UNKNOWN_DELIVERY_TYPE_UNKNOWN | UNKNOWN UNKNOWN
        )");
    }

    void orderSource()
    {
        const VelOrderSource source(parsedElement(QStringLiteral("<e %1/>").arg(cell("attributes"))));
        QCOMPARE(static_cast<int>(source.inputSource()), number("input"));
        QCOMPARE(static_cast<int>(source.deliveryType()), number("delivery"));
        QCOMPARE(source.isValid(), answer("valid"));
        QCOMPARE(source.toSquishString(), cell("squish"));

        // Each item of the stream is followed by a blank, and the blank between the names is an item itself.
        QString text;
        QDebug(&text) << source;
        const QStringList names = cell("names").split(' ');
        QCOMPARE(text, QStringLiteral("INPUT_SOURCE_%1   DELIVERY_TYPE_%2 ").arg(names.at(0), names.at(1)));
    }

    void namedPairsInOrder()
    {
        const QList<VelOrderSource> rising = {{INPUT_SOURCE_UNKNOWN, DELIVERY_TYPE_ON_SITE},
                                              VelOrderSource::onlinePointOfSale(),
                                              VelOrderSource::onlineMailOrder(),
                                              VelOrderSource::cdPointOfSale(),
                                              VelOrderSource::cdMailOrder(),
                                              {INPUT_SOURCE_KIOSK, DELIVERY_TYPE_ANY},
                                              VelOrderSource::kioskOnSite()};
        const QStringList texts = QStringLiteral("INPUT_SOURCE_UNKNOWN_2 0_0 0_1 1_0 1_1 4_ 4_2").split(' ');
        for (int i = 0; i < rising.size(); ++i) {
            const VelOrderSource& source = rising.at(i);
            QCOMPARE(source.toSquishString(), texts.at(i));
            const QList<bool> kinds = {source.isOnlinePointOfSale(), source.isOnlineMailOrder(),
                                       source.isCDPointOfSale(), source.isCDMailOrder(), source.isKioskOnSite()};
            QCOMPARE(kinds, (QList<bool>{i == 1, i == 2, i == 3, i == 4, i == 6}));
            for (int j = 0; j < rising.size(); ++j) {
                QCOMPARE(source < rising.at(j), i < j);
                QCOMPARE(source == rising.at(j), i == j);
                QCOMPARE(source != rising.at(j), i != j);
            }
        }
    }

    void expressType_data()
    {
        readTable(R"(
            row              | text | value | name
            empty            |      | 0     | unbekannter Expresstyp
            standard         | 0    | 1     | Standardproduktion und Standardversand
            express 1        | 1    | 2     | Undefiniert
            unknown          | 3    | 0     | unbekannter Expresstyp
            unknown OR known | x, 0 | 1     | Standardproduktion und Standardversand
        )");
    }

    void expressType()
    {
        const int value = number("value");
        const VelExpressType type(cell("text"));
        QCOMPARE(static_cast<int>(type.value()), value);
        QCOMPARE(type.isValid(), value != 0);
        QCOMPARE(type < VelExpressType(ExpressableType_EXPRESS_1), value < 2);
        QCOMPARE(type == VelExpressType(ExpressableType_EXPRESS_1), value == 2);
        QCOMPARE(type != VelExpressType(), value != 0);

        // Only the two named values come back from their names; the default text is no name.
        QCOMPARE(type.humanReadableName(), cell("name"));
        const VelExpressType back = VelExpressType::createFromHumanReadable(type.humanReadableName());
        QCOMPARE(static_cast<int>(back.value()), value == 1 ? 1 : 0);
    }

    void nameTable()
    {
        const QString fast = QStringLiteral("schnell");
        const std::unique_ptr<VelLookUpTable<VelExpressTypeEnum, QString>> names(VelExpressType::initNames());
        names->insert(ExpressableType_EXPRESS_2, fast);
        names->insert(ExpressableType_EXPRESS_1, fast);
        QCOMPARE(names->findByValue(fast), ExpressableType_EXPRESS_1); // the lowest key
        names->insert(ExpressableType_EXPRESS_1, QStringLiteral("eilig"));
        QCOMPARE(names->findByKey(ExpressableType_EXPRESS_1), "eilig");
        QCOMPARE(names->findByValue(fast), ExpressableType_EXPRESS_2);
        QCOMPARE(VelExpressType::createFromHumanReadable(fast), VelExpressType()); // that table was a new one
    }
};

VEL_TEST_MAIN(OrderSourceTest)
#include "tst_OrderSource.moc"
