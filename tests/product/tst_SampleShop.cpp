#include "ordering/VelOrderingDetails.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "support/VelTestAccount.h"

/// The key account in shop/, as it is delivered.
class TestSampleShop : public QObject
{
    Q_OBJECT

private slots:
    /// 107 children in articles, less a bundle and an article of an unknown type; 31 add-ons, less one of class 11.
    void products()
    {
        VelKeyAccount::instance()->activate(QDir(QStringLiteral(VELTARM_SOURCE_DIR "/shop")));
        const MessageCatcher messages;
        VelOrderingDetails::instance();
        QSet<int> ids;
        QList<int> notOrderable;
        int addOns = 0;
        for (const VelProductAbstract* product : VelProductRegistry::instance()->productList()) {
            ids.insert(product->articleID());
            addOns += product->isAddOn() ? 1 : 0;
            if (!product->isOrderable())
                notOrderable.append(product->articleID());
        }
        QCOMPARE(messages.texts(), QStringList());
        QCOMPARE((QList<int>{VelProductRegistry::instance()->productList().size(), ids.size(), addOns}),
                 (QList<int>{105 + 30, 105 + 30, 30}));
        QVERIFY(!ids.contains(8002) && !ids.contains(8003) && !ids.contains(5306));
        QCOMPARE(notOrderable, (QList<int>{3101, 3102, 3201})); // their shipping groups aren't listed
    }

    void amounts_data()
    {
        readTable(R"(
            row                               | article | count      | sum  | way | cents
            ladder: last plain                | 101     | 49         | 0    | 0_1 | 588
            ladder: first of level 1          | 101     | 50         | 0    | 0_1 | 500
            ladder: last of level 2, CD       | 101     | 249        | 0    | 1_0 | 2241
            ladder: 7 * (2^31 - 1) wraps      | 101     | 2147483647 | 0    | 0_1 | 2147483641
            to pick up                        | 103     | 100        | 0    | 0_0 | 1300
            by CD no ladder                   | 103     | 100        | 0    | 1_1 | 1800
            package: next                     | 131     | 51         | 0    | 0_1 | 990
            package and rest                  | 131     | 101        | 0    | 0_1 | 999
            plain below the package           | 132     | 20         | 0    | 0_1 | 580
            the package                       | 132     | 21         | 0    | 0_1 | 599
            beyond the package                | 132     | 31         | 0    | 0_1 | 617
            free                              | 141     | 7          | 0    | 0_1 | 0
            CD only, by net                   | 142     | 1          | 0    | 0_1 | -1
            kiosk, level 1                    | 2302    | 25         | 0    | 4_2 | 625
            kiosk only, by net                | 2302    | 1          | 0    | 0_0 | -1
            running offer                     | 203     | 25         | 0    | 0_1 | 425
            ended offer                       | 204     | 1          | 0    | 0_1 | 39
            letter of the future              | 8001    | 3          | 0    | 0_1 | 3297
            page package without its book     | 5001    | 10         | 0    | 0_1 | 1490
            shipping by sum: below, by CD     | 11001   | 500        | 1999 | 1_1 | 395
            shipping by sum: level 1, by CD   | 11001   | 1          | 2000 | 1_1 | 195
            shipping by sum: free             | 11001   | 1          | 4000 | 0_1 | 0
            shipping by sum: picked up        | 11001   | 1          | 1999 | 0_0 | 0
            shipping by count: level 1        | 11002   | 51         | 0    | 0_1 | 395
        )");
    }

    void amounts()
    {
        const VelProductRegistry* registry = VelProductRegistry::instance();
        const VelProductAbstract* product = registry->productWithArticleID(number("article"));
        if (!product)
            product = registry->transferProductWithArticleId(number("article"));
        const VelOrderSource way(static_cast<VelInputSource>(cell("way").at(0).digitValue()),
                                 static_cast<VelDeliveryType>(cell("way").at(2).digitValue()));
        const VelTarmPriceKey key(way, -1, DISCOUNT_MODEL_UNDEFINED);
        QCOMPARE(product->price(key, number("count"), number("sum")), number("cents"));
    }
};

VEL_TEST_MAIN(TestSampleShop)
#include "tst_SampleShop.moc"
