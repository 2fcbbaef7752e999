#include "benchmarks/BillShop.h"

#include "benchmarks/PriceListFile.h"
#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

#include <algorithm>
#include <map>

namespace {

const int MAX_COUNT = 130;
const int MAX_SQLITE_ARTICLES = 10000; // above it is not compared, and filling the database would take long

bool areEqual(const std::vector<FlatLine>& theExpected, const std::vector<FlatLine>& theBuffer, int theCount)
{
    return static_cast<int>(theExpected.size()) == theCount &&
           std::equal(theExpected.begin(), theExpected.end(), theBuffer.begin());
}

void load(int theArticleCount)
{
    static int loaded = 0;
    if (loaded == theArticleCount)
        return;
    PriceListFile::ofKeyAccount(theArticleCount);
    VelProductRegistry* registry = VelProductRegistry::instance(); // the first one has read the file already
    if (loaded != 0)
        registry->loadAllProducts();
    loaded = theArticleCount;
}

} // namespace

BillShop::BillShop(int theArticleCount)
    : myArticleCount(theArticleCount)
    , myRows(readPriceRows(PriceListFile::ofKeyAccount(theArticleCount).bytes()))
    , myFlat(myRows)
{
    for (const ArticleRow& row : myRows)
        myNumbers.insert(row.myId, myNumbers.size());
}

BillShop& BillShop::of(int theArticleCount)
{
    static std::map<int, std::unique_ptr<BillShop>> shops;
    load(theArticleCount);
    std::unique_ptr<BillShop>& shop = shops[theArticleCount];
    if (!shop)
        shop.reset(new BillShop(theArticleCount));
    return *shop;
}

// ---- carts

void BillShop::add(Cart& theCart, int theId, int theCount) const
{
    theCart.myStatistic.add(VelProductRegistry::instance()->productWithArticleID(theId), theCount);
    theCart.myItems.push_back({myNumbers.value(theId), theCount});
}

Cart BillShop::cart(int theArticles, AddOns theAddOns, int theNumber) const
{
    const auto article = [&](int theLine) { return (theNumber * 7919 + theLine * 4973) % myArticleCount; };
    Cart cart;
    for (int line = 0; line < theArticles; ++line)
        add(cart, firstArticleId(myArticleCount) + article(line), 1 + (line * 13 + theNumber) % MAX_COUNT);
    for (int number = 0; theAddOns != AddOns::NONE && number < ADD_ONS_IN_CART; ++number) {
        const int neighbour = article(number % theArticles) / ARTICLES_PER_ADD_ON + number / theArticles;
        const int count = 1 + number;
        if (theAddOns == AddOns::OF_MANY_ARTICLES)
            add(cart, firstWideAddOnId(myArticleCount) + number, count);
        else
            add(cart, firstAddOnId(myArticleCount) + neighbour % (myArticleCount / ARTICLES_PER_ADD_ON), count);
    }
    std::sort(cart.myItems.begin(), cart.myItems.end(),
              [](const CartItem& theLeft, const CartItem& theRight) { return theLeft.myArticle < theRight.myArticle; });
    cart.myLines.resize(2 * cart.myItems.size());
    return cart;
}

// ---- the ways of pricing

VelTarmBill libraryBill(const Cart& theCart, int theGroup)
{
    return VelTarmBill(theGroup, theCart.myStatistic, VelExpressType(ExpressableType_EXPRESS_1), VelTarmStatus());
}

int BillShop::flatTotal(const Cart& theCart, int theGroup) const
{
    FlatLine* lines = theCart.myLines.data();
    const int count = myFlat.makeLines(theCart.myItems.data(), theCart.itemCount(), SOURCE_ONLINE_MAIL_ORDER, lines);
    return myFlat.total(theCart.myItems.data(), theCart.itemCount(), theGroup, SOURCE_ONLINE_MAIL_ORDER, lines, count);
}

int BillShop::flatFinalCost(const Cart& theCart, int theGroup) const
{
    FlatLine* lines = theCart.myLines.data();
    const int count = myFlat.makeLines(theCart.myItems.data(), theCart.itemCount(), SOURCE_ONLINE_MAIL_ORDER, lines);
    return myFlat.finalCost(theCart.myItems.data(), theCart.itemCount(), theGroup, SOURCE_ONLINE_MAIL_ORDER, lines,
                            count);
}

int BillShop::sqliteTotal(const Cart& theCart, int theGroup)
{
    FlatLine* lines = theCart.myLines.data();
    const int count = sqlite().makeLines(theCart.myItems.data(), theCart.itemCount(), SOURCE_ONLINE_MAIL_ORDER, lines);
    return sqlite().total(theCart.myItems.data(), theCart.itemCount(), theGroup, SOURCE_ONLINE_MAIL_ORDER, lines,
                          count);
}

SqlitePricing& BillShop::sqlite()
{
    if (!mySqlite)
        mySqlite.reset(new SqlitePricing(myRows));
    return *mySqlite;
}

std::vector<FlatLine> BillShop::linesOf(const VelTarmBill& theBill) const
{
    std::vector<FlatLine> lines;
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions()) {
        const auto* priced = qobject_cast<const VelTarmBillPosition*>(position);
        lines.push_back({myNumbers.value(position->product()->articleID(), -1), position->countItems(),
                         position->discountModel(), position->discountLevel(), position->unitPrice(),
                         position->unitCount(), priced ? priced->discountItemsPerUnit() : 0,
                         position->nonOfferPrice()});
    }
    return lines;
}

const char* BillShop::difference(const Cart& theCart, int theGroup)
{
    const VelTarmBill bill = libraryBill(theCart, theGroup);
    const std::vector<FlatLine> lines = linesOf(bill);
    const auto count = [&](auto& thePricing) {
        return thePricing.makeLines(theCart.myItems.data(), theCart.itemCount(), SOURCE_ONLINE_MAIL_ORDER,
                                    theCart.myLines.data());
    };
    if (!areEqual(lines, theCart.myLines, count(myFlat)))
        return "the flat lines differ";
    if (flatTotal(theCart, theGroup) != bill.totalFinalCostWithoutCoupon())
        return "the flat total differs";
    if (flatFinalCost(theCart, theGroup) != bill.totalFinalCost(0))
        return "the flat final cost differs";
    if (myArticleCount > MAX_SQLITE_ARTICLES)
        return nullptr;
    if (!areEqual(lines, theCart.myLines, count(sqlite())))
        return "the lines by SQLite differ";
    return sqliteTotal(theCart, theGroup) == bill.totalFinalCostWithoutCoupon() ? nullptr
                                                                                : "the total by SQLite differs";
}
