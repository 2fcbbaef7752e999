#include "frame/VelChildElements.h"
#include "price/VelTarmPriceInfo.h"
#include "product/VelProduct.h"
#include "support/VelTestPriceList.h"

#include <functional>

namespace {

using Rule = int (VelTarmPriceInfo::*)(const VelTarmPriceKey&, int, VelTarmBillPositionList*) const;

const QMap<QString, Rule> RULES = {{"bulk", &VelTarmPriceInfo::priceBulk},
                                   {"package", &VelTarmPriceInfo::pricePackage},
                                   {"inherited", &VelTarmPriceInfo::priceInheritedDiscount},
                                   {"express", &VelTarmPriceInfo::priceExpressFee},
                                   {"transfer", &VelTarmPriceInfo::priceBulkTransfer},
                                   {"bill sum", &VelTarmPriceInfo::priceBillingSumTransfer}};

/// Each as units x price.
QString described(const VelTarmBillPositionList& thePositions)
{
    QStringList texts;
    for (const VelTarmBillPositionAbstract* position : thePositions)
        texts.append(QString("%1x%2").arg(position->unitCount()).arg(position->unitPrice()));
    return texts.join(' ');
}

} // namespace

/// What is odd about entries and their store, and the operations of single rules: no price of a quantity shows it.
class PriceInfoTest : public QObject
{
    Q_OBJECT

private slots:
    void types_data()
    {
        readTable(R"(
            row                   | product  | type     | model | package
            default of a transfer | transfer | type=''  | 4     | no
            other case of the tag | Transfer |          | 1     | yes
            blank type is a type  | transfer | type=' ' | 9     | no
        )");
    }

    void types()
    {
        const QDomElement product =
            parsedElement(QString("<%1><g><e %2/></g></%1>").arg(cell("product"), cell("type")));
        const VelDiscountLimit limit(product.firstChildElement().firstChildElement());
        QCOMPARE(int(limit.discountModel()), number("model"));
        QCOMPARE(limit.isPackage(), answer("package"));
    }

    /// Level and package flag tell limits apart, but don't order them. An old price or an end alone makes an entry.
    void comparisons()
    {
        const VelDiscountLimit limit(DISCOUNT_MODEL_BULK, 5, 9, 1, true);
        const VelDiscountLimit other(DISCOUNT_MODEL_BULK, 5, 9, 2, false);
        QVERIFY(!(limit < other) && !(other < limit) && limit != other);
        QVERIFY(limit < VelDiscountLimit(DISCOUNT_MODEL_BULK, 5, 10, 0, true));
        QVERIFY(!VelTarmPriceValue(parsedElement("<e type='B' price='-1' input_source='1'/>")).isValid());
        for (const char* said : {"<e non_offer_price='0'/>", "<e end_offer_date='2030-02-30'/>"})
            QVERIFY2(VelTarmPriceValue(parsedElement(said)).isValid(), said);
    }

    /// Models and levels count even where no source is known, unknown models leave no trace.
    void texts()
    {
        const VelTarmPriceInfo info(nullptr, parsedElement("<a><base_prices><e type='P' level='4' input_source='9'/>"
                                                           "<e type='Q' level='9'/><e price='7' input_source='0' "
                                                           "delivery_type='1'/></base_prices></a>"));
        QCOMPARE(info.maxDiscountLevel(), 4);
        const MessageCatcher messages;
        info.dump();
        QCOMPARE(messages.texts().join('\n'), "Discountmodel: 1\nDiscountmodel: 3\n"
                                              "Key: (IS: 0, PY: 1, Level: 0, Model: 1) => (P: 7, Q: 0)");
        QString text;
        QDebug(&text) << VelDiscountLimit(DISCOUNT_MODEL_PACKAGE, -1, 20, 4, true);
        QCOMPARE(text, "\nLower Limit: -1 \n Upper Limit: 20 \n Level: 4 \n IsPackage: true \n "
                       "Dicount Model: \"B,L\" \n ");
    }

    /// Each entry closes the band of the level before it.
    void readOneByOne()
    {
        VelTarmPriceInfo info(nullptr, QDomElement());
        for (const QDomElement& entry : VelChildElements(priced("1@10 3@30 2@20").firstChildElement()))
            info.parsePrice(entry);
        QCOMPARE(info.priceValue(priceKey(1, 1))->upperLimit(), 19);
        QCOMPARE(info.countItemsAtUpperBound(priceKey(2, 1)), 29);
    }

    void limits_data()
    {
        readTable(R"(
            row                        | prices    | level | model | lowerLimits
            level 0 of another model   | 0 P0 P1@5 | 0     | 3     |
            its levels                 | 0 P0 P1@5 | 1     | 3     | 5
            one of several base limits | 0 2 b4    | -1    | 1     | 0
        )");
    }

    void limits()
    {
        const VelTarmPriceInfo info(nullptr, priced(cell("prices")));
        QList<int> lowerLimits;
        for (const VelDiscountLimit& limit : info.discountLimits(priceKey(number("level"), number("model"))))
            lowerLimits.append(limit.lowerLimit());
        QCOMPARE(joined(lowerLimits), cell("lowerLimits"));
    }

    void rules_data()
    {
        // Packages go by the key's model, inherited levels by its level, too; all others by the order source alone.
        readTable(R"(
            row           | rule      | level | model | quantity | price | lines
            bulk          | bulk      | 5     | 3     | 10       | 800   | 10x80
            package       | package   | 5     | 3     | 25       | 1100  | 1x900 5x40
            level package | package   | 5     | 2     | 25       | 70    | 1x70
            inherited     | inherited | 9     | 8     | 3        | 120   | 3x40
            express       | express   | 5     | 3     | 6        | 700   | 1x700
            transfer      | transfer  | 5     | 3     | 10       | 590   | 1x590
            bill sum      | bill sum  | 5     | 3     | 5000     | 0     | 1x0
        )");
    }

    void rules()
    {
        const QDomElement root =
            priced("0=100 1@10=80 P1@1=500 P2@11=900 p3@21=40 L1@1=70 I0=50 I1=40 F0=490 F1@10=590 "
                   "Z1@5000=0 X0=300 X2@5=700");
        VelProduct product(root);
        const VelTarmPriceInfo info(&product, root);
        VelTarmBillPositionList positions;
        const auto price = std::mem_fn(meaning(cell("rule"), RULES));
        QCOMPARE(price(info, priceKey(number("level"), number("model")), number("quantity"), &positions),
                 number("price"));
        QCOMPARE(described(positions), cell("lines"));
        qDeleteAll(positions); // they are the caller's
    }
};

VEL_TEST_MAIN(PriceInfoTest)
#include "tst_PriceInfo.moc"
