#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "price/VelTarmPriceInfo.h"
#include "product/VelProduct.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductRegistry.h"
#include "support/VelTestAccount.h"
#include "support/VelTestPrices.h"

#include <vector>

namespace {

VelTarmBill emptyBill()
{
    return VelTarmBill(1, VelOrderStatistic(), VelExpressType(), VelTarmStatus());
}

QString described(const VelTarmBillPositionAbstract* thePosition)
{
    const auto* position = qobject_cast<const VelTarmBillPosition*>(thePosition);
    if (!position)
        return QStringLiteral("invalid");
    QStringList texts;
    for (const int field :
         {position->countItems(), static_cast<int>(position->discountModel()), position->discountLevel(),
          position->unitPrice(), position->unitCount(), position->discountItemsPerUnit(), position->nonOfferPrice()})
        texts.append(QString::number(field));
    return texts.join(' ');
}

/// All lines of a bill, which must be for that product.
QString described(const VelTarmBill& theBill, const VelProductAbstract* theProduct)
{
    QStringList texts;
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions())
        texts.append(position->product() == theProduct ? described(position) : QStringLiteral("other product"));
    return texts.join(QStringLiteral("; "));
}

} // namespace

/**
 * What a quantity costs, and the lines that it makes on a bill. A line is written as
 * "countItems discountModel discountLevel unitPrice unitCount discountItemsPerUnit nonOfferPrice".
 */
class PriceRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void searching_data()
    {
        readTable(R"(
            row                               | prices                      | count | price | lines
            bulk, below the band              | 0=100 1@10=80               | 9     | 900   | 9 1 0 100 9 1 -1
            bulk, the band reprices all       | 0=100 1@10=80               | 10    | 800   | 10 1 1 80 10 1 -1
            bulk, no items                    | 0=100 1@10=80               | 0     | 0     | 0 1 0 100 0 1 -1
            bulk, below 0                     | 0=100 1@10=80               | -3    | -300  | -3 1 0 100 -3 1 -1
            bulk, the highest level wins      | 0=100 1@50=70 2@5=90        | 60    | 5400  | 60 1 2 90 60 1 -1
            bulk, quantity of level 0         | 0@5=100                     | 1     | 100   | 1 1 0 100 1 1 -1
            bulk, no base entry               | 1@10=80                     | 9     | -1    | invalid
            bulk, -2 is a price               | 0=-2                        | 1     | -2    | 1 1 0 -2 1 1 -1
            bulk, an amount of -1 is none     | 0=1                         | -1    | -1    | invalid
            bulk, empty entry below a band    | 0 1@10=80                   | 3     | -3    | 3 1 0 -1 3 1 -1
            no entry                          |                             | 1     | -1    | invalid
            package, inside the first         | P1@1=500 P2@11=900 p3@21=40 | 7     | 500   | 7 3 1 500 1 10 -1
            package, one beyond               | P1@1=500 P2@11=900 p3@21=40 | 21    | 940   | 20 3 2 900 1 20 -1; 1 3 3 40 1 1 -1
            package and rest                  | P1@1=500 P2@11=900 p3@21=40 | 25    | 1100  | 20 3 2 900 1 20 -1; 5 3 3 40 5 1 -1
            level package and rest            | L1@1=500 L2@11=900 l3@21=40 | 25    | 1100  | 20 2 2 900 1 20 -1; 5 2 3 40 5 1 -1
            no package reached                | p1@5=70                     | 6     | 420   | 6 3 1 70 6 1 -1
            package before a gap              | P1@1=500 p3@21=40           | 25    | 1540  | -1 3 1 500 1 -1 -1; 26 3 3 40 26 1 -1
            package that leaves no rest       | P1@1=500 p2@6=50 p3@5=40    | 5     | 500   | 5 3 1 500 1 5 -1
            package before cheaper bulk       | 0=100 P1@5=600              | 5     | 600   | 5 3 1 600 1 -1 -1
            bulk where the package has none   | 0=100 P1@5                  | 5     | 500   | 5 1 0 100 5 1 -1
            level package before package      | 0=100 P1@5=600 L1@8=999     | 8     | 999   | 8 2 1 999 1 -1 -1
            inherited before cheaper bulk     | 0=10 I0=50 I1=40            | 3     | 150   | 3 8 0 50 3 1 -1
            nothing to inherit at level 0     | I1=40                       | 3     | -1    | invalid
            cheapest of three, first          | 0=100 F0=300 X0=350         | 2     | 200   | 2 1 0 100 2 1 -1
            a tie goes to the lower model     | 0=100 F0=300 X0=300         | 3     | 300   | 3 1 0 100 3 1 -1
            model without a rule              | F,L0=5                      | 1     | -1    | invalid
            highest amount never wins         | 0=2147483647                | 1     | -1    | invalid
            highest amount but one            | 0=2147483646                | 1     | 2147483646 | 1 1 0 2147483646 1 1 -1
            product wraps once                | 0=1073741824                | 2     | -2147483648 | 2 1 0 1073741824 2 1 -1
            lowest count                      | 0=3                         | -2147483648 | -2147483648 | -2147483648 1 0 3 -2147483648 1 -1
            sum wraps                         | P1@1=2147483647 p2@2=1      | 2     | -2147483648 | 1 3 1 2147483647 1 1 -1; 1 3 2 1 1 1 -1
            rest wraps                        | P1=500 p2@-2147483647=1     | 5     | 500   | -2147483648 3 1 500 1 -2147483648 -1
            highest level                     | 0=9 2147483647@4=5          | 4     | 20    | 4 1 2147483647 5 4 1 -1
        )");
    }

    void searching()
    {
        const VelProduct product(priced(cell("prices")));
        for (const VelTarmPriceKey& key : {priceKey(-1, 10), priceKey(5, 3)}) { // level and model play no part
            VelTarmBill bill = emptyBill();
            QCOMPARE(product.priceFor(key, number("count"), 4711, &bill, nullptr), number("price"));
            QCOMPARE(described(bill, &product), cell("lines"));
            QCOMPARE(product.priceFor(key, number("count"), 4711, nullptr, nullptr), number("price"));
        }
    }

    void oneModel_data()
    {
        // The last column holds the lines where the order source has no price at all.
        readTable(R"(
            row                      | model | level      | count | sum   | price | lines            | withoutPrice
            bulk                     | 1     | 1          | 3     | 0     | 300   | 3 1 0 100 3 1 -1 | 3 1 0 -1 3 1 -1
            package, below its bands | 3     | 3          | -1    | 0     | -1    |                  |
            inherited, level 0       | 8     | 0          | 3     | 0     | 150   | 3 8 0 50 3 1 -1  | 3 8 -1 -1 3 1 -1
            inherited, highest level | 8     | 2147483647 | 3     | 0     | 120   | 3 8 1 40 3 1 -1  | 3 8 -1 -1 3 1 -1
            inherited, below level 0 | 8     | -1         | 3     | 0     | -1    | 3 8 -1 -1 3 1 -1 | 3 8 -1 -1 3 1 -1
            express, band            | 7     | 0          | 5     | 0     | 700   | 1 7 2 700 1 1 -1 | 1 7 0 -1 1 1 -1
            bill sum, below its band | 5     | 1          | 99    | 4999  | 490   | 1 4 0 490 1 1 -1 | 1 4 0 -1 1 1 -1
            bill sum, band           | 5     | 0          | 0     | 5000  | 0     | 1 5 1 0 1 1 -1   | 1 4 0 -1 1 1 -1
            bill sum, below 0        | 5     | 0          | 1     | -5000 | 490   | 1 4 0 490 1 1 -1 | 1 4 0 -1 1 1 -1
            no model                 | 0     | 0          | 1     | 1     | -1    | invalid          | invalid
            transfer model 2         | 6     | 0          | 1     | 1     | -1    | invalid          | invalid
            undefined model          | 10    | 0          | 1     | 1     | -1    | invalid          | invalid
        )");
    }

    void oneModel()
    {
        const QDomElement root = priced(QStringLiteral("0=100 1@10=80 F,L0=5 P1@1=500 P2@11=900 p3@21=40 i0=50 I1=40 "
                                                       "F0=490 F1@10=590 Z0=1 Z1@5000=0 X0=300 X2@5=700"));
        VelProduct product(root);
        const VelTarmPriceInfo info(&product, root);
        const int model = number("model");
        const VelTarmPriceKey key = priceKey(number("level"), model);
        VelTarmBill bill = emptyBill();
        QCOMPARE(info.priceInModel(key, number("count"), number("sum"), &bill), number("price"));
        QCOMPARE(described(bill, &product), cell("lines"));
        QCOMPARE(info.priceInModel(key, number("count"), number("sum"), nullptr), number("price"));

        VelTarmBill kioskBill = emptyBill();
        const VelTarmPriceKey kiosk = priceKey(number("level"), model, VelOrderSource::kioskOnSite());
        QCOMPARE(info.priceInModel(kiosk, number("count"), number("sum"), &kioskBill), -1);
        QCOMPARE(described(kioskBill, &product), cell("withoutPrice"));

        // No items and no sum are no failure in the rules of packages and fees, and make no line.
        VelTarmBill none = emptyBill();
        if (model == 3 || model == 4 || model == 5 || model == 7) {
            QCOMPARE(info.priceInModel(kiosk, 0, 0, &none), 0);
            QVERIFY(none.orderPositions().isEmpty());
        }
    }

    void bestLevel_data()
    {
        readTable(R"(
            row                      | prices              | count      | level      | packageLevel
            single above a package   | P1@2 p2@4 P4@8 p5@9 | 7          | 2          | 1
            past a gap               | P1@2 p2@4 P4@8 p5@9 | 8          | 4          | 4
            highest level first      | P1@50 P2            | 60         | 2          | 2
            level 0 is not walked    | P0 P-1              | 5          | 0          | 0
            count below 0            | P1@-5               | -5         | 1          | 1
            highest level            | P2147483647@7       | 7          | 2147483647 | 2147483647
        )");
    }

    void bestLevel()
    {
        const VelTarmPriceInfo info(nullptr, priced(cell("prices")));
        QCOMPARE(info.bestDiscountLevel(priceKey(9, 3), number("count"), false), number("level"));
        QCOMPARE(info.bestDiscountLevel(priceKey(-1, 3), number("count"), true), number("packageLevel"));
    }

    void fees_data()
    {
        // The last two columns hold the answers to a key of the express model.
        readTable(R"(
            row                      | tag         | prices          | count | sum  | price | lines            | express | expressLines
            transfer by count        | transfer    | 0=300 1@10=500  | 9     | 1    | 300   | 1 4 0 300 1 1 -1 | -1      | 1 7 0 -1 1 1 -1
            transfer, below the band | transfer    | 0=490 Z1@5000=0 | 1     | 4999 | 490   | 1 4 0 490 1 1 -1 | -1      | 1 7 0 -1 1 1 -1
            transfer, bill sum       | transfer    | 0=490 Z1@5000=0 | 1     | 5000 | 0     | 1 5 1 0 1 1 -1   | -1      | 1 7 0 -1 1 1 -1
            transfer, no bill sum    | transfer    | 0=490 Z1@5000=0 | 1     | 0    | 0     |                  | -1      | 1 7 0 -1 1 1 -1
            bill sum at level 0      | transfer    | Z0=5            | 1     | 100  | -1    | invalid          | -1      | 1 7 0 -1 1 1 -1
            express fee for three    | express_fee | 0=700           | 3     | 1    | 700   | 1 7 0 700 1 1 -1 | 700     | 1 7 0 700 1 1 -1
            express fee for nothing  | express_fee | 0=700           | 0     | 1    | 0     |                  | 0       |
            express beside cheaper   | express_fee | 0=700 B0=1      | 3     | 1    | 3     | 3 1 0 1 3 1 -1   | 700     | 1 7 0 700 1 1 -1
        )");
    }

    void fees()
    {
        const VelProductAbstract product(priced(cell("prices"), cell("tag")), PRODUCT_CLASS_FEE);
        VelTarmBill bill = emptyBill();
        QCOMPARE(product.priceFor(priceKey(-1, 10), number("count"), number("sum"), &bill, nullptr), number("price"));
        QCOMPARE(described(bill, &product), cell("lines"));
        QCOMPARE(product.transferPriceFor(priceKey(-1, 10), number("count"), number("sum"), nullptr), number("price"));

        VelTarmBill expressBill = emptyBill();
        QCOMPARE(product.priceFor(priceKey(3, 7), number("count"), number("sum"), &expressBill, nullptr),
                 number("express"));
        QCOMPARE(described(expressBill, &product), cell("expressLines"));
    }

    void offers_data()
    {
        readTable(R"(
            row                        | attributes                                                | shown
            running                    | non_offer_price='120' end_offer_date='2999-12-31T23:59:59' | 120
            running, in universal time | non_offer_price='120' end_offer_date='2999-12-31T23:59:59Z' | 120
            running, old price -7      | non_offer_price='-7' end_offer_date='2999-12-31'          | -7
            ended                      | non_offer_price='120' end_offer_date='2001-12-31T23:59:59' | -1
            end in words               | non_offer_price='120' end_offer_date='31.12.2999'         | -1
            old price in words         | non_offer_price='1,20' end_offer_date='2999-12-31'        | -1
        )");
    }

    void offers()
    {
        const VelTarmPriceInfo info(
            nullptr, priced("0=100 P1@1=500 p2@3=40 I0=50 F0=490 Z1=90 X0=300", "article", cell("attributes")));
        VelTarmBill bill = emptyBill();
        QList<int> prices;
        for (const int model : {1, 3, 8, 4, 5, 7})
            prices.append(info.priceInModel(priceKey(0, model), 5, 1, &bill));
        QCOMPARE(prices, (QList<int>{500, 620, 250, 490, 90, 300})); // an offer never changes an amount
        QCOMPARE(bill.orderPositions().size(), 7);                   // package and rest are two
        for (const VelTarmBillPositionAbstract* position : bill.orderPositions())
            QCOMPARE(position->nonOfferPrice(), number("shown"));
    }

    void inheritedLevel_data()
    {
        // The main products as "article id:count", in the order in which they come to the bill.
        readTable(R"(
            row                          | mainProducts | price | line
            level 0                      | 1:5          | 150   | 3 8 0 50 3 1 -1
            level 2, walk down to 1      | 1:20         | 120   | 3 8 1 40 3 1 -1
            highest of two               | 1:10 2:5     | 60    | 3 8 3 20 3 1 -1
            highest of two, first link   | 3:25 1:5     | 120   | 3 8 1 40 3 1 -1
            first line of a main product | 3:25         | 120   | 3 8 1 40 3 1 -1
            first of two lines           | 1:5 2:1 1:20 | 150   | 3 8 0 50 3 1 -1
            without a price              | 5:1          | 150   | 3 8 0 50 3 1 -1
        )");
    }

    void inheritedLevel()
    {
        const TestAccount account;
        const QFileInfo document = account.write("pricelist.xml", R"(<pricelist><articles>
            <article id='1' arrangement='trivial'><base_prices><e price='100'/>
            <e level='1' quantity='10' price='80'/><e level='2' quantity='20' price='60'/></base_prices></article>
            <article id='2' arrangement='trivial'><base_prices><e price='100'/>
            <e level='3' quantity='5' price='50'/></base_prices></article>
            <article id='3' arrangement='trivial'><base_prices><e type='P' level='2' quantity='11' price='900'/>
            <e type='p' level='3' quantity='21' price='40'/></base_prices></article>
            <article id='5' arrangement='trivial'/></articles>
            <add_ons><add_on id='9' product_class='ECT1'><linked_articles><linked_article id='77'/>
            <linked_article id='3'/><linked_article id='1'/><linked_article id='2'/><linked_article id='5'/>
            </linked_articles><base_prices><e type='I' price='50'/><e type='I' level='1' price='40'/>
            <e type='I' level='3' price='20'/></base_prices></add_on></add_ons></pricelist>)");
        VelKeyAccount::instance()->setPricelistXMLFileInfo(document);
        VelProductRegistry* registry = VelProductRegistry::instance();
        registry->loadAllProducts(document);
        const VelProductAbstract* addOn = registry->productWithArticleID(9);
        QVERIFY(dynamic_cast<const VelProductAddOn*>(addOn));

        VelTarmBill bill = emptyBill();
        for (const QString& item : cell("mainProducts").split(' ', Qt::SkipEmptyParts)) {
            const QStringList parts = item.split(':');
            registry->productWithArticleID(parts.at(0).toInt())
                ->priceFor(priceKey(-1, 10), parts.at(1).toInt(), 0, &bill, nullptr);
        }
        QCOMPARE(addOn->priceFor(priceKey(-1, 10), 3, 0, &bill, nullptr), number("price"));
        QCOMPARE(described(bill.orderPositions().constLast()), cell("line"));
        QCOMPARE(addOn->priceFor(priceKey(3, 10), 3, 0, nullptr, nullptr), 150); // no bill, nothing to inherit
    }

    void inheritedLevelWithoutBill()
    {
        const VelTarmPriceInfo info(nullptr, priced(QStringLiteral("0=1 I0=50 I1=40")));
        QCOMPARE(info.bestDiscountModel(priceKey(0, 10), 3, 1, 1), DISCOUNT_MODEL_INHERITED_DISCOUNT);
        QCOMPARE(info.bestDiscountModel(priceKey(0, 10), 3, 1, -1), DISCOUNT_MODEL_BULK);
        // Of a transfer price the search inherits nothing; the rule then takes the level that the caller's key has.
        QCOMPARE(info.transferPriceFor(priceKey(0, 10), 3, 1, nullptr), 150);
        QCOMPARE(info.transferPriceFor(priceKey(1, 10), 3, 1, nullptr), 120);
        QCOMPARE(info.transferPriceFor(priceKey(-1, 10), 3, 1, nullptr), -1);
    }

    void transferModel2_data()
    {
        // The cart as "base price/unit price/count", in the order of the products' addresses.
        readTable(R"(
            row                            | cart                | base | unit       | total
            two products                   | 300/50/3 500/100/2  | 500  | 250        | 750
            empty                          |                     | 0    | 0          | 0
            unit prices alone              | 0/50/1 0/50/3       | 0    | 150        | 150
            first of equal base prices     | 300/50/1 300/70/1   | 300  | 70         | 370
            base prices below 0            | -5/10/2 -3/20/1     | 0    | 20         | 20
            count 0 leads, too             | 300/50/0            | 300  | -50        | 250
            wraps                          | 1/2147483647/2      | 1    | 2147483647 | -2147483648
        )");
    }

    void transferModel2()
    {
        const QStringList items = cell("cart").split(' ', Qt::SkipEmptyParts);
        std::vector<std::unique_ptr<VelProduct>> products;
        for (int i = 0; i < items.size(); ++i)
            products.push_back(std::make_unique<VelProduct>(QDomElement()));
        std::sort(products.begin(), products.end());
        VelOrderStatistic statistic;
        for (std::size_t i = 0; i < products.size(); ++i) {
            const QStringList parts = items.at(static_cast<int>(i)).split('/');
            products.at(i)->update(
                parsedElement(QStringLiteral("<a><base_prices><e transfer_base_price='%1' transfer_unit_price='%2'/>"
                                             "<e level='1' price='5' transfer_base_price='9999'/></base_prices></a>")
                                  .arg(parts.at(0), parts.at(1))));
            statistic.add(products.at(i).get(), parts.at(2).toInt());
        }

        QDomElement root = priced(QStringLiteral("0=490 Z1=9 X0=3"), QStringLiteral("transfer"));
        root.setAttribute(QStringLiteral("model"), 2);
        const VelProductAbstract transfer(root, PRODUCT_CLASS_FEE);
        for (const VelTarmPriceKey& key : {priceKey(-1, 10), priceKey(1, 7)}) { // goes before the express model, too
            VelTarmBill bill = emptyBill();
            QCOMPARE(transfer.priceFor(key, 77, 12345, &bill, &statistic), number("total"));
            QCOMPARE(described(bill, &transfer), QStringLiteral("1 6 0 %1 1 1 -1").arg(cell("total")));
            QCOMPARE(transfer.priceFor(key, 77, 12345, nullptr, &statistic), number("total"));
            QCOMPARE(transfer.transferPriceFor(key, 77, 12345, &statistic), number("base"));
            QCOMPARE(transfer.unitTransferPriceFor(key, &statistic), number("unit"));
            QCOMPARE(transfer.priceFor(key, 77, 12345, nullptr, nullptr), 0); // as for an empty order
        }
    }
};

VEL_TEST_MAIN(PriceRulesTest)
#include "tst_PriceRules.moc"
