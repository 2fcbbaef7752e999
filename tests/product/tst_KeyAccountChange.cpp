#include "frame/VelTarmInitializer.h"
#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "price/VelTarmPriceKey.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "product/VelProductStorage.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"
#include "support/VelTestAccount.h"

#include <atomic>
#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <thread>

/// The allocator of the address sanitizer counts for itself.
extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

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
    }
};

/// What the heap holds, the storage of the products aside.
qint64 bytesOnTheHeap()
{
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes ? __sanitizer_get_current_allocated_bytes()
                                                                       : mallinfo2().uordblks);
}

/// What a shelf of the products' storage holds, from any fixed point.
qint64 bytesOnShelf(VelProductStorage::Shelf theShelf)
{
    void* const next = VelProductStorage::allocate(theShelf, 1);
    VelProductStorage::release(next, 1);
    return static_cast<qint64>(reinterpret_cast<quintptr>(next));
}

qint64 bytesHeld()
{
    return bytesOnTheHeap() + bytesOnShelf(VelProductStorage::SHELF_MAIN_PRODUCTS) +
           bytesOnShelf(VelProductStorage::SHELF_ADD_ONS) + bytesOnShelf(VelProductStorage::SHELF_ARTICLES);
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

    /// A document that got lost on its way takes its goods or its order ways along, and comes back whole.
    void damagedDocuments_data()
    {
        readTable(R"(
            row            | file                | kept | sells | orderWays
            no prices      | pricelist.xml       | -1   | 0     | 1
            empty prices   | pricelist.xml       | 0    | 0     | 1
            half of prices | pricelist.xml       | 50   | 0     | 1
            no details     | orderingdetails.xml | -1   | 1     | 0
            empty details  | orderingdetails.xml | 0    | 1     | 0
            half a details | orderingdetails.xml | 50   | 1     | 0
        )");
    }

    void damagedDocuments()
    {
        const AccountCopy account(LARGE);
        const QString file = account.path(cell("file"));
        const QByteArray whole = content(file);
        account.activate();
        const QStringList before = picture();
        {
            const MessageCatcher messages;
            if (number("kept") < 0)
                QFile::remove(file);
            else
                account.write(cell("file"), whole.left(whole.size() * number("kept") / 100));
            account.activate();
            const VelProductAbstract* product = VelProductRegistry::instance()->productWithArticleID(103);
            QCOMPARE(!product->isDeprecated(), number("sells") == 1);
            QCOMPARE(mailPrice(103, 50), 650); // a product that left keeps its old price
            QCOMPARE(!VelOrderingDetails::instance()->availableOrderSources().isEmpty(), number("orderWays") == 1);
            QVERIFY(!messages.texts().isEmpty());
        }
        account.write(cell("file"), whole);
        account.activate();
        QCOMPARE(picture(), before);
    }

    /// One that is replaced as a whole is read as the one or the other; one that is written over in place may come to
    /// nothing for once, and does no harm.
    void replacedWhileRead_data() { readTable("row | isRenamed\n by another file | 1\n in place | 0"); }

    void replacedWhileRead()
    {
        const AccountCopy account(SMALL);
        account.activate();
        const QStringList small = picture();
        const QByteArray first = content(account.path("pricelist.xml"));
        const QByteArray second = QByteArray(first).replace("name=\"Print M\"", "name=\"Print X\"");
        const std::string file = account.path("pricelist.xml").toStdString();
        const std::string draft = number("isRenamed") ? account.path("draft.xml").toStdString() : file;
        std::atomic_bool isDone{false};
        std::thread writer([&] {
            for (bool isFirst = false; !isDone; isFirst = !isFirst) {
                const QByteArray& bytes = isFirst ? first : second;
                std::ofstream(draft).write(bytes.constData(), bytes.size());
                if (draft != file)
                    std::rename(draft.c_str(), file.c_str());
            }
        });
        const QStringList renamed = QStringList(small).replaceInStrings("103 Print M", "103 Print X");
        bool isWhole = true;
        {
            const MessageCatcher messages;
            for (int load = 0; load < 50; ++load) {
                VelProductRegistry::instance()->loadAllProducts();
                const QStringList now = picture();
                isWhole = isWhole && (now == small || now == renamed);
            }
        }
        isDone = true;
        writer.join();
        QVERIFY(isWhole || !number("isRenamed"));
        account.write("pricelist.xml", first);
        account.activate();
        QCOMPARE(picture(), small);
    }

    /// The price list first and the details second, each twice, and in the middle of the other's signal.
    void signalsOutOfOrder()
    {
        activate(LARGE);
        const QStringList large = picture();
        activate(SMALL);
        VelProductRegistry* registry = VelProductRegistry::instance();
        VelOrderingDetails* details = VelOrderingDetails::instance();
        VelKeyAccount::instance()->setPricelistXMLFileInfo(QFileInfo(LARGE + "/pricelist.xml"));
        VelKeyAccount::instance()->setOrderingDetailsXMLFileInfo(QFileInfo(LARGE + "/orderingdetails.xml"));
        const auto again =
            connect(details, &VelOrderingDetails::changed, registry, [=] { registry->loadAllProducts(); });
        registry->loadAllProducts();
        registry->loadAllProducts();
        details->update();
        details->update();
        disconnect(again);
        QCOMPARE(picture(), large);
    }

    /// What a change of the key account keeps for good: fee products, payment items and shipping groups, to which the
    /// host may hold pointers. The guide of embedding names this bound.
    void memoryOfManyChanges()
    {
        const auto change = [](int theTimes) {
            for (int round = 0; round < theTimes; ++round)
                activate(round % 2 == 0 ? SMALL : LARGE);
        };
        change(20);
        const qint64 before = bytesHeld();
        change(1000);
        const qint64 perLoad = (bytesHeld() - before) / 1000;
        QVERIFY2(perLoad < 16 * 1024, qPrintable(QString::number(perLoad)));
    }
};

VEL_TEST_MAIN(KeyAccountChangeTest)
#include "tst_KeyAccountChange.moc"
