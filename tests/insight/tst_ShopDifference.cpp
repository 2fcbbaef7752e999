#include "frame/VelChildElements.h"
#include "insight/VelShopDifference.h"
#include "insight/VelShopFees.h"
#include "price/VelTarmPriceView.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"
#include "sibling/VelXMLLoader.h"
#include "support/VelTestMain.h"
#include "support/VelTestMessages.h"

#include <QBuffer>
#include <QDataStream>

namespace {

const int HIGHEST = 10000;
const int NO_PRICE = std::numeric_limits<int>::min();

using Totals = QMap<VelOrderSource, QVector<int>>;

QList<VelOrderSource> orderSources()
{
    return {VelOrderSource::onlinePointOfSale(), VelOrderSource::onlineMailOrder(), VelOrderSource::cdPointOfSale(),
            VelOrderSource::cdMailOrder(), VelOrderSource::kioskOnSite()};
}

/// What so many pieces are sold for, asked for themselves.
int soldFor(const VelTarmPriceView& theView, VelDiscountModel theKeyModel, int theQuantity)
{
    const VelTarmPriceAnswer answer = theKeyModel == DISCOUNT_MODEL_EXPRESS_FEE
                                          ? theView.inModel(theKeyModel, theQuantity, 1)
                                          : theView.best(theQuantity, 1);
    for (const VelTarmPriceCharge& charge : answer)
        if (charge.myBand->price() < 0 || charge.myPieces < 1)
            return NO_PRICE;
    return answer.myPrice == -1 ? NO_PRICE : answer.myPrice;
}

Totals totalsOf(int theArticle)
{
    const VelProductAbstract* product = VelProductRegistry::instance()->productWithArticleID(theArticle);
    VelDiscountModel keyModel = DISCOUNT_MODEL_UNDEFINED;
    if (!product) {
        const VelShopFees::Fee fee = VelShopFees::find(theArticle);
        product = fee.myProduct;
        keyModel = VelShopFees::keyModel(fee.myKind);
    }
    Totals totals;
    for (const VelOrderSource& source : orderSources())
        for (int quantity = 1; quantity <= HIGHEST; ++quantity)
            totals[source].append(soldFor(VelTarmPriceView(*product, source), keyModel, quantity));
    return totals;
}

int valueAt(const VelTotalsInterval& theInterval, const VelTotalsInterval::Line& theLine, int theQuantity)
{
    return theLine.myHasPrice ? theLine.myFirst + (theQuantity - theInterval.myFrom) * theLine.myPerPiece : NO_PRICE;
}

/// The totals of both sides, the new ones put together from the old ones and the intervals.
Totals changed(Totals theOld, const QVector<VelTotalsChange>& theChanges, QString& theFailure)
{
    for (const VelTotalsChange& change : theChanges) {
        if (change.myVariable != VelPriceCurve::BY_QUANTITY || change.myLevel > 0)
            continue;
        QVector<int>& totals = theOld[change.mySource];
        for (const VelTotalsInterval& interval : change.myIntervals)
            for (int quantity = interval.myFrom; quantity <= qMin(interval.myTo, HIGHEST); ++quantity) {
                const int before = valueAt(interval, interval.myOld, quantity);
                const int after = valueAt(interval, interval.myNew, quantity);
                if (before != totals.at(quantity - 1) || before == after)
                    theFailure = QString("%1 pieces were %2").arg(quantity).arg(totals.at(quantity - 1));
                totals[quantity - 1] = after;
            }
    }
    return theOld;
}

/// The snapshot of a shop, sent from one process to another.
VelShopSnapshot sent(const VelShopSnapshot& theSnapshot)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << theSnapshot;
    VelShopSnapshot snapshot;
    QDataStream in(bytes);
    in >> snapshot;
    return in.status() == QDataStream::Ok && in.atEnd() ? snapshot : VelShopSnapshot();
}

VelShopSnapshot read(const QDomElement& theRoot)
{
    VelProductRegistry::instance()->updateProducts(theRoot);
    return sent(VelShopSnapshot::taken());
}

} // namespace

/// Two shops compared by effect.
class ShopDifferenceTest : public QObject
{
    Q_OBJECT

    QDomElement myRoot;

    QList<QDomElement> entries(const char* thePrices) const
    {
        QList<QDomElement> entries;
        for (const QDomElement& section : VelChildElements(myRoot))
            for (const QDomElement& article : VelChildElements(section))
                for (const QDomElement& price : VelChildElements(article.firstChildElement(thePrices)))
                    entries.append(price);
        return entries;
    }

private slots:
    void initTestCase()
    {
        VelDirectoryConfig::instance()->setConfigurationDirectory(VELTARM_SOURCE_DIR "/shop");
        VelDirectoryConfig::instance()->setResourceDirectory(VELTARM_SOURCE_DIR "/shop");
        VelKeyAccount::instance()->activate(QDir(VELTARM_SOURCE_DIR "/shop"));
        myRoot = VelXMLLoader::loadDocumentElement(VelKeyAccount::instance()->pricelistXMLFileInfo(false));
        QVERIFY(VelProductRegistry::instance()->productList().size() > 100);
    }

    void editsOfPrices_data()
    {
        readTable(R"(
            row                 | group           | attribute      | value
            dearer              | base_prices     | price          | 17
            no price            | discount_prices | price          | -1
            free                | discount_prices | price          | 0
            later               | discount_prices | quantity       | 77
            at once             | discount_prices | quantity       | 1
            another level       | discount_prices | level          | 2
            package             | discount_prices | type           | P
            level package       | discount_prices | type           | L
            inherited           | discount_prices | type           | d
            by sum              | discount_prices | type           | Z
            unknown letter      | base_prices     | type           | Q
            net alone           | base_prices     | input_source   | 0
            kiosk               | discount_prices | input_source   | 4
            no source           | discount_prices | input_source   | 7
            on site             | base_prices     | delivery_type  | 2
        )");
    }

    /// Exactly the quantities that come to something else when each is asked, and no other article.
    void editsOfPrices()
    {
        const QList<QDomElement> prices = entries(cell("group").toUtf8());
        const VelShopSnapshot before = read(myRoot);
        for (int index = 0; index < prices.size(); index += 37) {
            QDomElement price = prices.at(index);
            const int article = price.parentNode().parentNode().toElement().attribute("id").toInt();
            const Totals old = totalsOf(article);
            const QDomElement kept = price.cloneNode().toElement();
            price.setAttribute(cell("attribute"), cell("value"));
            const VelShopDifference difference(before, read(myRoot));
            QString failure;
            QVector<VelTotalsChange> changes;
            for (const VelShopEntryChange& change : difference.changed()) {
                QCOMPARE(change.myNew.myArticle, article);
                changes = change.myTotals;
            }
            const bool isSame = changed(old, changes, failure) == totalsOf(article);
            price.parentNode().replaceChild(kept, price);
            QVERIFY2(isSame && failure.isEmpty(), qPrintable(QString("article %1: %2").arg(article).arg(failure)));
        }
        QVERIFY(VelShopDifference(before, read(myRoot)).isEmpty());
    }
};

VEL_TEST_MAIN(ShopDifferenceTest)
#include "tst_ShopDifference.moc"
