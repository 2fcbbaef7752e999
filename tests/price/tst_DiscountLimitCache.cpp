#include "price/VelDiscountLimitCache.h"
#include "product/VelProduct.h"
#include "support/VelTestPriceList.h"

namespace {

/// Each as "model:lower..upper".
QString described(const QList<VelDiscountLimit>& theLimits)
{
    QStringList texts;
    for (const VelDiscountLimit& limit : theLimits)
        texts.append(QString::asprintf("%d:%d..%d", limit.discountModel(), limit.lowerLimit(), limit.upperLimit()));
    return texts.join(' ');
}

} // namespace

class DiscountLimitCacheTest : public QObject
{
    Q_OBJECT

private slots:
    void asksOncePerPriceList()
    {
        const auto limits = [] { // under a key made anew each time
            return described(VelDiscountLimitCache::instance()->discountLimit(4, priceKey(-1, 10)));
        };
        const TestAccount account;
        account.write("pricelist.xml", "<p/>");
        account.activate();
        QCOMPARE(limits(), "");
        QDomElement element = priced("P2@50=900 B0=10 P1@5=95 B1@100=8");
        element.setAttribute("group", 4);
        VelProductRegistry::instance()->insertProduct(new VelProduct(element)); // doesn't tell
        QCOMPARE(limits(), "");                                                 // nothing is an answer, too
        QCOMPARE(described(VelDiscountLimitCache::instance()->discountLimit(4, priceKey(2, 10))), "3:50..-1");
        account.activate();
        QCOMPARE(limits(), "1:0..99 1:100..-1 3:5..49 3:50..-1");
    }
};

VEL_TEST_MAIN(DiscountLimitCacheTest)
#include "tst_DiscountLimitCache.moc"
