#include "ordering/VelOrderingDetails.h"
#include "product/VelPriceClass.h"
#include "product/VelProduct.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductPrintFun.h"
#include "support/VelTestMain.h"

namespace {

const int NO_PRICE_FOUND = 2147483647;
const VelTarmPriceKey MAIL(VelOrderSource::onlineMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED);

QDomElement xml(const char* theXml)
{
    return parsedElement(QString::fromUtf8(theXml));
}

QDomElement element(const char* thePattern, const QString& theText)
{
    return parsedElement(QString::fromUtf8(thePattern).arg(theText));
}

void sellShippingGroups(const char* theGroups)
{
    VelOrderingDetails::instance()->updateAvailableShippingGroups(xml(theGroups));
}

/// A row of the table of the test that is being set up.
template <typename... Cell>
void row(const char* theName, const Cell&... theCells)
{
    (QTest::newRow(theName) << ... << theCells);
}

} // namespace

class TestProduct : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^VelXMLLoader::loadDocumentElement")));
        VelOrderingDetails::instance(); // there is no document at hand
    }

    void nullProduct()
    {
        const VelProductAbstract* null = VelProductAbstract::nullProduct();
        QCOMPARE(VelProductAbstract::nullProduct(), null);
        QVERIFY(null->isValid() && null->isDeprecated());
        QVERIFY(!null->isOrderable() && !null->isAddOn() && !null->orderableViaPOS() && !null->shippingTimesEnabled());
        QVERIFY(!null->isExpressable(DELIVERY_TYPE_ANY, ExpressableType_UNKNOWN));
        QVERIFY(!null->shippingTime(DELIVERY_TYPE_ANY, ExpressableType_UNKNOWN).isValid());
        QVERIFY(!null->isFotoProduct() && !null->isPrintFunProduct() && !null->isKindOfBook());
        QVERIFY(!null->isProductClass(static_cast<VelProductClass>(-1)) && !null->isProductGroup(PRODUCT_GROUP_ALL));
        QVERIFY(!null->isDesign() && !null->isFrame() && !null->isWallHolder() && !null->isPagePackage());
        QVERIFY(!null->canHaveBorderColor());
        QCOMPARE((QList<int>{null->articleID(), null->shippingGroupId(), null->productGroup().value(),
                             null->arrangement(), null->printDPI(), null->qualityOnScaleForPPMM(4.0)}),
                 (QList<int>{0, -1, 0, 0, 300, 1}));
        QCOMPARE(null->name(), QStringLiteral(" (nicht mehr lieferbar)"));
        QCOMPARE(null->fullQualifiedName(), null->name());
        QCOMPARE(null->editorName() + null->isoFileNameSuggestion() + null->orderTxtHead() + null->orderTxtType() +
                     null->orderTxtScale() + null->orderTxtSalesline(),
                 QString());
        QCOMPARE(null->toOrderTxt().join(QLatin1Char('|')), QStringLiteral("|DESCRIPTION="));
        QCOMPARE((QList<int>{null->price(), null->price(MAIL, 3, 100), null->priceFor(MAIL, 3, 100, nullptr, nullptr),
                             null->priceFirstFit(), null->priceAtBound(MAIL, VelDiscountLimit()), null->transferModel(),
                             null->transferPriceFor(MAIL, 1, 1, nullptr), null->nonOfferPrice(MAIL)}),
                 (QList<int>{-1, -1, -1, -1, -1, -1, -1, -1}));
        QCOMPARE((QList<int>{null->minPrice(true), null->minPriceFor(MAIL, false)}),
                 (QList<int>{NO_PRICE_FOUND, NO_PRICE_FOUND}));
        QCOMPARE((QList<int>{null->unitTransferPriceFor(MAIL, nullptr), null->baseTransferPrice(MAIL),
                             null->unitTransferPrice(MAIL)}),
                 (QList<int>{0, 0, 0}));
        QVERIFY(null->discountLimits(MAIL).isEmpty() && null->endOfferDate(MAIL).toSecsSinceEpoch() == 0);
        QCOMPARE(null->printSizeInMM(), QSize(0, 0));
        QCOMPARE(null->printPixelSize(QSize(9, 5)), QSize(0, 0));
        QCOMPARE(null->countPrintPixels(), 0);
    }

    void namesAndOrderable()
    {
        VelProduct print(xml("<article id='1' name='Bild' group='4' arrangement='trivial'/>"));
        const VelProductAbstract fee(xml("<transfer name='Versand' group='4'/>"), PRODUCT_CLASS_FEE);
        sellShippingGroups("<groups><group id='5'/></groups>");
        QVERIFY(!print.isOrderable());
        QCOMPARE(print.fullQualifiedName(), QStringLiteral("Bild ()"));
        sellShippingGroups("<groups><group id='4' name='Prints'/></groups>"); // without a reload
        QVERIFY(print.isOrderable() && fee.isOrderable());
        QCOMPARE(fee.fullQualifiedName(), QStringLiteral("Versand"));

        print.setDeprecated(true);
        QVERIFY(!print.isOrderable());
        QCOMPARE(print.name(), QStringLiteral("Bild (nicht mehr lieferbar)"));
        QCOMPARE(print.fullQualifiedName(), QStringLiteral("Bild (nicht mehr lieferbar) (Prints)"));
        print.update(xml("<article group='4'/>")); // a real element revives it, and leaves the name alone
        QCOMPARE(print.name(), QStringLiteral("Bild"));
        QVERIFY(print.isOrderable());
        print.update(QDomElement());
        QVERIFY(print.isDeprecated());
        QCOMPARE(print.shippingGroupId(), -1);
    }

    void orderTxt_data()
    {
        QTest::addColumn<QString>("head");
        QTest::addColumn<QString>("kinds"); // design, frame, wall holder, page package
        QTest::addColumn<QString>("fileName");
        row("none", "", "0000", "ALB8");
        row("design", "[DESIGN]", "1000", "DESIGN");
        row("frame", "[FRAME]", "0100", "FRAME");
        row("wall holder", "[WALL_HOLDER]", "0010", "WALL_HOLDER");
        row("pages", "[PAGES]", "0001", "PAGES");
        row("lower case", "[design]", "0000", "design");
        row("blank", "[PAGES] ", "0000", "PAGES ");
        row("brackets only", "[[]]][", "0000", "ALB8");
    }

    void orderTxt()
    {
        QFETCH(QString, head);
        const VelProduct product(element("<article><order_txt_lines head='%1'><l>TYPE=ALB8</l><l>SCALE=A</l>"
                                         "<l>SALESLINE=3</l><l>BORDER=1</l></order_txt_lines></article>",
                                         head));
        QTEST(QString::asprintf("%d%d%d%d", product.isDesign(), product.isFrame(), product.isWallHolder(),
                                product.isPagePackage()),
              "kinds");
        QTEST(product.isoFileNameSuggestion(), "fileName");
        QCOMPARE(product.orderTxtScale() + product.orderTxtSalesline(), QStringLiteral("A3"));
        QVERIFY(product.canHaveBorderColor());
    }

    void orientation_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QSize>("reference");
        QTest::addColumn<QSize>("expected"); // of a product of 200 x 100 pixels
        row("portrait turns", "arrangement='trivial'", QSize(1, 2), QSize(100, 200));
        row("a square is no landscape", "arrangement='trivial'", QSize(9, 9), QSize(100, 200));
        row("on-site print turns", "arrangement='trivial' group='23'", QSize(1, 2), QSize(100, 200));
        row("book never turns", "arrangement='photobook'", QSize(1, 2), QSize(200, 100));
    }

    /// A VelProduct calls itself a photo product always; the turning asks for the group all the same.
    void orientation()
    {
        QFETCH(QString, attributes);
        QFETCH(QSize, reference);
        const VelProduct product(element("<article %1><size width='20' height='10' dpi='254'/></article>", attributes));
        QVERIFY(product.isFotoProduct());
        QCOMPARE(static_cast<const VelProductAbstract&>(product).isFotoProduct(),
                 attributes.contains(QStringLiteral("trivial")));
        QTEST(product.printPixelSize(reference), "expected");
        QCOMPARE(product.countPrintPixels(), 20000);
    }

    void prices_data()
    {
        QTest::addColumn<QString>("entries");
        QTest::addColumn<int>("firstFit");
        QTest::addColumn<int>("lowest");
        row("free", "<p price='0'/>", 0, 0);
        row("ladder", "<p price='100'/><p level='1' quantity='10' price='80'/>", 100, 80);
        row("by way", "<p price='9' input_source='0'/><p price='12' input_source='1'/>", 12, 9);
        row("one way only", "<p price='30' input_source='1' delivery_type='0'/>", 30, 30);
        row("kiosk only", "<p price='30' input_source='4' delivery_type='2'/>", -1, NO_PRICE_FOUND);
        row("negative", "<p price='-5'/>", -5, NO_PRICE_FOUND);
        row("package from 2", "<p type='P' level='1' quantity='2' price='500'/>", -1, 500);
        row("first band without a price", "<p level='1' quantity='5'/><p level='2' quantity='10' price='50'/>", -1, 50);
        row("too dear to be chosen", "<p price='2147483647'/>", -1, NO_PRICE_FOUND);
    }

    void prices()
    {
        QFETCH(QString, entries);
        const VelProduct product(element("<article><base_prices>%1</base_prices></article>", entries));
        QTEST(product.priceFirstFit(), "firstFit");
        QTEST(product.minPrice(true), "lowest");
        QVERIFY(product.minPrice(false) >= product.minPrice(true));
        // Without all limits the first one decides, whether it has a price or not.
        const QSet<VelDiscountLimit> limits = product.discountLimits(MAIL);
        const int first = limits.isEmpty() ? -1 : product.priceAtBound(MAIL, *limits.cbegin());
        QCOMPARE(product.minPriceFor(MAIL, false), first >= 0 ? first : NO_PRICE_FOUND);
    }

    void handsOn()
    {
        const VelProduct product(
            xml("<article editor_name='e'><base_prices><p price='9' delivery_type='1' "
                "transfer_base_price='590' transfer_unit_price='190' non_offer_price='12' "
                "end_offer_date='2030-01-02T03:04:05'/></base_prices><shipping_times>"
                "<shipping_time days='4' delivery_type='1' express='1'/></shipping_times></article>"));
        QCOMPARE(product.price(), 9); // of the global status: net and mail order
        QCOMPARE(product.price(MAIL, 3, 0), 27);
        QVERIFY(!product.orderableViaPOS());
        QCOMPARE(
            (QList<int>{product.baseTransferPrice(MAIL), product.unitTransferPrice(MAIL), product.nonOfferPrice(MAIL)}),
            (QList<int>{590, 190, 12}));
        QCOMPARE(product.endOfferDate(MAIL), QDateTime(QDate(2030, 1, 2), QTime(3, 4, 5)));
        QCOMPARE(product.shippingTime(DELIVERY_TYPE_MAILORDER, ExpressableType_EXPRESS_1).minDays(), 4);
        QVERIFY(product.isExpressable(DELIVERY_TYPE_MAILORDER, ExpressableType_EXPRESS_1));
        QCOMPARE(product.editorName(), QStringLiteral("e"));
    }

    void addOnWords_data()
    {
        QTest::addColumn<QString>("answers"); // requirement, orderable by user, free theme
        for (const char* word :
             {"GPT1", "WH2", "WH3", "WH4", "WH5", "WH6", "WH7", "WH8", "WH9", "WH10", "WH11", "ECT1", "ECT2"})
            row(word, "010");
        for (const char* word : {"WH1", "WH12", "wh2", " WH2", "GPT1 WH2", "ECT3", "MAP1", "VDO1", "", "11", "21"})
            row(word, "000");
        row("ANG1", "110");
        row("10", "001");
        row("20", "001");
    }

    void addOnWords()
    {
        const VelProductAddOn addOn(element("<add_on product_class='%1'/>", QLatin1String(QTest::currentDataTag())));
        QCOMPARE(addOn.productClass(), QLatin1String(QTest::currentDataTag()));
        QTEST(QString::asprintf("%d%d%d", addOn.requirement(), addOn.isOrderableByUser(), addOn.isFreeTheme()),
              "answers");
    }

    void addOnLinks()
    {
        VelProductAddOn addOn(
            xml("<add_on product_class='VDO1' arrangement='gift'><linked_articles><linked_article id='7'/>"
                "<linked_article/><linked_article id='-1'/><linked_article id='x'/><other id='8'/>"
                "<linked_article id='5'/><linked_article id='7'/><linked_article id='-2'/></linked_articles>"
                "<linked_articles><linked_article id='9'/></linked_articles></add_on>"));
        QCOMPARE(addOn.articleIDs(), (QList<int>{7, 5, 7, -2}));
        QVERIFY(addOn.matches(7, VelProductAddOn::videoName()) && !addOn.matches(7, VelProductAddOn::locrMapName()));
        QVERIFY(!addOn.matches(9, QStringLiteral("VDO1")) && !addOn.matches(7, QStringLiteral("vdo1")));
        QVERIFY(addOn.isAddOn() && addOn.isProductGroup(PRODUCT_GROUP_ADD_ON));

        // Links and class are read once; flag and group follow the element.
        addOn.update(xml("<article product_class='MAP1' arrangement='gift'><linked_articles>"
                         "<linked_article id='9'/></linked_articles></article>"));
        QCOMPARE(addOn.articleIDs(), (QList<int>{7, 5, 7, -2}));
        QCOMPARE(addOn.productClass(), QStringLiteral("VDO1"));
        QVERIFY(!addOn.isAddOn() && addOn.isProductClass(PRODUCT_CLASS_ADD_ON));
        QCOMPARE(int(addOn.productGroup().value()), 32);
    }

    void printFun()
    {
        VelProductPrintFun book(xml("<article min_pages='26' max_pages='-98' page_step='x'><order_txt_lines>"
                                    "<l>TYPE=alb8</l></order_txt_lines></article>"),
                                PRODUCT_CLASS_FOTO_BOOK);
        book.update(xml("<article min_pages='1' max_pages='2' page_step='3'><order_txt_lines><l>TYPE=ALB9</l>"
                        "</order_txt_lines></article>"));
        QCOMPARE(book.orderTxtType(), QStringLiteral("ALB9"));
        QCOMPARE(int(book.productType().type()), 8); // the first reading counts
        QCOMPARE((QList<int>{book.minPages(), book.maxPages(), book.pageIncrement()}), (QList<int>{26, -98, 0}));
        QVERIFY(book.isKindOfBook() && book.isPrintFunProduct() && !book.isProductClass(PRODUCT_CLASS_NONE));
        QVERIFY(book.isProductClass(static_cast<VelProductClass>(PRODUCT_CLASS_FOTO_BOOK | PRODUCT_CLASS_FEE)));
        const VelProductPrintFun card(QDomElement(), PRODUCT_CLASS_CARD);
        QVERIFY(card.productType().isUnknown() && !card.isKindOfBook());
    }

    void priceClass()
    {
        for (const char* free : {"", "0", "05"})
            QVERIFY2(VelPriceClass(QLatin1String(free)).isFree(), free);
        for (const char* charged : {"10", " 0", "x"})
            QVERIFY2(!VelPriceClass(QLatin1String(charged)).isFree(), charged);
        VelPriceClass one(QStringLiteral("1a"));
        const VelPriceClass copy(one);
        one.setPriceClass(QStringLiteral("1A"));
        QVERIFY(copy != one && copy == VelPriceClass(QStringLiteral("1a")));
        QCOMPARE(one.toString(), QStringLiteral("1A"));
    }

    void debugStream()
    {
        sellShippingGroups("<groups><group id='4' name='G'/></groups>");
        QString text;
        QDebug(&text) << VelProduct(xml("<article id='5' name='Bild' group='4' arrangement='photobook'/>"))
                      << VelProduct(xml("<article arrangement='none'/>"));
        // Which of its two keys names the group is left open.
        text = text.simplified().replace(QStringLiteral("\"PRODUCT_FOTOBOOK\""), QStringLiteral("\"BOOK\""));
        QCOMPARE(text, QStringLiteral("Name : \"Bild\" Full Qualified Name : \"Bild (G)\" Article ID : 5 "
                                      "Shipping Group ID : 4 Product Group : \"BOOK\" Product Arrangement : "
                                      "\"PHOTOBOOK\" Name : \"\" Full Qualified Name : \" ()\" Article ID : 0 "
                                      "Shipping Group ID : -1 Product Group : \"\" Product Arrangement : \"\""));
    }
};

VEL_TEST_MAIN(TestProduct)
#include "tst_Product.moc"
