#include "product/VelProductStorage.h"
#include "support/VelTestPriceList.h"

#include <QProcess>

#include <sys/resource.h>

using namespace VelProductStorage;

extern "C" std::size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

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

    /// The order holds in a process that can't have much address space, too.
    void littleAddressSpace()
    {
        if (__sanitizer_get_current_allocated_bytes)
            QSKIP("sanitizers need all addresses");
        QProcess child;
        child.start("/bin/sh",
                    {"-c", "ulimit -v 330000; exec \"$0\" readingOrder", QCoreApplication::applicationFilePath()});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitCode(), 0);
        QVERIFY(!child.readAll().contains("VelProductStorage"));
    }

    /// A refusal isn't told as a full storage, and it isn't for ever.
    void refusal()
    {
        if (__sanitizer_get_current_allocated_bytes)
            QSKIP("sanitizers need all addresses");
        const MessageCatcher messages;
        rlimit former{};
        getrlimit(RLIMIT_AS, &former);
        const rlimit none{0, former.rlim_max};
        setrlimit(RLIMIT_AS, &none);
        for (int i = 0; i < 1 << 16 && messages.texts().isEmpty(); ++i)
            allocate(SHELF_ARTICLES, 64);
        setrlimit(RLIMIT_AS, &former);
        QVERIFY(messages.texts().value(0).contains("refuses storage"));
        const auto* const next = static_cast<char*>(allocate(SHELF_ARTICLES, 64));
        QCOMPARE(static_cast<void*>(allocate(SHELF_ARTICLES, 64)), static_cast<const void*>(next + 64));
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
