#include "bill/VelTarmOrder.h"
#include "fuzz/FuzzBill.h"
#include "fuzz/FuzzShop.h"
#include "host/VelshopBill.h"
#include "host/VelshopCart.h"
#include "host/VelshopExitCode.h"

#include <QFile>
#include <QTextStream>

namespace {

/// The description of discounts has an entry for each piece.
const int MOST_PIECES_DESCRIBED = 2000;

/// The coupons lie where those of the sample shop do, seen from the cart.
void copyCoupons()
{
    for (const char* name : {"books10.xml", "shipping.xml"}) {
        QFile coupon(QStringLiteral(VELTARM_SOURCE_DIR "/shop/coupons/") + QLatin1String(name));
        FUZZ_REQUIRE(coupon.open(QIODevice::ReadOnly));
        FuzzShop::write(QStringLiteral("coupons/") + QLatin1String(name), coupon.readAll());
    }
}

int askBills(const VelshopCart& theCart)
{
    const VelTarmOrder order(theCart.myItems, theCart.myStatus, theCart.myExpress); // owns the bills
    for (const VelTarmOrderBill& bill : order.bills())
        askBill(bill.bill());
    int pieces = 0;
    for (const int count : theCart.myItems.items())
        pieces += count;
    return pieces;
}

int bill(const VelshopBillArguments& theArguments)
{
    QString output;
    VelshopError error;
    QTextStream stream(&output);
    const int exitCode = billCart(theArguments, stream, error);
    FUZZ_REQUIRE(error.isEmpty() == (exitCode == EXIT_DONE));
    return exitCode;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzShop::open();
    copyCoupons();
    return 0;
}

/// A cart file through `velshop bill`: as text with all its files, and as data.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    static const QString page = FuzzShop::write(QStringLiteral("page.html"), QByteArray());
    static const QString discounts = FuzzShop::write(QStringLiteral("discounts.xml"), QByteArray());
    VelshopBillArguments arguments;
    arguments.myCart = FuzzShop::write(QStringLiteral("carts/cart.json"),
                                       QByteArray(reinterpret_cast<const char*>(theData), static_cast<int>(theSize)));
    arguments.myHasOrderText = true;
    arguments.myIsJson = true;
    VelshopCart cart;
    VelshopError error;
    if (!readCart(arguments.myCart, cart, error)) {
        FUZZ_REQUIRE(bill(arguments) == EXIT_BAD_INPUT);
        return 0;
    }
    const int pieces = askBills(cart);
    const int exitCode = bill(arguments);
    arguments.myIsJson = false;
    arguments.myHtmlFile = page;
    if (pieces <= MOST_PIECES_DESCRIBED)
        arguments.myDiscountsFile = discounts;
    FUZZ_REQUIRE(bill(arguments) == exitCode);
    return 0;
}
