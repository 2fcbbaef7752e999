#include "ordering/VelOrderingDetails.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelKeyAccount.h"
#include "support/VelTestMain.h"

namespace {

QStringList messages; // written while the shop was loaded

const QMap<QString, VelOrderSource>& ways()
{
    static const QMap<QString, VelOrderSource> ways{{QStringLiteral("mail"), VelOrderSource::onlineMailOrder()},
                                                    {QStringLiteral("shop"), VelOrderSource::onlinePointOfSale()},
                                                    {QStringLiteral("CD mail"), VelOrderSource::cdMailOrder()},
                                                    {QStringLiteral("CD shop"), VelOrderSource::cdPointOfSale()},
                                                    {QStringLiteral("kiosk"), VelOrderSource::kioskOnSite()}};
    return ways;
}

void amount(const char* theName, int theArticle, int theCount, const char* theWay, int theCents, int theSum = 0)
{
    QTest::newRow(theName) << theArticle << theCount << theSum << theWay << theCents;
}

} // namespace

/// The key account in shop/, as it is delivered.
class TestSampleShop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        VelKeyAccount::instance()->activate(QDir(QStringLiteral(VELTARM_SOURCE_DIR "/shop")));
        qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& theText) { messages.append(theText); });
        VelOrderingDetails::instance();
        VelProductRegistry::instance();
        qInstallMessageHandler(nullptr);
    }

    /// 107 children in articles, less a bundle and an article of an unknown type; 31 add-ons, less one of class 11.
    void products()
    {
        QCOMPARE(messages, QStringList());
        QSet<int> ids;
        QList<int> notOrderable;
        int addOns = 0;
        for (const VelProductAbstract* product : VelProductRegistry::instance()->productList()) {
            ids.insert(product->articleID());
            addOns += product->isAddOn() ? 1 : 0;
            if (!product->isOrderable())
                notOrderable.append(product->articleID());
        }
        QCOMPARE(VelProductRegistry::instance()->productList().size(), 105 + 30);
        QCOMPARE(addOns, 30);
        QCOMPARE(ids.size(), 105 + 30);
        QVERIFY(!ids.contains(8002) && !ids.contains(8003) && !ids.contains(5306));
        QCOMPARE(notOrderable, (QList<int>{3101, 3102, 3201})); // their shipping groups aren't listed
    }

    void amounts_data()
    {
        QTest::addColumn<int>("article");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("sum");
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("cents");
        amount("ladder: last plain", 101, 49, "mail", 588);
        amount("ladder: first of level 1", 101, 50, "mail", 500);
        amount("ladder: last of level 2", 101, 249, "CD shop", 2241);
        amount("ladder: beyond int", 101, 2147483647, "mail", 2147483641); // 7 * (2^31 - 1) modulo 2^32
        amount("to pick up", 103, 100, "shop", 1300);
        amount("by CD no ladder", 103, 100, "CD mail", 1800);
        amount("package: next", 131, 51, "mail", 990);
        amount("package and rest", 131, 101, "mail", 999);
        amount("plain below the package", 132, 20, "mail", 580);
        amount("the package", 132, 21, "mail", 599);
        amount("beyond the package", 132, 31, "mail", 617);
        amount("free", 141, 7, "mail", 0);
        amount("CD only, by net", 142, 1, "shop", -1);
        amount("kiosk, level 1", 2302, 25, "kiosk", 625);
        amount("kiosk only, by net", 2302, 1, "shop", -1);
        amount("running offer", 203, 25, "mail", 425);
        amount("ended offer", 204, 1, "mail", 39);
        amount("letter of the future", 8001, 3, "mail", 3297);
        amount("page package without its book", 5001, 10, "mail", 1490);
        amount("shipping by sum: below, by CD", 11001, 500, "CD mail", 395, 1999);
        amount("shipping by sum: level 1", 11001, 1, "CD mail", 195, 2000);
        amount("shipping by sum: free", 11001, 1, "mail", 0, 4000);
        amount("shipping by sum: picked up", 11001, 1, "shop", 0, 1999);
        amount("shipping by count: level 1", 11002, 51, "mail", 395);
    }

    void amounts()
    {
        QFETCH(int, article);
        QFETCH(int, count);
        QFETCH(int, sum);
        QFETCH(QString, way);
        const VelProductRegistry* registry = VelProductRegistry::instance();
        const VelProductAbstract* product = registry->productWithArticleID(article);
        if (!product)
            product = registry->transferProductWithArticleId(article);
        QTEST(product->price(VelTarmPriceKey(*ways().find(way), -1, DISCOUNT_MODEL_UNDEFINED), count, sum), "cents");
    }
};

VEL_TEST_MAIN(TestSampleShop)
#include "tst_SampleShop.moc"
