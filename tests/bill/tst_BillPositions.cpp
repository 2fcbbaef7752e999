#include "bill/VelTarmBillPosition.h"
#include "bill/VelTarmBillPositionInvalid.h"
#include "product/VelProduct.h"
#include "support/VelTestMain.h"

namespace {

/// A product with an editor name, which positions show, and another name, which they don't.
std::unique_ptr<VelProduct> productNamed(const char* theEditorName)
{
    return std::make_unique<VelProduct>(parsedElement(
        QStringLiteral("<article name='Poster 5' editor_name='%1'/>").arg(QString::fromUtf8(theEditorName))));
}

} // namespace

class BillPositionsTest : public QObject
{
    Q_OBJECT

private slots:
    void fieldsAndClone()
    {
        const auto product = productNamed("Poster");
        const auto other = productNamed("Karte");
        QObject parent;
        auto* position = new VelTarmBillPosition(1, product.get(), DISCOUNT_MODEL_PACKAGE, 4, 5, 6, 7, 8);
        position->setParent(&parent);
        const std::unique_ptr<VelTarmBillPositionAbstract> clone(position->clone());
        position->setProduct(other.get());
        QCOMPARE(position->productName(), "Karte");

        const auto* copy = qobject_cast<VelTarmBillPosition*>(clone.get());
        QVERIFY(copy && !copy->parent());
        QCOMPARE(copy->product(), product.get());
        QCOMPARE(copy->productName(), "Poster");
        const QList<int> fields = {copy->countItems(),   copy->discountModel(), copy->discountLevel(),
                                   copy->unitPrice(),    copy->unitCount(),     copy->discountItemsPerUnit(),
                                   copy->nonOfferPrice()};
        QCOMPARE(fields, (QList<int>{1, 3, 4, 5, 6, 7, 8}));
    }

    void invalidPosition()
    {
        const auto product = productNamed("Poster");
        const std::unique_ptr<VelTarmBillPositionAbstract> position(VelTarmBillPositionInvalid(product.get()).clone());
        QVERIFY(qobject_cast<VelTarmBillPositionInvalid*>(position.get()));
        QCOMPARE(position->product(), product.get());
        QCOMPARE(position->discountModel(), DISCOUNT_MODEL_UNDEFINED);
        QVERIFY(!position->isPackage());
        for (const int zero : {position->unitPrice(), position->unitCount(), position->countItems(),
                               position->discountLevel(), position->positionPrice(), position->nonOfferPrice()})
            QCOMPARE(zero, 0);
    }

    void priceAndPackage()
    {
        const auto position = [](int theUnitPrice, int theUnitCount, int theItemsPerUnit) {
            return VelTarmBillPosition(50, nullptr, DISCOUNT_MODEL_BULK, 0, theUnitPrice, theUnitCount, theItemsPerUnit,
                                       -1);
        };
        QCOMPARE(position(15, 4, 1).positionPrice(), 60);
        QCOMPARE(position(1000, 1, 50).positionPrice(), 1000); // of a package, whatever its items
        QCOMPARE(position(1073741824, 2, 1).positionPrice(), std::numeric_limits<int>::min());
        QVERIFY(position(15, 1, 2).isPackage() && !position(15, 1, 1).isPackage());
        QVERIFY(!position(15, 1, -1).isPackage()); // a package without an end
    }

    void order()
    {
        const auto poster9 = productNamed("Poster 9");
        const auto poster10 = productNamed("Poster 10");
        VelTarmBillPosition one(1, poster9.get(), DISCOUNT_MODEL_BULK, 0, 1, 1, 1, -1);
        VelTarmBillPositionInvalid other(poster10.get());
        QVERIFY(VelTarmBillPositionAbstract::lessThan(&one, &other)); // numbers by value
        QVERIFY(!VelTarmBillPositionAbstract::lessThan(&one, &one));
    }

    void dumps()
    {
        const auto product = productNamed("Poster %3");
        QTest::ignoreMessage(QtDebugMsg, "# 20 * Poster %3; Modell: 3; Package: ( 900 cent f\xC3\xBCr 7 ) * 6 Stk.; "
                                         "Discountlevel: 2; NonOfferPrice: -1");
        VelTarmBillPosition(20, product.get(), DISCOUNT_MODEL_PACKAGE, 2, 900, 6, 7, -1).dump();
        QTest::ignoreMessage(QtWarningMsg, "# Poster %3, Nicht bestellbar");
        VelTarmBillPositionInvalid(product.get()).dump();
    }
};

VEL_TEST_MAIN(BillPositionsTest)
#include "tst_BillPositions.moc"
