#include "price/VelDiscountLimitCache.h"
#include "product/VelProduct.h"
#include "product/VelProductRegistry.h"
#include "support/VelTestAccount.h"
#include "support/VelTestPrices.h"

namespace {

/// The limits of shipping group 4 as model:lower..upper, under a key made anew each time.
QString limits()
{
    QStringList texts;
    for (const VelDiscountLimit& limit : VelDiscountLimitCache::instance()->discountLimit(4, priceKey(-1, 10)))
        texts.append(QString::asprintf("%d:%d..%d", limit.discountModel(), limit.lowerLimit(), limit.upperLimit()));
    return texts.join(' ');
}

/// Enters a product into the registry, which doesn't tell that its answers have changed.
void add(const QString& thePrices)
{
    QDomElement element = priced(thePrices);
    element.setAttribute("group", 4);
    VelProductRegistry::instance()->insertProduct(new VelProduct(element));
}

} // namespace

class DiscountLimitCacheTest : public QObject
{
    Q_OBJECT

private slots:
    void asksOncePerPriceList()
    {
        TestAccount account;
        account.write("pricelist.xml", "<p/>");
        account.activate();
        VelDiscountLimitCache* cache = VelDiscountLimitCache::instance();
        QCOMPARE(limits(), "");
        add("P2@50=900 B0=10 P1@5=95 B1@100=8");
        add("B0=12 B1@20=9 I0=1");
        QCOMPARE(limits(), ""); // nothing is an answer, too
        QCOMPARE(cache->discountLimit(5, priceKey(-1, 10)).size(), 0);
        QCOMPARE(cache->discountLimit(4, priceKey(1, 3)).size(), 1); // another key asks anew
        QCOMPARE(cache->calculateList(4, priceKey(-1, 10)).size(), 7);

        account.activate();
        const QString sorted = "1:0..19 1:0..99 1:20..-1 1:100..-1 3:5..49 3:50..-1 8:0..-1";
        QCOMPARE(limits(), sorted);
        add("B1@7=9");
        QCOMPARE(limits(), sorted);
        cache->clear();
        QCOMPARE(limits(), "1:0..19 1:0..99 1:7..-1 1:20..-1 1:100..-1 3:5..49 3:50..-1 8:0..-1");
    }
};

VEL_TEST_MAIN(DiscountLimitCacheTest)
#include "tst_DiscountLimitCache.moc"
