#include "bill/VelOrderStatistic.h"
#include "product/VelProduct.h"
#include "support/VelTestPrices.h"

#include <vector>

class OrderStatisticTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        myProducts.clear();
        for (int i = 0; i < 3; ++i)
            myProducts.push_back(std::make_unique<VelProduct>(QDomElement()));
        std::sort(myProducts.begin(), myProducts.end());
    }

    void counts()
    {
        VelOrderStatistic cart;
        QCOMPARE(cart.value(product(0), 7), 7);
        QVERIFY(cart.isEmpty()); // asking enters nothing

        cart.add(product(2), 2);
        cart.add(product(2), 3);
        const VelOrderStatistic before(cart);
        cart.insert(product(2), 1);
        QCOMPARE(cart.value(product(2), 0), 1);
        QCOMPARE(before.value(product(2), 0), 5);

        cart.add(product(0), 0); // entered, though with no pieces
        cart.add(product(1), -4);
        QVERIFY(!cart.isEmpty());
        QCOMPARE(cart.products(), (QList<VelProductAbstract*>{product(0), product(1), product(2)}));
        QCOMPARE(cart.items(), (QMap<VelProductAbstract*, int>{{product(0), 0}, {product(1), -4}, {product(2), 1}}));

        VelOrderStatistic other;
        other.insert(product(0), 3);
        other.insert(product(1), 1073741824);
        cart.add(other, 2);
        QCOMPARE(cart.value(product(0), -1), 6);
        QCOMPARE(cart.value(product(1), -1), 2147483644); // -4 + 2 x 1073741824 wraps
        QCOMPARE(cart.value(product(2), -1), 1);
        QCOMPARE(other.value(product(0), -1), 3);
        cart.add(cart, 1);
        QCOMPARE(cart.value(product(2), -1), 2);
    }

    void totalPrice_data()
    {
        // The total with 2 pieces of a product at 30 beside it.
        readTable(R"(
            row                          | prices         | count | total
            no quantity discount         | 0=100 1@2=1    | 20    | 2060
            package of one piece each    | P1@1=500       | 3     | 1560
            bill sum of 1                | Z1@1=9         | 4     | 96
            bill sum of 2 is not reached | F0=7 Z1@2=9    | 4     | 88
            a missing price takes off    |                | 3     | 57
            wraps                        | 0=2147483646   | 1     | -2147483590
        )");
    }

    void totalPrice()
    {
        VelOrderStatistic cart;
        QCOMPARE(cart.totalPrice(priceKey(3, 3)), 0);
        product(0)->update(priced(cell("prices")));
        product(1)->update(priced(QStringLiteral("0=30")));
        cart.add(product(0), number("count"));
        cart.add(product(1), 2);
        QCOMPARE(cart.totalPrice(priceKey(3, 3)), number("total"));
    }

    void highestBaseTransferPrice()
    {
        VelOrderStatistic cart;
        const auto setPrice = [&](std::size_t theIndex, int thePrice) {
            QDomElement root = priced(QStringLiteral("0 P3=1"));
            root.firstChildElement().firstChildElement().setAttribute(QStringLiteral("transfer_base_price"), thePrice);
            product(theIndex)->update(root);
            cart.add(product(theIndex), 0); // the count plays no part
        };
        setPrice(0, -5);
        setPrice(1, 0);
        QVERIFY(!cart.productWithHighestBaseTransferPrice(priceKey(3, 3)));
        setPrice(2, 1);
        QCOMPARE(cart.productWithHighestBaseTransferPrice(priceKey(3, 3)), product(2));
        setPrice(1, 1);
        QCOMPARE(cart.productWithHighestBaseTransferPrice(priceKey(3, 3)), product(1)); // the first of equal ones
        QVERIFY(!cart.productWithHighestBaseTransferPrice(priceKey(0, 1, VelOrderSource::kioskOnSite())));
    }

private:
    VelProductAbstract* product(std::size_t theIndex) { return myProducts.at(theIndex).get(); }

    std::vector<std::unique_ptr<VelProduct>> myProducts; // three, in the order of their addresses
};

VEL_TEST_MAIN(OrderStatisticTest)
#include "tst_OrderStatistic.moc"
