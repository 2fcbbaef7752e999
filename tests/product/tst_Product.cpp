#include "ordering/VelOrderingDetails.h"
#include "product/VelPriceClass.h"
#include "product/VelProduct.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductPrintFun.h"
#include "support/VelTestMain.h"

namespace {

const int NO_PRICE_FOUND = 2147483647;
const VelTarmPriceKey MAIL(VelOrderSource::onlineMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED);

QDomElement element(const char* thePattern, const QString& theText = QString())
{
    return parsedElement(QString::fromUtf8(thePattern).replace("%1", theText));
}

void sellShippingGroups(const char* theGroups)
{
    VelOrderingDetails::instance()->updateAvailableShippingGroups(element(theGroups));
}

} // namespace

class TestProduct : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const MessageCatcher messages; // there is no document at hand
        VelOrderingDetails::instance();
    }

    void nullProduct()
    {
        const VelProductAbstract* null = VelProductAbstract::nullProduct();
        QCOMPARE(VelProductAbstract::nullProduct(), null);
        QVERIFY(null->isValid() && null->isDeprecated());
        QVERIFY(!null->isOrderable() && !null->isAddOn() && !null->orderableViaPOS() && !null->shippingTimesEnabled());
        QVERIFY(!null->shippingTime(DELIVERY_TYPE_ANY, ExpressableType_UNKNOWN).isValid());
        QVERIFY(!null->isFotoProduct() && !null->isPrintFunProduct() && !null->isKindOfBook());
        QVERIFY(!null->isProductClass(static_cast<VelProductClass>(-1)) && !null->isProductGroup(PRODUCT_GROUP_ALL));
        QVERIFY(!null->isDesign() && !null->isFrame() && !null->isWallHolder() && !null->isPagePackage());
        QVERIFY(!null->canHaveBorderColor() && null->discountLimits(MAIL).isEmpty());
        QCOMPARE(null->endOfferDate(MAIL).toSecsSinceEpoch(), 0);
        QCOMPARE(
            (QList<int>{null->articleID(), null->shippingGroupId(), null->productGroup().value(), null->arrangement(),
                        null->printDPI(), null->qualityOnScaleForPPMM(4.0), null->price(), null->price(MAIL, 3, 100),
                        null->priceFirstFit(), null->priceAtBound(MAIL, VelDiscountLimit()), null->transferModel(),
                        null->transferPriceFor(MAIL, 1, 1, nullptr), null->nonOfferPrice(MAIL),
                        null->unitTransferPriceFor(MAIL, nullptr), null->baseTransferPrice(MAIL),
                        null->unitTransferPrice(MAIL), null->countPrintPixels()}),
            (QList<int>{0, -1, 0, 0, 300, 1, -1, -1, -1, -1, -1, -1, -1, 0, 0, 0, 0}));
        QCOMPARE((QList<int>{null->minPrice(true), null->minPriceFor(MAIL, false)}),
                 (QList<int>{NO_PRICE_FOUND, NO_PRICE_FOUND}));
        QCOMPARE(null->fullQualifiedName() + null->editorName() + null->isoFileNameSuggestion() + null->orderTxtHead() +
                     null->orderTxtType() + null->orderTxtScale() + null->orderTxtSalesline(),
                 " (nicht mehr lieferbar)");
        QCOMPARE(null->toOrderTxt().join('/'), "/DESCRIPTION=");
        QCOMPARE((QList<QSize>{null->printSizeInMM(), null->printPixelSize(QSize(9, 5))}),
                 (QList<QSize>{QSize(0, 0), QSize(0, 0)}));
    }

    void namesAndOrderable()
    {
        VelProduct print(element("<article id='1' name='Bild' group='4' arrangement='trivial'/>"));
        const VelProductAbstract fee(element("<transfer name='Versand' group='4'/>"), PRODUCT_CLASS_FEE);
        sellShippingGroups("<groups><group id='5'/></groups>");
        QVERIFY(!print.isOrderable());
        QCOMPARE(print.fullQualifiedName(), "Bild ()");
        sellShippingGroups("<groups><group id='4' name='Prints'/></groups>"); // without a reload
        QVERIFY(print.isOrderable() && fee.isOrderable());
        QCOMPARE(fee.fullQualifiedName(), "Versand");

        print.setDeprecated(true);
        QVERIFY(!print.isOrderable());
        QCOMPARE(print.fullQualifiedName(), "Bild (nicht mehr lieferbar) (Prints)");
        print.update(element("<article group='4'/>")); // a real element revives it, and leaves the name alone
        QCOMPARE(print.name(), "Bild");
        QVERIFY(print.isOrderable());
        print.update(QDomElement());
        QVERIFY(print.isDeprecated());
        QCOMPARE(print.shippingGroupId(), -1);
    }

    void orderTxt_data()
    {
        // The kinds are: design, frame, wall holder, page package.
        readTable(R"(
            head          | kinds | fileName
                          | 0000  | ALB8
            [DESIGN]      | 1000  | DESIGN
            [FRAME]       | 0100  | FRAME
            [WALL_HOLDER] | 0010  | WALL_HOLDER
            [PAGES]       | 0001  | PAGES
            [design]      | 0000  | design
            [PAGES]~      | 0000  | PAGES~
            [[]]][        | 0000  | ALB8
        )");
    }

    void orderTxt()
    {
        const VelProduct product(element("<article><order_txt_lines head='%1'><l>TYPE=ALB8</l><l>SCALE=A</l>"
                                         "<l>SALESLINE=3</l><l>BORDER=1</l></order_txt_lines></article>",
                                         cell("head").replace('~', ' ')));
        QCOMPARE(QString::asprintf("%d%d%d%d", product.isDesign(), product.isFrame(), product.isWallHolder(),
                                   product.isPagePackage()),
                 cell("kinds"));
        QCOMPARE(product.isoFileNameSuggestion().replace(' ', '~'), cell("fileName"));
        QCOMPARE(product.orderTxtScale() + product.orderTxtSalesline(), "A3");
        QVERIFY(product.canHaveBorderColor());
    }

    /// A VelProduct calls itself a photo product always; the turning asks for the group all the same.
    void orientation()
    {
        const auto turned = [](const char* theAttributes, const QSize& theReference) { // of 200 x 100 pixels
            const VelProduct product(
                element("<article %1><size width='20' height='10' dpi='254'/></article>", theAttributes));
            return product.isFotoProduct() && product.countPrintPixels() == 20000 &&
                   product.printPixelSize(theReference) == QSize(100, 200);
        };
        QVERIFY(turned("arrangement='trivial'", QSize(1, 2)));
        QVERIFY(turned("arrangement='trivial'", QSize(9, 9))); // a square is no landscape
        QVERIFY(!turned("arrangement='trivial'", QSize(9, 8)));
        QVERIFY(turned("arrangement='trivial' group='23'", QSize(1, 2)));
        QVERIFY(!turned("arrangement='photobook'", QSize(1, 2)));
    }

    void prices_data()
    {
        readTable(R"(
            row                  | entries                                                          | firstFit | lowest
            free                 | <p price='0'/>                                                   | 0  | 0
            ladder               | <p price='100'/><p level='1' quantity='10' price='80'/>          | 100 | 80
            by way               | <p price='9' input_source='0'/><p price='12' input_source='1'/>  | 12 | 9
            one way only         | <p price='30' input_source='1' delivery_type='0'/>               | 30 | 30
            kiosk only           | <p price='30' input_source='4' delivery_type='2'/>               | -1 | 2147483647
            negative             | <p price='-5'/>                                                  | -5 | 2147483647
            package from 2       | <p type='P' level='1' quantity='2' price='500'/>                 | -1 | 500
            from a bill sum of 1 | <p type='Z' level='1' quantity='1' price='7'/>                   | 7  | 7
            first without price  | <p level='1' quantity='5'/><p level='2' quantity='10' price='50'/> | -1 | 50
            too dear             | <p price='2147483647'/>                                          | -1 | 2147483647
        )");
    }

    void prices()
    {
        const VelProduct product(element("<article><base_prices>%1</base_prices></article>", cell("entries")));
        QCOMPARE(product.priceFirstFit(), number("firstFit"));
        QCOMPARE(product.minPrice(true), number("lowest"));
        QVERIFY(product.minPrice(false) >= product.minPrice(true));
        // Without all limits the first one decides, whether it has a price or not.
        const QSet<VelDiscountLimit> limits = product.discountLimits(MAIL);
        const int first = limits.isEmpty() ? -1 : product.priceAtBound(MAIL, *limits.cbegin());
        QCOMPARE(product.minPriceFor(MAIL, false), first >= 0 ? first : NO_PRICE_FOUND);
    }

    void handsOn()
    {
        const VelProduct product(element(R"(<article editor_name='e'><base_prices><p price='9' delivery_type='1'
            transfer_base_price='590' transfer_unit_price='190' non_offer_price='12'
            end_offer_date='2030-01-02T03:04:05'/></base_prices><shipping_times>
            <shipping_time days='4' delivery_type='1' express='1'/></shipping_times></article>)"));
        QCOMPARE((QList<int>{product.price(), // of the global status: net and mail order
                             product.price(MAIL, 3, 0), product.baseTransferPrice(MAIL),
                             product.unitTransferPrice(MAIL), product.nonOfferPrice(MAIL),
                             product.shippingTime(DELIVERY_TYPE_MAILORDER, ExpressableType_EXPRESS_1).minDays()}),
                 (QList<int>{9, 27, 590, 190, 12, 4}));
        QCOMPARE(product.endOfferDate(MAIL), QDateTime(QDate(2030, 1, 2), QTime(3, 4, 5)));
        QVERIFY(product.isExpressable(DELIVERY_TYPE_MAILORDER, ExpressableType_EXPRESS_1));
        QVERIFY(!product.orderableViaPOS() && product.editorName() == "e");
    }

    void addOnWords()
    {
        // Whether it is a requirement, orderable by the user, a free theme.
        const auto verify = [](const char* theWords, const char* theAnswers) {
            for (const QString& word : QString(theWords).split('/')) {
                const VelProductAddOn addOn(element("<add_on product_class='%1'/>", word));
                QCOMPARE(addOn.productClass(), word);
                QCOMPARE(
                    QString::asprintf("%d%d%d", addOn.requirement(), addOn.isOrderableByUser(), addOn.isFreeTheme()),
                    theAnswers);
            }
        };
        verify("GPT1/WH2/WH3/WH4/WH5/WH6/WH7/WH8/WH9/WH10/WH11/ECT1/ECT2", "010");
        verify("WH1/WH12/wh2/ WH2/GPT1 WH2/ECT3/MAP1/VDO1//11/21", "000");
        verify("ANG1", "110");
        verify("10/20", "001");
    }

    void addOnLinks()
    {
        VelProductAddOn addOn(element(R"(<add_on product_class='VDO1' arrangement='gift'><linked_articles>
            <linked_article id='7'/><linked_article/><linked_article id='-1'/><linked_article id='x'/><other id='8'/>
            <linked_article id='5'/><linked_article id='7'/><linked_article id='-2'/></linked_articles>
            <linked_articles><linked_article id='9'/></linked_articles></add_on>)"));
        QVERIFY(addOn.matches(7, VelProductAddOn::videoName()) && !addOn.matches(7, VelProductAddOn::locrMapName()));
        QVERIFY(!addOn.matches(9, "VDO1") && !addOn.matches(7, "vdo1"));
        QVERIFY(addOn.isAddOn() && addOn.isProductGroup(PRODUCT_GROUP_ADD_ON));

        // Links and class are read once; flag and group follow the element.
        addOn.update(element("<article product_class='MAP1' arrangement='gift'><linked_articles>"
                             "<linked_article id='9'/></linked_articles></article>"));
        QCOMPARE(addOn.articleIDs(), (QList<int>{7, 5, 7, -2}));
        QCOMPARE(addOn.productClass(), "VDO1");
        QVERIFY(!addOn.isAddOn() && addOn.isProductClass(PRODUCT_CLASS_ADD_ON));
        QCOMPARE(int(addOn.productGroup().value()), 32);
    }

    void printFun()
    {
        const char* const pattern = "<article %1</l></order_txt_lines></article>";
        VelProductPrintFun book(
            element(pattern, "min_pages='26' max_pages='-98' page_step='x'><order_txt_lines><l>TYPE=alb8"),
            PRODUCT_CLASS_FOTO_BOOK);
        book.update(element(pattern, "min_pages='1' max_pages='2' page_step='3'><order_txt_lines><l>TYPE=ALB9"));
        QCOMPARE(book.orderTxtType(), "ALB9");
        // For all else the first reading counts.
        QCOMPARE((QList<int>{book.productType().type(), book.minPages(), book.maxPages(), book.pageIncrement()}),
                 (QList<int>{8, 26, -98, 0}));
        QVERIFY(book.isKindOfBook() && book.isPrintFunProduct() && !book.isProductClass(PRODUCT_CLASS_NONE));
        QVERIFY(book.isProductClass(static_cast<VelProductClass>(PRODUCT_CLASS_FOTO_BOOK | PRODUCT_CLASS_FEE)));
        const VelProductPrintFun card(QDomElement(), PRODUCT_CLASS_CARD);
        QVERIFY(card.productType().isUnknown() && !card.isKindOfBook());
    }

    void priceClass()
    {
        for (const char* free : {"", "0", "05"})
            QVERIFY2(VelPriceClass(free).isFree(), free);
        for (const char* charged : {"10", " 0", "x"})
            QVERIFY2(!VelPriceClass(charged).isFree(), charged);
        VelPriceClass one("1a");
        const VelPriceClass copy(one);
        one.setPriceClass("1A");
        QVERIFY(copy != one && copy == VelPriceClass("1a") && one.toString() == "1A");
    }

    void debugStream()
    {
        sellShippingGroups("<groups><group id='4' name='G'/></groups>");
        QString text;
        QDebug(&text) << VelProduct(element("<article id='5' name='Bild' group='4' arrangement='photobook'/>"))
                      << VelProduct(element("<article arrangement='none'/>"));
        // Which of its two keys names the group is left open.
        QCOMPARE(text.simplified().replace("\"PRODUCT_FOTOBOOK\"", "\"BOOK\""),
                 QStringLiteral("Name : 'Bild' Full Qualified Name : 'Bild (G)' Article ID : 5 Shipping Group ID : 4 "
                                "Product Group : 'BOOK' Product Arrangement : 'PHOTOBOOK' Name : '' "
                                "Full Qualified Name : ' ()' Article ID : 0 Shipping Group ID : -1 "
                                "Product Group : '' Product Arrangement : ''")
                     .replace('\'', '"'));
    }
};

VEL_TEST_MAIN(TestProduct)
#include "tst_Product.moc"
