#include "bill/VelTarmArticle.h"
#include "support/VelTestMain.h"

namespace {

QDomElement xml(const char* thePattern, const QString& theContent = QString())
{
    return parsedElement(QString::fromUtf8(thePattern).replace(QStringLiteral("%1"), theContent));
}

/// Millimetres, pixels, and the print, green and yellow resolution.
QString geometryOf(const VelTarmArticle& theArticle)
{
    const QSize size = theArticle.sizeInMM();
    const QSize pixels = theArticle.sizeInPixels();
    return QString::asprintf("%dx%d %dx%d %d/%d/%d", size.width(), size.height(), pixels.width(), pixels.height(),
                             theArticle.dpi(), theArticle.dpiForGreen(), theArticle.dpiForYellow());
}

/// A row of the table of the test that is being set up.
template <typename... Cell>
void row(const char* theName, const Cell&... theCells)
{
    (QTest::newRow(theName) << ... << theCells);
}

} // namespace

class TestArticle : public QObject
{
    Q_OBJECT

private slots:
    void geometry_data()
    {
        QTest::addColumn<QString>("size");
        QTest::addColumn<QString>("expected");
        row("none", "", "0x0 0x0 300/150/90");
        row("rounded down and up", "<size width='100' height='150'/>", "100x150 1181x1772 300/150/90");
        row("all said", "<size width='1' height='2' dpi='254' dpi_green='20' dpi_yellow='30'/>", "1x2 10x20 254/20/30");
        row("first of two", "<size width='254' dpi='1'/><size width='9'/>", "254x0 10x0 1/150/90");
        row("malformed", "<size width='10,5' height='1e2' dpi='x' dpi_green='' dpi_yellow='9.0'/>",
            "0x0 0x0 300/150/90");
        row("negative", "<size width='-100' height='100'/>", "-100x100 -1181x1181 300/150/90");
        row("just fits", "<size width='1' height='25' dpi='2147483647'/>",
            "1x25 84546600x2113665007 2147483647/150/90");
        row("no int holds the pixels", "<size width='2147483647' height='-2147483648' dpi='2147483647'/>",
            "2147483647x-2147483648 -2147483648x-2147483648 2147483647/150/90");
    }

    void geometry()
    {
        QFETCH(QString, size);
        QTEST(geometryOf(VelTarmArticle(nullptr, xml("<article>%1</article>", size))), "expected");
    }

    void quality_data()
    {
        QTest::addColumn<QString>("size");
        QTest::addColumn<double>("ppmm");
        QTest::addColumn<int>("expected");
        const QString inverted = QStringLiteral("<size dpi_green='80' dpi_yellow='100'/>");
        row("zero", "", 0.0, -1);
        row("negative", "", -6.0, -1);
        row("NaN", "", qQNaN(), 0);
        row("green bound", "", 150 / 25.4, 2);
        row("below green", "", 5.90, 1);
        row("yellow bound", "", 90 / 25.4, 1);
        row("below yellow", "", 3.54, 0);
        row("inverted: green goes first", inverted, 3.2, 2);
        row("inverted: never yellow", inverted, 3.1, 0);
    }

    void quality()
    {
        QFETCH(QString, size);
        QFETCH(double, ppmm);
        QTEST(VelTarmArticle(nullptr, xml("<article>%1</article>", size)).qualityOnScaleForPPMM(ppmm), "expected");
    }

    void updatesInPlace()
    {
        VelTarmArticle tested(nullptr, xml("<article id='-7' name='n' editor_name='e'>"
                                           "<size width='254' height='127' dpi='20' dpi_green='10' dpi_yellow='5'/>"
                                           "<shipping_times><shipping_time delivery_type='1' express='0'/>"
                                           "</shipping_times><base_prices><price price='5'/></base_prices></article>"));
        QCOMPARE(tested.name() + tested.editorName(), QStringLiteral("ne"));
        QCOMPARE(tested.articleID(), -7);
        QVERIFY(tested.shippingTimesEnabled() && tested.canOrderPOS());

        // What the element doesn't say stays for the name and the size, and goes for all else.
        tested.update(xml("<article/>"));
        QCOMPARE(tested.name(), QStringLiteral("n"));
        QVERIFY(tested.editorName().isEmpty());
        QCOMPARE(tested.articleID(), 0);
        QCOMPARE(geometryOf(tested), QStringLiteral("254x127 200x100 20/10/5"));
        QVERIFY(!tested.shippingTimesEnabled() && !tested.canOrderPOS());

        // A present empty name is a name; a later size takes all its defaults afresh.
        tested.update(xml("<article id='x' name=''><size width='5'/></article>"));
        QVERIFY(tested.name().isEmpty());
        QCOMPARE(geometryOf(tested), QStringLiteral("5x0 59x0 300/150/90"));
    }

    void pointOfSale_data()
    {
        QTest::addColumn<QString>("prices");
        QTest::addColumn<bool>("expected");
        row("none", "", false);
        row("everywhere, free", "<p price='0'/>", true);
        row("by CD only", "<p price='5' input_source='1' delivery_type='0'/>", true);
        row("online only", "<p price='5' input_source='0' delivery_type='0'/>", true);
        row("kiosk only", "<p price='5' input_source='4' delivery_type='0'/>", false);
        row("below 0", "<p price='-5'/>", false);
        row("below 0 by CD alone", "<p price='-5' input_source='1'/><p price='5' input_source='0'/>", true);
        row("from 2 pieces", "<p type='P' level='1' quantity='2' price='5'/>", false);
    }

    void pointOfSale()
    {
        QFETCH(QString, prices);
        const QDomElement element = xml("<article><base_prices>%1</base_prices></article>", prices);
        QTEST(VelTarmArticle(nullptr, element).canOrderPOS(), "expected");
    }

    void orderTxtValue_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        row("first line wins", "TYPE=", "ALB8");
        row("sign left out, any case", "tYpE", "ALB8");
        row("part of a key", "TYP", "");
        row("empty value hides a later one", "SCALE=", "");
        row("line not trimmed", "BORDER", "");
        row("blanks belong to the key", "  BORDER", "1");
        row("value not trimmed", "KEY", " a=b ");
        row("sign inside the key", "KEY= A", "b ");
        row("nested markup, any tag", "DEEP", "xyz");
        row("empty key", "", "nameless");
    }

    void orderTxtValue()
    {
        QFETCH(QString, key);
        const VelTarmArticle tested(
            nullptr, xml("<article><order_txt_lines><l>TYPE=ALB8</l><l>type=CAL6</l><l>TYPEX=1</l><l>SCALE=</l>"
                         "<l>SCALE=A</l><l>  BORDER=1</l><l>KEY= a=b </l><any>DEEP=x<b>y</b>z</any><l/>"
                         "<l>=nameless</l></order_txt_lines></article>"));
        QTEST(tested.orderTxtValue(key), "expected");
        QTEST(tested.orderTxtValue(key), "expected"); // and again from the cache
    }

    void orderTxt()
    {
        const auto joined = [](const VelTarmArticle& theArticle) {
            return theArticle.toOrderTxt().join(QLatin1Char('|'));
        };
        QCOMPARE(joined(VelTarmArticle(nullptr, xml("<article name='Bild' editor_name='Picture'/>"))),
                 QStringLiteral("|DESCRIPTION=Bild"));

        VelTarmArticle tested(nullptr, xml("<article name='Bild'><order_txt_lines head='[H]'>text<l>TYPE=ALB8</l>"
                                           "<!-- none --><l/><l> B </l></order_txt_lines></article>"));
        QCOMPARE(tested.orderTxtValue(QStringLiteral("TYPE")), QStringLiteral("ALB8"));
        tested.update(xml("<article/>")); // says nothing of the lines
        QCOMPARE(tested.orderTxtLines(), QStringLiteral("TYPE=ALB8\n\n B "));
        QCOMPARE(joined(tested), QStringLiteral("[H]|TYPE=ALB8|| B |DESCRIPTION=Bild"));
        tested.update(xml("<article><order_txt_lines/><order_txt_lines head='second'/></article>"));
        QCOMPARE(joined(tested), QStringLiteral("|DESCRIPTION=Bild"));
        QVERIFY(tested.orderTxtValue(QStringLiteral("TYPE")).isEmpty()); // no value survives in the cache
    }

    void handsOn()
    {
        const VelTarmPriceKey key(VelOrderSource::onlineMailOrder(), 0, DISCOUNT_MODEL_PACKAGE);
        const VelTarmArticle package(nullptr, xml("<article><base_prices>"
                                                  "<p type='P' level='1' quantity='1' price='700'/>"
                                                  "<p type='p' level='2' quantity='5' price='90'/>"
                                                  "</base_prices></article>"));
        QCOMPARE(package.discountLevel(key, 10, 0), 2);
        QCOMPARE(package.discountLevel(key, 10, 1), 1); // packages only, whatever the number
        QCOMPARE(package.discountLevel(key, 10, -2), 1);

        // The count and the billing sum must not be taken for each other on the way.
        const VelTarmArticle shipping(nullptr, xml("<article><base_prices><p type='F' price='495'/>"
                                                   "<p type='Z' level='1' quantity='5000' price='0'/>"
                                                   "</base_prices></article>"));
        QCOMPARE(shipping.priceFor(key, 5000, 1, nullptr, nullptr), 495);
        QCOMPARE(shipping.priceFor(key, 1, 5000, nullptr, nullptr), 0);
        QCOMPARE(shipping.transferPriceFor(key, 5000, 1, nullptr), 495);
        QCOMPARE(shipping.transferPriceFor(key, 1, 5000, nullptr), 0);
    }
};

VEL_TEST_MAIN(TestArticle)
#include "tst_Article.moc"
