#include "price/VelTarmPriceInfo.h"
#include "product/VelProduct.h"
#include "support/VelTestPriceList.h"

namespace {

/// One number of each position, one after the other.
template <typename Getter>
QString each(const VelTarmBill& theBill, Getter theGetter)
{
    QList<int> numbers;
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions())
        numbers.append((position->*theGetter)());
    return joined(numbers);
}

/// The models of the positions by name, one after the other.
QString models(const VelTarmBill& theBill)
{
    const QMap<int, QString> names{
        {DISCOUNT_MODEL_BULK, "bulk"}, {DISCOUNT_MODEL_PACKAGE, "package"}, {DISCOUNT_MODEL_UNDEFINED, "none"}};
    QStringList texts;
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions())
        texts.append(names.value(position->discountModel(), "another"));
    return texts.join(' ');
}

} // namespace

/// What a quantity costs, and the lines that it makes on a bill.
class PriceRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void searching_data()
    {
        // Where there are two lines, the cells hold the values of both.
        readTable(R"(
            row                            | prices                      | count | price | model           | level | items | unitPrice | units
            bulk, below the band           | 0=100 1@10=80               | 9     | 900   | bulk            | 0     | 9     | 100       | 9
            bulk, the band reprices all    | 0=100 1@10=80               | 10    | 800   | bulk            | 1     | 10    | 80        | 10
            bulk, no items                 | 0=100 1@10=80               | 0     | 0     | bulk            | 0     | 0     | 100       | 0
            bulk, the highest level wins   | 0=100 1@50=70 2@5=90        | 60    | 5400  | bulk            | 2     | 60    | 90        | 60
            package, inside the first      | P1@1=500 P2@11=900 p3@21=40 | 7     | 500   | package         | 1     | 7     | 500       | 1
            package, inside the second     | P1@1=500 P2@11=900 p3@21=40 | 15    | 900   | package         | 2     | 15    | 900       | 1
            package and rest               | P1@1=500 P2@11=900 p3@21=40 | 25    | 1100  | package package | 2 3   | 20 5  | 900 40    | 1 5
            package before a gap           | P1@1=500 p3@21=40           | 25    | 1540  | package package | 1 3   | -1 26 | 500 40    | 1 26
            below the first package        | P1@5=600                    | 4     | -1    | none            | 0     | 0     | 0         | 0
            package before cheaper bulk    | 0=100 P1@5=600              | 5     | 600   | package         | 1     | 5     | 600       | 1
            bulk where there is no package | 0=100 P1@5=600              | 4     | 400   | bulk            | 0     | 4     | 100       | 4
            a tie goes to the lower model  | 0=100 F0=300 X0=300         | 3     | 300   | bulk            | 0     | 3     | 100       | 3
            model without a rule           | F,L0=5                      | 1     | -1    | none            | 0     | 0     | 0         | 0
            the highest amount never wins  | 0=2147483647                | 1     | -1    | none            | 0     | 0     | 0         | 0
        )");
    }

    void searching()
    {
        const VelProduct product(priced(cell("prices")));
        for (const VelTarmPriceKey& key : {priceKey(-1, 10), priceKey(5, 3)}) { // level and model play no part
            VelTarmBill bill = ::bill(1, "");
            QCOMPARE(product.priceFor(key, number("count"), 4711, &bill, nullptr), number("price"));
            QCOMPARE(models(bill), cell("model"));
            QCOMPARE(each(bill, &VelTarmBillPositionAbstract::discountLevel), cell("level"));
            QCOMPARE(each(bill, &VelTarmBillPositionAbstract::countItems), cell("items"));
            QCOMPARE(each(bill, &VelTarmBillPositionAbstract::unitPrice), cell("unitPrice"));
            QCOMPARE(each(bill, &VelTarmBillPositionAbstract::unitCount), cell("units"));
            QCOMPARE(product.priceFor(key, number("count"), 4711, nullptr, nullptr), number("price"));
        }
    }

    void offers_data()
    {
        readTable(R"(
            row       | secondsLeft | shown
            running   | 60          | 120
            ended     | -60         | -1
        )");
    }

    void offers()
    {
        qputenv("TZ", "EAST-9"); // far from the universal clock
        const QDateTime end = QDateTime::currentDateTime().addSecs(number("secondsLeft"));
        for (const QDateTime& written : {end, end.toUTC()}) {
            const QString offer = "non_offer_price='120' end_offer_date='" + written.toString(Qt::ISODate) + "'";
            const VelTarmPriceInfo info(nullptr, priced("0=90 P1@1=500 p2@3=40 I0=50 F0=490 Z1=9 X0=3", "a", offer));
            VelTarmBill bill = ::bill(1, "");
            QList<int> prices;
            for (const int model : {1, 3, 8, 4, 5, 7})
                prices.append(info.priceInModel(priceKey(0, model), 5, 1, &bill));
            QCOMPARE(prices, (QList<int>{450, 620, 250, 490, 9, 3})); // an offer never changes an amount
            QCOMPARE(bill.orderPositions().size(), 7);                // package and rest are two
            for (const VelTarmBillPositionAbstract* position : bill.orderPositions())
                QCOMPARE(position->nonOfferPrice(), number("shown"));
        }
    }
};

VEL_TEST_MAIN(PriceRulesTest)
#include "tst_PriceRules.moc"
