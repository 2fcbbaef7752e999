#include "price/VelTarmPriceView.h"

#include "product/VelProduct.h"
#include "support/VelTestPriceList.h"

namespace {

/// Entry 1 holds by mail alone, 2 is of an unknown model, 4 loses its key to 5, 6 names no order source that there is,
/// and 7 is alone by the kiosk.
const char ARTICLE[] = R"(<article>
    <base_prices><e price='100'/><e price='90' delivery_type='1'/><e type='Q' price='1'/></base_prices>
    <discount_prices><e type='P' level='1' quantity='5' price='400'/><e level='1' quantity='10' price='70'/>
        <e level='1' quantity='10' price='80'/><e type='X' price='3' input_source='9'/>
        <e input_source='4' delivery_type='2' price='120'/><e type='p' level='2' quantity='20' price='50'/>
    </discount_prices></article>)";

QString described(const VelTarmPriceBands& theBands)
{
    QStringList texts;
    for (const VelTarmPriceBand& band : theBands)
        texts.append(joined({band.discountModel(), band.discountLevel(), band.value().lowerLimit(),
                             band.value().upperLimit(), band.price(), band.entry()}));
    return texts.join("; ");
}

} // namespace

class PriceViewTest : public QObject
{
    Q_OBJECT

private slots:
    void showsBandsAndTheirEntries()
    {
        const VelProduct product(parsedElement(ARTICLE));
        const VelTarmPriceView mail(product, VelOrderSource::onlineMailOrder());
        const VelTarmPriceView shop(product, VelOrderSource::onlinePointOfSale());
        const VelTarmPriceView kiosk(product, VelOrderSource::kioskOnSite());
        QCOMPARE(described(mail.bands()), "1 0 0 9 90 1; 1 1 10 -1 80 5; 3 1 5 19 400 3; 3 2 20 -1 50 8");
        QCOMPARE(described(shop.bands(DISCOUNT_MODEL_BULK)), "1 0 0 9 100 0; 1 1 10 -1 80 5");
        QCOMPARE(described(kiosk.bands()), "1 0 0 -1 120 7");
        QVERIFY(VelTarmPriceView(product, {INPUT_SOURCE_ANY, DELIVERY_TYPE_ANY}).bands().isEmpty());

        QCOMPARE(mail.models(),
                 (QList<VelDiscountModel>{DISCOUNT_MODEL_BULK, DISCOUNT_MODEL_PACKAGE, DISCOUNT_MODEL_EXPRESS_FEE}));
        QCOMPARE(kiosk.pricedOrderSources(),
                 (QList<VelOrderSource>{VelOrderSource::onlinePointOfSale(), VelOrderSource::onlineMailOrder(),
                                        VelOrderSource::cdPointOfSale(), VelOrderSource::cdMailOrder(),
                                        VelOrderSource::kioskOnSite()}));
        QVERIFY(mail.hasSameBands(VelTarmPriceView(product, VelOrderSource::cdMailOrder())));
        QVERIFY(!mail.hasSameBands(shop) && !mail.hasSameBands(kiosk));
    }

    void answersAsABillIsCharged()
    {
        const VelProduct product(parsedElement(ARTICLE));
        for (const int count : {-2, 0, 1, 4, 5, 9, 10, 19, 20, 25}) {
            const VelTarmPriceView view(product, VelOrderSource::onlineMailOrder());
            const VelTarmPriceAnswer answer = view.best(count);
            VelTarmBill bill = ::bill(1, "");
            QCOMPARE(answer.myPrice, product.priceFor(priceKey(0, 10), count, 0, &bill, nullptr));
            QCOMPARE(answer.myPrice, view.inModel(answer.myModel, count).myPrice);
            QStringList charges, lines;
            for (const VelTarmPriceCharge& charge : answer)
                charges.append(
                    joined({charge.myModel, charge.myLevel, charge.myBand->price(), charge.myPieces, charge.myUnits}));
            for (const VelTarmBillPositionAbstract* line : bill.orderPositions())
                lines.append(joined({line->discountModel(), line->discountLevel(), line->unitPrice(),
                                     line->countItems(), line->unitCount()}));
            QCOMPARE(charges, lines);
        }
    }

    void answersWithoutAnEntry()
    {
        const VelProduct product(parsedElement("<article/>"));
        const VelTarmPriceView view(product, VelOrderSource::onlineMailOrder());
        QVERIFY(!view.best(1).myHasRule && view.best(1).myPrice == -1);
        const VelTarmPriceAnswer bulk = view.inModel(DISCOUNT_MODEL_BULK, 1);
        QCOMPARE(bulk.myPrice, -1);
        QCOMPARE(bulk.begin()->myBand->entry(), int(VelTarmPriceBand::NO_ENTRY));
    }
};

VEL_TEST_MAIN(PriceViewTest)
#include "tst_PriceView.moc"
