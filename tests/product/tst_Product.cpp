#include "ordering/VelOrderingDetails.h"
#include "product/VelPriceClass.h"
#include "product/VelProduct.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductFactory.h"
#include "product/VelProductPrintFun.h"
#include "support/VelTestPrices.h"

namespace {

const int NO_PRICE_FOUND = 2147483647;

/// The product class of what the factory makes of the element, and its group; empty for nothing.
QString built(const QDomElement& theElement)
{
    const QScopedPointer<VelProductAbstract> product(VelProductFactory::instance()->build(theElement));
    if (!product)
        return QString();
    const QMap<int, QString> classes{{1, "book"},    {2, "calendar"}, {4, "gift"},  {8, "card"},
                                     {64, "add-on"}, {512, "plain"},  {1024, "fee"}};
    const QMap<int, QString> groups{{0, "none"},  {1, "photo"},         {2, "premium"}, {4, "poster"},
                                    {8, "book"},  {16, "calendar"},     {32, "gift"},   {64, "add-on"},
                                    {256, "ZQN"}, {512, "professional"}};
    QStringList names;
    for (auto known = classes.cbegin(); known != classes.cend(); ++known)
        if (product->isProductClass(static_cast<VelProductClass>(known.key())))
            names.append(known.value());
    return names.join('+') + " of " + groups.value(product->productGroup().value(), "another group");
}

} // namespace

/// Single products, from the element to the object.
class ProductTest : public QObject
{
    Q_OBJECT

private slots:
    void nullProduct()
    {
        const VelProductAbstract* null = VelProductAbstract::nullProduct();
        QVERIFY(null->isValid() && null->isDeprecated() && !null->isOrderable());
        QCOMPARE((QList<int>{null->articleID(), null->shippingGroupId(), null->priceFirstFit(), null->minPrice(true)}),
                 (QList<int>{0, -1, -1, NO_PRICE_FOUND}));
    }

    void build_data()
    {
        // What is built is told by class and group; in a warning ~ and ! stand for the words that build() puts there.
        readTable(R"(
            row                         | element                                  | salesline | built   | warning
            shipping fee                | transfer product_class='11'              |           | fee of none  |
            add-on before all           | add_on product_class='x' arrangement='trivial' | 3   | add-on of add-on   |
            add-on without class        | add_on                                   |           |         |
            add-on 11                   | add_on product_class='11'                |           |         |
            add-on 21                   | add_on product_class='21'                |           |         |
            add-on 11 after a blank     | add_on product_class=' 11'               |           | add-on of add-on   |
            other tag                   | Article arrangement='gift' product_class='x' |       |         |
            poster, any id              | article arrangement='trivial' id='9181'  |           | plain of poster   |
            photo in a shipping group   | article arrangement='trivial' group='23' | 3         | plain of photo   |
            premium in a shipping group | article arrangement='trivial' group='24' | 4         | plain of premium   |
            group 23                    | article arrangement='trivial' group='23' | 5         | plain of ZQN |
            group 24                    | article arrangement='trivial' group='24' |           | plain of professional |
            card                        | article arrangement='card' group='24'    | 4         | card of gift    |
            gift in any case            | article arrangement='x, GiFT ,gift'      |           | gift of gift    |
            book                        | article arrangement='photobook' id='9181' |          | book of book     |
            calendar                    | article arrangement='calendar' id='8026' |           | calendar of calendar    |
            two kinds | article arrangement='Gift, card' | | | arrangement: Gift, card~.
            markers | article arrangement='%2' name='%1' | | | arrangement: %2; Produkt: %1 wird nicht unterstützt.
            blank | article arrangement='CALENDAR' id=' 8026' ||| article id:  8026; arrangement: CALENDAR~: Kalender!
            zero | article arrangement='photobook' id='09181' ||| article id: 09181; arrangement: photobook~: Fotobuch!
        )");
    }

    void build()
    {
        const MessageCatcher messages;
        QString element = "<" + cell("element") + "><order_txt_lines><l>SALESLINE=" + cell("salesline");
        element += "</l></order_txt_lines></" + cell("element").section(' ', 0, 0) + ">";
        QCOMPARE(built(parsedElement(element)), cell("built"));
        const QString warning = cell("warning")
                                    .replace("~", "; Produkt:  wird nicht unterstützt")
                                    .replace("!", " ist nicht im Regulärenausdruck enthalten!");
        QCOMPARE(messages.texts().join('\n').remove('"'),
                 warning.isEmpty() ? "" : "VelProductFactory::build() -- " + warning);
    }

    void compiledInIds()
    {
        const MessageCatcher messages;
        QMap<QString, int> sums;
        for (int id = 0; id < 10000; ++id)
            for (const char* const kind : {"photobook", "calendar"})
                sums[built(parsedElement(QString("<article id='%1' arrangement='%2'/>").arg(id).arg(kind)))] += id;
        QCOMPARE((QList<int>{sums["book of book"], sums["calendar of calendar"]}), (QList<int>{369528, 210526}));
        QCOMPARE(messages.texts().size(), 20000 - 41 - 23);
    }

    void namesAndOrderable()
    {
        VelProduct print(parsedElement("<article id='1' name='Bild' group='4' arrangement='trivial'/>"));
        const VelProductAbstract fee(parsedElement("<transfer name='Versand' group='4'/>"), PRODUCT_CLASS_FEE);
        VelOrderingDetails* details = VelOrderingDetails::instance();
        details->updateAvailableShippingGroups(parsedElement("<groups><group id='5'/></groups>"));
        QVERIFY(!print.isOrderable());
        QCOMPARE(print.fullQualifiedName(), "Bild ()");
        details->updateAvailableShippingGroups(parsedElement("<groups><group id='4' name='Prints'/></groups>"));
        QVERIFY(print.isOrderable() && fee.isOrderable()); // without a reload
        QCOMPARE(fee.fullQualifiedName(), "Versand");

        QString text;
        QDebug(&text) << print;
        QCOMPARE(text.simplified().remove('"'),
                 "Name : Bild Full Qualified Name : Bild (Prints) Article ID : 1 Shipping Group ID : 4 "
                 "Product Group : POSTER Product Arrangement : TRIVIAL");

        print.setDeprecated(true);
        QVERIFY(!print.isOrderable());
        QCOMPARE(print.fullQualifiedName(), "Bild (nicht mehr lieferbar) (Prints)");
        print.update(parsedElement("<article group='4'/>")); // a real element revives it, and leaves the name alone
        QVERIFY(print.isOrderable() && print.name() == "Bild");
        print.update(QDomElement());
        QVERIFY(print.isDeprecated() && print.shippingGroupId() == -1);
    }

    void heads()
    {
        QString kinds;
        QStringList fileNames;
        for (const QString head : {"[DESIGN]", "[FRAME]", "[WALL_HOLDER]", "[PAGES]", "[design]", "[[]]]["}) {
            const QString pattern =
                "<article><order_txt_lines head='%1'><l>TYPE=ALB8</l><l>BORDER=2</l></order_txt_lines></article>";
            const VelProduct product(parsedElement(pattern.arg(head)));
            kinds += QString::asprintf("%d%d%d%d ", product.isDesign(), product.isFrame(), product.isWallHolder(),
                                       product.isPagePackage());
            fileNames.append(product.isoFileNameSuggestion());
            QVERIFY(!product.canHaveBorderColor()); // which only a border of 1 allows
        }
        QCOMPARE(kinds, "1000 0100 0010 0001 0000 0000 ");
        QCOMPARE(fileNames.join(' '), "DESIGN FRAME WALL_HOLDER PAGES design ALB8");
    }

    /// A VelProduct calls itself a photo product always; the turning asks for the group all the same.
    void orientation()
    {
        const auto turned = [](const char* theAttributes, const QSize& theReference) {
            const VelProduct product(parsedElement(
                QString("<article %1><size width='20' height='10' dpi='254'/></article>").arg(theAttributes)));
            return product.isFotoProduct() && product.printPixelSize(theReference) == QSize(100, 200);
        };
        QVERIFY(turned("arrangement='trivial'", QSize(1, 2)));
        QVERIFY(turned("arrangement='trivial' group='24'", QSize(9, 9))); // a square is no landscape
        QVERIFY(!turned("arrangement='trivial'", QSize(9, 8)));
        QVERIFY(!turned("arrangement='photobook'", QSize(1, 2)));
    }

    void prices_data()
    {
        readTable(R"(
            row                  | prices               | attributes                          | firstFit | lowest
            free                 | 0=0                  |                                     | 0        | 0
            ladder               | 0=100 1@10=80        |                                     | 100      | 80
            kiosk only           | 0=30                 | input_source='4' delivery_type='2'  | -1       | 2147483647
            package from 2       | P1@2=500             |                                     | -1       | 500
            from a bill sum of 1 | Z1@1=7               |                                     | 7        | 7
            first without price  | 1@5 2@10=50          |                                     | -1       | 50
        )");
    }

    void prices()
    {
        const VelProduct product(priced(cell("prices"), "article", cell("attributes")));
        QCOMPARE(product.priceFirstFit(), number("firstFit"));
        QCOMPARE(product.minPrice(true), number("lowest"));
        // Without all limits the first one decides, whether it has a price or not.
        const VelTarmPriceKey mail = priceKey(-1, DISCOUNT_MODEL_UNDEFINED);
        const QSet<VelDiscountLimit> limits = product.discountLimits(mail);
        const int first = limits.isEmpty() ? -1 : product.priceAtBound(mail, *limits.cbegin());
        QCOMPARE(product.minPriceFor(mail, false), first >= 0 ? first : NO_PRICE_FOUND);
    }

    void classWords_data()
    {
        readTable(R"(word | requirement | orderable | free
                     WH1  | no          | no        | no
                     WH2  | no          | yes       | no
                     WH11 | no          | yes       | no
                     WH12 | no          | no        | no
                     wh2  | no          | no        | no
                     GPT1 | no          | yes       | no
                     ANG1 | yes         | yes       | no
                     10   | no          | no        | yes
                     MAP1 | no          | no        | no)");
    }

    void classWords()
    {
        const VelProductAddOn addOn(parsedElement("<add_on product_class='" + cell("word") + "'/>"));
        QCOMPARE(addOn.requirement(), answer("requirement"));
        QCOMPARE(addOn.isOrderableByUser(), answer("orderable"));
        QCOMPARE(addOn.isFreeTheme(), answer("free"));
    }

    void freeClasses()
    {
        QVERIFY(VelPriceClass("").isFree() && VelPriceClass("05").isFree() && !VelPriceClass(" 0").isFree());
    }

    /// Links and class of an add-on, and a print-fun product's type and limits are read once; all else follows.
    void readOnce()
    {
        VelProductAddOn addOn(parsedElement(R"(<add_on product_class='VDO1'><linked_articles>
            <linked_article id='7'/><linked_article/><linked_article id='-1'/><linked_article id='x'/><other id='8'/>
            <linked_article id='0'/><linked_article id='7'/><linked_article id='-2'/></linked_articles>
            <linked_articles><linked_article id='9'/></linked_articles></add_on>)"));
        addOn.update(parsedElement("<article product_class='MAP1' arrangement='gift'><linked_articles/></article>"));
        QCOMPARE(addOn.articleIDs(), (QList<int>{7, 0, 7, -2}));
        QVERIFY(addOn.matches(7, VelProductAddOn::videoName()) && !addOn.matches(7, "vdo1"));
        QVERIFY(addOn.isProductClass(PRODUCT_CLASS_ADD_ON) && addOn.isProductGroup(PRODUCT_GROUP_GIFT));

        const QString pattern = "<article %1><order_txt_lines><l>TYPE=ALB%2</l></order_txt_lines></article>";
        VelProductPrintFun book(parsedElement(pattern.arg("min_pages='26' max_pages='-98' page_step='x'").arg(8)),
                                PRODUCT_CLASS_FOTO_BOOK);
        book.update(parsedElement(pattern.arg("min_pages='1' max_pages='2' page_step='3'").arg(9)));
        QCOMPARE((QList<int>{book.productType().type(), book.minPages(), book.maxPages(), book.pageIncrement()}),
                 (QList<int>{8, 26, -98, 0}));
    }
};

VEL_TEST_MAIN(ProductTest)
#include "tst_Product.moc"
