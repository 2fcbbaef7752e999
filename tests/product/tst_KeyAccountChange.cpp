#include "frame/VelTarmInitializer.h"
#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "price/VelTarmPriceKey.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"
#include "support/VelTestMain.h"

namespace {

const QString LARGE = QStringLiteral(VELTARM_SOURCE_DIR "/shop");
const QString SMALL = QStringLiteral(VELTARM_SOURCE_DIR "/shop-small");

void activate(const QString& theFolder)
{
    VelKeyAccount::instance()->activate(QDir(theFolder));
}

int mailPrice(int theArticle, int theCount)
{
    const VelTarmPriceKey key(VelOrderSource::onlineMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED);
    return VelProductRegistry::instance()->productWithArticleID(theArticle)->price(key, theCount, 0);
}

/// All that a customer could see of the key account, in a comparable form.
QStringList picture()
{
    QStringList lines;
    for (const VelProductAbstract* product : VelProductRegistry::instance()->productList()) {
        if (product->isDeprecated())
            continue;
        QString line = QStringLiteral("%1 %2").arg(product->articleID()).arg(product->fullQualifiedName());
        for (const VelOrderSource& source : VelOrderingDetails::instance()->availableOrderSources())
            for (const int count : {1, 10, 60, 120})
                line += QStringLiteral(" %1").arg(
                    product->price(VelTarmPriceKey(source, -1, DISCOUNT_MODEL_UNDEFINED), count, 0));
        lines.append(line);
    }
    lines.sort(); // the list's order is that of first appearance, whichever account came first
    lines += VelOrderingDetails::instance()->namesOfOrderingDetails();
    for (const VelTarmShippingGroup* group : VelTarmShippingGroupManager::instance()->shippingGroups())
        lines.append(QStringLiteral("%1 %2 %3").arg(group->id()).arg(group->name()).arg(group->transferModel()));
    lines.append(VelOrderingDetails::instance()->currency());
    return lines;
}

} // namespace

/// From one sample account to the other and back, several times.
class KeyAccountChangeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        VelDirectoryConfig::instance()->setResourceDirectory(LARGE);
        VelDirectoryConfig::instance()->setConfigurationDirectory(LARGE);
        activate(LARGE);
        VelTarmInitializer().setupModule();
    }

    void toAndFro()
    {
        const MessageCatcher messages;
        activate(LARGE);
        const QStringList large = picture();
        activate(SMALL);
        const QStringList small = picture();
        const int productCount = VelProductRegistry::instance()->productList().size();
        QSignalSpy loads(VelProductRegistry::instance(), SIGNAL(priceListUpdated()));
        QSignalSpy changes(VelOrderingDetails::instance(), SIGNAL(changed()));
        for (int round = 0; round < 5; ++round) {
            activate(LARGE);
            QCOMPARE(picture(), large);
            activate(SMALL);
            QCOMPARE(picture(), small);
        }
        QCOMPARE(loads.count(), 10);
        QCOMPARE(changes.count(), 10);
        QCOMPARE(VelProductRegistry::instance()->productList().size(), productCount);
        QCOMPARE(messages.texts(), QStringList());
    }

    void pointersStayUsable()
    {
        activate(LARGE);
        QCOMPARE(mailPrice(103, 50), 650); // 50 x 13
        VelProductRegistry* registry = VelProductRegistry::instance();
        const QList<VelProductAbstract*> products = registry->productList();
        const VelProductAbstract* onlyLarge = registry->productWithArticleID(102);
        const VelProductAbstract* transfer = registry->transferProduct(7);

        activate(SMALL);
        QCOMPARE(mailPrice(103, 50), 500); // 50 x 10
        QCOMPARE(registry->productList().mid(0, products.size()), products);
        QVERIFY(onlyLarge->isDeprecated() && !onlyLarge->isOrderable());
        QCOMPARE(onlyLarge->name(), "10x13 glänzend (nicht mehr lieferbar)");
        QCOMPARE(transfer->articleID(), 11007);
        QVERIFY(registry->transferProduct(7) != transfer);

        activate(LARGE);
        QVERIFY(!onlyLarge->isDeprecated() && onlyLarge->isOrderable());
    }
};

VEL_TEST_MAIN(KeyAccountChangeTest)
#include "tst_KeyAccountChange.moc"
