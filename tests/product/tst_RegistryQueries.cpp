#include "product/VelProduct.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductPrintFun.h"
#include "product/VelProductRegistry.h"
#include "product/VelProductSorting.h"
#include "sibling/VelDirectoryConfig.h"
#include "support/VelTestAccount.h"
#include "support/VelTestPrices.h"
#include "support/VelTestTable.h"

#include <QtAlgorithms>

#include <functional>

namespace {

/// An element in words: kind and id, then attributes as key=value, order-text lines as KEY=value, head=, and the
/// children below. The kinds but add_on are arrangements of an article. An element without name= is named after its id.
QString element(const QString& theWords)
{
    static const QMap<QString, QString> children{
        {"link", "<linked_articles><linked_article id='%1'/></linked_articles>"},
        {"mm", "<size dpi='254' width='%1' height='10'/>"}, // 1000 pixels per millimetre
        {"cents", "<base_prices><p price='%1'/></base_prices>"},
        {"days", "<shipping_times><shipping_time delivery_type='1' express='0' days='%1'/></shipping_times>"}};
    QStringList words = theWords.simplified().split(' ');
    const QString kind = words.first().section(':', 0, 0);
    const QString id = words.takeFirst().section(':', 1);
    QString attributes = theWords.contains("name=") ? QString() : "name='" + id + "'";
    QString head, lines, inner;
    for (const QString& word : qAsConst(words)) {
        const QString key = word.section('=', 0, 0);
        const QString value = word.section('=', 1);
        if (children.contains(key))
            inner += children[key].arg(value);
        else if (key.isUpper())
            lines += "<l>" + word + "</l>";
        else
            (key == "head" ? head : attributes) += key == "head" ? value : " " + key + "='" + value + "'";
    }
    return QStringLiteral("<%1 arrangement='%2' id='%3' %4><order_txt_lines head='%5'>%6</order_txt_lines>%7</%1>")
        .arg(kind == "add_on" ? kind : "article", kind, id, attributes, head, lines, inner);
}

/// A price list of elements in words, parted by semicolons.
QDomElement priceList(const QString& theElements)
{
    QString articles, addOns;
    for (const QString& words : theElements.split(';', Qt::SkipEmptyParts))
        (words.trimmed().startsWith("add_on") ? addOns : articles) += element(words);
    return parsedElement("<p><articles>" + articles + "</articles><add_ons>" + addOns + "</add_ons></p>");
}

const QString SHOP = R"(
    trivial:1 name=9x13 group=3 head=[PRINT] TYPE=FOTO SALESLINE=3;
    trivial:2 name=9x13 group=3 head=[PRINT] TYPE=FOTO SALESLINE=4 BORDER=1;
    trivial:3 name=Poster group=4 head=ALB9 BORDER=0;
    trivial:4 head=[PAGES]; trivial:6 head=[FRAME]; trivial:7 TYPE=[HEAD]; trivial:8 head=[HEAD];
    gift:40 group=7 TYPE=CAL6; calendar:8026 group=7 TYPE=CAL6; calendar:8089 TYPE=CAL6;
    gift:41 group=7 TYPE=20x30AG; card:43 TYPE=ALB13; gift:44 TYPE=ALB11; photobook:9141 TYPE=ALB11;
    photobook:9181 TYPE=ALB8; photobook:9210 TYPE=ALB8; photobook:9171 TYPE=alb9; photobook:9231 TYPE=ALB14;
    trivial:31 name=10x15 group=13; trivial:32 name=9x13 group=13; gift:33 name=Tasse group=13 TYPE=20x30AD;
    add_on:69 product_class=VDO1 link=9141; add_on:68 product_class=VDO1 cents=995 link=9171;
    add_on:60 product_class=WH2 group=13 link=1; add_on:61 product_class=WH2 link=1 days=3;
    add_on:62 product_class=MAP1 link=1; add_on:63 product_class=X head=[FRAME] link=1;
    add_on:64 product_class=X head=[FRAME] link=2; add_on:66 product_class=X head=[PAGES] link=9171;
    add_on:67 product_class=X head=[PAGES] link=9171;)";

/// The first load has two elements more under another tag, and one that the second drops.
const QString FIRST_TAGS =
    "add_on:90 product_class=K link=1; trivial:91 group=9; trivial:92 name=Alt TYPE=OLD head=[OLD]";
const QString SECOND_TAGS = "gift:90 group=8; add_on:91 group=9";

QString shown(bool theAnswer)
{
    return theAnswer ? "yes" : "no";
}

QString shown(const VelProductAbstract* theProduct)
{
    return theProduct ? QString::number(theProduct->articleID()) : "none";
}

QString shown(const QStringList& theTexts)
{
    return theTexts.join(' ');
}

template <typename Product>
QString shown(const QList<Product*>& theProducts)
{
    QStringList ids;
    for (const Product* product : theProducts)
        ids.append(shown(product));
    return shown(ids);
}

/// The limits as model:lower..upper, sorted as texts.
QString shown(const QSet<VelDiscountLimit>& theLimits)
{
    QStringList texts;
    for (const VelDiscountLimit& limit : theLimits)
        texts.append(QString::asprintf("%d:%d..%d", limit.discountModel(), limit.lowerLimit(), limit.upperLimit()));
    texts.sort();
    return shown(texts);
}

using Query = std::function<QString(const VelProductRegistry&)>;

#define ASK(...) Query([](const VelProductRegistry& theRegistry) { return shown(theRegistry.__VA_ARGS__); })

/// A row of the table of the test that is being set up.
template <typename... Cell>
void row(const char* theName, const Cell&... theCells)
{
    (QTest::newRow(theName) << ... << theCells);
}

} // namespace

Q_DECLARE_METATYPE(Query)

/// Each test has a registry of its own beside the application's.
class TestRegistryQueries : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        myAccount.write("currencies.xml", "<c><x isocode='EUR'/></c>");
        myAccount.write("appearance.xml", "<a/>");
        myAccount.write("pricelist.xml", "<p/>");
        VelDirectoryConfig::instance()->setConfigurationDirectory(myAccount.path());
        myAccount.activateWithDetails("<o><currencies><c id='EUR'/></currencies></o>");
    }

    void init() { myRegistry.reset(new VelProductRegistry); }

    void lookups_data()
    {
        QTest::addColumn<Query>("query");
        QTest::addColumn<QString>("expected");
        row("name: first of several", ASK(findProduct("9x13", PRODUCT_GROUP_ALL)), "1");
        row("name: by group", ASK(findProduct("9x13", PRODUCT_GROUP_PREMIUMFOTO)), "2");
        row("name: exact", ASK(findProduct("POSTER", PRODUCT_GROUP_ALL)), "none");
        row("name: deprecated", ASK(findProduct("Alt (nicht mehr lieferbar)", PRODUCT_GROUP_ALL)), "92");
        row("type: two books", ASK(findProduct(VelProductType("ALB8"))), "none");
        row("type: one book, any case", ASK(findProduct(VelProductType("Alb9"))), "9171");
        row("type: book beside a gift", ASK(findFotoBook(VelProductType("ALB11"))), "9141");
        row("type: calendar, after a gift", ASK(findProduct(VelProductType("cal6"))), "8026");
        row("type: gift by its text", ASK(findProduct(VelProductType("20x30AG"))), "41");
        row("type: gift, not exact", ASK(findProduct(VelProductType("20X30AG"))), "none");
        row("type: any print-fun product", ASK(findPrintFun(VelProductType("ALB13"))), "43");
        row("TYPE: first of several", ASK(findProductWithOrderTXTType("FOTO")), "1");
        row("TYPE: exact", ASK(findProductWithOrderTXTType("foto")), "none");
        row("TYPE: empty", ASK(findProductWithOrderTXTType("")), "3");
        row("TYPE: all", ASK(findProductListWithOrderTxtType("ALB11")), "44 9141");
        row("head: by group", ASK(findProductWithOrderTXTHead("[PRINT]", PRODUCT_GROUP_PREMIUMFOTO)), "2");
        row("head: empty", ASK(findProductWithOrderTXTHead("", PRODUCT_GROUP_ALL)), "none");
        row("border", ASK(findProductWithOrderTXTHead("[PRINT]", PRODUCT_GROUP_ALL, "1")), "2");
        row("border: empty for none", ASK(findProductWithOrderTXTHead("[PRINT]", PRODUCT_GROUP_ALL, "")), "1");
        row("border: empty head", ASK(findProductWithOrderTXTHead("", PRODUCT_GROUP_ALL, "")), "none");
        row("text: TYPE before type", ASK(product("ALB11")), "44");
        row("text: type before head", ASK(product("ALB9")), "9171");
        row("text: TYPE before head", ASK(product("[HEAD]")), "7");
        row("text: head", ASK(product("[OLD]")), "92");
        row("exists: type", ASK(productExists("ALB9")), "yes");
        row("exists: type of two books", ASK(productExists("alb8")), "no");
        row("exists: not by head", ASK(productExists("[OLD]")), "no");
        row("add-on: first", ASK(supplement(1, "WH2")), "60");
        row("add-on: class is exact", ASK(supplement(1, "wh2")), "none");
        row("add-on: last read as an article", ASK(supplement(1, "K")), "90");
        row("add-on: second name", ASK(findContent(1, "MAP1")), "62");
        row("add-on: by type", ASK(findContent(VelProductType("ALB9"), "VDO1")), "68");
        row("add-on: there", ASK(productHasSupplement(1, "X")), "yes");
        row("add-ons: all", ASK(possibleAddOns(1)), "60 61 62 63 90");
        row("add-ons: for the user", ASK(possibleSupplements(1)), "60 61");
        row("frames", ASK(findPossibleFrames(1)), "63");
        row("page package: first", ASK(findPagePackage(9171)), "66");
        row("video: two books", ASK(qrCodeSupplement(VelProductType("ALB8"))), "none");
        row("video: allowed", ASK(qrCodeAllowed(VelProductType("ALB11"))), "yes");
        row("video: not allowed", ASK(qrCodeAllowed(VelProductType("ALB14"))), "no");
        row("books", ASK(fotoBooks()), "9141 9181 9210 9171 9231");
        row("group", ASK(containsProductGroup(PRODUCT_GROUP_CALENDAR)), "yes");
        row("group: a mask", ASK(containsProductGroup(static_cast<VelProductGroupEnum>(3))), "no");
        row("groups: match", ASK(groupsMatch(PRODUCT_GROUP_FOTO, PRODUCT_GROUP_ALL)), "yes");
        row("plain: gifts only", ASK(shippingGroupHasNonPrintFunProducts(7)), "no");
        row("plain: class add-on as article", ASK(shippingGroupHasNonPrintFunProducts(8)), "yes");
        row("plain: class photo as add-on", ASK(shippingGroupHasNonPrintFunProducts(9)), "no");
        row("shipping times of one", ASK(shippingTimesEnabled()), "yes");
        row("shipping group", ASK(productsForShippingGroup(13, false)), "32 31 33");
        row("shipping group, add-ons", ASK(productsForShippingGroup(13, true)),
            "32 31 60 61 62 63 64 66 67 68 69 91 33");
        row("product group, add-ons", ASK(productsForProductGroup(PRODUCT_GROUP_CALENDAR, true)),
            "60 61 62 63 64 66 67 68 69 91 8026 8089");
        row("names", ASK(productListAsStringList(PRODUCT_GROUP_GIFT)), "40 41 43 44 90 Tasse");
    }

    void lookups()
    {
        myRegistry->updateProducts(priceList(SHOP + FIRST_TAGS));
        myRegistry->updateProducts(priceList(SHOP + SECOND_TAGS));
        QFETCH(Query, query);
        QTEST(query(*myRegistry), "expected");
    }

    void order_data()
    {
        QTest::addColumn<QStringList>("names");
        row("cycle", QStringList{"9_aaaaaaaa", "10", "Poster"}); // each is before the next, the last before the first
        row("cycle from its end", QStringList{"Poster", "10", "9_aaaaaaaa"});
        const QStringList patterns{"NxM", "NxM_matt", "PosterM", "poster_N", "Bild", "N"};
        QStringList names;
        for (int i = 0; i < 200; ++i) {
            const int mixed = i * 7919 % 211;
            names.append(QString(patterns[mixed % 6]).replace("N", QString::number(mixed % 13)));
            names.last().replace("M", QString::number(mixed % 5));
        }
        row("200 names with many cycles and equals", names);
    }

    /// Whatever the rules make of a cycle: the lists are in the order that qSort gives.
    void order()
    {
        QFETCH(QStringList, names);
        QString elements;
        for (int id = 0; id < names.size(); ++id)
            elements += QStringLiteral("trivial:%1 name=%2 group=3;").arg(id).arg(names[id]);
        myRegistry->updateProducts(priceList(elements));
        VelProductList expected = myRegistry->productList();
        qSort(expected.begin(), expected.end(), sortProductByNumber);
        qSort(names.begin(), names.end(), sortByNumber);
        QCOMPARE(myRegistry->productsForShippingGroup(3, false), expected);
        QCOMPARE(myRegistry->productsForProductGroup(PRODUCT_GROUP_POSTER, true), expected);
        QCOMPARE(myRegistry->productListAsStringList(PRODUCT_GROUP_POSTER), names);
    }

    void changedIds()
    {
        const auto found = [this](int theId) { return myRegistry->productWithArticleID(theId); };
        QVERIFY(!found(0) && !found(1));
        myRegistry->updateProducts(priceList("trivial:1; trivial:2"));
        VelProductAbstract* first = found(1);
        VelProductAbstract* second = found(2);
        second->update(parsedElement("<article id='20'/>"));
        QVERIFY(!found(2) && found(20) == second);
        second->update(parsedElement("<article id='1'/>"));
        QVERIFY(found(1) == first && !found(20)); // of two with one id the first in the list
        first->update(parsedElement("<article/>"));
        QVERIFY(found(0) == first && found(1) == second);
        first->update(parsedElement("<article id='1'/>"));
        QVERIFY(found(1) == first && !found(0));

        VelProductAbstract* late = new VelProduct(parsedElement("<article/>")); // built without a change of any id
        QVERIFY(!found(0));
        myRegistry->insertProduct(late);
        QCOMPARE(found(0), late);
        myRegistry->insertProduct(nullptr);
        myRegistry->insertProduct(new VelProduct(parsedElement("<article id='1'/>")));
        QCOMPARE(found(1), first);
    }

    void memoOfOrderTxtTypes()
    {
        QVERIFY(!myRegistry->findProductWithOrderTXTType("A")); // which isn't kept
        myRegistry->updateProducts(priceList("trivial:1 TYPE=A"));
        VelProductAbstract* found = myRegistry->findProductWithOrderTXTType("A");
        myRegistry->updateProducts(priceList("trivial:1 TYPE=B; trivial:2 TYPE=A"));
        QCOMPARE(myRegistry->findProductWithOrderTXTType("A"), found);
        QCOMPARE(myRegistry->findProductWithOrderTXTType("B"), found);
        QCOMPARE(shown(myRegistry->findProductListWithOrderTxtType("A")), QStringLiteral("2"));
        myRegistry->updateProducts(priceList("trivial:2 TYPE=A"));
        QCOMPARE(myRegistry->findProductWithOrderTXTType("A"), found);
        QVERIFY(found->isDeprecated());
    }

    void mostEquivalent_data()
    {
        readTable(R"(case                            | id | group | expected
                     head, border, not head and size | 1  | 4     | 12
                     head, not size                  | 1  | 2     | 21
                     first by number of two as near  | 1  | 256   | 31
                     an add-on of no size            | 1  | 512   | 50
                     size, as there is no head       | 2  | 4     | 13
                     no product of the group         | 1  | 8     | 50)");
    }

    /// A product of 10000 pixels and one of 8000 against those of other groups.
    void mostEquivalent()
    {
        const QString products = R"(
            trivial:1 SALESLINE=3 head=[A] BORDER=1 mm=10; trivial:2 SALESLINE=3 BORDER=1 mm=8;
            trivial:11 head=[A] BORDER=0 mm=10; trivial:12 head=[A] BORDER=1 mm=99; trivial:13 BORDER=1 mm=7;
            trivial:22 SALESLINE=4 head=[B] BORDER=1 mm=10; trivial:21 SALESLINE=4 head=[A] mm=99;
            trivial:32 group=23 mm=12; trivial:31 group=23 mm=8; trivial:30 group=23 mm=20; trivial:41 group=24 mm=30;)";
        const VelProductGroup group(static_cast<VelProductGroupEnum>(number("group")));
        const auto nearest = [&] {
            return shown(myRegistry->mostEquivalentProduct(myRegistry->productWithArticleID(number("id")), group));
        };
        myRegistry->updateProducts(priceList(products));
        QVERIFY(group.value() != PRODUCT_GROUP_BOOK || nearest() == "none"); // an empty list
        myRegistry->updateProducts(priceList(products + "add_on:50 product_class=x"));
        QCOMPARE(nearest(), cell("expected"));
        myRegistry->updateProducts(priceList(""));
        QCOMPARE(nearest(), cell("expected")); // deprecated products can win
    }

    /// Products of one shipping group; * marks one of another, + an add-on of that.
    void discountLimits_data()
    {
        readTable(R"(case              | prices               | level | model | limits                  | models
                     no product        |                      | -1    | 10    |                         |
                     base limits alone | B0=9/B0=8            | -1    | 10    | 1:0..-1                 | 1
                     and bands         | B0=9/B0=9 B1@11=8    | -1    | 10    | 1:0..10 1:11..-1        | 1
                     another model     | B0=9/P1@5=45         | -1    | 10    | 1:0..-1 3:5..-1         | 1 3
                     one base is left  | b0=9/B0=9            | -1    | 10    | 1:0..-1                 | 1
                     shipping group    | B0=9/*P1@5=45        | -1    | 10    | 1:0..-1                 | 1
                     any add-on        | P1@5=4/+P2@7=6/+I0=1 | -1    | 10    | 3:5..-1 3:7..-1 8:0..-1 | 3 8
                     one level         | B0=9 B1@11=8         | 0     | 1     | 1:0..10                 | 1
                     one model         | B0=9 P1@5=45         | -1    | 3     | 3:5..-1                 | 3
                     level 0           | B0=9 P0@5=45         | 0     | 3     |                         |)");
    }

    void discountLimits()
    {
        for (const QString& text : cell("prices").split('/')) {
            const bool isAddOn = text.startsWith('+');
            QDomElement element = priced(text, isAddOn ? "add_on" : "article");
            element.setAttribute("group", isAddOn || text.startsWith('*') ? 5 : 4);
            myRegistry->insertProduct(isAddOn ? static_cast<VelProductAbstract*>(new VelProductAddOn(element))
                                              : new VelProduct(element));
        }
        const VelTarmPriceKey key = priceKey(number("level"), number("model"));
        QCOMPARE(shown(myRegistry->discountLimits(4, key)), cell("limits"));
        QStringList models;
        for (int model = 1; model <= 10; ++model)
            if (myRegistry->containsDiscountModel(4, key, static_cast<VelDiscountModel>(model)))
                models.append(QString::number(model));
        QCOMPARE(shown(models), cell("models"));
    }

    void qrCodePrice()
    {
        QTest::ignoreMessage(QtWarningMsg, "VelTarmGlobalStatus::initOrderSource() -- Wir haben keinen Bestellweg.");
        myRegistry->updateProducts(priceList(SHOP));
        QCOMPARE(myRegistry->qrCodePriceText(VelProductType("ALB9")), QStringLiteral("9,95 €"));
        QCOMPARE(myRegistry->qrCodePriceText(VelProductType("ALB11")), QStringLiteral("-0,01 €")); // no price
        QVERIFY(myRegistry->qrCodePriceText(VelProductType("ALB14")).isNull());
    }

private:
    TestAccount myAccount;
    QScopedPointer<VelProductRegistry> myRegistry;
};

VEL_TEST_MAIN(TestRegistryQueries)
#include "tst_RegistryQueries.moc"
