#include "insight/VelPriceGaps.h"
#include "price/VelTarmPriceView.h"
#include "properties/NastyShop.h"
#include "support/VelTestPriceList.h"

namespace {

const int ASKED = 300; ///< bands of generated shops begin below, or beyond the range

/// As the desk sells: without a line below 0, and without a package of less than one piece.
bool isSold(const VelTarmPriceAnswer& theAnswer)
{
    return std::all_of(theAnswer.begin(), theAnswer.end(), [](const VelTarmPriceCharge& theCharge) {
        return theCharge.myBand->price() >= 0 && theCharge.myPieces > 0;
    });
}

bool isPricedAt(const VelPriceGaps::Cell& theCell, int theQuantity)
{
    const auto holds = [=](const VelPriceGaps::Hole& theHole) {
        return theHole.myFrom <= theQuantity && theQuantity <= theHole.myTo;
    };
    return theCell.isPriced() && theQuantity >= theCell.myFrom &&
           (theCell.myUpTo == 0 || theQuantity <= theCell.myUpTo) &&
           std::none_of(theCell.myHoles.cbegin(), theCell.myHoles.cend(), holds);
}

/// The first quantity for which the cell says otherwise than the price, 0 for none.
int wrongQuantity(const VelPriceGaps::Row& theRow, int theWay, const VelPriceGaps& theGaps,
                  VelPriceCurve::Reading theReading)
{
    const VelOrderSource source = theGaps.ways().at(theWay).mySource;
    const VelPriceCurve curve(*theRow.myProduct, source);
    for (int quantity = 1; quantity <= qMin(ASKED, curve.endsAt()); ++quantity) {
        const int price =
            theRow.myProduct->priceFor(priceKey(-1, DISCOUNT_MODEL_UNDEFINED, source), quantity, 1, nullptr, nullptr);
        const bool isPriced = price != -1 && (theReading == VelPriceCurve::AS_PRICED ||
                                              isSold(VelTarmPriceView(*theRow.myProduct, source).best(quantity, 1)));
        if (isPricedAt(theRow.myCells.at(theWay), quantity) != isPriced)
            return quantity;
    }
    return 0;
}

const VelPriceGaps::Cell& cellOf(const VelPriceGaps& theGaps, int theArticle, const VelOrderSource& theSource)
{
    int way = 0;
    while (theGaps.ways().at(way).mySource != theSource)
        ++way;
    for (const VelPriceGaps::Row& row : theGaps.articles())
        if (row.myProduct->articleID() == theArticle)
            return row.myCells.at(way);
    for (const VelPriceGaps::FeeRow& row : theGaps.fees())
        if (row.myFee.myProduct && row.myFee.myProduct->articleID() == theArticle)
            return row.myCells.at(way);
    qFatal("no row of %d", theArticle);
}

QString said(const VelPriceGaps::Cell& theCell)
{
    static const QStringList reasons = {"priced",    "no entries",   "no entry here", "no amount",
                                        "refused",   "beyond range", "out of reach",  "too large",
                                        "with main", "no fee",       "not permitted"};
    if (!theCell.isPriced())
        return reasons.at(theCell.myWhy);
    QString text = QString(theCell.myIsBySum ? "sum %1" : "%1").arg(theCell.myFrom);
    for (const VelPriceGaps::Hole& hole : theCell.myHoles)
        text += QString(" without %1-%2").arg(hole.myFrom).arg(hole.myTo);
    return theCell.myUpTo > 0 ? text + QString(" up to %1").arg(theCell.myUpTo) : text;
}

} // namespace

class PriceGapsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        myAccount.activateWithDetails("<o><order_sources><order_source input_source='0' delivery_type='1'>"
                                      "<permitted_pay_method id='3'/><permitted_pay_method id='8'/></order_source>"
                                      "</order_sources></o>");
    }

    void cells_data()
    {
        readTable(R"(
            row                         | article | asPriced      | asSold
            from one                    | 1       | 1             | 1
            from the first package      | 2       | 5             | 5
            hole                        | 3       | 1             | 1 without 5-8
            nothing beyond              | 4       | 1             | 1 up to 4
            below 0                     | 5       | 1             | refused
            no entry                    | 6       | no entries    | no entries
            sold by another way         | 7       | no entry here | no entry here
            no price attribute          | 8       | 2             | no amount
            first package too late      | 9       | beyond range  | beyond range
            package without a band      | 10      | out of reach  | out of reach
            too dear for 32 bits        | 13      | too large     | too large
            level of a main product     | 11      | with main     | with main
            level that no main reaches  | 12      | out of reach  | out of reach
            shipping by sum alone       | 51      | sum 5000      | sum 5000
            shipping by products        | 52      | 1             | 1
            payment                     | 61      | 1             | 1
            payment without entries     | 62      | no fee        | no fee
            payment of no order way     | 63      | not permitted | not permitted
            express without a price     | 71      | no amount     | no amount
        )");
    }

    void cells()
    {
        loadPriceList(myAccount, R"(
            article id='1' arrangement='trivial' group='1' | prices B0=10 B1@5=9
            article id='2' arrangement='trivial'  | prices P1@5=50 p2@10=4
            article id='3' arrangement='trivial'  | prices B0=10 B1@5=-1 B2@9=7
            article id='4' arrangement='trivial'  | prices B0=10 B1@5=-1 B2@2147483647=-1
            article id='5' arrangement='trivial'  | prices B0=-5
            article id='6' arrangement='trivial'
            article id='7' arrangement='trivial'  | prices B0=10 | with input_source='1'
            article id='8' arrangement='trivial'  | prices B0@3
            article id='9' arrangement='trivial'  | prices P1@100001=5
            article id='10' arrangement='trivial' | prices P0@1=5
            article id='13' arrangement='trivial' | prices P1@1=2147483647 p2@1=2147483647
            add_on id='11' product_class='A'      | links 3 2 | prices I2=5
            add_on id='12' product_class='A'      | links 1 | prices I2=5
            transfer id='51' group='-1'           | prices Z1@5000=0
            transfer id='52' group='1' model='2'  | prices F0=0
            paymethod_fee id='61' pay_method_id='3' | prices B0=95
            paymethod_fee id='62' pay_method_id='8'
            paymethod_fee id='63' pay_method_id='9'
            express_fee id='71' group='1' express='1' | prices X0@1=-1
        )");
        const VelPriceGaps asPriced;
        const VelPriceGaps asSold(VelPriceCurve::AS_SOLD);
        QCOMPARE(said(cellOf(asPriced, number("article"), VelOrderSource::onlineMailOrder())), cell("asPriced"));
        QCOMPARE(said(cellOf(asSold, number("article"), VelOrderSource::onlineMailOrder())), cell("asSold"));
    }

    /// Listed ways first, whatever is sold by them, then those by which something is sold all the same. What the
    /// articles need and the price list doesn't have is a fee without a product.
    void waysAndFees()
    {
        loadPriceList(myAccount, R"(
            article id='3' arrangement='trivial' group='1' | prices B0=10 | with input_source='1' delivery_type='0'
            article id='4' arrangement='gift' group='2' | prices B0=-1 | express 2
            transfer id='51' group='1' | prices F0=0
        )");
        const VelPriceGaps gaps;
        QCOMPARE(gaps.ways().size(), 2);
        QVERIFY(gaps.ways().at(0).mySource.isOnlineMailOrder() && gaps.ways().at(0).myIsOffered);
        QVERIFY(gaps.ways().at(1).mySource.isCDPointOfSale() && !gaps.ways().at(1).myIsOffered);
        QStringList fees;
        for (const VelPriceGaps::FeeRow& row : gaps.fees())
            fees.append(QString("%1 %2 %3 %4: %5")
                            .arg(row.myFee.myKind)
                            .arg(row.myFee.myGroup)
                            .arg(row.myFee.myPayment)
                            .arg(row.myFee.myExpress)
                            .arg(said(row.myCells.at(0))));
        const QString unknown = QString::number(PAYMENT_TYPE_UNKNOWN);
        QCOMPARE(fees, QStringList({"0 1 " + unknown + " 0: 1", "0 2 " + unknown + " 0: no fee", "1 -1 3 0: no fee",
                                    "1 -1 8 0: no fee", "2 2 " + unknown + " 3: no fee"}));
    }

    /// VELTARM_SEEDS sets how many shops there are.
    void generatedShops()
    {
        const int count =
            qEnvironmentVariableIsSet("VELTARM_SEEDS") ? qEnvironmentVariableIntValue("VELTARM_SEEDS") : 300;
        for (int seed = 1; seed <= count; ++seed) {
            VelProductRegistry::instance()->updateProducts(parsedElement(NastyShop(static_cast<unsigned>(seed)).xml()));
            const auto reading = seed % 2 == 0 ? VelPriceCurve::AS_SOLD : VelPriceCurve::AS_PRICED;
            const VelPriceGaps gaps(reading);
            for (const VelPriceGaps::Row& row : gaps.articles())
                for (int way = 0; way < gaps.ways().size(); ++way)
                    QVERIFY2(wrongQuantity(row, way, gaps, reading) == 0,
                             qPrintable(QString("seed %1, article %2, way %3, quantity %4")
                                            .arg(seed)
                                            .arg(row.myProduct->articleID())
                                            .arg(way)
                                            .arg(wrongQuantity(row, way, gaps, reading))));
        }
    }

private:
    const TestAccount myAccount;
};

VEL_TEST_MAIN(PriceGapsTest)
#include "tst_PriceGaps.moc"
