#include "support/VelTestPriceList.h"

namespace {

/// What a description of so many pieces writes, as type/level/price/base transfer/unit transfer.
QString described(VelTarmBill& theBill, const VelProductAbstract* theProduct, int theCount, bool theWithType = true)
{
    QDomElement element = parsedElement("<any price='old' kept='x'/>");
    theBill.describeDiscount(element, theProduct, theCount, theWithType);
    QStringList values;
    for (const char* name : {"discount_type", "discount_level", "price", "transfer_base_price", "transfer_unit_price"})
        values.append(element.attribute(name));
    return element.attribute("kept") == "x" ? values.join('/') : QString();
}

} // namespace

/// Group 1 has transfer by quantity and an express fee, group 3 transfer model 2 and an express fee, group 4 neither.
class DiscountInformationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadPriceList(myAccount, R"(
            article id='1' arrangement='trivial' | 0=120 1@2=110 2@3=100 | transfer_base_price='300' transfer_unit_price='50'
            article id='2' arrangement='trivial' | L1@2=1000 l2@6=90
            article id='3' arrangement='trivial' | P1@2=500 P2@11=900 p3@21=40
            article id='4' arrangement='trivial' | 0=70
            article id='5' arrangement='trivial' | 0=1000 | transfer_base_price='500' transfer_unit_price='100'
            article id='6' arrangement='gift'    | 0=1000 | | [CUP] TYPE=ALB8
            article id='7' arrangement='trivial'
            add_on id='11' product_class='A'     | I0=30 I2=10 | | [A] | 1
            transfer id='501' group='1' | 0=300 1@5=200
            transfer id='503' group='3' model='2' | 0=7
            express_fee id='701' group='1' express='1' | 0=200 1@2=400
            express_fee id='703' group='3' express='1' | 0=200 1@2=400
        )");
    }

    void descriptions_data()
    {
        // The articles T and X are the fees of transfer and express.
        readTable(R"(
            row                        | group | cart    | article | counts | descriptions
            bulk                       | 1     | 1x3     | 1       | 3      | B/2/300//
            level 0                    | 1     | 4x2     | 4       | 2      | -/0/140//
            inherited                  | 1     | 1x3 11x2 | 11     | 2      | I/2/20//
            package of a level          | 1     | 2x4     | 2       | 1 1 2  | L/1/1000// L/1/0// L/1/0//
            its rest                   | 1     | 2x8     | 2       | 5 2 1  | L/1/1000// l/2/180// l/2/90//
            package, free transfer     | 1     | 3x25    | 3       | 20 5   | P/2/0// p/3/0//
            express beside it          | 1     | 3x5 6x1 | X       | 1      | -/0/200//
            transfer                   | 1     | 4x5     | T       | 1      | F/1/200//
            transfer model 2           | 3     | 1x3 5x2 | T       | 1      | -/0/750//
            express                    | 3     | 6x3     | X       | 1      | X/1/400//
            highest base, one by one   | 3     | 1x3 5x2 | 5       | 1 1    | -/0/1000/500/ -/0/1000//100
            highest base, together     | 3     | 1x3 5x2 | 5       | 2      | -/0/2000/500/100
            lower base                 | 3     | 1x3 5x2 | 1       | 1 2    | B/2/100//50 B/2/200//50
            no base at all             | 3     | 4x2     | 4       | 1 1    | -/0/70//0 -/0/70//0
            no transfer article        | 4     | 5x1     | 5       | 1      | -/0/1000//
        )");
    }

    void descriptions()
    {
        VelTarmBill bill = ::bill(number("group"), cell("cart"), ExpressableType_EXPRESS_1);
        bill.initDiscountInfoForXTCI();
        VelProductAbstract* article = product(cell("article").toInt());
        if (cell("article") == "T")
            article = bill.transferProduct();
        else if (cell("article") == "X")
            article =
                VelProductRegistry::instance()->expressAgioProduct(bill.shippingGroup(), ExpressableType_EXPRESS_1);
        QStringList descriptions;
        for (const QString& count : cell("counts").split(' ')) {
            QVERIFY(bill.itemsAvailableInCurrentDiscountLevel(article) >= count.toInt());
            descriptions.append(described(bill, article, count.toInt()));
        }
        QCOMPARE(descriptions.join(' '), cell("descriptions"));
        QVERIFY(bill.discountInformationList(article)->isEmpty());
        QCOMPARE(bill.itemsAvailableInCurrentDiscountLevel(article), 0);
    }

    void groupsOfOneLevel()
    {
        VelTarmBill bill = ::bill(1, "2x8 7x2");
        bill.initDiscountInfoForXTCI();
        QCOMPARE(bill.itemsAvailableInCurrentDiscountLevel(product(2)), 5);
        QCOMPARE(bill.itemsAvailableInCurrentDiscountLevel(product(7)), 0); // without a price
        QCOMPARE(described(bill, product(2), 3, false), "//1000//");
        QCOMPARE(bill.itemsAvailableInCurrentDiscountLevel(product(2)), 2);
        // Another model of the same level belongs to the run; the same level behind another one doesn't.
        bill.insertInfoDiscountInformationMap(product(7), DISCOUNT_MODEL_BULK, 1, false, 1, false, 0, 0);
        bill.insertInfoDiscountInformationMap(product(7), DISCOUNT_MODEL_PACKAGE, 1, true, 1, false, 0, 0);
        bill.insertInfoDiscountInformationMap(product(7), DISCOUNT_MODEL_BULK, 0, false, 1, false, 0, 0);
        bill.insertInfoDiscountInformationMap(product(7), DISCOUNT_MODEL_BULK, 1, false, 1, false, 0, 0);
        QCOMPARE(bill.itemsAvailableInCurrentDiscountLevel(product(7)), 2);
    }

    void feesAreNoItems()
    {
        VelTarmBill bill = ::bill(1, "6x2", ExpressableType_EXPRESS_1);
        bill.initDiscountInfoForXTCI();
        QCOMPARE(articlesOf(bill.orderPositions()), "6 501 701");
        QCOMPARE(bill.totalFinalCost(0), 2700);
    }

    void entries()
    {
        VelTarmBill bill = ::bill(4, "");
        bill.insertInfoDiscountInformationMap(product(1), DISCOUNT_MODEL_LEVEL_PACKAGE, 3, true, 40, true, 50, 60);
        bill.insertInfoDiscountInformationMap(product(1), DISCOUNT_MODEL_EXPRESS_FEE, 3, false, 41, true, 50, 60);
        const VelTarmBill::DiscountInformation first = bill.nextDiscountInfo(product(1), 0); // takes nothing
        QCOMPARE(first.discountModel, DISCOUNT_MODEL_LEVEL_PACKAGE);
        QVERIFY(first.discountLevel == 3 && first.isPackage && first.unitPrice == 40 && first.isTransferModel2);
        QVERIFY(first.baseTransferPrice == 50 && first.unitTransferPrice == 60);
        VelTarmBill copy(bill); // shares the list
        QCOMPARE(copy.nextDiscountInfo(product(1), -1).unitPrice, 40);
        QCOMPARE(described(copy, product(1), 1), "L/3/40/50/");
        QCOMPARE(bill.itemsAvailableInCurrentDiscountLevel(product(1)), 1);
        QCOMPARE(described(bill, product(1), 5), "X/3/41//"); // once, however many; more than there are
        QVERIFY(copy.discountInformationList(product(1))->isEmpty());
        QCOMPARE(described(copy, product(1), 1), "-/0/0//");
    }

private:
    TestAccount myAccount;
};

VEL_TEST_MAIN(DiscountInformationTest)
#include "tst_DiscountInformation.moc"
