#include "price/VelTarmPriceValue.h"
#include "support/VelTestMain.h"

#include <QSet>

namespace {

VelDiscountLimit limit(int theModel, int theLower, int theUpper, int theLevel, bool theIsPackage)
{
    return VelDiscountLimit(static_cast<VelDiscountModel>(theModel), theLower, theUpper, theLevel, theIsPackage);
}

VelTarmPriceValue valueOf(const QString& theAttributes, const QString& theProductTag = QStringLiteral("article"))
{
    const QDomElement root = parsedElement(QStringLiteral("<%1><g><e %2/></g></%1>").arg(theProductTag, theAttributes));
    return VelTarmPriceValue(root.firstChildElement().firstChildElement());
}

} // namespace

/// One band and one price entry, as values.
class PriceValueTest : public QObject
{
    Q_OBJECT

private slots:
    void typeOfElement_data()
    {
        readTable(R"(
            row                     | product       | attributes | model | package
            default                 | article       |            | 1     | yes
            default of a transfer   | transfer      |            | 4     | no
            default of express      | express_fee   |            | 7     | no
            other case of the tag   | Transfer      |            | 1     | yes
            empty type              | transfer      | type=''    | 4     | no
            blank type is a type    | transfer      | type=' '   | 9     | no
            b                       | article       | type='b'   | 1     | no
            P                       | article       | type='P'   | 3     | yes
            p                       | article       | type='p'   | 3     | no
            blank before P          | article       | type=' P'  | 3     | no
            i                       | article       | type='i'   | 8     | no
            combined, lower first   | article       | type='b,L' | 3     | no
            unknown                 | article       | type='PP'  | 9     | yes
        )");
    }

    void typeOfElement()
    {
        const VelDiscountLimit read = valueOf(cell("attributes"), cell("product")).discountLimit();
        QCOMPARE(static_cast<int>(read.discountModel()), number("model"));
        QCOMPARE(read.isPackage(), answer("package"));

        // The tag counts two levels above the entry only.
        const QDomElement flat = parsedElement(QStringLiteral("<a><transfer><e/></transfer></a>"));
        QCOMPARE(VelDiscountLimit(flat.firstChildElement().firstChildElement()).discountModel(), DISCOUNT_MODEL_BULK);
    }

    void numbers()
    {
        const auto numbers = [](const QString& theText) {
            const VelTarmPriceValue value =
                valueOf(QStringLiteral("price='%1' quantity='%1' level='%1' transfer_unit_price='%1' "
                                       "transfer_base_price='%1' non_offer_price='%1'")
                            .arg(theText));
            return QList<int>{value.price(),         value.nonOfferPrice(),     value.lowerLimit(),
                              value.discountLevel(), value.unitTransferPrice(), value.baseTransferPrice()};
        };
        QCOMPARE(numbers("-2147483648").toSet(), QSet<int>{std::numeric_limits<int>::min()});
        for (const char* unreadable : {"", "2147483648", "12,50", "1.000", "12ct"})
            QCOMPARE(numbers(unreadable), (QList<int>{-1, -1, 0, 0, 0, 0}));
    }

    void limitComparison()
    {
        const QList<VelDiscountLimit> rising = {limit(1, -5, 99, 9, true), limit(1, 5, -1, 9, true),
                                                limit(1, 5, 9, 1, true), limit(1, 6, 0, 0, true),
                                                limit(2, -9, -9, 0, true)};
        for (int i = 0; i < rising.size(); ++i) {
            for (int j = 0; j < rising.size(); ++j) {
                QCOMPARE(rising.at(i) < rising.at(j), i < j);
                QCOMPARE(rising.at(i) == rising.at(j), i == j);
                QCOMPARE(rising.at(i) != rising.at(j), i != j);
            }
        }
        // Level and package flag take part in equality only.
        for (const VelDiscountLimit& other : {limit(1, 5, 9, 7, true), limit(1, 5, 9, 1, false)}) {
            QVERIFY(!(other < rising.at(2)) && !(rising.at(2) < other) && other != rising.at(2));
            QCOMPARE((QSet<VelDiscountLimit>{other, rising.at(2), other}).size(), 2);
        }
    }

    void limitStreamHashAndCopy()
    {
        // The model is printed as if it were bits: 3 gives the letters of 1 and 2.
        QString text;
        QDebug(&text) << limit(3, -1, 20, 4, true) << limit(8, 7, -1, 0, false);
        QCOMPARE(text, QStringLiteral("\nLower Limit: -1 \n Upper Limit: 20 \n Level: 4 \n IsPackage: true \n "
                                      "Dicount Model: \"B,L\" \n "
                                      "\nLower Limit: 7 \n Upper Limit: -1 \n Level: 0 \n IsPackage: false \n "
                                      "Dicount Model: \"I\" \n "));
        QCOMPARE(qHash(limit(3, -1, 20, 4, true)), 4294967199U);
        QCOMPARE(qHash(limit(8, 7, -1, 0, false)), 708U);

        QVERIFY(VelDiscountLimit() == limit(0, 0, -1, 0, false));
        const VelDiscountLimit band = limit(3, 10, 19, 2, true);
        QVERIFY(VelDiscountLimit(band, DISCOUNT_MODEL_UNDEFINED) == band);
        QVERIFY(VelDiscountLimit(band, DISCOUNT_MODEL_BULK) == limit(1, 10, 19, 2, true));
    }

    void validity_data()
    {
        readTable(R"(
            row                  | attributes                                             | valid | end
            nothing              |                                                        | no    | epoch
            type b               | type='b'                                               | yes   | epoch
            defaults written out | price='-1' quantity='0' level='0' non_offer_price='-1' | no    | epoch
            source has no part   | input_source='1' delivery_type='1'                     | no    | epoch
            date                 | end_offer_date='2030-05-01T12:30:00'                   | yes   | 2030-05-01T12:30:00
            no such day          | end_offer_date='2030-02-30T00:00:00'                   | yes   |
        )");
    }

    void validity()
    {
        const VelTarmPriceValue value = valueOf(cell("attributes"));
        QCOMPARE(value.isValid(), answer("valid"));
        if (cell("end") == QStringLiteral("epoch"))
            QCOMPARE(value.endOfferDate(), QDateTime::fromTime_t(0));
        else
            QCOMPARE(value.endOfferDate().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")), cell("end"));
    }

    void invalidPrice()
    {
        const VelTarmPriceValue* invalid = VelTarmPriceValue::invalidPrice();
        QVERIFY(!invalid->isValid() && invalid->isPackagePrice());
        QCOMPARE((QList<int>{invalid->price(), invalid->baseTransferPrice(), invalid->unitTransferPrice(),
                             invalid->nonOfferPrice(), invalid->lowerLimit(), invalid->upperLimit(),
                             invalid->discountLevel()}),
                 (QList<int>{-1, 0, 0, -1, 0, -1, 0}));
        QCOMPARE(invalid->endOfferDate(), QDateTime::fromTime_t(0));
        QVERIFY(invalid->discountLimit() == limit(1, 0, -1, 0, true));

        // The upper limit takes part: an empty entry below another band is not the invalid price.
        VelTarmPriceValue empty{QDomElement()};
        QVERIFY(!empty.isValid());
        empty.setUpperLimit(9);
        QVERIFY(empty.isValid() && empty.upperLimit() == 9);
    }

    void everyFieldCountsInEquality()
    {
        const QStringList attributes =
            QStringLiteral(
                "price='6'|transfer_unit_price='1'|transfer_base_price='1'|non_offer_price='9'|quantity='1'|"
                "end_offer_date='2030-05-01T12:30:00'|end_offer_date='2030-05-01T12:30:01'|level='1'|type='b'|"
                "type='P'")
                .split('|');
        for (const QString& left : attributes) {
            for (const QString& right : attributes) {
                const VelTarmPriceValue one = valueOf(left);
                const VelTarmPriceValue other = valueOf(right);
                QCOMPARE((QList<bool>{one == other, one != other, one == &other, one != &other}),
                         (QList<bool>{left == right, left != right, left == right, left != right}));
            }
        }
    }
};

VEL_TEST_MAIN(PriceValueTest)
#include "tst_PriceValue.moc"
