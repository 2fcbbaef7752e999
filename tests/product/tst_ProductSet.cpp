#include "product/VelPageOrganizationCalculatorTarm.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "product/VelProductRegistryFotoBookCache.h"
#include "product/VelProductRegistryProductChecker.h"
#include "product/VelProductSet.h"
#include "support/VelTestMain.h"
#include "support/VelTestTable.h"

namespace {

/// The way to the registry's own cache, which has no query: an explicit instantiation may name a private member.
VelProductRegistryFotoBookCache* cacheOf(VelProductRegistry* theRegistry);

template <VelProductRegistryFotoBookCache* VelProductRegistry::*CACHE>
struct WayToCache
{
    friend VelProductRegistryFotoBookCache* cacheOf(VelProductRegistry* theRegistry) { return theRegistry->*CACHE; }
};

template struct WayToCache<&VelProductRegistry::myFotoBookCache>;

VelProductRegistry* registry()
{
    return VelProductRegistry::instance();
}

VelProductAbstract* product(int theArticleID)
{
    return registry()->productWithArticleID(theArticleID);
}

/// Loads articles, each written as "arrangement id type:scale min_pages max_pages page_step" as far as it has them and
/// parted by semicolons, with a page package for some.
void load(const QString& theArticles)
{
    QString articles;
    for (const QString& text : theArticles.split(';', Qt::SkipEmptyParts)) {
        const QStringList words = text.simplified().split(' ') + QStringList{"", "", ""};
        articles += QStringLiteral("<article arrangement='%1' id='%2' min_pages='%3' max_pages='%4' page_step='%5'>"
                                   "<order_txt_lines><l>TYPE=%6</l><l>SCALE=%7</l></order_txt_lines></article>")
                        .arg(words[0], words[1], words[3], words[4], words[5], words[2].section(':', 0, 0),
                             words[2].section(':', 1));
    }
    registry()->updateProducts(parsedElement(
        "<p><articles>" + articles +
        "</articles><add_ons><add_on id='1' product_class='x'><order_txt_lines head='[PAGES]'/><linked_articles>"
        "<linked_article id='9181'/><linked_article id='9210'/><linked_article id='9221'/><linked_article id='9604'/>"
        "<linked_article id='9205'/></linked_articles></add_on></add_ons></p>"));
}

} // namespace

/// The registry lives as long as the program: each test uses types and article ids of its own.
class TestProductSet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^VelXMLLoader::loadDocumentElement")); // no document
        registry();
    }

    void set()
    {
        load("trivial 100 20x30AG:a; gift 101 20x30AG:B; gift 102 20x30AG; trivial 103 20x30AG:B; gift 104 30x45AG:c");
        const VelProductSet set(VelProductType("20x30AG"));
        QVERIFY(set.contains(product(100)) && set.contains(product(103)) && !set.contains(product(104)));
        QVERIFY(set.hasVariants());
        QCOMPARE(set.firstValue(), QStringLiteral("a"));
        QCOMPARE(set.parameterValues(), (QStringList{"A", "B", "", "B"}));
        QCOMPARE(set.product("B"), product(101)); // the first of two
        QCOMPARE(set.product("a"), product(100));
        QCOMPARE(set.product(""), product(102));
        QVERIFY(!set.product("A") && !set.product("c"));
        QCOMPARE(set.productType().productName(), QStringLiteral("20x30AG"));
        QCOMPARE(int(set.productType().type()), 403);

        const VelProductSet one(VelProductType("30x45AG"));
        QVERIFY(one.contains(product(104)) && !one.hasVariants());
        const VelProductSet none(VelProductType("20X30ag")); // the type's text counts as it is written
        QVERIFY(!none.hasVariants() && none.parameterValues().isEmpty() && !none.product("a"));

        load("gift 104 20x30AG:d");
        QVERIFY(!set.contains(product(104)) && set.contains(product(100)) && !set.product("d")); // a snapshot
        QCOMPARE(VelProductSet(VelProductType("20x30AG")).product("d"), product(104));
    }

    void types_data()
    {
        readTable(R"(case                      | type    | valid | pages
                     book with a page package  | ALB8    | yes   | 24 96 2
                     book without one          | ALB9    | yes   | 24 24 2
                     limits as they stand      | ALB13   | yes   | 24 12 0
                     negative limits           | ALB14   | yes   | 4294967295 4294967294 4294967293
                     dropped book with package | ALB15   | no    | 24 96 2
                     two books                 | ALB11   | no    | 0 0 0
                     card of a book's type     | ALB16   | no    | 0 0 0
                     calendar                  | CAL7    | yes   | 0 0 0
                     first calendar dropped    | CAL8    | no    | 0 0 0
                     book of a calendar's type | CAL6    | no    | 0 0 0
                     gift                      | 20x30AD | yes   | 0 0 0)");
    }

    void types()
    {
        const QString kept = "photobook 9181 ALB8 24 96 2; photobook 9141 ALB9 24 96 2; photobook 9221 ALB13 24 12;"
                             "photobook 9604 ALB14 -1 -2 -3; photobook 9231 ALB11 24 96 2; photobook 9206 ALB11;"
                             "card 110 ALB16 24 96 2; calendar 8026 CAL7 24 96 2; photobook 9205 CAL6 24 96 2;"
                             "gift 111 20x30AD;";
        load(kept + "photobook 9210 ALB15 24 96 2; calendar 8089 CAL8");
        load(kept + "calendar 8088 CAL8");
        const VelProductType type(cell("type"));
        const auto shown = [](const VelPageCountOrganization& thePages) {
            return QString::asprintf("%u %u %u", thePages.lowest(), thePages.highest(), thePages.step());
        };
        const VelPageOrganizationCalculatorTarm calculator;
        QCOMPARE(shown(calculator.createPageOrganization(type)), cell("pages"));
        QCOMPARE(shown(calculator.availableNumOfPagesBook(VelProductType("CAL6"))), QStringLiteral("24 96 2"));
        const VelProductRegistryProductChecker checker;
        QCOMPARE(checker.isValid(type), answer("valid"));
        QCOMPARE(int(checker.type()), 1);
    }

    void fotoBookCache()
    {
        load("photobook 9787 ALB70; photobook 8588 ALB71");
        VelProductPrintFun* book = registry()->findFotoBook(VelProductType("ALB70"));
        VelProductPrintFun* other = registry()->findFotoBook(VelProductType("ALB71"));
        VelProductRegistryFotoBookCache* cache = cacheOf(registry());
        cache->insert(VelProductType("ALB70"), 24, book);
        cache->insert(VelProductType("ALB70"), 26, other);
        QCOMPARE(cache->find(VelProductType("alb70"), 24), book); // by the type's value
        QCOMPARE(cache->find(VelProductType("ALB70"), 26), other);
        QVERIFY(!cache->find(VelProductType("ALB70"), 25) && !cache->find(VelProductType("ALB71"), 24));
        cache->insert(VelProductType("ALB70"), 24, other);
        QCOMPARE(cache->find(VelProductType("ALB70"), 24), other);
        load("photobook 9787 ALB70");
        QVERIFY(!cache->find(VelProductType("ALB70"), 24) && !cache->find(VelProductType("ALB70"), 26));
    }
};

VEL_TEST_MAIN(TestProductSet)
#include "tst_ProductSet.moc"
