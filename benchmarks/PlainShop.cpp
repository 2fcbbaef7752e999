#include "benchmarks/PlainShop.h"

#include "benchmarks/PriceListFile.h"
#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

#include <algorithm>

namespace {

const int ARTICLES = 10000;
const int FIRST_ID = 20000000; // apart from those of the other lists, since a registry never forgets a product
const int MAX_COUNT = 130;

/// Eight of ten articles have a ladder, one packages, of which each tenth is free of shipping, and one its base price
/// alone.
std::vector<FlatBand> bandsOf(int theNumber)
{
    const int kind = theNumber % 10;
    const int price = 10 + theNumber % 90;
    const FlatBand base{DISCOUNT_MODEL_BULK, 0, 0, -1, price, false, 390 + 10 * kind, 50 + kind};
    if (kind == 9)
        return {base};
    if (kind == 7) {
        const auto model = theNumber % 100 == 7 ? DISCOUNT_MODEL_PACKAGE : DISCOUNT_MODEL_LEVEL_PACKAGE;
        return {{model, 3, 101, -1, price * 7 / 10, false, 0, 0},
                {model, 2, 51, 100, price * 38, true, 0, 0},
                {model, 1, 10, 50, price * 8, true, 0, 0},
                base};
    }
    return {{DISCOUNT_MODEL_BULK, 3, 100, -1, price * 7 / 10, false, 0, 0},
            {DISCOUNT_MODEL_BULK, 2, 50, 99, price * 8 / 10, false, 0, 0},
            {DISCOUNT_MODEL_BULK, 1, 25, 49, price * 9 / 10, false, 0, 0},
            base};
}

std::vector<std::vector<FlatBand>> allBands()
{
    std::vector<std::vector<FlatBand>> articles;
    for (int number = 0; number < ARTICLES; ++number)
        articles.push_back(bandsOf(number));
    return articles;
}

QString entryOf(const FlatBand& theBand)
{
    const QString letter = theBand.myModel == DISCOUNT_MODEL_BULK      ? QStringLiteral("B")
                           : theBand.myModel == DISCOUNT_MODEL_PACKAGE ? QStringLiteral("P")
                                                                       : QStringLiteral("L");
    return QStringLiteral("<price type='%1' level='%2' quantity='%3' price='%4' transfer_base_price='%5' "
                          "transfer_unit_price='%6'/>")
        .arg(theBand.myIsPackage || theBand.myLevel == 0 ? letter : letter.toLower())
        .arg(theBand.myLevel)
        .arg(theBand.myQuantity)
        .arg(theBand.myPrice)
        .arg(theBand.myBaseTransfer)
        .arg(theBand.myUnitTransfer);
}

QByteArray plainPriceList(int theArticleCount)
{
    QString articles;
    for (int number = 0; number < theArticleCount; ++number) {
        articles += QStringLiteral("<article id='%1' arrangement='trivial'><base_prices>").arg(FIRST_ID + number);
        for (const FlatBand& band : bandsOf(number))
            articles += entryOf(band);
        articles += QStringLiteral("</base_prices></article>");
    }
    return QStringLiteral("<p><articles>%1</articles><transfers><transfer id='1' group='%2' model='2'><base_prices>"
                          "<price price='0'/></base_prices></transfer></transfers></p>")
        .arg(articles)
        .arg(GROUP_TRANSFER_MODEL_2)
        .toUtf8();
}

VelTarmBill libraryBill(const PlainCart& theCart)
{
    return VelTarmBill(GROUP_TRANSFER_MODEL_2, theCart.myStatistic, VelExpressType(ExpressableType_STANDARD),
                       VelTarmStatus());
}

std::vector<FlatLine> linesOf(const VelTarmBill& theBill)
{
    std::vector<FlatLine> lines;
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions())
        lines.push_back({position->product()->articleID() - FIRST_ID, position->discountModel(),
                         position->discountLevel(), position->countItems(), position->unitPrice(),
                         position->unitCount()});
    return lines;
}

} // namespace

PlainShop::PlainShop() : myFlat(allBands()), mySqlite(allBands()) {}

PlainShop& PlainShop::instance()
{
    static PlainShop shop;
    PriceListFile::load(ARTICLES, plainPriceList);
    return shop;
}

// ---- carts

PlainCart PlainShop::cart(int theLines, int theNumber) const
{
    PlainCart cart;
    for (int line = 0; line < theLines; ++line)
        cart.myItems.push_back({(theNumber * 7919 + line * 4973) % ARTICLES, 1 + (line * 13 + theNumber) % MAX_COUNT});
    std::sort(cart.myItems.begin(), cart.myItems.end(),
              [](const CartItem& theLeft, const CartItem& theRight) { return theLeft.myArticle < theRight.myArticle; });
    for (const CartItem& item : cart.myItems)
        cart.myStatistic.add(VelProductRegistry::instance()->productWithArticleID(FIRST_ID + item.myArticle),
                             item.myCount);
    cart.myLines.resize(2 * cart.myItems.size());
    return cart;
}

// ---- the ways of pricing

int PlainShop::libraryTotal(const PlainCart& theCart) const
{
    return libraryBill(theCart).totalFinalCostWithoutCoupon();
}

int PlainShop::flatTotal(const PlainCart& theCart) const
{
    return myFlat.bill(theCart.myItems, theCart.myLines.data()).total();
}

int PlainShop::sqliteTotal(const PlainCart& theCart)
{
    return mySqlite.bill(theCart.myItems, theCart.myLines.data()).total();
}

const char* PlainShop::difference(const PlainCart& theCart)
{
    const VelTarmBill bill = libraryBill(theCart);
    const std::vector<FlatLine> expected = linesOf(bill);
    const int total = bill.totalFinalCostWithoutCoupon();
    const auto isEqual = [&](const FlatBill& theBill) {
        return theBill.total() == total && theBill.lineCount() == static_cast<int>(expected.size()) &&
               std::equal(expected.begin(), expected.end(), theCart.myLines.begin());
    };
    if (!isEqual(myFlat.bill(theCart.myItems, theCart.myLines.data())))
        return "the flat bill differs";
    return isEqual(mySqlite.bill(theCart.myItems, theCart.myLines.data())) ? nullptr : "the bill by SQLite differs";
}
