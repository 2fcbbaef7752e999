#include "frame/VelTarmInitializer.h"
#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "sibling/VelDirectoryConfig.h"
#include "support/VelTestPriceList.h"

namespace {

const QString LARGE = QStringLiteral(VELTARM_SOURCE_DIR "/shop");
const QString SMALL = QStringLiteral(VELTARM_SOURCE_DIR "/shop-small");

VelOrderingDetails* details()
{
    return VelOrderingDetails::instance();
}

void activate(const QString& theFolder)
{
    VelKeyAccount::instance()->activate(QDir(theFolder));
}

/// All that a customer could see of the key account, in a comparable form.
QStringList picture()
{
    QStringList lines;
    for (const VelProductAbstract* product : VelProductRegistry::instance()->productList()) {
        if (product->isDeprecated())
            continue;
        QString line = QStringLiteral("%1 %2").arg(product->articleID()).arg(product->fullQualifiedName());
        for (const VelOrderSource& source : details()->availableOrderSources())
            for (const int count : {1, 10, 60, 120})
                line +=
                    QStringLiteral(" %1").arg(product->price(priceKey(-1, DISCOUNT_MODEL_UNDEFINED, source), count, 0));
        lines.append(line);
    }
    lines.sort(); // the list's order is that of first appearance, whichever account came first
    for (const VelTarmShippingGroup* group : VelTarmShippingGroupManager::instance()->shippingGroups())
        lines.append(QStringLiteral("%1 %2 %3").arg(group->id()).arg(group->name()).arg(group->transferModel()));
    return lines + details()->namesOfOrderingDetails() + QStringList(details()->currency());
}

QByteArray content(const QString& theFile)
{
    QFile file(theFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A key account with copies of a sample's documents.
struct AccountCopy : TestAccount
{
    explicit AccountCopy(const QString& theFolder)
    {
        for (const QString file : {"pricelist.xml", "orderingdetails.xml"})
            write(file, content(theFolder + "/" + file));
        activate();
    }
};

} // namespace

/// From one sample account to the other and back, also with documents that are lost.
class KeyAccountChangeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        VelDirectoryConfig::instance()->setConfigurationDirectory(LARGE);
        activate(LARGE);
        VelTarmInitializer().setupModule();
    }

    /// A document that got lost on its way takes its goods or its order ways along, and comes back whole.
    void damagedDocuments_data()
    {
        readTable(R"(
            row            | file                | keptPercent | sells | hasOrderWays | problem
            no prices      | pricelist.xml       | -1          | no    | yes          | : No such
            half of prices | pricelist.xml       | 50          | no    | yes          | , line [1-9]\d*, column [1-9]\d*:
            half a details | orderingdetails.xml | 50          | yes   | no           | , line [1-9]\d*, column [1-9]\d*:
        )");
    }

    void damagedDocuments()
    {
        const MessageCatcher messages;
        const AccountCopy account(LARGE);
        const QStringList before = picture();
        const QByteArray whole = content(account.path(cell("file")));
        QFile::remove(account.path(cell("file")));
        if (number("keptPercent") >= 0)
            account.write(cell("file"), whole.left(whole.size() * number("keptPercent") / 100));
        account.activate();
        QCOMPARE(!product(103)->isDeprecated(), answer("sells"));
        QCOMPARE(product(103)->price(priceKey(-1, DISCOUNT_MODEL_UNDEFINED), 50, 0), 650); // also if it left
        QCOMPARE(!details()->availableOrderSources().isEmpty(), answer("hasOrderWays"));
        QVERIFY(!messages.texts().isEmpty());
        const VelTarmLoadResult prices = VelProductRegistry::instance()->lastLoad();
        const VelTarmLoadResult load = answer("sells") ? details()->lastLoad() : prices;
        const QRegularExpression problem("^" + QRegularExpression::escape(account.path(cell("file"))) +
                                         cell("problem"));
        QVERIFY2(!load.wasRead() && load.problem().contains(problem), qPrintable(load.problem()));
        QCOMPARE(prices.updatedProducts() == 0, !answer("sells"));
        account.write(cell("file"), whole);
        account.activate();
        QCOMPARE(picture(), before);
        QVERIFY(details()->lastLoad().wasRead() && details()->lastLoad().problem().isNull());
    }

    /// The price list first and the details second, each twice, and in the middle of the other's signal.
    void signalsOutOfOrder()
    {
        activate(LARGE);
        const QStringList large = picture();
        activate(SMALL);
        VelKeyAccount::instance()->setPricelistXMLFileInfo(QFileInfo(LARGE + "/pricelist.xml"));
        VelKeyAccount::instance()->setOrderingDetailsXMLFileInfo(QFileInfo(LARGE + "/orderingdetails.xml"));
        const auto again =
            connect(details(), &VelOrderingDetails::changed, [] { VelProductRegistry::instance()->loadAllProducts(); });
        for (int time = 0; time < 2; ++time)
            VelProductRegistry::instance()->loadAllProducts();
        for (int time = 0; time < 2; ++time)
            details()->update();
        disconnect(again);
        QCOMPARE(picture(), large);
    }
};

VEL_TEST_MAIN(KeyAccountChangeTest)
#include "tst_KeyAccountChange.moc"
