#include "price/VelTarmPriceKey.h"
#include "price/VelTarmPriceValue.h"
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

VelDiscountLimit limit(int theModel, int theLower, int theUpper, int theLevel, bool theIsPackage)
{
    return VelDiscountLimit(static_cast<VelDiscountModel>(theModel), theLower, theUpper, theLevel, theIsPackage);
}

VelTarmPriceValue valueOf(const QString& theAttributes, const QString& theProductTag = "article")
{
    const QDomElement root = parsedElement(QString("<%1><g><e %2/></g></%1>").arg(theProductTag, theAttributes));
    return VelTarmPriceValue(root.firstChildElement().firstChildElement());
}

QList<int> numbersOf(const VelTarmPriceValue& theValue)
{
    return {theValue.price(),         theValue.nonOfferPrice(),     theValue.lowerLimit(),
            theValue.discountLevel(), theValue.unitTransferPrice(), theValue.baseTransferPrice()};
}

} // namespace

/// One price entry, its band, and the key that it stands under, as values.
class PriceEntryTest : public QObject
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

    void type_data()
    {
        readTable(R"(
            row                   | product     | attributes | model | package
            default               | article     |            | 1     | yes
            default of a transfer | transfer    | type=''    | 4     | no
            other case of the tag | Transfer    |            | 1     | yes
            default of express    | express_fee |            | 7     | no
            lower case            | article     | type='p'   | 3     | no
            blank before P        | article     | type=' P'  | 3     | no
            blank type is a type  | transfer    | type=' '   | 9     | no
        )");
    }

    void type()
    {
        const VelTarmPriceValue value = valueOf(cell("attributes"), cell("product"));
        QVERIFY(value.discountLimit() == limit(number("model"), 0, -1, 0, answer("package")));
    }

    void numbers()
    {
        const QString attributes = "price='%1' non_offer_price='%2' quantity='%3' level='%4' transfer_unit_price='%5' "
                                   "transfer_base_price='%6'";
        QCOMPARE(numbersOf(valueOf(attributes.arg("-2147483648", "2", "3", "4", "5", "6"))),
                 (QList<int>{std::numeric_limits<int>::min(), 2, 3, 4, 5, 6}));
        for (const char* bad : {"", "2147483648", "12,50", "1.000", "12ct"})
            QCOMPARE(numbersOf(valueOf(attributes.arg(bad, bad, bad, bad, bad, bad))),
                     (QList<int>{-1, -1, 0, 0, 0, 0}));
    }

    void validity()
    {
        const VelTarmPriceValue* invalid = VelTarmPriceValue::invalidPrice();
        QCOMPARE(invalid->endOfferDate(), QDateTime::fromSecsSinceEpoch(0));
        for (const char* said : {"", "type='B'", "price='-1' quantity='0' level='0'", "input_source='1'"})
            QVERIFY2(!valueOf(said).isValid() && valueOf(said) == invalid, said);
        for (const char* said : {"type='b'", "price='0'", "quantity='5'", "level='1'", "non_offer_price='0'",
                                 "transfer_unit_price='1'", "transfer_base_price='1'", "end_offer_date='2030-02-30'"})
            QVERIFY2(valueOf(said).isValid() && valueOf(said) != invalid, said);

        VelTarmPriceValue belowAnotherBand{QDomElement()};
        belowAnotherBand.setUpperLimit(9);
        QVERIFY(belowAnotherBand.isValid());
    }

    void limits()
    {
        const QList<VelDiscountLimit> rising = {limit(1, -5, 99, 9, true), limit(1, 5, -1, 9, true),
                                                limit(1, 5, 9, 1, true), limit(2, -9, -9, 0, true)};
        for (int i = 1; i < rising.size(); ++i)
            QVERIFY(rising.at(i - 1) < rising.at(i) && !(rising.at(i) < rising.at(i - 1)));
        // Level and package flag take part in equality only.
        for (const VelDiscountLimit& other : {limit(1, 5, 9, 7, true), limit(1, 5, 9, 1, false)})
            QVERIFY(!(other < rising.at(2)) && !(rising.at(2) < other) && other != rising.at(2));

        const VelDiscountLimit band = limit(3, -1, 20, 4, true);
        QVERIFY(VelDiscountLimit(band, DISCOUNT_MODEL_BULK) == limit(1, -1, 20, 4, true));
        QCOMPARE(qHash(band), 4294967199U);
        QString text; // the model is printed as if it were bits: 3 gives the letters of 1 and 2
        QDebug(&text) << band;
        QCOMPARE(text, "\nLower Limit: -1 \n Upper Limit: 20 \n Level: 4 \n IsPackage: true \n "
                       "Dicount Model: \"B,L\" \n ");
    }
};

VEL_TEST_MAIN(PriceEntryTest)
#include "tst_PriceEntry.moc"
