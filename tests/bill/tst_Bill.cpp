#include "bill/VelTarmBillPositionInvalid.h"
#include "support/VelTestPriceList.h"

namespace {

/// Each position as article, model, level, items, price, units, whether it is a package.
QString positionsOf(const VelTarmBill& theBill)
{
    QStringList texts;
    for (const VelTarmBillPositionAbstract* p : theBill.orderPositions())
        texts.append(joined({p->product()->articleID(), p->discountModel(), p->discountLevel(), p->countItems(),
                             p->unitPrice(), p->unitCount(), p->isPackage()}));
    return texts.join("; ");
}

} // namespace

/// Group 1 has transfer by quantity and an express fee, 2 transfer by bill sum and an express fee without a price, 3
/// transfer model 2, 4 no transfer, 5 a transfer without a price.
class BillTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadPriceList(myAccount, R"(
            article id='1' arrangement='trivial' editor_name='Poster 10' | 0=100 1@5=80 | transfer_base_price='300' transfer_unit_price='50'
            article id='2' arrangement='gift' editor_name='Tasse' | 0=1000 | transfer_base_price='500' transfer_unit_price='100' | [CUP] TYPE=ALB8
            article id='3' arrangement='trivial' editor_name='Poster 9' | 0=100 P1@3=200 P2@11=900 p3@21=40
            article id='4' arrangement='trivial' editor_name='x'        | 0=100 L1@2=300 L2@6=400
            article id='5' arrangement='trivial'
            article id='6' arrangement='trivial' | 0@1=-1
            article id='7' arrangement='trivial' | 0=1 | transfer_base_price='500' transfer_unit_price='10'
            add_on id='11' product_class='A' | I0=30 I1=20 I2=10 | | [A] | 99 1 5 3
            add_on id='12' product_class='A' | I0=30 I1=20       | | [A] | 13
            add_on id='13' product_class='A' | 0=9 1@2=5
            add_on id='14' product_class='A' | I0=30 I1=20       | | [A] | 13
            transfer id='501' group='1' | 0=300 1@10=200
            transfer id='502' group='2' | 0=490 Z1@5000=0
            transfer id='503' group='3' model='2' | 0=7
            transfer id='505' group='5'
            paymethod_fee id='600' pay_method_id='3' | 0=50
            paymethod_fee id='601' pay_method_id='8'
            paymethod_fee id='602' pay_method_id='9' | 0=-7
            express_fee id='701' group='1' express='1' | 0=200 1@3=400
            express_fee id='702' group='2' express='1'
        )");
    }

    void positions_data()
    {
        readTable(R"(
            cart            | positions
            11x2 5x1 1x5    | 1 1 1 5 80 5 0; 5 10 0 0 0 0 0; 11 8 1 2 20 2 0
            11x1 1x5 3x25   | 1 1 1 5 80 5 0; 3 3 2 20 900 1 1; 3 3 3 5 40 5 0; 11 8 2 1 10 1 0
            11x3 2x1        | 2 1 0 1 1000 1 0; 11 8 0 3 30 3 0
            13x2 12x1 14x1  | 12 8 0 1 30 1 0; 13 1 1 2 5 2 0; 14 8 1 1 20 1 0
            4x3 1x0         | 1 1 0 0 100 0 0; 4 2 1 3 300 1 1
        )");
    }

    void positions() { QCOMPARE(positionsOf(bill(1, cell("cart"))), cell("positions")); }

    void amounts_data()
    {
        // cost, count, transfer as fee, charge, pure price and unit, total, cheapest
        readTable(R"(
            row                         | group | cart     | amounts                           | valid
            nothing                     | 1     |          | 0 0 0 0 0 0 0 0                   | yes
            nothing, no transfer price  | 5     |          | 0 0 -1 -1 -1 0 0 0                | yes
            next quantity               | 1     | 1x10     | 800 10 200 200 200 450 1000 80    | yes
            an add-on doesn't count     | 1     | 1x9 11x9 | 900 9 300 300 300 400 1200 20     | yes
            below the bill sum          | 2     | 2x4      | 4000 4 490 490 490 300 4490 1000  | yes
            bill sum                    | 2     | 2x5      | 5000 5 0 0 0 400 5000 1000        | yes
            model 2                     | 3     | 1x3 2x2  | 2300 5 750 750 500 250 3050 100   | yes
            model 2, equal bases        | 3     | 7x1 2x1  | 1001 2 510 510 500 10 1511 1      | yes
            free by a package           | 1     | 1x1 3x3  | 300 4 0 300 0 0 300 100           | yes
            package of the other model  | 1     | 4x3      | 300 3 300 300 300 0 600 300       | yes
            no transfer article         | 4     | 1x2      | 200 2 0 0 0 0 200 100             | yes
            transfer without a price    | 5     | 1x2      | 200 2 -1 -1 -1 50 199 100         | yes
            product without a price     | 1     | 5x2 1x1  | 100 1 300 300 300 0 400 0         | no
            one piece at -1 is no price | 1     | 6x1      | 0 0 0 0 0 0 0 0                   | no
            two pieces at -1 are one    | 1     | 6x2      | -2 2 300 300 300 0 298 -1         | yes
            negative count              | 1     | 1x-3     | -300 -3 300 300 300 -200 0 100    | yes
        )");
    }

    void amounts()
    {
        const VelTarmBill bill = ::bill(number("group"), cell("cart"));
        QCOMPARE(
            joined({bill.totalItemCost(PRODUCT_GROUP_ALL), bill.totalItemCount(PRODUCT_GROUP_ALL), bill.transferFee(),
                    bill.priceOfTransfer(nullptr), bill.priceOfTransfer(), bill.priceOfUnitTransfer(),
                    bill.totalFinalCostWithoutCoupon(), bill.unitPriceOfCheapestArticle()}),
            cell("amounts"));
        QCOMPARE(bill.isValid(), answer("valid"));
    }

    void totals_data()
    {
        // The bill has items of 1000, transfer 300, payment 50, express 200.
        readTable(R"(
            row                     | coupon      | void | agio | total
            none                    | 0           | no   | 50   | 1550
            some                    | -400        | no   | 50   | 1150
            one cent is left        | -1299       | no   | 50   | 251
            nothing is left         | -1300       | yes  | 0    | 200
            lowest                  | -2147483648 | yes  | 0    | 200
            the payment wraps       | 2147482347  | no   | 50   | 200
        )");
    }

    void totals()
    {
        const VelTarmBill bill = ::bill(1, "2x1", ExpressableType_EXPRESS_1);
        QCOMPARE(bill.totalPriceIsVoid(number("coupon")), answer("void"));
        QCOMPARE(bill.priceOfPaymentAgio(number("coupon")), number("agio"));
        QCOMPARE(bill.totalFinalCost(number("coupon")), number("total"));
    }

    void groups()
    {
        const VelTarmBill bill = ::bill(4, "1x3 2x2 11x2");
        QCOMPARE(joined({bill.totalItemCost(PRODUCT_GROUP_GIFT), bill.totalItemCount(PRODUCT_GROUP_GIFT),
                         bill.totalItemCost(PRODUCT_GROUP_ADD_ON), bill.totalItemCount(PRODUCT_GROUP_ADD_ON)}),
                 "2000 2 60 0");
    }

    void express_data()
    {
        readTable(R"(
            row                    | group | type | cart     | fee | total
            one for all            | 1     | 2    | 2x2 1x9  | 200 | 3170
            next quantity          | 1     | 2    | 2x3      | 400 | 3750
            only posters           | 1     | 2    | 1x2      | 0   | 550
            other type             | 1     | 3    | 2x1      | 0   | 1350
            no price               | 2     | 2    | 2x1      | -1  | 1539
            free transfer, no less | 1     | 2    | 2x1 3x3  | 200 | 1450
        )");
    }

    void express()
    {
        const VelTarmBill bill = ::bill(number("group"), cell("cart"), static_cast<VelExpressTypeEnum>(number("type")));
        QCOMPARE(bill.priceOfExpressAgio(nullptr), number("fee"));
        QCOMPARE(bill.totalFinalCost(0), number("total"));
    }

    /// The sums are those of the bill that is asked, the positions go to the bill that is named.
    void positionsOfFees()
    {
        const VelTarmBill asked = bill(1, "2x3", ExpressableType_EXPRESS_1);
        VelTarmBill named = bill(4, "1x1");
        QCOMPARE(asked.priceOfTransfer(&named), 300);
        QCOMPARE(asked.priceOfExpressAgio(&named), 400);
        QCOMPARE(positionsOf(named), "1 1 0 1 100 1 0; 501 4 0 1 300 1 0; 701 7 1 1 400 1 0");
        QCOMPARE(named.totalItemCost(PRODUCT_GROUP_ALL), 100); // a fee is of no group
        QCOMPARE(named.totalItemCount(PRODUCT_GROUP_ALL), 1);
        QCOMPARE(named.unitPriceOfCheapestArticle(), 100);
        QCOMPARE(articlesOf(asked.orderPositions()), "2");
    }

    void payments()
    {
        const VelTarmBill withoutPrice = bill(4, "1x1", ExpressableType_UNKNOWN, PAYMENT_TYPE_8);
        QVERIFY(withoutPrice.isValid());
        QCOMPARE(withoutPrice.totalFinalCost(0), 100);
        QCOMPARE(withoutPrice.idOfPaymentAgioProduct(), 601);
        QCOMPARE(withoutPrice.priceOfPaymentAgio(PAYMENT_TYPE_3), 50);
        QCOMPARE(withoutPrice.priceOfPaymentAgio(PAYMENT_TYPE_9), 0); // a fee of -7
        QCOMPARE(withoutPrice.priceOfPaymentAgio(PAYMENT_TYPE_5), 0); // no such fee
        QCOMPARE(VelTarmBill::priceOfPaymentAgio(PAYMENT_TYPE_3, priceKey(3, DISCOUNT_MODEL_PACKAGE)), 50);
        const VelTarmPriceKey kiosk(VelOrderSource::kioskOnSite(), 0, DISCOUNT_MODEL_BULK);
        QCOMPARE(VelTarmBill::priceOfPaymentAgio(PAYMENT_TYPE_3, kiosk), 0);
        QCOMPARE(bill(4, "1x1", ExpressableType_UNKNOWN, PAYMENT_TYPE_5).idOfPaymentAgioProduct(), 0);
    }

    void positionQueries()
    {
        VelTarmBill bill = ::bill(1, "1x1 3x25 5x1");
        QCOMPARE(articlesOf(bill.sortedBillPositions()), "5 3 3 1"); // by editor name, numbers by value
        QCOMPARE(articlesOf(bill.orderPositions()), "1 3 3 5");
        QCOMPARE(bill.billPosition(product(3))->discountItemsPerUnit(), 20);
        QVERIFY(!bill.billPosition(product(5)) && !bill.billPosition(product(2)) && !bill.billPosition(nullptr));
        VelTarmBillPositionList more;
        more.append(new VelTarmBillPosition(1, product(5), DISCOUNT_MODEL_BULK, 0, 9, 1, 1, -1));
        more.append(new VelTarmBillPositionInvalid(product(1)));
        bill.addOrderPositions(more);
        QVERIFY(!bill.billPosition(product(5))); // the search stops at an invalid first one
        QCOMPARE(bill.billPosition(product(1))->unitPrice(), 100);
        const MessageCatcher messages;
        bill.dump();
        QCOMPARE(messages.texts().size(), 6);
        QCOMPARE(messages.texts().last(), "# Poster 10, Nicht bestellbar");
        QCOMPARE(bill.idOfTransferProduct(), 501);
        QCOMPARE(::bill(4, "").idOfTransferProduct(), -1);
    }

    void filters_data()
    {
        // The transfer fee, which stays the stored one, its pure price, reckoned anew, the payment agio, and the total.
        readTable(R"(
            row                       | group | cart    | ids       | kept | amounts
            no ids: all               | 1     | 1x9 2x1 |           | 1 2  | 200 200 50 1970
            no ids: free stays free   | 1     | 3x3 1x1 |           | 1 3  | 0 0 50 350
            with transfer             | 1     | 1x9 2x1 | 2 501     | 2    | 200 300 0 1200
            with both                 | 1     | 1x9 2x1 | 1 600 501 | 1    | 200 300 50 970
            fees alone                | 1     | 1x9 2x1 | 501 600   |      | 200 0 50 250
            payment alone             | 1     | 1x9 2x1 | 600       |      | 0 0 0 0
            transfer of another group | 1     | 1x9 2x1 | 2 502     | 2    | 0 0 0 1000
            free is overwritten       | 1     | 3x3 1x1 | 1 501     | 1    | 0 300 0 100
            model 2                   | 3     | 1x3 2x2 | 1 503     | 1    | 750 500 0 1050
        )");
    }

    void filters()
    {
        const VelTarmBill whole = bill(number("group"), cell("cart"));
        const QString before = positionsOf(whole);
        QList<int> ids;
        for (const QString& id : cell("ids").split(' ', Qt::SkipEmptyParts))
            ids.append(id.toInt());
        VelTarmBill part(whole);
        part.filterArticles(ids);
        QCOMPARE(articlesOf(part.orderPositions()), cell("kept"));
        const VelTarmBill copy(part); // has the state, too
        QCOMPARE(
            joined({copy.transferFee(), copy.priceOfTransfer(), copy.priceOfPaymentAgio(0), part.totalFinalCost(0)}),
            cell("amounts"));
        QCOMPARE(positionsOf(whole), before);
    }

    void copies()
    {
        auto origin = std::make_unique<VelTarmBill>(bill(1, "1x5 3x25 4x3 5x1"));
        VelTarmBill copy(*origin);
        const QString positions = positionsOf(*origin);
        QVERIFY(copy.orderPositions().first() != origin->orderPositions().first());
        origin.reset();
        QCOMPARE(positionsOf(copy), positions);
        QVERIFY(!copy.isValid());
        copy.filterOutPackages();
        QCOMPARE(positionsOf(copy), "1 1 1 5 80 5 0; 3 3 3 5 40 5 0; 5 10 0 0 0 0 0");
        QCOMPARE(copy.transferFee(), 0); // still free, though the package is gone
        QCOMPARE(copy.totalFinalCostWithoutCoupon(), 600);
    }

private:
    TestAccount myAccount;
};

VEL_TEST_MAIN(BillTest)
#include "tst_Bill.moc"
