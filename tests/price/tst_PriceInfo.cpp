#include "frame/VelChildElements.h"
#include "price/VelDiscountLimitCache.h"
#include "price/VelTarmPriceInfo.h"
#include "product/VelProduct.h"
#include "support/VelTestPriceList.h"

namespace {

QStringList dumpOf(const VelTarmPriceInfo& theInfo)
{
    const MessageCatcher messages;
    theInfo.dump();
    return messages.texts();
}

/// Each as "model:lower..upper".
QString described(const QList<VelDiscountLimit>& theLimits)
{
    QStringList texts;
    for (const VelDiscountLimit& limit : theLimits)
        texts.append(QString::asprintf("%d:%d..%d", limit.discountModel(), limit.lowerLimit(), limit.upperLimit()));
    return texts.join(' ');
}

} // namespace

/// The store of an article's prices: what is kept of a document, and how it is found again.
class PriceInfoTest : public QObject
{
    Q_OBJECT

private slots:
    void groups_data()
    {
        readTable(R"(
            row                  | content                                                                                    | price
            last of the source   | <base_prices><e price='1'/><e price='2' delivery_type='0'/></base_prices>                  | 1
            discount is last     | <discount_prices><e price='2'/></discount_prices><base_prices><e price='1'/></base_prices> | 2
            first group counts   | <base_prices/><base_prices><e price='2'/></base_prices>                                    | -1
            any tag, other nodes | <base_prices>t<!-- c --><e price='1'/>t<other price='3'/><?p i?></base_prices>             | 3
        )");
    }

    void groups()
    {
        const VelTarmPriceInfo info(nullptr, parsedElement("<a>" + cell("content") + "</a>"));
        QCOMPARE(info.priceValue(priceKey(0, 1))->price(), number("price"));
    }

    void pricesReadOneByOne()
    {
        VelTarmPriceInfo info(nullptr, QDomElement());
        QList<int> limits;
        for (const QDomElement& entry : VelChildElements(priced("1@10 3@30 2@20 2@25").firstChildElement())) {
            info.parsePrice(entry);
            limits.append(info.priceValue(priceKey(1, 1))->upperLimit());
        }
        QCOMPARE(limits, (QList<int>{-1, -1, 19, 24})); // level 3 doesn't follow level 1
        QCOMPARE(info.countItemsAtUpperBound(priceKey(2, 1)), 29);
    }

    void lookUpWidensNothing()
    {
        const VelTarmPriceInfo info(nullptr, priced("0=100 1=80", "a", "non_offer_price='120'"));
        for (const VelTarmPriceKey& key : {priceKey(2, 1), priceKey(-1, 1), priceKey(0, 10), priceKey(0, 3)})
            QCOMPARE(info.priceValue(key), VelTarmPriceValue::invalidPrice());
        // The base entry answers whatever level and model the key names; the key's source alone counts.
        QCOMPARE(info.basePriceValue(priceKey(7, 3))->price(), 100);
        QCOMPARE(info.nonOfferPrice(priceKey(7, 3)), 120);
        QCOMPARE(info.nonOfferPrice(priceKey(0, 1, VelOrderSource::kioskOnSite())), -1);
    }

    void dumpAndUpdate()
    {
        // Models and levels count even where no source is known; unknown models leave no trace.
        VelTarmPriceInfo info(
            nullptr,
            parsedElement("<transfer model='2'><base_prices><e delivery_type='1' price='100'/><e type='Q' level='9'/>"
                          "<e type='P' level='4' input_source='9'/><e input_source='4' delivery_type='2' quantity='5'/>"
                          "<e level='-1' input_source='0' delivery_type='0'/></base_prices></transfer>"));
        QCOMPARE(dumpOf(info).join('\n'), "Discountmodel: 3\nDiscountmodel: 4\n"
                                          "Key: (IS: 0, PY: 1, Level: 0, Model: 4) => (P: 100, Q: 0)\n"
                                          "Key: (IS: 1, PY: 1, Level: 0, Model: 4) => (P: 100, Q: 0)\n"
                                          "Key: (IS: 4, PY: 2, Level: 0, Model: 4) => (P: -1, Q: 5)\n"
                                          "Key: (IS: 0, PY: 0, Level: -1, Model: 4) => (P: -1, Q: 0)");
        QCOMPARE(info.maxDiscountLevel(), 4);
        info.update(priced("1=3"));
        QCOMPARE(dumpOf(info).size(), 5); // one model, four sources: the kiosk and delivery on site must be named
        QCOMPARE(info.maxDiscountLevel(), 1);
        info.update(QDomElement());
        QCOMPARE(dumpOf(info), QStringList());
        QCOMPARE(info.maxDiscountLevel(), 0);
    }

    void discountLimits_data()
    {
        readTable(R"(
            row                              | prices           | level | model | limits
            level 0, package                 | 0 1@10 P1@5 p2@8 | 0     | 3     |
            all levels, package              | 0 1@10 P1@5 p2@8 | -1    | 3     | 3:5..7 3:8..-1
            base limit beside a band         | 0 2@20           | -1    | 1     | 1:20..-1
            beside another model's band      | 0 P1@5           | -1    | 10    | 1:0..-1 3:5..-1
            one of several base limits stays | 0 2 b4           | -1    | 1     | 1:0..-1
        )");
    }

    void discountLimits()
    {
        const VelTarmPriceInfo info(nullptr, priced(cell("prices")));
        QList<VelDiscountLimit> limits = info.discountLimits(priceKey(number("level"), number("model"))).values();
        std::sort(limits.begin(), limits.end());
        QCOMPARE(described(limits), cell("limits"));
    }

    void cacheAsksOncePerPriceList()
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

VEL_TEST_MAIN(PriceInfoTest)
#include "tst_PriceInfo.moc"
