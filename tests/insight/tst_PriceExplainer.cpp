#include "insight/VelPriceExplainer.h"
#include "insight/VelPriceWords.h"
#include "support/VelTestPriceList.h"

namespace {

VelTarmPriceKey key(const VelOrderSource& theSource = VelOrderSource::onlineMailOrder())
{
    return VelTarmPriceKey(theSource, -1, DISCOUNT_MODEL_UNDEFINED);
}

/// Lets the registry load a price list that stands in one line.
void load(const TestAccount& theAccount, const QString& theDocument)
{
    VelKeyAccount::instance()->setPricelistXMLFileInfo(theAccount.write("pricelist.xml", theDocument.toUtf8()));
    VelProductRegistry::instance()->loadAllProducts();
}

QString article(const QString& theEntries)
{
    return "<p><articles><article id='1' arrangement='trivial'><base_prices>" + theEntries +
           "</base_prices></article></articles></p>";
}

QString text(const QVector<VelExplainedPlace>& thePlaces, const QString& theAttribute)
{
    QStringList texts;
    for (const VelExplainedPlace& place : thePlaces)
        if (place.myAttribute == theAttribute)
            texts += QString("%1:%2 %3").arg(place.myPlace.myLine).arg(place.myPlace.myColumn).arg(place.myValue);
    return texts.join(", ");
}

} // namespace

class PriceExplainerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        myAccount.write("pricelist.xml", "<p/>");
        myAccount.activateWithDetails("<d/>");
    }

    void tellsWhyAModelWasTaken_data()
    {
        QTest::addColumn<QString>("entries");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("verdicts");
        const QString bulk = "<e price='10'/>";
        const QString packages = "<e type='P' level='1' quantity='5' price='40'/><e type='P' level='2' quantity='9' "
                                 "price='60'/><e type='p' level='3' quantity='11' price='3'/>";
        QTest::newRow("alone") << bulk << 3 << "3 x 10"
                               << "taken: it is the only one with a price";
        QTest::newRow("package")
            << bulk + packages << 6 << "1 x 40"
            << "passed over: package wins at once, whatever the others cost|taken: it wins at once";
        QTest::newRow("below it") << bulk + packages << 4 << "4 x 10"
                                  << "taken: it is the only one with a price|below the first band, which begins with 5";
        QTest::newRow("rest") << packages << 12 << "1 x 60 + 2 x 3"
                              << "taken: it wins at once; a package of level 2 (9 to 10) and the rest by the piece";
        QTest::newRow("dearer") << bulk + "<e type='X' price='12'/>" << 1 << "1 x 10"
                                << "taken: it is the cheapest|dearer by 2";
        QTest::newRow("equal") << bulk + "<e type='X' price='10'/>" << 1 << "1 x 10"
                               << "taken: it is the cheapest|same amount, but a higher model number than bulk";
        QTest::newRow("inherited") << "<e type='I' level='1' price='5'/>" << 2 << ""
                                   << "no entry at level 0 of a main product, or below it";
        QTest::newRow("-1") << "<e quantity='2'/>" << 1 << ""
                            << "entry of price -1 at level 0";
        QTest::newRow("source") << "<e price='5' input_source='1' delivery_type='1'/>" << 1 << ""
                                << "no entry for NET, MAIL, only for CD, MAIL";
        QTest::newRow("nothing")
            << "<e type='F' price='5'/>" << 0 << ""
            << "taken: no piece counts, as add-ons and what has no price don't, so it costs nothing";
    }

    void tellsWhyAModelWasTaken()
    {
        QFETCH(const QString, entries);
        QFETCH(const int, count);
        load(myAccount, article(entries));
        const VelExplainedTerm term = VelPriceExplainer().price(*product(1), key(), count).terms().first();
        QStringList verdicts;
        for (const VelExplainedCandidate& candidate : term.myCandidates)
            verdicts += candidate.myVerdict;
        QTEST(term.myComputed, "amount");
        QTEST(verdicts.join('|'), "verdicts");
        QCOMPARE(term.myAmount, product(1)->priceFor(key(), count, 0, nullptr, nullptr));
    }

    /// Also a level of 0, and where it gives no price.
    void namesTheMainProduct()
    {
        load(myAccount, "<p><articles><article id='1' name='Print' arrangement='trivial'><base_prices><e price='5'/>"
                        "</base_prices></article></articles><add_ons><add_on id='2' product_class='X'><base_prices>"
                        "<e type='I' level='1' price='3'/></base_prices><linked_articles><linked_article id='1'/>"
                        "</linked_articles></add_on></add_ons></p>");
        VelOrderStatistic cart;
        cart.insert(product(1), 1);
        const VelTarmBill bill(-1, cart, VelExpressType(), VelTarmStatus());
        const auto reason = [](const VelTarmBill& theBill) {
            return VelPriceExplainer().price(*product(2), key(), 1, &theBill).terms().first().myReason;
        };
        QVERIFY2(reason(bill).endsWith("or below it; inherits level 0 of 1 Print"), qUtf8Printable(reason(bill)));
        const VelTarmBill none(-1, VelOrderStatistic(), VelExpressType(), VelTarmStatus());
        QVERIFY2(reason(none).endsWith("; no main product on the bill gives it a level"), qUtf8Printable(reason(none)));
    }

    /// The amount is made of the entry that was read last of its key, and of its defaults.
    void namesPlaces()
    {
        load(myAccount, article("\n<e price='1&#48;'/>\n<e price='20'/>\n<e price='7' type='Q'/>"));
        const VelExplainedPlaces places = VelPriceExplainer().price(*product(1), key(), 1).terms().first().myPlaces;
        QCOMPARE(text(places.myDecides, "price"), "3:11 20");
        QCOMPARE(text(places.myDecides, "level"), "3:1 ");
        QVERIFY(places.myDecides.last().isDefault());
        QCOMPARE(text(places.myCompared, "price"), "2:11 10, 4:11 7");
        QCOMPARE(places.myDecides.first().myFile, myAccount.path("pricelist.xml"));
    }

    /// The first element of an id says what kind of product it is, the last one what it costs.
    void citesAllElementsOfAnId()
    {
        load(myAccount, "<p><articles>\n<article id='1' arrangement='trivial'/>\n<article id='1' arrangement='gift'>"
                        "<base_prices><e price='5'/></base_prices></article></articles></p>");
        const VelExplainedPlaces places = VelPriceExplainer().price(*product(1), key(), 1).terms().first().myPlaces;
        QCOMPARE(text(places.myCompared, "arrangement"), "2:30 trivial, 3:30 gift");
    }

    /// A quantity like any other, and none is above it.
    void needsTheHighestQuantity()
    {
        load(myAccount, article("<e level='1' quantity='2147483647' price='5'/>"));
        const VelExplainedTerm term = VelPriceExplainer().price(*product(1), key(), 1).terms().first();
        QVERIFY(!term.myNeeds.isEmpty());
        QCOMPARE(term.myNeeds.first().myFrom, 2147483647);
    }

private:
    const TestAccount myAccount;
};

VEL_TEST_MAIN(PriceExplainerTest)

#include "tst_PriceExplainer.moc"
