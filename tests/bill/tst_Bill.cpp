#include "bill/VelTarmBillPositionInvalid.h"
#include "support/VelTestPriceList.h"

namespace {

/// What a description of so many pieces writes.
QString described(VelTarmBill& theBill, const VelProductAbstract* theProduct, int theCount, bool theWithType = true)
{
    QDomElement element = parsedElement("<any price='old'/>");
    theBill.describeDiscount(element, theProduct, theCount, theWithType);
    QStringList values;
    for (const char* name : {"discount_type", "discount_level", "price", "transfer_base_price", "transfer_unit_price"})
        if (element.hasAttribute(name))
            values.append(QString("%1=%2").arg(name, element.attribute(name)));
    return values.join(' ');
}

/// A kind of position that a host has made up: a flat amount for three pieces.
class FlatPosition : public VelTarmBillPositionInvalid
{
public:
    using VelTarmBillPositionInvalid::VelTarmBillPositionInvalid;
    VelTarmBillPositionAbstract* clone() const override { return new FlatPosition(*this); }
    int countItems() const override { return 3; }
    int positionPrice() const override { return 777; }
    bool isPackage() const override { return true; }
};

} // namespace

/// Group 1 has transfer by quantity and an express fee, 3 transfer model 2, 4 no transfer, 5 one without a price.
class BillTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadPriceList(myAccount, R"(
            article id='1' arrangement='trivial' editor_name='Poster 10 %3' | prices 0=100 1@5=80 | with transfer_base_price='300' transfer_unit_price='50'
            article id='2' arrangement='gift' editor_name='Tasse' | prices 0=1000 | with transfer_base_price='500' transfer_unit_price='100' | text [CUP] TYPE=ALB8
            article id='3' arrangement='trivial' editor_name='Poster 9 %1' | prices 0=100 P1@3=200 P2@11=900 p3@21=40
            article id='4' arrangement='trivial' | prices 0=100 L1@2=1000 l2@6=90
            article id='5' arrangement='trivial'
            add_on id='11' product_class='A' | prices I0=30 I1=20 I2=10 | text [A] | links 99 1 5 3
            transfer id='501' group='1' | prices 0=300 1@10=200
            transfer id='503' group='3' model='2' | prices 0=7
            transfer id='505' group='5'
            paymethod_fee id='600' pay_method_id='3' | prices 0=50
            express_fee id='701' group='1' express='1' | prices 0=200 1@3=400
        )");
    }

    void carts()
    {
        const VelTarmPriceKey key = priceKey(3, DISCOUNT_MODEL_PACKAGE);
        VelOrderStatistic cart;
        QVERIFY(cart.value(product(3), 7) == 7 && cart.isEmpty()); // asking enters nothing
        cart.insert(product(3), 1);
        cart.insert(product(3), 2);
        cart.add(product(3), 9);
        cart.add(cart, 1);
        QCOMPARE(cart.totalPrice(key), 2200); // each at the price of one piece
        QVERIFY(!cart.productWithHighestBaseTransferPrice(key));
        cart.add(product(1), 0); // entered, though with no pieces
        QCOMPARE(cart.productWithHighestBaseTransferPrice(key), product(1));
        cart.insert(product(5), 3);
        QCOMPARE(cart.totalPrice(key), 2197); // a missing price takes off
        QCOMPARE(cart.items(), (QMap<VelProductAbstract*, int>{{product(1), 0}, {product(3), 22}, {product(5), 3}}));
    }

    void filters()
    {
        VelTarmBill bill = ::bill(1, "3x3 1x1");
        bill.filterArticles({1, 501, 600});
        QCOMPARE(bill.totalFinalCost(0), 150);
        QCOMPARE(bill.priceOfTransfer(), 300); // free no more, but the stored fee was
    }

    void sortingAndDump()
    {
        VelTarmBillPositionList positions;
        positions.append(new VelTarmBillPositionInvalid(product(1)));
        positions.append(new VelTarmBillPosition(20, product(3), DISCOUNT_MODEL_PACKAGE, 2, 900, 6, 7, -1));
        VelTarmBill bill = ::bill(4, "");
        bill.addOrderPositions(positions);
        QCOMPARE(articlesOf(bill.sortedBillPositions()), "3 1"); // by editor name, numbers by value
        QTest::ignoreMessage(QtWarningMsg, "# Poster 10 %3, Nicht bestellbar");
        QTest::ignoreMessage(QtDebugMsg, "# 20 * Poster 9 %1; Modell: 3; Package: ( 900 cent f\xC3\xBCr 7 ) * 6 Stk.; "
                                         "Discountlevel: 2; NonOfferPrice: -1");
        bill.dump();
    }

    /// From the moment that positions are handed out they count.
    void changedPositions()
    {
        const VelTarmBill bill = ::bill(1, "1x5 3x25 5x1");
        QCOMPARE(bill.billPosition(product(3))->discountItemsPerUnit(), 20); // the first one
        QVERIFY(!bill.billPosition(product(5)));                             // invalid
        bill.billPosition(product(1))->setProduct(product(2));
        QCOMPARE(bill.totalItemCost(PRODUCT_GROUP_GIFT), 400);
        QCOMPARE(bill.totalItemCount(PRODUCT_GROUP_GIFT), 5);
    }

    void positionsOfTheHost()
    {
        VelTarmBill origin = ::bill(4, "1x1");
        VelTarmBillPositionList positions;
        positions.append(new FlatPosition(product(1)));
        origin.addOrderPositions(positions);
        VelTarmBill copy(origin);
        QCOMPARE(copy.totalItemCost(PRODUCT_GROUP_ALL), 100 + 777);
        QCOMPARE(copy.totalItemCount(PRODUCT_GROUP_ALL), 1 + 3);
        QVERIFY(!copy.isValid());
        const std::unique_ptr<VelTarmBillPositionAbstract> package(copy.orderPositions().last());
        copy.filterOutPackages();
        QCOMPARE(copy.totalItemCost(PRODUCT_GROUP_ALL), 100);
    }

    /// A bill releases its positions, and those that it took over, but none that were filtered out.
    void ownership()
    {
        auto origin = std::make_unique<VelTarmBill>(bill(1, "1x5 3x25 5x1"));
        VelTarmBillPositionList more;
        more.append(new VelTarmBillPosition(2, product(2), DISCOUNT_MODEL_BULK, 1, 50, 3, 1, -1));
        origin->addOrderPositions(more);
        QCOMPARE(articlesOf(origin->orderPositions()), "1 3 3 5 2");
        QCOMPARE(origin->totalFinalCostWithoutCoupon(), 400 + 900 + 200 + 150);
        VelTarmBill copy(*origin);
        const QPointer<VelTarmBillPositionAbstract> released = more.first();
        origin.reset();
        QVERIFY(!released);
        QCOMPARE(articlesOf(copy.orderPositions()), "1 3 3 5 2");
        QCOMPARE(copy.totalFinalCostWithoutCoupon(), 400 + 900 + 200 + 150);
        const QPointer<VelTarmBillPositionAbstract> package = copy.orderPositions().at(1);
        copy.filterOutPackages();
        QVERIFY(package && package->unitPrice() == 900);
        QCOMPARE(articlesOf(copy.orderPositions()), "1 3 5 2");
    }

    /// The sums are those of the bill that is asked, the positions go to the bill that is named.
    void positionsOfFees()
    {
        const VelTarmBill asked = bill(1, "2x2 1x9", ExpressableType_EXPRESS_1);
        VelTarmBill named = bill(4, "1x1");
        QCOMPARE(asked.priceOfTransfer(&named), 200);
        QCOMPARE(asked.priceOfExpressAgio(&named), 200); // posters aren't counted
        QCOMPARE(articlesOf(named.orderPositions()), "1 501 701");
    }

    /// A package has its price once, whatever the count; the rest goes by the piece.
    void describedPackage()
    {
        VelTarmBill bill = ::bill(1, "4x8");
        bill.initDiscountInfoForXTCI();
        QCOMPARE(described(bill, product(4), 5), "discount_type=L discount_level=1 price=1000");
        QCOMPARE(described(bill, product(4), 2), "discount_type=l discount_level=2 price=180");
    }

    /// In transfer model 2 one piece carries the base charge, and all others their unit charges.
    void describedTransfer()
    {
        for (const bool isOneByOne : {true, false}) {
            VelTarmBill bill = ::bill(3, "1x3 2x2");
            bill.initDiscountInfoForXTCI();
            const QString text = described(bill, product(2), isOneByOne ? 1 : 2).section(" price=", 1);
            QCOMPARE(text, isOneByOne ? "1000 transfer_base_price=500"
                                      : "2000 transfer_base_price=500 transfer_unit_price=100");
            QCOMPARE(described(bill, product(1), 2).section(" price=", 1), "200 transfer_unit_price=50");
        }
    }

    void discountGroups()
    {
        VelTarmBill bill = ::bill(1, "");
        for (const VelDiscountModel model : {DISCOUNT_MODEL_EXPRESS_FEE, DISCOUNT_MODEL_TRANSFER_2})
            bill.insertInfoDiscountInformationMap(product(1), model, 1, false, 40, true, 50, 60);
        bill.insertInfoDiscountInformationMap(product(1), DISCOUNT_MODEL_BULK, 0, false, 42, true, 50, 60);
        QCOMPARE(bill.itemsAvailableInCurrentDiscountLevel(product(1)), 2); // of one level, though not of one model
        VelTarmBill copy(bill);                                             // shares the list
        QCOMPARE(described(copy, product(1), 0),
                 "discount_type=X discount_level=1 price=40"); // once, however many; takes nothing
        QCOMPARE(described(copy, product(1), 1), "discount_type=X discount_level=1 price=40");
        QCOMPARE(described(bill, product(1), 1, false), "price=40");
        QCOMPARE(
            described(bill, product(1), 7),
            "discount_type=- discount_level=0 price=294 transfer_base_price=50 transfer_unit_price=60"); // more than
                                                                                                         // there are
        QCOMPARE(described(copy, product(1), 1), "discount_type=- discount_level=0 price=0");
    }

private:
    TestAccount myAccount;
};

VEL_TEST_MAIN(BillTest)
#include "tst_Bill.moc"
