#include "bill/VelCoupon.h"
#include "bill/VelTarmBill.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelProductCheckerRegistry.h"
#include "support/VelTestAccount.h"

namespace {

/// A coupon with these attributes, and with articles given by their ids; a second coupon is there to be ignored.
VelCoupon coupon(const QString& theAttributes, const QString& theArticles = QString())
{
    QString document = "<any><coupons><coupon " + theAttributes + ">";
    for (const QString& id : theArticles.split(' ', Qt::SkipEmptyParts))
        document += "<condition art_id='" + id + "'/>";
    return VelCoupon("code", parsedElement(document + "</coupon><coupon type='value' price='-1' campaign_no='2'>"
                                                      "<condition art_id='2'/></coupon></coupons></any>"));
}

/// A cart written as article x count; group 3 has a transfer article, group 4 has none.
VelTarmBill bill(int theGroup, const QString& theCart)
{
    VelOrderStatistic cart;
    for (const QString& entry : theCart.split(' '))
        cart.add(VelProductRegistry::instance()->productWithArticleID(entry.section('x', 0, 0).toInt()),
                 entry.section('x', 1).toInt());
    return VelTarmBill(theGroup, cart, VelExpressType(), VelTarmStatus());
}

/// The application doesn't know one type.
struct Checker : public VelProductChecker
{
    bool isValid(const VelProductType& theType) const override { return theType.productName() != "[FRAME]"; }
    Type type() const override { return CHECKER_TYPE_APPLICATION; }
};

} // namespace

class CouponTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        myAccount.write("pricelist.xml", R"(<p>
            <articles><article id='1' arrangement='trivial' group='3' name='x' editor_name='9x13 %2'>
                <order_txt_lines><l>SALESLINE=3</l></order_txt_lines><base_prices><e price='333'/></base_prices></article>
            <article id='2' arrangement='trivial' editor_name='Poster'><base_prices><e price='250'/></base_prices></article>
            <article id='3' arrangement='trivial' group='3' editor_name='9x13 %2'><base_prices><e price='20'/></base_prices>
                <discount_prices><e type='P' level='1' quantity='10' price='100'/>
                <e type='P' level='2' quantity='20' price='150'/></discount_prices></article></articles>
            <add_ons><add_on id='11' product_class='A' editor_name='no type'><order_txt_lines head='[FRAME]'/></add_on>
            <add_on id='12' product_class='A' editor_name='Buch'><order_txt_lines head='[FRAME]'><l>TYPE=ALB9</l>
                </order_txt_lines></add_on></add_ons>
            <paymethod_fees><paymethod_fee id='600' pay_method_id='3'><base_prices><e price='40'/></base_prices>
                </paymethod_fee></paymethod_fees>
            <transfers><transfer id='500' group='3' name='Versand' editor_name='x'><base_prices><e price='120'/>
                </base_prices></transfer></transfers></p>)");
        myAccount.activateWithDetails("<o><groups><group id='3' name='Prints'/></groups></o>");
        VelOrderingDetails::instance(); // which brings the shipping groups
    }

    void reading_data()
    {
        readTable(R"(
            row           | attributes                                              | expected
            value         | type='value' price='-7' campaign_no='c' minimum_price='1' free_quantity='2' minimum_quantity='3' shareable='true' | 1/-7/0/1/2/3/1 c
            percent       | type=' PerCent ' price=' -7 ' campaign_no=''            | 2/0/-7/0/0/0/0
            quantity      | type='QUANTITY' price='-7' campaign_no='c'              | 3/0/0/0/0/0/0 c
            combined      | type='value,percent' price='-7' campaign_no='c'         | 3/0/0/0/0/0/0 c
            known word    | type=',x, value' campaign_no='c'                        | 1/0/0/0/0/0/0 c
            unknown word  | type='values' price='-7' campaign_no='c'                | 0/0/0/0/0/0/0 invalid
            no campaign   | type='value' price='-7'                                 | 1/-7/0/0/0/0/0 invalid
            malformed     | type='value' price='-7,5' campaign_no='c' minimum_price='2147483648' free_quantity='x' shareable='ja' | 1/0/0/0/0/0/0 c
        )");
    }

    void reading()
    {
        const VelCoupon read = coupon(cell("attributes"));
        const QString fields = QString::asprintf("%d/%d/%d/%d/%d/%d/%d ", read.type(), read.maximumDiscountValue(),
                                                 read.discountPercentage(), read.minimumSpentValue(),
                                                 read.freeQuantity(), read.minimumQuantity(), read.isShareable());
        QCOMPARE((fields + (read.isValid() ? read.campaign() : "invalid")).trimmed(), cell("expected"));
        QCOMPARE(read.campaign().isNull(), !cell("attributes").contains("campaign_no"));
        QCOMPARE(read.id(), "code");
    }

    void readsTwice()
    {
        VelCoupon read = coupon("type='percent' price='-7' minimum_price='1' campaign_no='c'", "8 0 -5 x 8");
        read.parseXML(parsedElement("<a><coupons><coupon price='1'><condition/><condition art_id='9'/></coupon>"
                                    "</coupons></a>"));
        QCOMPARE(read.validArticles(), (QList<int>{8, -5, 8, 9}));
        QCOMPARE(read.discountPercentage(), -7); // an unknown type reads no price
        QCOMPARE(read.minimumSpentValue(), 0);
        read.parseXML(parsedElement("<a><coupons/><coupons><coupon type='value' campaign_no='c'/></coupons></a>"));
        QVERIFY(!read.isValid() && read.campaign().isNull());
    }

    void discounts_data()
    {
        // Article 1 costs 333, article 2 250, article 3 20 or 100 for ten to nineteen; the transfer article 500 costs
        // 120.
        readTable(R"(
            row                         | group | cart      | coupon                          | articles | offset | total | discount
            percent, truncated          | 4     | 1x3       | type='percent' price='-10'      |          | 0      | 999   | -99
            percent of transfer, too    | 3     | 1x3       | type='percent' price='-10'      |          | 0      | 1119  | -111
            percent, transfer listed    | 3     | 1x1 2x1   | type='percent' price='-10'      | 2 500    | 0      | 370   | -37
            payment listed: not counted | 3     | 1x1       | type='percent' price='-10'      | 1 600    | 0      | 333   | -33
            percent wraps               | 4     | 2x1       | type='percent' price='2147483647' |        | 0      | 250   | -2
            percent below minimum       | 4     | 1x1 2x1   | type='percent' price='-10' minimum_price='251' | 2 | 0 | 250   | 0
            value                       | 4     | 2x8       | type='value' price='-1000'      |          | 0      | 2000  | -1000
            value, offset               | 4     | 2x8       | type='value' price='-1000'      |          | -400   | 2000  | -600
            value above all             | 4     | 2x2       | type='value' price='-1000'      |          | 0      | 500   | -500
            value and sum wrap          | 4     | 2x2       | type='value' price='-2147483648' |         | 1      | 500   | -500
            value at minimum            | 4     | 2x2       | type='value' price='-1000' minimum_price='500' | | 0      | 500   | -500
            value below minimum         | 4     | 2x2       | type='value' price='-1000' minimum_price='501' | | 0      | 500   | 0
            too few pieces              | 3     | 1x2       | type='quantity' free_quantity='1' minimum_quantity='3' | | 0 | 786 | 0
            too few, transfer listed    | 3     | 1x2       | type='quantity' free_quantity='1' minimum_quantity='3' | 1 500 | 0 | 786 | -120
            pieces of the cheapest      | 3     | 1x2 2x1   | type='quantity' free_quantity='2' minimum_quantity='3' minimum_price='9999' | | -50 | 1036 | -500
            pieces and transfer         | 3     | 1x3 2x1   | type='quantity' free_quantity='2' minimum_quantity='3' | 1 500 | 0 | 1119 | -786
            pieces above all            | 3     | 1x2 2x1   | type='quantity' free_quantity='9' | 1      | 0      | 666   | -666
            packages aren't pieces      | 3     | 3x10 1x1  | type='quantity' free_quantity='1' minimum_quantity='2' | | 0 | 433 | 0
            packages aren't cheapest    | 3     | 3x10 1x1  | type='quantity' free_quantity='1' minimum_quantity='1' | | 0 | 433 | -333
            combined: a quantity coupon | 4     | 1x1       | type='value,percent' price='-10' free_quantity='1' | | 0  | 333   | -333
            unknown type                | 4     | 1x1       | type='x' price='-10' free_quantity='1' | | 0     | 333   | 0
        )");
    }

    void discounts()
    {
        const VelTarmBill order = bill(number("group"), cell("cart"));
        const VelCoupon tested = coupon(cell("coupon"), cell("articles"));
        const int cost = order.totalFinalCost(0);
        QCOMPARE(tested.totalValueOfOrder(order), number("total"));
        QCOMPARE(tested.discountForOrder(order, number("offset")), number("discount"));
        QCOMPARE(order.totalFinalCost(0), cost); // the order itself isn't cut down
    }

    void articleNames()
    {
        const VelCoupon tested = coupon("", "500 12 1 2 11 3 77");
        QCOMPARE(tested.validArticleNames(),
                 (QStringList{"9x13 %2 (Prints)", "Buch", "Poster ()", "Versand (Prints)", "no type"}));
        VelProductCheckerRegistry::instance()->registerChecker(new Checker); // which stays for ever
        QCOMPARE(tested.validArticleNames(),
                 (QStringList{"9x13 %2 (Prints)", "Buch", "Poster ()", "Versand (Prints)"}));
    }

private:
    TestAccount myAccount;
};

VEL_TEST_MAIN(CouponTest)
#include "tst_Coupon.moc"
