#include "price/VelTarmPriceKey.h"
#include "support/VelTestMain.h"

namespace {

/// From "input source,delivery type,level,model".
VelTarmPriceKey key(const QString& theText)
{
    const QStringList parts = theText.split(',');
    const VelOrderSource source(static_cast<VelInputSource>(parts.at(0).toInt()),
                                static_cast<VelDeliveryType>(parts.at(1).toInt()));
    return VelTarmPriceKey(source, parts.at(2).toInt(), static_cast<VelDiscountModel>(parts.at(3).toInt()));
}

VelTarmPriceKey key(const char* theText)
{
    return key(QString::fromLatin1(theText));
}

} // namespace

class PriceKeyTest : public QObject
{
    Q_OBJECT

private slots:
    void hash_data()
    {
        readTable(R"(
            row                     | key               | hash
            sum 0 of negative parts | 0,1,-100,0        | 1
            digits side by side     | 4,2,3,8           | 4020308
            level runs over         | 0,0,100,0         | 10000
            wild in documents       | -1,-1,0,1         | 4293957297
            level below 0 wraps     | 0,0,-1,10         | 4294967206
            lowest level wraps to 0 | 0,0,-2147483648,0 | 1
        )");
    }

    void hash()
    {
        const VelTarmPriceKey tested = key(cell("key"));
        QCOMPARE(tested.hashValue(), cell("hash").toUInt());
        QCOMPARE(tested.hashValue(), cell("hash").toUInt()); // from the cache
    }

    void order()
    {
        // By unsigned hash: a sum below 0 comes last.
        const char* const rising[] = {"0,0,0,1", "0,0,0,2", "0,0,1,1",  "0,1,0,0",           "1,-1,0,0",
                                      "1,0,0,0", "4,2,9,9", "-2,0,0,0", "-1,0,2147483647,0", "-1,0,0,0"};
        for (const char* const& left : rising) {
            for (const char* const& right : rising) {
                QCOMPARE(key(left) < key(right), &left < &right);
                QCOMPARE(key(left) == key(right), &left == &right);
            }
        }
        const VelTarmPriceKey mail = key("0,1,0,1");
        const VelTarmPriceKey level100 = key("0,0,100,1"); // of the same hash
        QVERIFY(mail != level100 && !(mail < level100) && !(level100 < mail));
    }

    void supercedes_data()
    {
        readTable(R"(
            row                           | pattern     | other       | covers | isCovered
            itself                        | 0,1,2,1     | 0,1,2,1     | yes    | yes
            all wild                      | -2,-2,-1,10 | 4,2,7,3     | yes    | no
            input source wild             | -2,1,2,1    | 0,1,2,1     | yes    | no
            any input source is not wild  | -1,1,2,1    | 0,1,2,1     | no     | no
            delivery type wild            | 0,-2,2,1    | 0,1,2,1     | yes    | no
            any delivery type is not wild | 0,-1,2,1    | 0,1,2,1     | no     | no
            level wild                    | 0,1,-1,1    | 0,1,3,1     | yes    | no
            level -2 is not wild          | 0,1,-2,1    | 0,1,3,1     | no     | no
            model wild                    | 0,1,2,10    | 0,1,2,3     | yes    | no
            each is wild elsewhere        | -2,1,2,1    | 0,1,-1,1    | no     | no
        )");
    }

    void supercedes()
    {
        QCOMPARE(key(cell("pattern")).supercedes(key(cell("other"))), answer("covers"));
        QCOMPARE(key(cell("other")).supercedes(key(cell("pattern"))), answer("isCovered"));
    }

    void copyOnWrite()
    {
        const VelTarmPriceKey original = key("0,1,2,1");
        QCOMPARE(original.hashValue(), 10201U); // cached before the copies are made
        VelTarmPriceKey level(original);
        VelTarmPriceKey model = original;
        level.setDiscountLevel(7);
        model.setDiscountModel(DISCOUNT_MODEL_PACKAGE);
        QCOMPARE(level.hashValue(), 10701U);
        QCOMPARE(model.hashValue(), 10203U);
        QCOMPARE(original.hashValue(), 10201U);
        QVERIFY(original == key("0,1,2,1") && level != original && model != original);

        // The constructor with a model doesn't take over the level.
        QVERIFY(VelTarmPriceKey(key("4,2,3,8"), DISCOUNT_MODEL_BULK) == key("4,2,0,1"));
    }

    void debugStream()
    {
        QString text;
        QDebug(&text) << key("0,1,-2,8");
        QCOMPARE(text,
                 QStringLiteral("Order Source :  INPUT_SOURCE_NET   DELIVERY_TYPE_MAILORDER , Input Source :  \"0\" , "
                                "Delivery Type :  \"1\" , Discount Level :  -2 , Discount Model :  \"I\" "));
    }
};

VEL_TEST_MAIN(PriceKeyTest)
#include "tst_PriceKey.moc"
