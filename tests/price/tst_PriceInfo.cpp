#include "price/VelTarmPriceInfo.h"
#include "support/VelTestPrices.h"

namespace {

/// The sources that have an entry of the level and model, as "input source/delivery type".
QString sourcesOf(const VelTarmPriceInfo& theInfo, int theLevel, int theModel)
{
    QStringList found;
    for (const int input : {-2, -1, 0, 1, 4, 5}) {
        for (const int delivery : {-2, -1, 0, 1, 2, 3}) {
            const VelOrderSource source(static_cast<VelInputSource>(input), static_cast<VelDeliveryType>(delivery));
            if (theInfo.priceValue(priceKey(theLevel, theModel, source)) != VelTarmPriceValue::invalidPrice())
                found.append(QStringLiteral("%1/%2").arg(input).arg(delivery));
        }
    }
    return found.join(' ');
}

/// "model:lower..upper" of each, sorted
QString described(const QSet<VelDiscountLimit>& theLimits)
{
    QStringList texts;
    for (const VelDiscountLimit& limit : theLimits)
        texts.append(
            QStringLiteral("%1:%2..%3").arg(limit.discountModel()).arg(limit.lowerLimit()).arg(limit.upperLimit()));
    texts.sort();
    return texts.join(' ');
}

QStringList dumpOf(const VelTarmPriceInfo& theInfo)
{
    const MessageCatcher messages;
    theInfo.dump();
    return messages.texts();
}

} // namespace

/// The store of an article's prices: what is kept of a document, and how it is found again.
class PriceInfoTest : public QObject
{
    Q_OBJECT

private slots:
    void spreading_data()
    {
        readTable(R"(
            row                             | attributes                             | sources
            neither                         |                                        | 0/0 0/1 1/0 1/1
            kiosk is named, on site is not  | input_source='4'                       | 4/0 4/1
            on site is named, kiosk is not  | delivery_type='2'                      | 0/2 1/2
            kiosk on site                   | input_source='4' delivery_type='2'     | 4/2
            net and cd are OR-ed to cd      | input_source='0,1'                     | 1/0 1/1
            cd and kiosk are OR-ed to none  | input_source='1,4'                     |
            unknown with known is wild      | input_source='X,1' delivery_type='X,1' | 0/0 0/1 1/0 1/1
            unknown input source            | input_source='2'                       |
        )");
    }

    void spreading()
    {
        const VelTarmPriceInfo info(
            nullptr,
            parsedElement(QStringLiteral("<a><base_prices><e type='p' level='7' price='5' %1/></base_prices></a>")
                              .arg(cell("attributes"))));
        QCOMPARE(sourcesOf(info, 7, 3), cell("sources"));

        // Model and level count even where no price is kept; the search then gets none from the model.
        QCOMPARE(info.maxDiscountLevel(), 7);
        QCOMPARE(dumpOf(info).constFirst(), "Discountmodel: 3");
        QCOMPARE(info.bestDiscountModel(priceKey(0, 10), 1, 0, 0) == DISCOUNT_MODEL_PACKAGE,
                 cell("sources").contains(QStringLiteral("0/1")));
    }

    void upperLimits_data()
    {
        // After each entry "level:upper limit" of all entries so far.
        readTable(R"(
            row                    | prices                        | afterEach
            rising                 | 0 1@10 2@20                   | 0:-1; 0:9 1:-1; 0:9 1:19 2:-1
            falling                | 2@20 1@10 0@3                 | 2:-1; 1:19 2:-1; 0:9 1:19 2:-1
            gap, filled last       | 1@10 3@30 2@20                | 1:-1; 1:-1 3:-1; 1:19 2:29 3:-1
            next level replaced    | 1 2@20 2@25                   | 1:-1; 1:19 2:-1; 1:24 2:-1
            replaced before a next | 1 2@20 1@12                   | 1:-1; 1:19 2:-1; 1:19 2:-1
            another model          | 1 P2@20                       | 1:-1; 1:-1
            a dropped model        | 1 Q2@20                       | 1:-1; 1:-1
            levels below 0         | 0 -1 0@5                      | 0:-1; -1:-1 0:-1; -1:4 0:-1
            lowest quantity wraps  | 1 2@-2147483648               | 1:-1; 1:2147483647 2:-1
            highest level wraps    | 2147483647 0@3 -2147483648@9  | 2147483647:-1; 0:-1; 0:-1 2147483647:8 -2147483648:-1
        )");
    }

    void upperLimits()
    {
        const QDomElement root = priced(cell("prices"));
        VelTarmPriceInfo info(nullptr, QDomElement());
        QDomElement entry = root.firstChildElement().firstChildElement();
        for (const QString& expected : cell("afterEach").split(QStringLiteral("; "))) {
            info.parsePrice(entry);
            entry = entry.nextSiblingElement();
            for (const QString& pair : expected.split(' ')) {
                const VelTarmPriceKey key = priceKey(pair.section(':', 0, 0).toInt(), 1);
                QCOMPARE(info.priceValue(key)->discountLevel(), key.discountLevel());
                QCOMPARE(info.priceValue(key)->upperLimit(), pair.section(':', 1).toInt());
                QCOMPARE(info.countItemsAtUpperBound(key), info.priceValue(key)->upperLimit());
            }
        }
        QVERIFY(entry.isNull());
    }

    void lookUpWidensNothing()
    {
        const VelTarmPriceInfo info(
            nullptr, parsedElement(QStringLiteral(
                         "<a><base_prices><e price='100' non_offer_price='120' transfer_base_price='300' "
                         "transfer_unit_price='50' end_offer_date='2030-05-01T12:30:00'/><e level='1' price='80'/>"
                         "<e level='2' quantity='9' input_source='1'/></base_prices></a>")));
        QCOMPARE(sourcesOf(info, 0, 1), "0/0 0/1 1/0 1/1");
        for (const VelTarmPriceKey& key : {priceKey(2, 1), priceKey(-1, 1), priceKey(0, 10), priceKey(0, 3)})
            QCOMPARE(info.priceValue(key), VelTarmPriceValue::invalidPrice());

        // Level 2 bounds level 1 for its own source only.
        QCOMPARE(info.priceValue(priceKey(1, 1))->upperLimit(), -1);
        QCOMPARE(info.priceValue(priceKey(1, 1, VelOrderSource::cdMailOrder()))->upperLimit(), 8);

        // The base entry answers whatever level and model the key names; the key's source alone counts.
        const auto base = [&info](const VelTarmPriceKey& theKey) {
            return QList<int>{info.basePriceValue(theKey)->price(), info.nonOfferPrice(theKey),
                              info.baseTransferPrice(theKey), info.unitTransferPrice(theKey)};
        };
        QCOMPARE(base(priceKey(7, 3)), (QList<int>{100, 120, 300, 50}));
        QCOMPARE(info.endOfferDate(priceKey(7, 3)), QDateTime(QDate(2030, 5, 1), QTime(12, 30)));
        const VelTarmPriceKey kiosk = priceKey(0, 1, VelOrderSource::kioskOnSite());
        QCOMPARE(base(kiosk), (QList<int>{-1, -1, 0, 0}));
        QCOMPARE(info.endOfferDate(kiosk), QDateTime::fromTime_t(0));
    }

    void entriesAndGroups_data()
    {
        readTable(R"(
            row                    | content                                                                                  | price
            discount               | <discount_prices><e price='2'/></discount_prices>                                        | 2
            last of the source     | <base_prices><e price='1'/><e price='2' delivery_type='0'/></base_prices>                | 1
            discount is read last  | <discount_prices><e price='2'/></discount_prices><base_prices><e price='1'/></base_prices> | 2
            first group counts     | <base_prices/><base_prices><e price='2'/></base_prices>                                  | -1
            any tag, other nodes   | <base_prices>t<!-- c --><e price='1'/>t<other price='3'/><?p i?></base_prices>           | 3
            one level deeper       | <base_prices><g><e price='1'/></g></base_prices>                                         | -1
            outside a group        | <e price='1'/><prices><e price='1'/></prices>                                            | -1
        )");
    }

    void entriesAndGroups()
    {
        const VelTarmPriceInfo info(nullptr, parsedElement(QStringLiteral("<a>%1</a>").arg(cell("content"))));
        QCOMPARE(info.priceValue(priceKey(0, 1))->price(), number("price"));
    }

    void modelsAndTransfer_data()
    {
        // An entry of level 3; one that is dropped leaves no trace.
        readTable(R"(
            row                   | element              | entry            | transferModel | maxLevel | models
            2                     | transfer model=' 2'  | type='B'         | 2             | 3        | 1
            missing               | transfer             |                  | 1             | 3        | 4
            -1                    | transfer model='-1'  |                  | 1             | 3        | 4
            unknown with known    | transfer model='2,x' |                  | 1             | 3        | 4
            no source             | transfer model='2'   | input_source='9' | 2             | 3        | 4
            no transfer           | article model='2'    | type='F'         | -1            | 3        | 4
            combined type         | article              | type='I,X'       | -1            | 3        | 15
            unknown type          | transfer model='2'   | type='Q'         | -1            | 0        |
            unknown with known    | transfer model='2'   | type='Q,B'       | -1            | 0        |
            combined to undefined | transfer model='2'   | type='I,L'       | -1            | 0        |
        )");
    }

    void modelsAndTransfer()
    {
        const QString tag = cell("element").section(' ', 0, 0);
        const VelTarmPriceInfo info(
            nullptr, parsedElement(QStringLiteral("<%1><discount_prices><e level='3' %2/></discount_prices></%3>")
                                       .arg(cell("element"), cell("entry"), tag)));
        QCOMPARE(static_cast<int>(info.transferModel()), number("transferModel"));
        QCOMPARE(info.maxDiscountLevel(), number("maxLevel"));
        const QString model = dumpOf(info).value(0);
        QCOMPARE(model, cell("models").isEmpty() ? QString() : QStringLiteral("Discountmodel: ") + cell("models"));
    }

    void discountLimits_data()
    {
        readTable(R"(
            row                               | prices               | level | model | limits
            level 0, package                  | 0 1@10 P1@5 p2@8     | 0     | 3     |
            level 0, bulk                     | 0 1@10 P1@5 p2@8     | 0     | 1     | 1:0..9
            all levels, package               | 0 1@10 P1@5 p2@8     | -1    | 3     | 3:5..7 3:8..-1
            level 1, all models               | 0 1@10 P1@5 p2@8     | 1     | 10    | 1:10..-1 3:5..7
            base limit alone                  | 0                    | -1    | 1     | 1:0..-1
            base limit beside a band          | 0 2@20               | -1    | 1     | 1:20..-1
            beside another model's band       | 0 P1@5               | -1    | 10    | 1:0..-1 3:5..-1
            one of several base limits stays  | 0 2 b4               | -1    | 1     | 1:0..-1
        )");
    }

    void discountLimits()
    {
        const VelTarmPriceInfo info(nullptr, priced(cell("prices")));
        const auto limits = [&](const VelOrderSource& theSource) {
            return described(info.discountLimits(priceKey(number("level"), number("model"), theSource)));
        };
        QCOMPARE(limits(VelOrderSource::onlineMailOrder()), cell("limits"));
        // Equal ones of all sources are one.
        QCOMPARE(limits({INPUT_SOURCE_UNKNOWN, DELIVERY_TYPE_UNKNOWN}), cell("limits"));
        QCOMPARE(limits({INPUT_SOURCE_ANY, DELIVERY_TYPE_ANY}), QString());
        QCOMPARE(limits(VelOrderSource::kioskOnSite()), QString());
    }

    void priceAtBound_data()
    {
        readTable(R"(
            row                                | model | lower | level      | price
            lower limit alone                  | 1     | 20    | 99         | 60
            level 1 before the limit's level 2 | 1     | 20    | 1          | 80
            limit of level 0 before level 2    | 1     | 0     | 2          | 100
            neither                            | 1     | 11    | 9          | -1
            model of the limit, not of the key | 3     | 5     | 9          | 450
            entry without a price ends it      | 8     | 0     | 1          | -1
            levels below 0 are not walked      | 5     | 70    | -1         | -1
            highest level                      | 1     | 99    | 2147483647 | 5
        )");
    }

    void priceAtBound()
    {
        const VelTarmPriceInfo info(nullptr, priced(QStringLiteral("0=100 1@10=80 2@20=60 2147483647@2147483647=5 "
                                                                   "I0 I1=7 P1@5=450 Z-1@70=9")));
        const VelDiscountLimit limit(static_cast<VelDiscountModel>(number("model")), number("lower"), 12345,
                                     number("level"), false);
        QCOMPARE(info.priceAtBound(priceKey(5, 10), limit), number("price"));
        QCOMPARE(info.priceAtBound(priceKey(5, 10, VelOrderSource::kioskOnSite()), limit), -1);
    }

    void updateReplacesEverything()
    {
        const QDomElement transfer =
            parsedElement(QStringLiteral("<transfer model='2'><base_prices><e level='4'/></base_prices></transfer>"));
        VelTarmPriceInfo info(nullptr, transfer);
        QCOMPARE(info.maxDiscountLevel(), 4);
        QCOMPARE(info.transferModel(), TRANSFER_MODEL_2);

        info.update(priced(QStringLiteral("1=3")));
        QCOMPARE(info.maxDiscountLevel(), 1);
        QCOMPARE(info.transferModel(), TRANSFER_MODEL_UNDEFINED);
        QCOMPARE(info.priceValue(priceKey(1, 1))->price(), 3);
        QCOMPARE(dumpOf(info).size(), 5); // one model, four sources

        info.update(transfer);
        info.update(QDomElement());
        QCOMPARE(info.maxDiscountLevel(), 0);
        QCOMPARE(info.transferModel(), TRANSFER_MODEL_UNDEFINED);
        QCOMPARE(dumpOf(info), QStringList());
    }

    void dump()
    {
        const VelTarmPriceInfo info(
            nullptr,
            parsedElement(QStringLiteral("<a><base_prices><e delivery_type='1' price='100'/><e type='Q'/>"
                                         "<e type='p' level='2' quantity='5' input_source='0' delivery_type='1'/>"
                                         "<e level='-1' input_source='0' delivery_type='0' price='7'/>"
                                         "</base_prices></a>")));
        QStringList lines = dumpOf(info);
        QCOMPARE(lines.size(), 6);
        std::sort(lines.begin(), lines.begin() + 2); // the models come in no order, the keys by their unsigned hashes
        QCOMPARE(lines.join('\n'), QStringLiteral("Discountmodel: 1\nDiscountmodel: 3\n"
                                                  "Key: (IS: 0, PY: 1, Level: 0, Model: 1) => (P: 100, Q: 0)\n"
                                                  "Key: (IS: 0, PY: 1, Level: 2, Model: 3) => (P: -1, Q: 5)\n"
                                                  "Key: (IS: 1, PY: 1, Level: 0, Model: 1) => (P: 100, Q: 0)\n"
                                                  "Key: (IS: 0, PY: 0, Level: -1, Model: 1) => (P: 7, Q: 0)"));
    }
};

VEL_TEST_MAIN(PriceInfoTest)
#include "tst_PriceInfo.moc"
