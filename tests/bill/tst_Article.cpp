#include "bill/VelTarmArticle.h"
#include "support/VelTestPrices.h"

namespace {

/// The element of an article with these children.
QDomElement article(const QString& theChildren)
{
    return parsedElement("<article>" + theChildren + "</article>");
}

/// Millimetres, pixels, and the print, green and yellow resolution.
QString geometryOf(const VelTarmArticle& theArticle)
{
    const QSize size = theArticle.sizeInMM();
    const QSize pixels = theArticle.sizeInPixels();
    return QString::asprintf("%dx%d %dx%d %d/%d/%d", size.width(), size.height(), pixels.width(), pixels.height(),
                             theArticle.dpi(), theArticle.dpiForGreen(), theArticle.dpiForYellow());
}

} // namespace

class ArticleTest : public QObject
{
    Q_OBJECT

private slots:
    void geometry()
    {
        QCOMPARE(geometryOf(VelTarmArticle(nullptr, article(""))), "0x0 0x0 300/150/90");
        const QDomElement print = article("<size width='100' height='150'/>"); // rounded down and up
        QCOMPARE(geometryOf(VelTarmArticle(nullptr, print)), "100x150 1181x1772 300/150/90");
        const QDomElement huge = article("<size width='2147483647' height='-2147483648' dpi='2147483647'/>");
        QCOMPARE(VelTarmArticle(nullptr, huge).sizeInPixels(), QSize(-2147483647 - 1, -2147483647 - 1));
    }

    void quality()
    {
        const VelTarmArticle plain(nullptr, article(""));
        const QList<double> resolutions = {0.0, -6.0, qQNaN(), 150 / 25.4, 5.90, 90 / 25.4, 3.54};
        const QList<int> scale = {-1, -1, 0, 2, 1, 1, 0}; // the bounds belong to the better colour
        for (int i = 0; i < scale.size(); ++i)
            QCOMPARE(plain.qualityOnScaleForPPMM(resolutions.at(i)), scale.at(i));
        const VelTarmArticle inverted(nullptr, article("<size dpi_green='80' dpi_yellow='100'/>"));
        QCOMPARE(inverted.qualityOnScaleForPPMM(3.2), 2); // green goes first
    }

    void updatesInPlace()
    {
        VelTarmArticle tested(nullptr, parsedElement(R"(<article id='-7' name='n' editor_name='e'>
            <size width='254' height='127' dpi='20' dpi_green='10' dpi_yellow='5'/>
            <shipping_times><shipping_time delivery_type='1' express='0'/></shipping_times></article>)"));
        QCOMPARE(tested.name() + tested.editorName(), "ne");
        QVERIFY(tested.articleID() == -7 && tested.shippingTimesEnabled());

        // What the element doesn't say stays for the name and the size, and goes for all else.
        tested.update(article(""));
        QCOMPARE(tested.name() + tested.editorName(), "n");
        QCOMPARE(geometryOf(tested), "254x127 200x100 20/10/5");
        QVERIFY(tested.articleID() == 0 && !tested.shippingTimesEnabled());

        // A present empty name is a name; a later size takes all its defaults afresh.
        tested.update(parsedElement("<article name=''><size width='5'/></article>"));
        QVERIFY(tested.name().isEmpty());
        QCOMPARE(geometryOf(tested), "5x0 59x0 300/150/90");
    }

    void pointOfSale()
    {
        const auto canOrder = [](const char* thePrice, const char* theSource) {
            return VelTarmArticle(nullptr, priced(thePrice, "article", theSource)).canOrderPOS();
        };
        QVERIFY(canOrder("0=0", ""));
        QVERIFY(!canOrder("0=-5", ""));
        QVERIFY(canOrder("0=5", "input_source='1' delivery_type='0'"));  // by CD only
        QVERIFY(canOrder("0=5", "input_source='0' delivery_type='0'"));  // online only
        QVERIFY(!canOrder("0=5", "input_source='4' delivery_type='0'")); // kiosk only
    }

    void packagesOnly()
    {
        const VelTarmArticle tested(nullptr, priced("P1@1=7 p2@5=90"));
        QCOMPARE(tested.discountLevel(priceKey(0, DISCOUNT_MODEL_PACKAGE), 10, 0), 2);
        QCOMPARE(tested.discountLevel(priceKey(0, DISCOUNT_MODEL_PACKAGE), 10, -2),
                 1); // any number but 0 asks for them
    }

    void orderTxtValue()
    {
        const VelTarmArticle tested(nullptr, article("<order_txt_lines><l>TYPEX=1</l><l>TYPE=ALB8</l><l>type=CAL6</l>"
                                                     "<l>SCALE=</l><l>SCALE=A</l><l> BORDER=1</l><any>KEY= a=b </any>"
                                                     "<l/><l>=nameless</l></order_txt_lines>"));
        for (const char* key : {"TYPE=", "tYpE", "TYPE="}) // the last one from the cache
            QCOMPARE(tested.orderTxtValue(key), "ALB8");
        QCOMPARE(tested.orderTxtValue("TYP"), "");
        QCOMPARE(tested.orderTxtValue("SCALE="), ""); // an empty value hides a later one
        QCOMPARE(tested.orderTxtValue("BORDER"), ""); // neither lines nor values are trimmed
        QCOMPARE(tested.orderTxtValue("KEY"), " a=b ");
        QCOMPARE(tested.orderTxtValue(""), "nameless");
    }

    void orderTxt()
    {
        VelTarmArticle tested(nullptr, parsedElement("<article name='Bild' editor_name='Picture'/>"));
        tested.update(article("<order_txt_lines head='[H]'>text<l>TYPE=ALB8</l><l/><l> B </l></order_txt_lines>"));
        QCOMPARE(tested.orderTxtValue("TYPE"), "ALB8");
        tested.update(article("")); // says nothing of the lines
        QCOMPARE(tested.orderTxtLines(), "TYPE=ALB8\n\n B ");
        QCOMPARE(tested.toOrderTxt().join('|'), "[H]|TYPE=ALB8|| B |DESCRIPTION=Bild");
        tested.update(article("<order_txt_lines/>"));
        QCOMPARE(tested.toOrderTxt().join('|'), "|DESCRIPTION=Bild");
        QVERIFY(tested.orderTxtValue("TYPE").isEmpty()); // no value survives in the cache
    }
};

VEL_TEST_MAIN(ArticleTest)
#include "tst_Article.moc"
