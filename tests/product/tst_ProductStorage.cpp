#include "product/VelProductStorage.h"
#include "support/VelTestPriceList.h"

/// The storage is that of the whole program, so the order of the tests matters.
class ProductStorageTest : public QObject
{
    Q_OBJECT

private slots:
    /// A main product that ends where the add-ons begin must not free room among them.
    void border()
    {
        using namespace VelProductStorage;
        char* const first = static_cast<char*>(allocate(SHELF_MAIN_PRODUCTS, 16));
        char* const addOns = static_cast<char*>(allocate(SHELF_ADD_ONS, 16));
        release(addOns, 16);
        const std::size_t rest = static_cast<std::size_t>(addOns - first) - 16;
        void* const last = allocate(SHELF_MAIN_PRODUCTS, rest);
        QCOMPARE(last, static_cast<void*>(first + 16));
        release(last, rest);
        char* const addOn = static_cast<char*>(allocate(SHELF_ADD_ONS, 16));
        QCOMPARE(static_cast<void*>(addOn), static_cast<void*>(addOns));
        release(addOn, 16);
        release(first, 16);
    }

    void room()
    {
        using namespace VelProductStorage;
        void* const first = allocate(SHELF_ADD_ONS, 1);
        void* const second = allocate(SHELF_ADD_ONS, 17);
        QCOMPARE(static_cast<char*>(second) - static_cast<char*>(first), 16); // aligned for any object
        release(first, 1);
        QVERIFY(allocate(SHELF_ADD_ONS, 1) > second); // only the last one makes room
    }

    /// In reading order, which is that of the sections and not that of the document or of the ids; over three price
    /// lists, of two key accounts.
    void readingOrder()
    {
        loadPriceList(myAccount, R"(
            add_on id='31' product_class='x'
            article id='9' arrangement='trivial'
            article id='8' arrangement='gift' | | | [G] TYPE=ALB8
            article id='7' arrangement='trivial'
        )");
        loadPriceList(myAccount, R"(
            article id='6' arrangement='trivial'
            article id='7' arrangement='trivial'
            add_on id='30' product_class='x'
            add_on id='31' product_class='x'
        )");
        const TestAccount other;
        loadPriceList(other, R"(
            add_on id='29' product_class='x'
            article id='5' arrangement='trivial'
            article id='9' arrangement='trivial'
        )");
        const VelTarmBill bill = ::bill(1, "5x1 6x1 7x1 8x1 9x1 29x1 30x1 31x1");
        QCOMPARE(articlesOf(bill.orderPositions()), "9 8 7 6 5 31 30 29");
    }

    /// What the registry refuses leaves no gap.
    void droppedProducts()
    {
        loadPriceList(myAccount, "article id='40' arrangement='trivial'\narticle id='41' arrangement='trivial'");
        QString list("article id='42' arrangement='trivial'\n");
        for (int id = 50; id < 150; ++id)
            list += QString("article id='%1' arrangement='gift' | | | [G] TYPE=WALL\n").arg(id);
        loadPriceList(myAccount, (list + "article id='43' arrangement='trivial'").toUtf8());
        QVERIFY(!product(50));
        const auto distance = [](int theFrom, int theTo) {
            return reinterpret_cast<char*>(product(theTo)) - reinterpret_cast<char*>(product(theFrom));
        };
        QCOMPARE(distance(42, 43), distance(40, 41));
    }

    void exhaustion()
    {
        using namespace VelProductStorage;
        static auto* const room = new QList<void*>; // never freed: the storage stays full
        const MessageCatcher messages;
        for (const Shelf shelf : {SHELF_MAIN_PRODUCTS, SHELF_ADD_ONS})
            for (std::size_t size = 1 << 26; size >= 16; size /= 2) // leaves less than 16 bytes
                for (int i = 0; i < 2; ++i)
                    room->append(allocate(shelf, size));
        const QString warning =
            "VelProductStorage: the reserved storage is used up, products come from the heap from now on";
        QCOMPARE(messages.texts(), QStringList(warning));
        const VelProductAbstract* const known = product(9);
        loadPriceList(myAccount, R"(
            article id='9' arrangement='trivial' | 0=4
            article id='60' arrangement='trivial' | 0=100 1@2=80
            article id='61' arrangement='gift' | | | [G] TYPE=WALL
            add_on id='70' product_class='x' | I0=9 I1=5 | | [A] | 60
        )");
        QCOMPARE(messages.texts(), QStringList(warning));
        QCOMPARE(product(9), known);
        QVERIFY(!product(61));
        QCOMPARE(bill(1, "60x2").totalFinalCost(0), 160);
        QCOMPARE(product(70)->price(priceKey(0, DISCOUNT_MODEL_BULK), 1, 1), 9);
    }

private:
    TestAccount myAccount;
};

VEL_TEST_MAIN(ProductStorageTest)
#include "tst_ProductStorage.moc"
