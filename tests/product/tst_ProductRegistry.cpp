#include "frame/VelExpressType.h"
#include "product/VelProduct.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductPrintFun.h"
#include "product/VelProductRegistry.h"
#include "product/VelProductRegistryExpressFees.h"
#include "product/VelProductSorting.h"
#include "support/VelTestAccount.h"

namespace {

const VelTarmPriceKey MAIL(VelOrderSource::onlineMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED);
VelProductRegistry* registry()
{
    return VelProductRegistry::instance();
}

VelProductAbstract* product(int theArticleID)
{
    return registry()->productWithArticleID(theArticleID);
}

QList<int> idsOf(const VelProductList& theProducts)
{
    QList<int> ids;
    for (const VelProductAbstract* product : theProducts)
        ids.append(product->articleID());
    return ids;
}

} // namespace

/// The registry lives as long as the program: each test uses article ids of its own.
class TestProductRegistry : public QObject
{
    Q_OBJECT

private slots:
    /// The first load takes the key account's document.
    void initTestCase()
    {
        VelKeyAccount::instance()->setPricelistXMLFileInfo(
            document("<p><articles><article id='1' arrangement='trivial'/></articles></p>"));
        QCOMPARE(idsOf(registry()->productList()), QList<int>{1});
    }

    void init() { myCount = registry()->productList().size(); }

    void sections()
    {
        load(R"(<add_ons><add_on id='103' product_class='x'/><other/><add_on id='101' product_class='x'/></add_ons>
            <articles><article id='102' arrangement='trivial'/>
            <deep><article id='105' arrangement='trivial'/></deep><article id='100' arrangement='trivial'/></articles>
            <articles><article id='106' arrangement='trivial'/></articles>
            <add_ons><add_on id='107' product_class='x'/></add_ons>)");
        QCOMPARE(newIds(), (QList<int>{102, 100, 103, 101}));
        const QList<VelProductAbstract*> before = registry()->productList();
        QSignalSpy updated(registry(), &VelProductRegistry::priceListUpdated);
        myAccount.activate(); // reads the same document once more
        QCOMPARE(updated.count(), 1);
        QCOMPARE(registry()->productList(), before);
        QVERIFY(!product(100)->isDeprecated() && !product(101)->isDeprecated() && product(1)->isDeprecated());
    }

    void droppedAndRevived()
    {
        load("<articles><article id='120' name='n' group='4' arrangement='trivial'/></articles>");
        const VelProductAbstract* dropped = product(120);
        load("<add_ons/>");
        QVERIFY(dropped->isDeprecated());
        QCOMPARE(dropped->shippingGroupId(), 4);
        load("<articles><article id='120' arrangement='gift'><base_prices><p price='7'/></base_prices></article>"
             "</articles>");
        QCOMPARE(newIds(), QList<int>{120});
        QCOMPARE(product(120), dropped);
        QVERIFY(!dropped->isDeprecated());
        QCOMPARE(dropped->name(), "n");
        QCOMPARE(dropped->shippingGroupId(), -1);
        QVERIFY(dropped->isProductGroup(PRODUCT_GROUP_GIFT));
        QVERIFY(dropped->isProductClass(PRODUCT_CLASS_PRODUCT)); // the kind stays that of the first reading
        QCOMPARE(dropped->price(MAIL, 2, 0), 14);
    }

    /// The first element makes the object, the last one read tells its data; the section plays no part.
    void idClashes()
    {
        const MessageCatcher messages;
        load(R"(<articles><article id='140' name='first' arrangement='trivial'/><article id='140' name='second'/>
            <add_on id='141' product_class='x'/><transfer id='142' group='77'/>
            <article id='143' arrangement='trivial'/><bundle id='143' name='other tag'/></articles>
            <add_ons><add_on id='140'/><article id='144' arrangement='trivial'/><article id='141'/></add_ons>)");
        QCOMPARE(newIds(), (QList<int>{140, 141, 142, 143, 144}));
        QVERIFY(dynamic_cast<VelProduct*>(product(140)) && product(140)->isAddOn());
        QCOMPARE(product(140)->name(), "second");
        QVERIFY(product(140)->isProductGroup(PRODUCT_GROUP_ADD_ON));
        QVERIFY(dynamic_cast<VelProductAddOn*>(product(141)) && !product(141)->isAddOn());
        QVERIFY(product(142)->isProductClass(PRODUCT_CLASS_FEE) && !registry()->transferProduct(77));
        QCOMPARE(product(143)->name(), "other tag");
        QVERIFY(dynamic_cast<VelProduct*>(product(144)) && !product(144)->isAddOn());
        QCOMPARE(messages.texts(), QStringList());
    }

    void elementsWithoutId()
    {
        load(R"(<articles><article arrangement='trivial'/><article id='1.5'/><article id='4294967296'/>
            <article id='' name='last'/><article id='-3' arrangement='trivial'/>
            <article id=' 150 ' arrangement='trivial'/></articles>)");
        QCOMPARE(newIds(), (QList<int>{0, -3, 150}));
        QCOMPARE(product(0)->name(), "last");
    }

    void refusedProducts()
    {
        const char* const refused = R"(<articles><article id='161' arrangement='card'/>
            <article id='160' arrangement='gift'><order_txt_lines><l>TYPE=WALL</l></order_txt_lines></article></articles>
            <add_ons><add_on id='162' product_class='11'/><add_on id='163'/></add_ons>)";
        const MessageCatcher messages;
        load(refused);
        load(refused);
        QCOMPARE(newIds(), QList<int>());
        // Only being new keeps an element out: a known product takes it as an update.
        load("<articles><article id='160' arrangement='trivial'/></articles>");
        load(refused);
        QVERIFY(!product(160)->isDeprecated());
        QCOMPARE(messages.texts(), QStringList());
        load("<articles><article id='164'/></articles>");
        QCOMPARE(messages.texts().size(), 1);
    }

    void fees()
    {
        load(R"(<paymethod_fees>
            <paymethod_fee id='170' pay_method_id='3'/><paymethod_fee id='171' pay_method_id='x'/>
            <paymethod_fee id='172' pay_method_id='99'/><paymethod_fee id='173' pay_method_id='3'/>
            <transfer id='174' pay_method_id='8'/></paymethod_fees><transfers>
            <transfer id='175' group='2'/><transfer id='177'/><transfer id='175' group='1' name='other'/>
            <transfer id='176' group='2' name='later'/><article id='178' group='8' arrangement='trivial'/></transfers>)");
        const auto agioId = [](int theType) {
            return registry()->idOfPaymentAgioProduct(static_cast<VelPaymentType>(theType));
        };
        // The last one wins; no number counts as 0; an unknown number; of another tag.
        QCOMPARE((QList<int>{agioId(3), agioId(0), agioId(99), agioId(8)}), (QList<int>{173, 171, 172, 0}));
        QVERIFY(!registry()->paymentAgioProduct(PAYMENT_TYPE_8));
        QCOMPARE(registry()->idOfTransferProduct(2), 176);
        QCOMPARE(registry()->idOfTransferProduct(-1), 177); // no group
        QCOMPARE(registry()->idOfTransferProduct(8), -1);   // none
        QVERIFY(!registry()->transferProduct(8));
        QCOMPARE(registry()->transferProductWithArticleId(175)->name(), "other");
        QVERIFY(!registry()->transferProductWithArticleId(178));
        QCOMPARE(newIds(), QList<int>()); // fees are no products of the list
        QVERIFY(registry()->transferProduct(2)->isProductClass(PRODUCT_CLASS_FEE));
    }

    void feesOfAnEarlierLoad()
    {
        const char* const sections = R"(
            <paymethod_fees><paymethod_fee pay_method_id='3'><base_prices><p price='95'/></base_prices></paymethod_fee>
            </paymethod_fees><transfers><transfer group='1' model='2' name='t'><base_prices><p/></base_prices></transfer></transfers>
            <express_fees><express_fee group='1' express='1'><base_prices><p price='490'/></base_prices></express_fee>
            </express_fees>)";
        const auto fees = [] {
            return VelProductList{registry()->paymentAgioProduct(PAYMENT_TYPE_3), registry()->transferProduct(1),
                                  registry()->expressAgioProduct(1, ExpressableType_EXPRESS_1)};
        };
        load(sections);
        const VelProductList first = fees();
        load(sections);
        for (int index = 0; index < 3; ++index)
            QVERIFY(fees()[index] && fees()[index] != first[index]);
        load("");
        QCOMPARE(fees(), (VelProductList{nullptr, nullptr, nullptr}));
        QVERIFY(!registry()->containsExpressAgioProducts());
        QCOMPARE(first[0]->price(MAIL, 1, 0), 95);
        QCOMPARE(int(first[1]->transferModel()), 2);
        QCOMPARE(first[1]->name(), "t");            // not deprecated
        QCOMPARE(first[2]->price(MAIL, 3, 0), 490); // one fee for all
    }

    void expressFees()
    {
        load(R"(<express_fees>
            <express_fee id='190' group='4' express='2'><base_prices><p price='990'/></base_prices></express_fee>
            <express_fee id='191' group='4' express='1'><base_prices><p price='1'/></base_prices></express_fee>
            <express_fee id='192' group='4' express='0'><base_prices><p price='0'/></base_prices></express_fee>
            <express_fee id='193' group='4'/><express_fee id='194' express='1,2'/>
            <express_fee id='195' group='5' express='1'><base_prices><p price='9'/></base_prices></express_fee>
            <express_fee id='196' group='5' express='1'/></express_fees>)");
        QCOMPARE(idsOf(registry()->expressAgioProducts(4)), (QList<int>{193, 192, 191, 190})); // by rising type
        QCOMPARE(registry()->expressAgioProduct(-1, ExpressableType_EXPRESS_2)->articleID(), 194);
        QCOMPARE(idsOf(registry()->expressAgioProducts(5)), QList<int>{196}); // the last one wins
        QVERIFY(registry()->expressAgioProducts(6).isEmpty());
        QVERIFY(!registry()->expressAgioProduct(5, ExpressableType_STANDARD));
        QVERIFY(registry()->containsExpressAgioProducts());
        // Only a fee above 0 makes a type available.
        QCOMPARE(registry()->supportedExpressTypes(4, MAIL),
                 (QList<VelExpressType>{ExpressableType_EXPRESS_1, ExpressableType_EXPRESS_2}));
        QVERIFY(registry()->supportedExpressTypes(5, MAIL).isEmpty());
        QVERIFY(registry()->supportedExpressTypes(6, MAIL).isEmpty());

        VelProductRegistryExpressFees empty;
        QVERIFY(empty.expressAgioProducts(4).isEmpty() && !empty.expressTypeMap(4));
        QVERIFY(empty.safeExpressTypeMap(4) && empty.safeExpressTypeMap(4) == empty.expressTypeMap(4));
        QVERIFY(!empty.containsExpressAgioProducts()); // a map alone is no fee
    }

    /// A new product reads its element twice.
    void shippingTimeWarnings()
    {
        const MessageCatcher messages;
        for (int reading = 0; reading < 2; ++reading)
            load("<articles><article id='200' arrangement='trivial'><shipping_times>"
                 "<shipping_time days='3'/></shipping_times></article></articles>");
        QCOMPARE(messages.texts().size(), 3);
    }

    void unreadable_data()
    {
        readTable(R"(
            row                 | content                                   | warnings
            empty file          |                                           | 1
            no XML              | article;price                             | 1
            cut off             | <p><articles><article id='210' arrangement='trivial'/> | 1
            no sections         | <p/>                                      | 0
        )");
    }

    void unreadable()
    {
        load("<articles><article id='210' arrangement='trivial'/></articles><transfers><transfer/></transfers>");
        QVERIFY(!product(210)->isDeprecated());
        const QList<VelProductAbstract*> before = registry()->productList();
        QSignalSpy updated(registry(), &VelProductRegistry::priceListUpdated);
        const MessageCatcher messages;
        registry()->loadAllProducts(document(cell("content").toUtf8()));
        QCOMPARE(messages.texts().size(), number("warnings"));
        QCOMPARE(updated.count(), 1);
        QCOMPARE(registry()->productList(), before);
        QVERIFY(std::all_of(before.begin(), before.end(), [](auto* theProduct) { return theProduct->isDeprecated(); }));
        QVERIFY(!registry()->transferProduct(-1));
    }

    void absurdNumbers()
    {
        load("<articles><article id='-2147483648' group='2147483647' arrangement='trivial'>"
             "<size width='2147483647' height='2147483647' dpi='-2147483648'/><base_prices>"
             "<p price='2147483647' quantity='-2147483648'/><p type='P' level='2147483647' quantity='1' price='9'/>"
             "<p type='p' level='-2147483648' quantity='-2147483648' price='-2147483648'/></base_prices></article>"
             "</articles>");
        const VelProductAbstract* absurd = product(std::numeric_limits<int>::min());
        QCOMPARE(absurd->shippingGroupId(), 2147483647);
        QCOMPARE(absurd->countPrintPixels(), 0); // of two times -2^31
        QCOMPARE(absurd->price(MAIL, 3, 0), 9);  // a package, whatever the count
        QCOMPARE(absurd->price(MAIL, -2, 0), 2); // -2 times 2^31 - 1 wraps around
        QCOMPARE(absurd->minPrice(true), 9);
    }

    void productsOfType()
    {
        load(R"(<articles>
            <article id='9604' arrangement='photobook'><order_txt_lines><l>TYPE=ALB72</l></order_txt_lines></article>
            <article id='220' arrangement='gift'><order_txt_lines><l>type=alb72</l></order_txt_lines></article>
            <article id='221' arrangement='trivial'><order_txt_lines><l>TYPE=ALB72</l></order_txt_lines></article>
            </articles>)");
        VelProductList* list = registry()->productsOfType(QString("Alb72"));
        QCOMPARE(idsOf(*list), (QList<int>{9604, 220})); // print-fun products only
        load("<articles><article id='9604'><order_txt_lines><l>TYPE=ALB73</l></order_txt_lines></article></articles>");
        QCOMPARE(registry()->productsOfType(PRODUCT_TYPE_ALB72), list); // it never changes by a later reading
        QCOMPARE(idsOf(*list), (QList<int>{9604, 220}));
        VelProductList* none = registry()->productsOfType(PRODUCT_TYPE_ALB73);
        QVERIFY(none->isEmpty() && registry()->productsOfType(PRODUCT_TYPE_ALB73) == none);
    }

    void sorting_data()
    {
        readTable(R"(
            row                                    | left          | right        | less
            by number                              | 9x13 matt     | 10x15        | yes
            equal numbers, by length               | 10x15         | 10x15 matt   | yes
            equal numbers and lengths              | 10x15         | 10x20        | no
            equal numbers written otherwise        | 9x            | 009          | yes
            one without a digit, by length         | 9x13          | Poster       | yes
            one without a digit, the longer number | Bild          | 10x15        | yes
            minus is no digit                      | -9            | 1x           | yes
            letters, caseless                      | abc           | ABD          | yes
            same letters                           | abc           | ABC          | no
            letters, by length                     | zz            | aaa          | yes
            empty                                  |               | 0            | yes
            too large a number counts 0            | 99999999999   | 1            | yes
        )");
    }

    void sorting()
    {
        QCOMPARE(sortByNumber(cell("left"), cell("right")), answer("less"));
        QVERIFY(!sortByNumber(cell("right"), cell("left")));
    }

private:
    QFileInfo document(const QByteArray& theContent) const { return myAccount.write("pricelist.xml", theContent); }

    void load(const QByteArray& theSections) const
    {
        registry()->loadAllProducts(document("<any>" + theSections + "</any>"));
    }

    /// The article ids that the registry took in since the test began.
    QList<int> newIds() const { return idsOf(registry()->productList().mid(myCount)); }

    const TestAccount myAccount;
    int myCount = 0;
};

VEL_TEST_MAIN(TestProductRegistry)
#include "tst_ProductRegistry.moc"
