#include "frame/VelExpressType.h"
#include "product/VelPageOrganizationCalculatorTarm.h"
#include "product/VelProduct.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductGroupManager.h"
#include "product/VelProductPrintFun.h"
#include "product/VelProductRegistryProductChecker.h"
#include "product/VelProductSet.h"
#include "product/VelProductSorting.h"
#include "sibling/VelDirectoryConfig.h"
#include "support/VelTestPriceList.h"

#include <QCryptographicHash>
#include <QtAlgorithms>

namespace {

const char* const SHOP = R"(
    article id='1' name='Print' group='23' arrangement='trivial' | text [PRINT] TYPE=FOTO
    article id='2' name='Print' group='24' arrangement='trivial' | text [PRINT] BORDER=1
    article id='5' arrangement='trivial' | text [FRAME]
    article id='40' name='Mug' arrangement='gift' | text [G] TYPE=CAL6
    article id='41' name='20x30' group='13' arrangement='gift' | text [G] TYPE=20x30AG
    article id='42' name='Canvas' arrangement='gift' | text [G] TYPE=ALB11
    article id='8026' arrangement='calendar' | text [C] TYPE=CAL6
    article id='9141' arrangement='photobook' | text [B] TYPE=ALB11
    article id='9181' arrangement='photobook' | text [B] TYPE=ALB8
    article id='9210' arrangement='photobook' | text [B] TYPE=ALB8
    article id='9171' arrangement='photobook' | text [B] TYPE=alb9
    article id='31' name='10x15' group='13' arrangement='trivial' | text ALB9
    article id='32' name='9x13' group='13' arrangement='trivial' | text ALBUM
    add_on id='60' name='60' product_class='WH2' group='13' | links 1
    add_on id='61' name='61' product_class='WH2' | links 1
    add_on id='62' name='62' product_class='VDO1' | links 9171
    add_on id='63' name='63' product_class='X' | text [FRAME] | links 2
    add_on id='64' name='64' product_class='X' | text [FRAME] | links 1
    add_on id='65' name='65' product_class='X' | text [PAGES] | links 2
    add_on id='66' name='66' product_class='X' | text [PAGES] | links 9171)";

/// The first load has two elements more under another tag, and one that the second drops.
const char* const FIRST_TAGS = R"(
    article id='90' name='90' arrangement='trivial' group='9'
    add_on id='91' product_class='K' | links 1
    article id='92' name='Alt' arrangement='trivial' | text [OLD] TYPE=OLD)";
const char* const SECOND_TAGS = R"(
    add_on id='90' group='9'
    article id='91' name='Gift' arrangement='gift' group='8')";

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

using Query = QString (*)(const VelProductRegistry&);

#define ASK(...) [](const VelProductRegistry& theRegistry) { return shown(theRegistry.__VA_ARGS__); }
#define NEAREST_TO(ID, GROUP) ASK(mostEquivalentProduct(theRegistry.productWithArticleID(ID), GROUP))

void row(const char* theName, Query theQuery, const char* theExpected)
{
    QTest::newRow(theName) << theQuery << QString(theExpected);
}

} // namespace

Q_DECLARE_METATYPE(Query)

/// Each test has a registry of its own beside the application's.
class ProductRegistryTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        loadPriceList(myAccount, "");
        myRegistry.reset(new VelProductRegistry);
    }

    /// Of the application's registry: the first test, for it wants it empty.
    void activeGroups()
    {
        const VelProductGroupManager* groups = VelProductGroupManager::instance();
        loadPriceList(myAccount, "article id='1' arrangement='trivial'");
        loadPriceList(myAccount, "article id='2' arrangement='trivial' group='24'");
        QCOMPARE(groups->activeProductGroups().size(), 2); // deprecated products count
        loadPriceList(myAccount, "add_on product_class='x'");
        QCOMPARE(groups->activeProductGroups().size(), 9); // one add-on makes all of them active
    }

    /// No text shares the document's memory, which would stay in the process with it; equal texts of a load are one.
    void ownTexts()
    {
        const QDomElement list = parsedElement("<list><articles><article id='1' arrangement='trivial' name='same'>"
                                               "<order_txt_lines head='same'/></article>"
                                               "<article id='2' arrangement='trivial' name='same'/></articles></list>");
        myRegistry->updateProducts(list);
        const auto text = [this](int theId) { return myRegistry->productWithArticleID(theId)->name().constData(); };
        const QDomElement article = list.firstChildElement().firstChildElement();
        QVERIFY(text(1) != article.attribute("name").constData());
        QCOMPARE(text(1), text(2));
        QCOMPARE(text(1), myRegistry->productWithArticleID(1)->orderTxtHead().constData());
    }

    void sections()
    {
        QSignalSpy updated(myRegistry.data(), &VelProductRegistry::priceListUpdated);
        read(R"(<add_ons><add_on id='3' product_class='x'/><other/><add_on id='1' product_class='x'/></add_ons>
            <articles><article id='4' arrangement='trivial'/>
            <deep><article id='5' arrangement='trivial'/></deep><article id='2' arrangement='trivial'/></articles>
            <articles><article id='6' arrangement='trivial'/></articles>)");
        QCOMPARE(shown(myRegistry->productList()), "4 2 3 1");
        const MessageCatcher messages;
        myRegistry->loadAllProducts(QFileInfo("/nonexistent"));
        QCOMPARE(updated.count(), 2);
        QCOMPARE(shown(myRegistry->productList()), "4 2 3 1");
        QVERIFY(found(4)->isDeprecated() && found(1)->isDeprecated());
    }

    /// The first element makes the object, the last one read tells its data; the section plays no part.
    void clashesOfIds()
    {
        read(R"(<articles><article id='1' name='first' arrangement='trivial'/><article id='1' name='second'/>
            <add_on id='2' product_class='x'/><transfer id='3' group='77'/>
            <article id='4' arrangement='trivial'/><bundle id='4' name='other tag'/>
            <article id='0' arrangement='trivial'/><article id='4294967296'/><article name='last'/></articles>
            <add_ons><add_on id='1'/><article id='5' arrangement='trivial'/><article id='2'/></add_ons>)");
        QCOMPARE(shown(myRegistry->productList()), "1 2 3 4 0 5");
        QVERIFY(dynamic_cast<VelProduct*>(found(1)) && found(1)->isAddOn());
        QVERIFY(dynamic_cast<VelProductAddOn*>(found(2)) && !found(2)->isAddOn());
        QVERIFY(found(3)->isProductClass(PRODUCT_CLASS_FEE) && !myRegistry->transferProduct(77));
        QCOMPARE(found(1)->name() + "/" + found(4)->name() + "/" + found(0)->name(), "second/other tag/last");
    }

    /// Only being new keeps an element out: a known product takes it as an update.
    void refusedProducts()
    {
        const char* const refused =
            "article id='1' arrangement='gift' | text [G] TYPE=WALL\nadd_on id='3' product_class='11'";
        const MessageCatcher messages;
        load(refused);
        QVERIFY(myRegistry->productList().isEmpty());
        load("article id='1' arrangement='trivial'");
        load(refused);
        QVERIFY(!found(1)->isDeprecated() && found(1)->isProductGroup(PRODUCT_GROUP_GIFT));
        QCOMPARE(messages.texts(), QStringList());
    }

    /// A new product reads its element twice.
    void shippingTimeWarnings()
    {
        const MessageCatcher messages;
        for (int reading = 0; reading < 2; ++reading)
            read("<articles><article id='1' arrangement='trivial'><shipping_times><shipping_time days='3'/>"
                 "</shipping_times></article></articles>");
        QCOMPARE(messages.texts().size(), 3);
    }

    void paymentAndTransferFees()
    {
        read(R"(<paymethod_fees>
            <paymethod_fee id='70' pay_method_id='3'/><paymethod_fee id='71' pay_method_id='x'/>
            <paymethod_fee id='72' pay_method_id='99'/><paymethod_fee id='73' pay_method_id='3'/>
            <transfer id='74' pay_method_id='8'/></paymethod_fees><transfers>
            <transfer id='75' group='2'/><transfer id='77'/><transfer id='75' group='1' name='other'/>
            <transfer id='76' group='2'/><article id='78' group='8' arrangement='trivial'/></transfers>)");
        const auto agio = [this](int theType) {
            return myRegistry->idOfPaymentAgioProduct(static_cast<VelPaymentType>(theType));
        };
        // The last one wins; no number counts as 0; an unknown number; of another tag.
        QCOMPARE((QList<int>{agio(3), agio(0), agio(99), agio(8)}), (QList<int>{73, 71, 72, 0}));
        // The last one wins; no group; of another tag.
        QCOMPARE((QList<int>{myRegistry->idOfTransferProduct(2), myRegistry->idOfTransferProduct(-1),
                             myRegistry->idOfTransferProduct(8)}),
                 (QList<int>{76, 77, -1}));
        QCOMPARE(myRegistry->transferProductWithArticleId(75)->name(), "other");
        const VelProductList former{myRegistry->paymentAgioProduct(PAYMENT_TYPE_3), myRegistry->transferProduct(2)};
        read("");
        QVERIFY(!myRegistry->paymentAgioProduct(PAYMENT_TYPE_3) && !myRegistry->transferProduct(2));
        QCOMPARE(shown(former), "73 76"); // still usable
    }

    void expressFees()
    {
        load(R"(
            express_fee id='90' group='4' express='2' | prices 0=990
            express_fee id='91' group='4' express='1' | prices 0=1
            express_fee id='92' group='4' express='0' | prices 0=0
            express_fee id='93' group='4'
            express_fee id='94' express='1,2'
            express_fee id='96' group='5' express='1')");
        const VelProductAbstract* former = myRegistry->expressAgioProduct(4, ExpressableType_EXPRESS_1);
        QCOMPARE(shown(myRegistry->expressAgioProducts(4)), "93 92 91 90"); // by rising type
        QCOMPARE(shown(myRegistry->expressAgioProduct(-1, ExpressableType_EXPRESS_2)), "94");
        // Only a fee above 0 makes a type available.
        QCOMPARE(myRegistry->supportedExpressTypes(4, ANY),
                 (QList<VelExpressType>{ExpressableType_EXPRESS_1, ExpressableType_EXPRESS_2}));
        QVERIFY(myRegistry->supportedExpressTypes(5, ANY).isEmpty() && myRegistry->containsExpressAgioProducts());
        load("");
        QVERIFY(myRegistry->expressAgioProducts(4).isEmpty() && !myRegistry->containsExpressAgioProducts());
        QCOMPARE(former->price(ANY, 1, 0), 1); // still usable
    }

    void lookups_data()
    {
        QTest::addColumn<Query>("query");
        QTest::addColumn<QString>("expected");
        row("name: first of several", ASK(findProduct("Print", PRODUCT_GROUP_ALL)), "1");
        row("name: by group", ASK(findProduct("Print", PRODUCT_GROUP_PROFESSIONALFOTO)), "2");
        row("name: exact", ASK(findProduct("PRINT", PRODUCT_GROUP_ALL)), "none");
        row("name: deprecated", ASK(findProduct("Alt (nicht mehr lieferbar)", PRODUCT_GROUP_ALL)), "92");
        row("type: two books", ASK(findProduct(VelProductType("ALB8"))), "none");
        row("type: one book, any case", ASK(findProduct(VelProductType("Alb9"))), "9171");
        row("type: calendar, after a gift", ASK(findProduct(VelProductType("cal6"))), "8026");
        row("type: gift, by its text", ASK(findProduct(VelProductType("20x30AG"))), "41");
        row("type: gift, not exact", ASK(findProduct(VelProductType("20X30AG"))), "none");
        row("TYPE: empty", ASK(findProductWithOrderTXTType("")), "2");
        row("head: empty", ASK(findProductWithOrderTXTHead("", PRODUCT_GROUP_ALL)), "none");
        row("border: empty head", ASK(findProductWithOrderTXTHead("", PRODUCT_GROUP_ALL, "")), "none");
        row("text: TYPE before type", ASK(product("ALB11")), "42");
        row("text: type before head", ASK(product("ALB9")), "9171");
        row("text: head", ASK(product("ALBUM")), "32");
        row("exists: by TYPE", ASK(productExists("20x30AG")), "yes");
        row("exists: by type", ASK(productExists("Alb9")), "yes");
        row("exists: not by head", ASK(productExists("ALBUM")), "no");
        row("add-on: last read as an article", ASK(supplement(1, "K")), "91");
        row("add-ons: for the user", ASK(possibleSupplements(1)), "60 61");
        row("add-on: by the type's one book", ASK(findContent(VelProductType("ALB9"), "VDO1")), "62");
        row("add-ons: all that fit", ASK(possibleAddOns(1)), "60 61 64 91");
        row("add-on: not of that kind", ASK(productHasSupplement(1, "VDO1")), "no");
        row("frames", ASK(findPossibleFrames(1)), "64");
        row("page package", ASK(findPagePackage(9171)), "66");
        row("video: none for the type", ASK(qrCodeAllowed(VelProductType("ALB11"))), "no");
        row("groups: a common bit", ASK(groupsMatch(PRODUCT_GROUP_FOTO, PRODUCT_GROUP_ALL)), "yes");
        row("video of a book", ASK(qrCodeSupplement(VelProductType("ALB9"))), "62");
        row("group: a mask", ASK(containsProductGroup(static_cast<VelProductGroupEnum>(768))), "no");
        row("plain: class add-on as article", ASK(shippingGroupHasNonPrintFunProducts(8)), "yes");
        row("plain: class photo as add-on", ASK(shippingGroupHasNonPrintFunProducts(9)), "no");
        row("shipping group", ASK(productsForShippingGroup(13, false)), "32 31 41");
        row("with add-ons", ASK(productsForShippingGroup(13, true)), "32 31 41 60 61 62 63 64 65 66 90");
        row("of add-ons", ASK(productsForProductGroup(PRODUCT_GROUP_ADD_ON, false)), "60 61 62 63 64 65 66 90");
        row("names", ASK(productListAsStringList(PRODUCT_GROUP_GIFT)), "Mug Gift 20x30 Canvas");
        row("nearest: head and border", NEAREST_TO(2, PRODUCT_GROUP_ALL), "2");
        row("nearest: head", NEAREST_TO(1, PRODUCT_GROUP_PROFESSIONALFOTO), "2");
    }

    void lookups()
    {
        load(QString(SHOP) + FIRST_TAGS);
        load(QString(SHOP) + SECOND_TAGS);
        QFETCH(Query, query);
        QTEST(query(*myRegistry), "expected");
    }

    void videoPrice()
    {
        myAccount.write("currencies.xml", "<c><x isocode='EUR'/></c>");
        VelDirectoryConfig::instance()->setConfigurationDirectory(myAccount.path());
        load("article id='9171' arrangement='photobook' | text [B] TYPE=ALB9\n"
             "add_on id='62' product_class='VDO1' | prices 0=199 | links 9171");
        QCOMPARE(myRegistry->qrCodePriceText(VelProductType("ALB9")), "1,99 €");
        QVERIFY(myRegistry->qrCodePriceText(VelProductType("ALB11")).isNull());
    }

    void nearestInSize()
    {
        const QString pattern = "<article arrangement='trivial' id='%1' name='%1' group='%2'>"
                                "<size dpi='254' width='%3' height='10'/></article>";
        read("<articles>" + pattern.arg(1).arg(4).arg(10) + pattern.arg(12).arg(24).arg(12) +
             pattern.arg(8).arg(24).arg(8) + pattern.arg(7).arg(24).arg(20) +
             "</articles><add_ons><add_on id='60' product_class='x'/></add_ons>");
        // Of two as near the first by number; an add-on of no size.
        QCOMPARE(shown(myRegistry->mostEquivalentProduct(found(1), PRODUCT_GROUP_PROFESSIONALFOTO)), "8");
        QCOMPARE(shown(myRegistry->mostEquivalentProduct(found(1), PRODUCT_GROUP_BOOK)), "60");
    }

    void sorting_data()
    {
        readTable(R"(
            row                                    | left        | right      | less
            by number                              | 9x13 matt   | 10x15      | yes
            equal numbers, by length               | 10x15       | 10x15 matt | yes
            letters, caseless                      | abc         | ABD        | yes
            same letters                           | abc         | ABC        | no
            equal numbers and lengths              | 10x15       | 10x20      | no
            one without a digit, the longer number | Bild        | 10x15      | yes
            too large a number counts 0            | 99999999999 | 1          | yes
        )");
    }

    void sorting()
    {
        QCOMPARE(sortByNumber(cell("left"), cell("right")), answer("less"));
        QVERIFY(!sortByNumber(cell("right"), cell("left")));
    }

    /// The rules of sorting can form cycles: the lists are in the order that Qt 5's qSort makes of them.
    void order()
    {
        const QStringList patterns{"Nx", "Nx_matt", "PosterN", "poster", "BildN_", "N"};
        QString lines;
        for (int id = 0; id < 200; ++id) {
            const int mixed = id * 7919 % 211;
            const QString name = QString(patterns[mixed % 6]).replace("N", QString::number(mixed % 13));
            lines += QString("article id='%1' name='%2' group='3' arrangement='trivial'\n").arg(id).arg(name);
        }
        load(lines);
        const VelProductList sorted = myRegistry->productsForShippingGroup(3, false);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        VelProductList expected = myRegistry->productList();
        qSort(expected.begin(), expected.end(), sortProductByNumber);
        QCOMPARE(sorted, expected);
#endif
        QCOMPARE(QCryptographicHash::hash(shown(sorted).toLatin1(), QCryptographicHash::Md5).toHex(),
                 "e3b92984a6068e6a40b4640f8b782cea"); // the same order with any Qt
    }

    void changedIds()
    {
        QVERIFY(!found(0) && !found(1));
        load("article id='1' arrangement='trivial'\narticle id='2' arrangement='trivial'");
        VelProductAbstract* first = found(1);
        VelProductAbstract* second = found(2);
        second->update(parsedElement("<article id='1'/>"));
        QVERIFY(found(1) == first && !found(2)); // of two with one id the first in the list
        first->update(parsedElement("<article/>"));
        QVERIFY(found(0) == first && found(1) == second);

        VelProductAbstract* late = new VelProduct(parsedElement("<article id='3'/>"));
        QVERIFY(!found(3));
        myRegistry->insertProduct(late);
        QCOMPARE(found(3), late);
        myRegistry->insertProduct(nullptr);
        QCOMPARE(shown(myRegistry->productList()), "0 1 3");
    }

    /// What once was found for an order-text type stays so; the lists of product types keep their first readings, too.
    void memories()
    {
        QVERIFY(!myRegistry->findProductWithOrderTXTType("ALB8")); // which isn't kept
        const VelProductList* list = myRegistry->productsOfType(PRODUCT_TYPE_ALB8);
        const QString lines = "article id='1' arrangement='gift' | text [G] TYPE=%1\n"
                              "article id='2' arrangement='card' | text [G] TYPE=%2";
        load(lines.arg("ALB8", "alb8"));
        VelProductAbstract* former = myRegistry->findProductWithOrderTXTType("ALB8");
        load(lines.arg("ALB9", "ALB8"));
        QCOMPARE(shown(*list), "1 2");
        QCOMPARE(myRegistry->findProductWithOrderTXTType("ALB8"), former);
        QCOMPARE(shown(myRegistry->findProductListWithOrderTxtType("ALB8")), "2");
    }

    /// Products of one shipping group; * marks one of another, + an add-on of that.
    void discountLimits_data()
    {
        readTable(R"(row              | prices               | limits
                     and bands        | B0=9/B0=9 B1@11=8    | 1:0..10 1:11..-1
                     another model    | B0=9/P1@5=45         | 1:0..-1 3:5..-1
                     superseded alone | B0=9 P0=9/B1@11=8    | 1:11..-1 3:0..-1
                     shipping group   | B0=9/*P1@5=45        | 1:0..-1
                     any add-on       | P1@5=4/+P2@7=6/+I0=1 | 3:5..-1 3:7..-1 8:0..-1)");
    }

    void discountLimits()
    {
        for (const QString& text : cell("prices").split('/')) {
            const bool isMarked = text.startsWith('+') || text.startsWith('*');
            QDomElement element = priced(isMarked ? text.mid(1) : text, text.startsWith('+') ? "add_on" : "article");
            element.setAttribute("group", isMarked ? 5 : 4);
            myRegistry->insertProduct(new VelProduct(element));
        }
        QStringList limits;
        for (const VelDiscountLimit& limit : myRegistry->discountLimits(4, ANY))
            limits.append(
                QString::asprintf("%d:%d..%d", limit.discountModel(), limit.lowerLimit(), limit.upperLimit()));
        limits.sort();
        QCOMPARE(shown(limits), cell("limits"));
        for (int model = 1; model <= 10; ++model)
            QCOMPARE(myRegistry->containsDiscountModel(4, ANY, static_cast<VelDiscountModel>(model)),
                     !limits.filter(QString("%1:").arg(model)).isEmpty());
    }

    /// Of three products one comes, one stays and one goes; they are counted when the signal goes out.
    void lastLoad()
    {
        loadPriceList(myAccount, "article id='401' arrangement='trivial'\n article id='402' arrangement='trivial'");
        const VelProductRegistry* registry = VelProductRegistry::instance();
        const int known = registry->productList().size();
        VelTarmLoadResult load;
        const auto connection = connect(registry, &VelProductRegistry::priceListUpdated,
                                        [&load, registry] { load = registry->lastLoad(); });
        loadPriceList(myAccount, "article id='402' arrangement='trivial'\n article id='403' arrangement='trivial'\n"
                                 "article id='403' arrangement='trivial'");
        disconnect(connection);
        QVERIFY(load.wasRead() && load.file() == myAccount.path("pricelist.xml"));
        QCOMPARE(QList<int>({load.newProducts(), load.updatedProducts(), load.deprecatedProducts()}),
                 QList<int>({1, 1, known - 1}));
        VelProductRegistry::instance()->loadAllProducts(QFileInfo(myAccount.path())); // a folder
        load = registry->lastLoad();
        QCOMPARE(load.problem(), myAccount.path() + ": it is not a regular file");
    }

    void productSet()
    {
        const QString pattern = "<article id='%1' arrangement='trivial'><order_txt_lines><l>TYPE=%2</l><l>SCALE=%3</l>"
                                "</order_txt_lines></article>";
        VelProductRegistry::instance()->updateProducts(parsedElement(
            "<p><articles>" + pattern.arg(300).arg("20x30AG", "a") + pattern.arg(301).arg("20x30AG", "B") +
            pattern.arg(302).arg("30x45AG", "c") + "</articles></p>"));
        const VelProductSet set(VelProductType("20x30AG"));
        QCOMPARE(set.parameterValues(), (QStringList{"A", "B"})); // in upper case, and found as written
        QVERIFY(set.product("B") == product(301) && set.product("a") == product(300) && !set.product("A"));
        QVERIFY(set.hasVariants() && !VelProductSet(VelProductType("30x45AG")).hasVariants());
        QVERIFY(!VelProductSet(VelProductType("20X30ag")).product("a")); // the type's text counts as it is written
    }

    void books_data()
    {
        readTable(R"(row                | ids       | type  | valid | lowest | highest | step
                     page package       | 9221      | ALB13 | yes   | 24     | 96      | 2
                     no package         | 9604      | ALB14 | yes   | 24     | 24      | 2
                     two books          | 9231 9206 | ALB15 | no    | 0      | 0       | 0
                     a calendar's type  | 9205      | CAL6  | no    | 0      | 0       | 0)");
    }

    void books()
    {
        QString lines = "add_on id='311' product_class='x' | text [PAGES] | links 9221";
        for (const QString& id : cell("ids").split(' '))
            lines += "\narticle arrangement='photobook' min_pages='24' max_pages='96' page_step='2' id='" + id +
                     "' | text [B] TYPE=" + cell("type");
        loadPriceList(myAccount, lines);
        const VelProductType type(cell("type"));
        QCOMPARE(VelProductRegistryProductChecker().isValid(type), answer("valid"));
        loadPriceList(myAccount, ""); // the books are found, but not valid any more
        QVERIFY(!VelProductRegistryProductChecker().isValid(type));
        const auto pages = VelPageOrganizationCalculatorTarm().createPageOrganization(type);
        QCOMPARE(int(pages.lowest()), number("lowest"));
        QCOMPARE(int(pages.highest()), number("highest"));
        QCOMPARE(int(pages.step()), number("step"));
    }

private:
    void read(const QString& theSections) const
    {
        myRegistry->updateProducts(parsedElement("<any>" + theSections + "</any>"));
    }

    /// Lets the application's registry load, and the own one.
    void load(const QString& theLines) const
    {
        loadPriceList(myAccount, theLines);
        myRegistry->loadAllProducts();
    }

    VelProductAbstract* found(int theArticleID) const
    {
        return myRegistry->productWithArticleID(theArticleID);
    }

    const VelTarmPriceKey ANY = priceKey(-1, DISCOUNT_MODEL_UNDEFINED);
    const TestAccount myAccount;
    QScopedPointer<VelProductRegistry> myRegistry;
};

VEL_TEST_MAIN(ProductRegistryTest)
#include "tst_ProductRegistry.moc"
