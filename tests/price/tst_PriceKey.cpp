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

} // namespace

/// The key that a price stands under.
class PriceKeyTest : public QObject
{
    Q_OBJECT

private slots:
    void keyHash()
    {
        QCOMPARE(key("0,0,100,1").hashValue(), key("0,1,0,1").hashValue()); // the level runs over
        QCOMPARE(key("0,1,-100,0").hashValue(), 1U);                        // for a sum of 0
        QCOMPARE(key("0,0,-2147483648,7").hashValue(), 7U);
        QCOMPARE(key("-1,-1,0,1").hashValue(), 4293957297U);
    }

    void keyOrder()
    {
        // By unsigned hash: a sum below 0 comes last, and different keys may be neither less nor equal.
        const QStringList rising = {"0,0,0,1", "0,0,1,1", "0,1,0,0", "4,2,9,9", "-2,0,0,0", "-1,0,0,0"};
        for (int i = 1; i < rising.size(); ++i)
            QVERIFY2(key(rising.at(i - 1)) < key(rising.at(i)), qPrintable(rising.at(i)));
        const VelTarmPriceKey mail = key("0,1,0,1");
        const VelTarmPriceKey level100 = key("0,0,100,1");
        QVERIFY(mail != level100 && !(mail < level100) && !(level100 < mail));
    }

    void keySupercedes()
    {
        const VelTarmPriceKey full = key("0,1,2,1");
        for (const char* wild : {"-2,1,2,1", "0,-2,2,1", "0,1,-1,1", "0,1,2,10", "-2,-2,-1,10"})
            QVERIFY2(key(wild).supercedes(full) && !full.supercedes(key(wild)), wild);
        // ANY is not wild, and a wild part stands for itself alone.
        for (const char* other : {"-1,1,2,1", "0,-1,2,1", "0,1,-2,1", "0,1,3,1", "-2,1,2,3"})
            QVERIFY2(!key(other).supercedes(full), other);
    }

    void keyIsCopiedOnWrite()
    {
        const VelTarmPriceKey original = key("0,1,2,1");
        QCOMPARE(original.hashValue(), 10201U); // cached before the copies are made
        VelTarmPriceKey level(original);
        VelTarmPriceKey model = original;
        level.setDiscountLevel(7);
        model.setDiscountModel(DISCOUNT_MODEL_PACKAGE);
        QCOMPARE(level.hashValue(), 10701U);
        QCOMPARE(model.hashValue(), 10203U);
        QVERIFY(original == key("0,1,2,1") && level != original && model != original);

        // The constructor with a model doesn't take over the level.
        QVERIFY(VelTarmPriceKey(key("4,2,3,8"), DISCOUNT_MODEL_BULK) == key("4,2,0,1"));
    }

    void keyStream()
    {
        QString text;
        QDebug(&text) << key("0,1,-2,8");
        QCOMPARE(text, "Order Source :  INPUT_SOURCE_NET   DELIVERY_TYPE_MAILORDER , Input Source :  \"0\" , "
                       "Delivery Type :  \"1\" , Discount Level :  -2 , Discount Model :  \"I\" ");
    }
};

VEL_TEST_MAIN(PriceKeyTest)
#include "tst_PriceKey.moc"
