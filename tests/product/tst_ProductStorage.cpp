#include "product/VelProductStorage.h"
#include "support/VelTestPriceList.h"

using namespace VelProductStorage;

/// The storage is that of the whole program, so the order of the tests matters.
class ProductStorageTest : public QObject
{
    Q_OBJECT

private slots:
    /// The last object of a shelf makes room; a main product that ends where the add-ons begin frees none among them.
    void room()
    {
        char* const first = static_cast<char*>(allocate(SHELF_MAIN_PRODUCTS, 1));
        char* const addOn = static_cast<char*>(allocate(SHELF_ADD_ONS, 1));
        release(addOn, 1);
        const std::size_t rest = static_cast<std::size_t>(addOn - first) - 16;
        void* const last = allocate(SHELF_MAIN_PRODUCTS, rest);
        QCOMPARE(last, static_cast<void*>(first + 16)); // aligned for any object
        release(last, rest);
        QCOMPARE(allocate(SHELF_ADD_ONS, 1), static_cast<void*>(addOn));
        release(first, 1);
    }

    /// In reading order, which is that of the sections and not that of the document or of the ids, over two price
    /// lists; what the registry refuses leaves no gap.
    void readingOrder()
    {
        loadPriceList(myAccount, R"(
            add_on id='31' product_class='x'
            article id='9' arrangement='trivial'
            article id='8' arrangement='trivial'
            article id='50' arrangement='gift' | text [G] TYPE=WALL
            article id='7' arrangement='trivial'
        )");
        loadPriceList(myAccount, R"(
            article id='6' arrangement='trivial'
            article id='7' arrangement='trivial'
            add_on id='30' product_class='x'
        )");
        QCOMPARE(articlesOf(bill(1, "6x1 7x1 8x1 9x1 30x1 31x1").orderPositions()), "9 8 7 6 31 30");
        const auto address = [](int theId) { return reinterpret_cast<quintptr>(product(theId)); };
        QCOMPARE(address(7) - address(8), address(8) - address(9));
    }

    void exhaustion()
    {
        static auto* const room = new QList<void*>; // never freed: the storage stays full
        const MessageCatcher messages;
        for (const Shelf shelf : {SHELF_MAIN_PRODUCTS, SHELF_ADD_ONS})
            for (std::size_t size = 1 << 26; size >= 16; size /= 2) // leaves less than 16 bytes
                for (int i = 0; i < 2; ++i)
                    room->append(allocate(shelf, size));
        loadPriceList(myAccount, R"(
            article id='60' arrangement='trivial' | prices 0=100 1@2=80
            article id='61' arrangement='gift' | text [G] TYPE=WALL
        )");
        QCOMPARE(messages.texts().size(), 1);
        QVERIFY(!product(61)); // freed as it came
        QCOMPARE(bill(1, "60x2").totalFinalCost(0), 160);
    }

private:
    TestAccount myAccount;
};

VEL_TEST_MAIN(ProductStorageTest)
#include "tst_ProductStorage.moc"
