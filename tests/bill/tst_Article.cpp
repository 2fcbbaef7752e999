#include "bill/VelTarmArticle.h"
#include "support/VelTestMain.h"

namespace {

QDomElement xml(const char* thePattern, const QString& theContent = QString())
{
    return parsedElement(QString::fromUtf8(thePattern).replace("%1", theContent));
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

class TestArticle : public QObject
{
    Q_OBJECT

private slots:
    void geometry_data()
    {
        readTable(R"(
            row                       | size                                        | expected
            none                      |                                             | 0x0 0x0 300/150/90
            rounded down and up       | <size width='100' height='150'/>            | 100x150 1181x1772 300/150/90
            all said                  | <size width='1' height='2' dpi='254' dpi_green='20' dpi_yellow='30'/> | 1x2 10x20 254/20/30
            first of two              | <size width='254' dpi='1'/><size width='9'/> | 254x0 10x0 1/150/90
            negative                  | <size width='-100' height='100'/>           | -100x100 -1181x1181 300/150/90
            just fits                 | <size width='1' height='25' dpi='2147483647'/> | 1x25 84546600x2113665007 2147483647/150/90
            no int holds the pixels   | <size width='2147483647' height='-2147483648' dpi='2147483647'/> | 2147483647x-2147483648 -2147483648x-2147483648 2147483647/150/90
        )");
    }

    void geometry()
    {
        QCOMPARE(geometryOf(VelTarmArticle(nullptr, xml("<article>%1</article>", cell("size")))), cell("expected"));
    }

    void quality()
    {
        const VelTarmArticle plain(nullptr, xml("<article/>"));
        const QList<double> resolutions = {0.0, -6.0, qQNaN(), 150 / 25.4, 5.90, 90 / 25.4, 3.54};
        const QList<int> scale = {-1, -1, 0, 2, 1, 1, 0}; // the bounds belong to the better colour
        for (int i = 0; i < scale.size(); ++i)
            QCOMPARE(plain.qualityOnScaleForPPMM(resolutions.at(i)), scale.at(i));
        const VelTarmArticle inverted(nullptr, xml("<article><size dpi_green='80' dpi_yellow='100'/></article>"));
        QCOMPARE(inverted.qualityOnScaleForPPMM(3.2), 2); // green goes first
        QCOMPARE(inverted.qualityOnScaleForPPMM(3.1), 0); // never yellow
    }

    void updatesInPlace()
    {
        VelTarmArticle tested(nullptr, xml(R"(<article id='-7' name='n' editor_name='e'>
            <size width='254' height='127' dpi='20' dpi_green='10' dpi_yellow='5'/>
            <shipping_times><shipping_time delivery_type='1' express='0'/></shipping_times>
            <base_prices><price price='5'/></base_prices></article>)"));
        QCOMPARE(tested.name() + tested.editorName(), "ne");
        QCOMPARE(tested.articleID(), -7);
        QVERIFY(tested.shippingTimesEnabled() && tested.canOrderPOS());

        // What the element doesn't say stays for the name and the size, and goes for all else.
        tested.update(xml("<article/>"));
        QCOMPARE(tested.name() + tested.editorName(), "n");
        QCOMPARE(tested.articleID(), 0);
        QCOMPARE(geometryOf(tested), "254x127 200x100 20/10/5");
        QVERIFY(!tested.shippingTimesEnabled() && !tested.canOrderPOS());

        // A present empty name is a name; a later size takes all its defaults afresh.
        tested.update(xml("<article id='x' name=''><size width='5'/></article>"));
        QVERIFY(tested.name().isEmpty());
        QCOMPARE(geometryOf(tested), "5x0 59x0 300/150/90");
    }

    void pointOfSale_data()
    {
        readTable(R"(
            row              | prices                                                       | expected
            none             |                                                              | no
            everywhere, free | <p price='0'/>                                               | yes
            by CD only       | <p price='5' input_source='1' delivery_type='0'/>            | yes
            online only      | <p price='5' input_source='0' delivery_type='0'/>            | yes
            kiosk only       | <p price='5' input_source='4' delivery_type='0'/>            | no
            below 0          | <p price='-5'/>                                              | no
            below 0 by CD    | <p price='-5' input_source='1'/><p price='5' input_source='0'/> | yes
            from 2 pieces    | <p type='P' level='1' quantity='2' price='5'/>               | no
        )");
    }

    void pointOfSale()
    {
        const QDomElement element = xml("<article><base_prices>%1</base_prices></article>", cell("prices"));
        QCOMPARE(VelTarmArticle(nullptr, element).canOrderPOS(), answer("expected"));
    }

    void orderTxtValue_data()
    {
        // Neither line nor key nor value is trimmed; blanks are written as "_".
        readTable(R"(
            row                            | key      | value
            first line wins                | TYPE=    | ALB8
            sign left out, any case        | tYpE     | ALB8
            part of a key                  | TYP      |
            empty value hides a later one  | SCALE=   |
            line not trimmed               | BORDER   |
            blanks belong to the key       | __BORDER | 1
            value not trimmed              | KEY      | _a=b_
            sign inside the key            | KEY=_A   | b_
            nested markup, any tag         | DEEP     | xyz
            empty key                      |          | nameless
        )");
    }

    void orderTxtValue()
    {
        const VelTarmArticle tested(nullptr, xml(R"(<article><order_txt_lines><l>TYPE=ALB8</l><l>type=CAL6</l>
            <l>TYPEX=1</l><l>SCALE=</l><l>SCALE=A</l><l>  BORDER=1</l><l>KEY= a=b </l><any>DEEP=x<b>y</b>z</any><l/>
            <l>=nameless</l></order_txt_lines></article>)"));
        const QString key = cell("key").replace('_', ' ');
        QCOMPARE(tested.orderTxtValue(key).replace(' ', '_'), cell("value"));
        QCOMPARE(tested.orderTxtValue(key).replace(' ', '_'), cell("value")); // and again from the cache
    }

    void orderTxt()
    {
        const auto joined = [](const VelTarmArticle& theArticle) { return theArticle.toOrderTxt().join('|'); };
        QCOMPARE(joined(VelTarmArticle(nullptr, xml("<article name='Bild' editor_name='Picture'/>"))),
                 "|DESCRIPTION=Bild");

        VelTarmArticle tested(nullptr, xml("<article name='Bild'><order_txt_lines head='[H]'>text<l>TYPE=ALB8</l>"
                                           "<!-- none --><l/><l> B </l></order_txt_lines></article>"));
        QCOMPARE(tested.orderTxtValue("TYPE"), "ALB8");
        tested.update(xml("<article/>")); // says nothing of the lines
        QCOMPARE(tested.orderTxtLines(), "TYPE=ALB8\n\n B ");
        QCOMPARE(joined(tested), "[H]|TYPE=ALB8|| B |DESCRIPTION=Bild");
        tested.update(xml("<article><order_txt_lines/><order_txt_lines head='second'/></article>"));
        QCOMPARE(joined(tested), "|DESCRIPTION=Bild");
        QVERIFY(tested.orderTxtValue("TYPE").isEmpty()); // no value survives in the cache
    }

    void handsOn()
    {
        const VelTarmPriceKey key(VelOrderSource::onlineMailOrder(), 0, DISCOUNT_MODEL_PACKAGE);
        const VelTarmArticle package(nullptr, xml("<article><base_prices><p type='P' level='1' quantity='1' price='7'/>"
                                                  "<p type='p' level='2' quantity='5' price='90'/>"
                                                  "</base_prices></article>"));
        QCOMPARE(package.discountLevel(key, 10, 0), 2);
        QCOMPARE(package.discountLevel(key, 10, -2), 1); // packages only, whatever the number

        // The count and the billing sum must not be taken for each other on the way.
        const VelTarmArticle shipping(nullptr, xml("<article><base_prices><p type='F' price='495'/>"
                                                   "<p type='Z' level='1' quantity='5000' price='0'/>"
                                                   "</base_prices></article>"));
        QCOMPARE(shipping.priceFor(key, 1, 5000, nullptr, nullptr), 0);
        QCOMPARE(shipping.transferPriceFor(key, 5000, 1, nullptr), 495);
        QCOMPARE(shipping.transferPriceFor(key, 1, 5000, nullptr), 0);
    }
};

VEL_TEST_MAIN(TestArticle)
#include "tst_Article.moc"
