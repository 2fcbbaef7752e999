#include "bill/VelCoupon.h"
#include "ordering/VelOrderingDetails.h"
#include "sibling/VelProductCheckerRegistry.h"
#include "support/VelTestPriceList.h"

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
        myAccount.activateWithDetails("<o><groups><group id='3' name='Prints'/></groups></o>");
        VelOrderingDetails::instance(); // which brings the shipping groups
        loadPriceList(myAccount, R"(
            article id='1' arrangement='trivial' group='3' name='x' editor_name='9x13 %2' | prices 0=333 | text [P] SALESLINE=3
            article id='2' arrangement='trivial' editor_name='Poster' | prices 0=250
            article id='3' arrangement='trivial' group='3' editor_name='9x13 %2' | prices 0=20 P1@10=100 P2@20=150
            add_on id='11' product_class='A' editor_name='no type' | text [FRAME]
            add_on id='12' product_class='A' editor_name='Buch' | text [FRAME] TYPE=ALB9
            transfer id='500' group='3' name='Versand' editor_name='x' | prices 0=120
        )");
    }

    void reading_data()
    {
        readTable(R"(
            row          | attributes                                              | type | value | percent | campaign
            value        | type='value' price='-7' campaign_no='c'                 | 1    | -7    | 0       | c
            percent      | type=' PerCent ' price=' -7 ' campaign_no=''            | 2    | 0     | -7      |
            combined     | type='value,percent' price='-7' campaign_no='c'         | 3    | 0     | 0       | c
            unknown word | type='values' price='-7' campaign_no='c'                | 0    | 0     | 0       | invalid
            no campaign  | type='value' price='-7'                                 | 1    | -7    | 0       | invalid
        )");
    }

    void reading()
    {
        const VelCoupon read = coupon(cell("attributes"));
        QCOMPARE(int(read.type()), number("type"));
        QCOMPARE(read.maximumDiscountValue(), number("value"));
        QCOMPARE(read.discountPercentage(), number("percent"));
        QCOMPARE(read.isValid() ? read.campaign() : "invalid", cell("campaign"));
    }

    void conditions()
    {
        const VelCoupon read = coupon("minimum_price='1' free_quantity='2' minimum_quantity='3' shareable='true'");
        QCOMPARE(read.minimumSpentValue(), 1);
        QCOMPARE(read.freeQuantity(), 2);
        QCOMPARE(read.minimumQuantity(), 3);
        QVERIFY(read.isShareable() && !coupon("").isShareable());
    }

    void readsTwice()
    {
        VelCoupon read = coupon("type='percent' price='-7' minimum_price='1' campaign_no='c'", "8 0 -5 x 8");
        read.parseXML(parsedElement("<a><coupons><coupon price='1'><condition/><condition art_id='9'/></coupon>"
                                    "</coupons></a>"));
        QCOMPARE(read.validArticles(), (QList<int>{8, -5, 8, 9})); // the list adds up
        QCOMPARE(read.discountPercentage(), -7);                   // an unknown type reads no price
        QVERIFY(read.campaign().isNull());
    }

    void discounts_data()
    {
        // Article 1 costs 333, article 2 250, article 3 20 or 100 for ten to nineteen, and the transfer of group 3 120.
        readTable(R"(
            row                         | group | cart      | coupon                          | articles | offset | total | discount
            percent, truncated          | 4     | 1x3       | type='percent' price='-10'      |          | 0      | 999   | -99
            percent, transfer listed    | 3     | 1x1 2x1   | type='percent' price='-10'      | 2 500    | 0      | 370   | -37
            percent below minimum       | 4     | 1x1 2x1   | type='percent' price='-10' minimum_price='251' | 2 | 0 | 250   | 0
            value, offset               | 4     | 2x8       | type='value' price='-1000'      |          | -400   | 2000  | -600
            value above all             | 4     | 2x2       | type='value' price='-1000'      |          | 0      | 500   | -500
            value at minimum            | 4     | 2x2       | type='value' price='-10' minimum_price='500' | | 0      | 500   | -10
            value below minimum         | 4     | 2x2       | type='value' price='-10' minimum_price='501' | | 0      | 500   | 0
            too few, transfer listed    | 3     | 1x2       | type='quantity' free_quantity='1' minimum_quantity='3' | 1 500 | 0 | 786 | -120
            pieces of the cheapest      | 3     | 1x2 2x1   | type='quantity' free_quantity='2' minimum_quantity='3' minimum_price='9999' | | -50 | 1036 | -500
            packages aren't cheapest    | 3     | 3x10 1x1  | type='quantity' free_quantity='1' minimum_quantity='1' | | 0 | 433 | -333
            unknown type                | 4     | 1x1       | type='x' price='-10' free_quantity='1' | | 0     | 333   | 0
        )");
    }

    void discounts()
    {
        const VelTarmBill order = bill(number("group"), cell("cart"));
        const VelCoupon tested = coupon(cell("coupon"), cell("articles"));
        QCOMPARE(tested.totalValueOfOrder(order), number("total"));
        QCOMPARE(tested.discountForOrder(order, number("offset")), number("discount"));
    }

    void articleNames()
    {
        const VelCoupon tested = coupon("", "500 12 1 2 11 3 77");
        const QStringList known = {"9x13 %2 (Prints)", "Buch", "Poster ()", "Versand (Prints)"};
        QCOMPARE(tested.validArticleNames(), known + QStringList("no type"));
        VelProductCheckerRegistry::instance()->registerChecker(new Checker); // which stays for ever
        QCOMPARE(tested.validArticleNames(), known);
    }

private:
    TestAccount myAccount;
};

VEL_TEST_MAIN(CouponTest)
#include "tst_Coupon.moc"
