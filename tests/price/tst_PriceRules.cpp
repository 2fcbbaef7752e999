#include "price/VelTarmPriceInfo.h"
#include "product/VelProduct.h"
#include "support/VelTestPriceList.h"

namespace {

QStringList described(const VelTarmBillPositionList& thePositions)
{
    QStringList texts;
    for (const VelTarmBillPositionAbstract* p : thePositions) {
        const auto* position = qobject_cast<const VelTarmBillPosition*>(p);
        texts.append(!position ? "invalid"
                               : joined({p->countItems(), p->discountModel(), p->discountLevel(), p->unitPrice(),
                                         p->unitCount(), position->discountItemsPerUnit(), p->nonOfferPrice()}));
    }
    return texts;
}

} // namespace

/// What a quantity costs, and the lines that it makes on a bill. A line is written as
/// "countItems discountModel discountLevel unitPrice unitCount discountItemsPerUnit nonOfferPrice".
class PriceRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void searching_data()
    {
        readTable(R"(
            row                             | prices                      | count | price | lines
            bulk, below the band            | 0=100 1@10=80               | 9     | 900   | 9 1 0 100 9 1 -1
            bulk, the band reprices all     | 0=100 1@10=80               | 10    | 800   | 10 1 1 80 10 1 -1
            bulk, no items                  | 0=100 1@10=80               | 0     | 0     | 0 1 0 100 0 1 -1
            bulk, the highest level wins    | 0=100 1@50=70 2@5=90        | 60    | 5400  | 60 1 2 90 60 1 -1
            package, inside the first       | P1@1=500 P2@11=900 p3@21=40 | 7     | 500   | 7 3 1 500 1 10 -1
            package, inside the second      | P1@1=500 P2@11=900 p3@21=40 | 15    | 900   | 15 3 2 900 1 20 -1
            package and rest                | P1@1=500 P2@11=900 p3@21=40 | 25    | 1100  | 20 3 2 900 1 20 -1; 5 3 3 40 5 1 -1
            package before a gap            | P1@1=500 p3@21=40           | 25    | 1540  | -1 3 1 500 1 -1 -1; 26 3 3 40 26 1 -1
            below the first package         | P1@5=600                    | 4     | -1    | invalid
            package before cheaper bulk     | 0=100 P1@5=600              | 5     | 600   | 5 3 1 600 1 -1 -1
            bulk where there is no package  | 0=100 P1@5=600              | 4     | 400   | 4 1 0 100 4 1 -1
            a tie goes to the lower model   | 0=100 F0=300 X0=300         | 3     | 300   | 3 1 0 100 3 1 -1
            model without a rule            | F,L0=5                      | 1     | -1    | invalid
            the highest amount never wins   | 0=2147483647                | 1     | -1    | invalid
        )");
    }

    void searching()
    {
        const VelProduct product(priced(cell("prices")));
        for (const VelTarmPriceKey& key : {priceKey(-1, 10), priceKey(5, 3)}) { // level and model play no part
            VelTarmBill bill = ::bill(1, "");
            QCOMPARE(product.priceFor(key, number("count"), 4711, &bill, nullptr), number("price"));
            QCOMPARE(described(bill.orderPositions()).join("; "), cell("lines"));
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
