#include "bill/VelTarmOrder.h"
#include "ordering/VelOrderingDetails.h"
#include "support/VelTestPriceList.h"

namespace {

const QStringList KINDS = {"source", "payment", "null",    "count", "deprecated", "group",
                           "price",  "pieces",  "express", "limit", "amount"};
const QStringList FEES = {"", "shipping", "paying", "express"};

/// A coupon of that kind and amount, with further attributes.
VelCoupon coupon(const QString& theType, int thePrice, const QString& theAttributes = "campaign_no='1'")
{
    return VelCoupon("code", parsedElement(QString("<c><coupons><coupon type='%1' price='%2' %3/></coupons></c>")
                                               .arg(theType, QString::number(thePrice), theAttributes)));
}

VelTarmOrder order(const QString& theCart, const QList<VelCoupon>& theCoupons = {},
                   VelExpressTypeEnum theExpress = ExpressableType_STANDARD, VelPaymentType thePayment = PAYMENT_TYPE_3)
{
    QList<VelTarmOrder::Item> items;
    for (const QString& item : theCart.split(' ', Qt::SkipEmptyParts))
        items.append({product(item.section('x', 0, 0).toInt()), item.section('x', 1).toInt()});
    VelTarmStatus status;
    status.setPayment(thePayment);
    return VelTarmOrder(items, status, theExpress, theCoupons);
}

QString textOf(const VelTarmOrderAmounts& theAmounts)
{
    QStringList texts;
    for (const qint64 amount : {theAmounts.myItems, theAmounts.myShipping, theAmounts.myPayment, theAmounts.myCoupon,
                                theAmounts.myExpress, theAmounts.myTotal})
        texts.append(QString::number(amount));
    return texts.join(' ');
}

/// Kind, group, article, fee, number and limit; what says nothing is left out.
QString textOf(const VelTarmOrderObjection& theObjection)
{
    QStringList texts = {KINDS.at(theObjection.myKind)};
    if (theObjection.myGroup != VelTarmOrderObjection::NO_GROUP)
        texts.append(QString("in %1").arg(theObjection.myGroup));
    if (theObjection.myProduct)
        texts.append(QString("of %1").arg(theObjection.myProduct->articleID()));
    texts.append(FEES.at(theObjection.myFee));
    if (theObjection.myNumber != 0)
        texts.append(QString::number(theObjection.myNumber));
    if (theObjection.myLimit != 0)
        texts.append("> " + QString::number(theObjection.myLimit));
    return texts.join(' ').simplified();
}

} // namespace

/// Group 1 has all fees, 2 shipping by pieces, 3 shipping without a price and an express fee below 0, 4 a limit, 5
/// isn't sold. Only 2 and 30 can go by express.
class OrderTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        myAccount.activateWithDetails(R"(<o>
            <pay_methods><pay_method id='3' name='a'/><pay_method id='8' name='b'/></pay_methods>
            <order_sources><order_source input_source='0' delivery_type='1'>
                <permitted_pay_method id='3'/><permitted_pay_method id='8'/></order_source></order_sources>
            <groups><group id='1'/><group id='2'/><group id='3'/><group id='4' max_order_items='30'/></groups></o>)");
        VelOrderingDetails::instance();
        VelKeyAccount::instance()->setShippingGroupEnabled(5, false);
        loadPriceList(myAccount, "article id='9' group='1' arrangement='trivial' | prices 0=10");
        loadPriceList(myAccount, R"(
            article id='1' group='1' arrangement='trivial' | prices 0=5 P1@2=100 P2@101=200 p4@121=10
            article id='2' group='1' arrangement='gift' | prices 0=1000 | text [CUP] TYPE=ALB8 | express 0 1
            article id='3' group='1' arrangement='trivial' | prices 0=-1
            article id='4' group='1' arrangement='gift' | prices 0=900 | text [CUP] TYPE=ALB6 | express 0
            article id='5' group='1' arrangement='trivial' | prices 0=100
            article id='20' group='2' arrangement='trivial' | prices 0=2000000000
            article id='21' group='2' arrangement='trivial' | prices 0=5885
            article id='22' group='2' arrangement='trivial' | prices 0=1 | with transfer_unit_price='2000000000'
            article id='30' group='3' arrangement='gift' | prices 0=500 | text [CUP] TYPE=ALB8 | express 0 1
            article id='40' group='4' arrangement='trivial' | prices 0=50
            article id='50' group='5' arrangement='trivial' | prices 0=50
            add_on id='41' group='4' product_class='A' | prices 0=5 | text [A] | links 40
            transfer id='501' group='1' | prices 0=300
            transfer id='502' group='2' model='2' | prices 0=0
            transfer id='503' group='3'
            paymethod_fee id='600' pay_method_id='3' | prices 0=50
            paymethod_fee id='601' pay_method_id='8' | prices 0=-1
            express_fee id='701' group='1' express='1' | prices 0=490
            express_fee id='703' group='3' express='1' | prices 0=-1
        )");
    }

    void objections_data()
    {
        readTable(R"(
            row                        | cart           | express | payment | objections
            nothing                    |                | 0 | 3  |
            all is well                | 2x1 40x30      | 1 | 3  |
            an unreadable price        | 3x2            | 0 | 3  | price in 1 of 3 -1
            a package without its end  | 1x125          | 0 | 3  | pieces in 1 of 1 -1
            a single piece below it    | 1x1            | 0 | 3  |
            no piece                   | 2x0            | 0 | 3  | count in 1 of 2
            fewer than none            | 2x-3           | 0 | 3  | count in 1 of 2 -3
            no product                 | 77x1 2x1       | 0 | 3  | null 1
            of a former list           | 9x1            | 0 | 3  | deprecated in 1 of 9
            of a group not sold        | 50x1           | 0 | 3  | group in 5 of 50
            shipping without a price   | 30x1           | 0 | 3  | price in 3 of 503 shipping -1
            paying below 0             | 2x1            | 0 | 8  | price in 1 of 601 paying -1
            paying for nothing         |                | 0 | 8  |
            express below 0            | 30x1           | 1 | 3  | price in 3 of 503 shipping -1; price in 3 of 703 express -1
            no express                 | 2x1 4x1 21x1   | 1 | 3  | express in 1 of 4
            in a bill that pays it     | 2x1 5x1        | 1 | 3  | express in 1 of 5
            prints alone               | 5x1 21x1       | 1 | 3  | express in 1 of 5; express in 2 of 21
            standard                   | 4x1 5x1        | 0 | 3  |
            one too many               | 40x31 41x40    | 0 | 3  | limit in 4 31 > 30
            payment not permitted      | 2x1            | 0 | 14 | payment 14
            items beyond 32 bits       | 20x2           | 0 | 3  | amount in 2
            pieces beyond 32 bits      | 2x2147483647 2x2147483647 2x5 | 0 | 3  | amount in 1
            shipping beyond 32 bits    | 22x3           | 0 | 3  | amount in 2
        )");
    }

    void objections()
    {
        const VelTarmOrder made =
            order(cell("cart"), {}, number("express") ? ExpressableType_EXPRESS_1 : ExpressableType_STANDARD,
                  static_cast<VelPaymentType>(number("payment")));
        QStringList texts;
        for (const VelTarmOrderObjection& objection : made.objections())
            texts.append(textOf(objection));
        QCOMPARE(texts.join("; "), cell("objections"));
        QCOMPARE(made.canBePlaced(), texts.isEmpty());
    }

    void amounts()
    {
        const VelTarmOrder made = order("21x1 2x1 40x2 2x1", {}, ExpressableType_EXPRESS_1);
        QStringList texts;
        for (const VelTarmOrderBill& bill : VelTarmOrder(made).bills()) // of an order that nobody keeps
            texts.append(QString("%1: %2").arg(QString::number(bill.group()), textOf(bill.amounts())));
        QCOMPARE(texts.join("; "), "1: 2000 300 50 0 490 2840; 2: 5885 0 50 0 0 5935; 4: 100 0 50 0 0 150");
        QCOMPARE(textOf(made.amounts()), "7985 300 150 0 490 8925");
    }

    /// What a coupon of value leaves on one bill it takes off the next ones; the others count once.
    void coupons_data()
    {
        readTable(R"(
            row                     | type     | price  | further             | shares        | left
            value                   | value    | -5000  | campaign_no='1'     | -1300 -3700 0 | 0
            value with a rest       | value    | -50000 | campaign_no='1'     | -1300 -5885 -50 | 42765
            from a minimum          | value    | -5000  | campaign_no='1' minimum_price='5000' | 0 -5000 0 | 0
            percent                 | percent  | -10    | campaign_no='1'     | -130 0 0      | 0
            quantity                | quantity | 0      | campaign_no='1' free_quantity='1' minimum_quantity='1' | -1000 0 0 | 0
            not valid               | value    | -5000  |                     | 0 0 0         | 0
        )");
    }

    void coupons()
    {
        const VelTarmOrder made = order("2x1 21x1 40x1", {coupon(cell("type"), number("price"), cell("further"))});
        QStringList shares;
        int taken = 0;
        for (const VelTarmOrderBill& bill : made.bills()) {
            shares.append(QString::number(bill.couponShares().first()));
            taken += bill.couponAmount();
            QCOMPARE(bill.amounts().myTotal, qint64(bill.bill().totalFinalCost(bill.couponAmount())));
        }
        QCOMPARE(shares.join(' '), cell("shares"));
        QCOMPARE(made.coupons().first().left(), number("left"));
        QCOMPARE(made.coupons().first().taken(), taken);
        QCOMPARE(made.amounts().myCoupon, qint64(taken));
    }

    /// They share a bill without taking more off than it comes to.
    void severalCoupons()
    {
        const VelTarmOrder made = order("2x1 21x1", {coupon("percent", -50), coupon("value", -1000)});
        QCOMPARE(made.bills().at(0).couponShares(), (QList<int>{-650, -650}));
        QCOMPARE(made.bills().at(0).couponRests(), (QList<int>{0, 350}));
        QCOMPARE(made.bills().at(1).couponShares(), (QList<int>{0, -350}));
        QCOMPARE(made.bills().at(0).amounts().myTotal, qint64(0));
        const VelTarmOrder refused = order("3x2 21x1", {coupon("value", -1000)});
        QCOMPARE(refused.bills().at(0).couponAmount(), 0); // nothing is spent on what can't be ordered
        QCOMPARE(refused.bills().at(1).couponAmount(), -1000);
        QVERIFY(!order("2x1", {coupon("percent", 2000000000)}).amounts().myCoupon); // beyond 32 bits on its way
    }

private:
    const TestAccount myAccount;
};

VEL_TEST_MAIN(OrderTest)
#include "tst_Order.moc"
