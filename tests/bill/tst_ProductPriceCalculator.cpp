#include "bill/VelProductPriceCalculator.h"
#include "frame/VelTarmGlobalStatus.h"
#include "support/VelTestPriceList.h"

namespace {

/// Uses of templates by price class, written as "2ax1 1bx5".
QMap<QString, int> contents(const QString& theText)
{
    QMap<QString, int> uses;
    for (const QString& entry : theText.split(' ', Qt::SkipEmptyParts))
        uses.insert(entry.section('x', 0, 0), wholeNumber(entry.section('x', 1)));
    return uses;
}

} // namespace

class ProductPriceCalculatorTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadPriceList(myAccount, R"(
            article id='1' arrangement='trivial' name='Bild' | prices 0=100
            article id='9181' arrangement='photobook' name='Buch' min_pages='24' max_pages='120' page_step='2' | prices 0=2000 1@2=1 | text [B] TYPE=ALB8
            article id='9210' arrangement='photobook' name='starr' min_pages='24' max_pages='24' page_step='2' | prices 0=900 | text [B] TYPE=ALB9
            article id='9171' arrangement='photobook' name='ohne Schritt' min_pages='24' max_pages='120' | prices 0=900 | text [B] TYPE=ALB10
            article id='9141' arrangement='photobook' name='bloß' min_pages='-2147483648' max_pages='1' page_step='1' | prices 0=900 | text [B] TYPE=ALB11
            article id='9231' arrangement='photobook' name='ohne Preise' min_pages='2' max_pages='8' page_step='2' | prices 0=900 | with input_source='1' | text [B] TYPE=ALB13
            article id='9221' arrangement='photobook' name='Seiten ohne Preis' min_pages='2' max_pages='8' page_step='2' | prices 0=700 | text [B] TYPE=ALB14
            add_on id='20' product_class='s' | text [PAGES] | links 9221
            add_on id='21' product_class='s' | prices 0=60 1@2=50 | text [PAGES] | links 1 9181 9210 9171 9231
            add_on id='22' product_class='MAP1' | prices 0=150 | text [M] | links 9181 9231
            add_on id='23' product_class='VDO1' | prices 0=70 | text [V] | links 9181 9231
            add_on id='24' product_class='2a' | prices 0=90 | text [T] | links 9181 9231
            add_on id='25' product_class='1b' | prices 0=40 | text [T] | links 9181
        )");
    }

    void prices_data()
    {
        readTable(R"(
            row                    | article | pages | maps | videos | contents       | book | packages | templates | mapAreas | videoAreas | sum  | warnings | orderable
            all, half a package    | 9181    | 31    | 2    | 1      | 2ax4 1bx5      | 2000 | 180      | 400       | 300      | 70         | 2950 | 0        | yes
            fewer pages            | 9181    | 20    | -1   | -1     | 1bx-4          | 2000 | 0        | -40       | 0        | 0          | 1960 | 0        | yes
            unknown templates      | 9181    | 24    | 0    | 0      | 2Ax1 1cx0 2ax1 | 2000 | 0        | 90        | 0        | 0          | 2090 | 2        | yes
            fixed pages            | 9210    | 60    | 0    | 0      |                | 900  | 0        | 0         | 0        | 0          | 900  | 0        | yes
            no step                | 9171    | 60    | 0    | 0      |                | 900  | 0        | 0         | 0        | 0          | 900  | 0        | yes
            no print-fun product   | 1       | 60    | 0    | 0      |                | 100  | 0        | 0         | 0        | 0          | 100  | 0        | yes
            no package, map, video | 9141    | 60    | 1    | 2      |                | 900  | 0        | 0         | 0        | 0          | 900  | 2        | yes
            book without a price   | 9231    | 6     | 0    | 0      |                | -1   | 120      | 0         | 0        | 0          | 119  | 0        | no
            package without one    | 9221    | 4     | 0    | 0      |                | 700  | -1       | 0         | 0        | 0          | 699  | 0        | no
            it isn't needed        | 9221    | 2     | 0    | 0      |                | 700  | 0        | 0         | 0        | 0          | 700  | 0        | yes
            no product             | 0       | 60    | 1    | 1      | 2ax1           | 0    | 0        | 0         | 0        | 0          | 0    | 0        | no
        )");
    }

    void prices()
    {
        const VelTarmPriceKey key = priceKey(3, DISCOUNT_MODEL_PACKAGE);
        const VelProductPriceCalculator calculator(product(number("article")), number("pages"), number("maps"),
                                                   number("videos"), contents(cell("contents")));
        const MessageCatcher messages;
        QCOMPARE(calculator.priceOfProduct(key), number("book"));
        QCOMPARE(calculator.priceOfPagePackages(key), number("packages"));
        QCOMPARE(calculator.priceOfContents(key), number("templates"));
        QCOMPARE(calculator.priceOfLocrAreas(key), number("mapAreas"));
        QCOMPARE(calculator.priceOfVideoAreas(key), number("videoAreas"));
        QCOMPARE(calculator.unitPrice(key), number("sum"));
        QCOMPARE(calculator.isOrderable(key), answer("orderable"));
        QCOMPARE(messages.texts().size(), 3 * number("warnings")); // by the parts, by the sum, and by the question
    }

    /// The message of the videos names maps, too, on purpose.
    void messages()
    {
        QCOMPARE(VelProductPriceCalculator(nullptr, 0).productName(), "unknown product");
        const MessageCatcher messages;
        VelProductPriceCalculator(product(9141), 0, 1, 1, contents("2%1x1")).unitPrice(priceKey(0, 1));
        const QString head("VelProductPriceCalculator::createPriceDescription(");
        QCOMPARE(messages.texts(),
                 (QStringList{head + "VelTemplateList) -- Content nicht spezifiziert, obwohl er es sein sollte: bloß, "
                                     "priceclass 2%1",
                              head + "VelAreaLocrMapList) -- Locr Karten Zuschlagsartikel nicht gefunden. bloß",
                              head + "VelAreaLocrMapList) -- Video Zuschlagsartikel nicht gefunden. bloß"}));
    }

    /// Without a key, prices are those of the global status.
    void globalKey()
    {
        const MessageCatcher ignored; // there are no ordering details
        VelTarmGlobalStatus::instance()->setOrderSource(VelOrderSource::cdPointOfSale());
        const VelProductPriceCalculator book(product(9231), 4, 1, 1, contents("2ax1"));
        QCOMPARE(joined({book.priceOfProduct(), book.priceOfPagePackages(), book.priceOfContents(),
                         book.priceOfLocrAreas(), book.priceOfVideoAreas(), book.unitPrice()}),
                 "900 60 90 150 70 1270");
        QVERIFY(book.isOrderable());
    }

private:
    TestAccount myAccount;
};

VEL_TEST_MAIN(ProductPriceCalculatorTest)
#include "tst_ProductPriceCalculator.moc"
