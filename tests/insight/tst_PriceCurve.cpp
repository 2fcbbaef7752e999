#include "frame/VelChildElements.h"
#include "insight/VelPriceCurve.h"
#include "price/VelTarmPriceView.h"
#include "product/VelProductFactory.h"
#include "properties/NastyShop.h"
#include "sibling/VelXMLLoader.h"
#include "support/VelTestPriceList.h"

#include <memory>

namespace {

using Range = VelPriceCurve::Range;

QList<VelOrderSource> allOrderSources()
{
    QList<VelOrderSource> sources;
    for (const VelInputSource input : {INPUT_SOURCE_NET, INPUT_SOURCE_CD, INPUT_SOURCE_KIOSK})
        for (const VelDeliveryType delivery : {DELIVERY_TYPE_POS, DELIVERY_TYPE_MAILORDER, DELIVERY_TYPE_ON_SITE})
            sources.append(VelOrderSource(input, delivery));
    return sources;
}

/// Asks each quantity what the curve says of all.
class Comparison
{
public:
    Comparison(const VelProductAbstract& theProduct, const VelOrderSource& theSource, const Range& theRange)
        : myProduct(theProduct)
        , myView(theProduct, theSource)
        , myRange(theRange)
        , myCurve(theProduct, theSource, theRange)
    {
    }

    QString failure()
    {
        const int end = myCurve.endsEarly() ? myCurve.endsAt() : myRange.myTo;
        for (int quantity = 1; quantity <= end; ++quantity)
            compareTotal(quantity);
        if (myCurve.endsEarly() && allFit(end + 1))
            fail("ends though all fits", end);
        for (int index = 1; index < myCurve.pieces().size(); ++index)
            if (myCurve.pieces().at(index - 1).isContinuedBy(myCurve.pieces().at(index)))
                fail("neighbours can be merged at", myCurve.pieces().at(index).myFrom);
        compareDips(end);
        return myFailure;
    }

private:
    void fail(const char* theWhat, int theQuantity)
    {
        if (myFailure.isEmpty())
            myFailure = QString("article %1, sources %2 %3, level %4: %5 %6")
                            .arg(myProduct.articleID())
                            .arg(myView.orderSource().inputSource())
                            .arg(myView.orderSource().deliveryType())
                            .arg(myRange.myInheritedLevel)
                            .arg(theWhat)
                            .arg(theQuantity);
    }

    VelTarmPriceAnswer answer(int theQuantity) const
    {
        if (myRange.myModel == DISCOUNT_MODEL_EXPRESS_FEE)
            return myView.inModel(DISCOUNT_MODEL_EXPRESS_FEE, theQuantity, 1);
        return myRange.myVariable == VelPriceCurve::BY_SUM ? myView.best(1, theQuantity, myRange.myInheritedLevel)
                                                           : myView.best(theQuantity, 1, myRange.myInheritedLevel);
    }

    int expected(int theQuantity) const
    {
        const VelTarmPriceAnswer answer = this->answer(theQuantity);
        for (const VelTarmPriceCharge& charge : answer)
            if (myRange.myReading == VelPriceCurve::AS_SOLD && (charge.myBand->price() < 0 || charge.myPieces < 1))
                return -1;
        return answer.myPrice;
    }

    void compareTotal(int theQuantity)
    {
        const int expected = this->expected(theQuantity);
        const VelPriceCurvePiece* piece = myCurve.pieceOf(theQuantity);
        if ((piece != nullptr) != (expected != -1) || myCurve.total(theQuantity) != expected)
            fail("total of", theQuantity);
        const VelTarmPriceAnswer answer = this->answer(theQuantity);
        const int level = answer.myChargeCount == 0 ? 0 : answer.myCharges[answer.myChargeCount - 1].myLevel;
        if (piece && (piece->myModel != answer.myModel || piece->myLevel != level))
            fail("model or level of", theQuantity);
        const bool isPlain = myRange.myInheritedLevel == 0 && myRange.myVariable == VelPriceCurve::BY_QUANTITY;
        const VelTarmPriceKey key(myView.orderSource(), -1, myRange.myModel);
        if (isPlain && myRange.myReading == VelPriceCurve::AS_PRICED &&
            expected != myProduct.priceFor(key, theQuantity, 1, nullptr, nullptr))
            fail("price of", theQuantity);
    }

    bool allFit(int theQuantity) const
    {
        for (const VelDiscountModel model : myView.models()) {
            qint64 amount = 0;
            const bool isBySum = myRange.myVariable == VelPriceCurve::BY_SUM;
            for (const VelTarmPriceCharge& charge :
                 myView.inModel(model, isBySum ? 1 : theQuantity, isBySum ? theQuantity : 1, myRange.myInheritedLevel))
                amount += static_cast<qint64>(charge.myBand->price()) * charge.myUnits;
            if (amount != static_cast<int>(amount))
                return false;
        }
        return true;
    }

    /// From the right, with the cheapest larger quantity at hand.
    void compareDips(int theEnd)
    {
        const QVector<VelPriceDip> dips = myCurve.dips();
        int dip = dips.size() - 1;
        int better = 0;
        for (int quantity = theEnd; quantity >= 1; --quantity) {
            if (!myCurve.pieceOf(quantity))
                continue;
            while (dip >= 0 && dips.at(dip).myFrom > quantity)
                --dip;
            const bool isInDip = dip >= 0 && dips.at(dip).myTo >= quantity;
            const bool isDip = better > 0 && myCurve.total(better) < myCurve.total(quantity);
            if (isInDip != isDip || (isDip && dips.at(dip).myBetter != better))
                fail("dip at", quantity);
            if (better == 0 || myCurve.total(quantity) <= myCurve.total(better))
                better = quantity;
        }
        for (int index = 1; index < dips.size(); ++index)
            if (dips.at(index - 1).myBetter == dips.at(index).myBetter &&
                dips.at(index - 1).myTo + 1 == dips.at(index).myFrom)
                fail("dips can be merged at", dips.at(index).myFrom);
        for (const VelPriceDip& each : dips)
            compareSavings(each);
    }

    void compareSavings(const VelPriceDip& theDip)
    {
        qint64 saves = 0;
        for (int quantity = theDip.myFrom; quantity <= theDip.myTo; ++quantity)
            saves = qMax(saves, qint64(myCurve.total(quantity)) - myCurve.total(theDip.myBetter));
        if (qMin<qint64>(saves, 2147483647) != theDip.mySaves)
            fail("savings of", theDip.myFrom);
    }

    const VelProductAbstract& myProduct;
    VelTarmPriceView myView;
    Range myRange;
    VelPriceCurve myCurve;
    QString myFailure;
};

/// Of every article, add-on and fee of a document, by all order sources that differ.
QString failureOf(const QDomElement& theDocument, Range theRange)
{
    for (const QDomElement& section : VelChildElements(theDocument)) {
        for (const QDomElement& element : VelChildElements(section)) {
            const std::unique_ptr<VelProductAbstract> product(VelProductFactory::instance()->build(element));
            if (!product || product->transferModel() == TRANSFER_MODEL_2)
                continue;
            QList<VelTarmPriceView> seen;
            for (const VelOrderSource& source : allOrderSources()) {
                const VelTarmPriceView view(*product, source);
                const auto isSame = [&](const VelTarmPriceView& theSeen) { return theSeen.hasSameBands(view); };
                if (std::any_of(seen.cbegin(), seen.cend(), isSame))
                    continue;
                seen.append(view);
                const QString failure = Comparison(*product, source, theRange).failure();
                if (!failure.isEmpty())
                    return failure;
            }
        }
    }
    return QString();
}

} // namespace

class PriceCurveTest : public QObject
{
    Q_OBJECT

private slots:
    void sampleShops_data()
    {
        QTest::addColumn<QString>("shop");
        QTest::newRow("sample") << "shop";
        QTest::newRow("small") << "shop-small";
    }
    void sampleShops()
    {
        QFETCH(QString, shop);
        const QString file = QString(VELTARM_SOURCE_DIR "/%1/pricelist.xml").arg(shop);
        const QDomElement document = VelXMLLoader::loadDocumentElement(QFileInfo(file));
        Range range;
        range.myTo = 10000;
        QCOMPARE(failureOf(document, range), QString());
        range.myReading = VelPriceCurve::AS_SOLD;
        range.myInheritedLevel = 2;
        QCOMPARE(failureOf(document, range), QString());
    }

    /// VELTARM_SEEDS sets how many shops there are.
    void generatedShops()
    {
        const int count =
            qEnvironmentVariableIsSet("VELTARM_SEEDS") ? qEnvironmentVariableIntValue("VELTARM_SEEDS") : 300;
        for (int seed = 1; seed <= count; ++seed) {
            const QDomElement document = parsedElement(NastyShop(static_cast<unsigned>(seed)).xml());
            Range range;
            range.myTo = seed % 20 == 0 ? 10000 : 500;
            range.myInheritedLevel = seed % 4;
            range.myVariable = seed % 5 == 0 ? VelPriceCurve::BY_SUM : VelPriceCurve::BY_QUANTITY;
            range.myReading = seed % 3 == 0 ? VelPriceCurve::AS_SOLD : VelPriceCurve::AS_PRICED;
            range.myModel = seed % 7 == 0 && seed % 5 != 0 ? DISCOUNT_MODEL_EXPRESS_FEE : DISCOUNT_MODEL_UNDEFINED;
            const QString failure = failureOf(document, range);
            QVERIFY2(failure.isEmpty(), qPrintable(QString("seed %1: %2").arg(seed).arg(failure)));
        }
    }
};

VEL_TEST_MAIN(PriceCurveTest)
#include "tst_PriceCurve.moc"
