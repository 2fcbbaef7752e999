#ifndef NAIVEPRICING_H
#define NAIVEPRICING_H

#include "properties/NastyShop.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <climits>
#include <vector>

/**
 * The rules of pricing said a second time, as plainly as can be, for the library to be held against; nothing here is
 * the library's. Models have their bare numbers: 1 bulk, 2 and 3 packages, 4 transfer by count, 5 transfer by bill sum,
 * 6 transfer model 2, 7 express fee, 8 inherited level, 10 none.
 */
namespace Naive {

class Prices;

/// A line of a bill. Where there is no price it has the article, model 10, and zeros.
enum Field { ARTICLE, ITEMS, MODEL, LEVEL, UNIT_PRICE, UNITS, ITEMS_PER_UNIT, OLD_PRICE };
using Line = std::array<int, 8>;
using Lines = std::vector<Line>;
using Cart = std::vector<QPair<const Prices*, int>>;

/// Money and counts have 32 bits; what goes beyond comes in again from below.
struct Wrapping
{
    static int wrapped(qint64 theNumber) { return static_cast<int>(static_cast<quint32>(theNumber)); }
    static int sum(qint64 theLeft, int theRight) { return wrapped(theLeft + theRight); }
    static int difference(qint64 theLeft, int theRight) { return wrapped(theLeft - theRight); }
    static int product(qint64 theLeft, int theRight) { return wrapped(theLeft * theRight); }
};

inline int number(const Attributes& theAttributes, const char* theName, int theDefault)
{
    bool isNumber = false;
    const int result = theAttributes.value(theName).toInt(&isNumber);
    return isNumber ? result : theDefault;
}

/// Words at commas, their numbers combined bit by bit.
inline int decoded(const QString& theText, const QMap<QString, int>& theWords, int theUnknown)
{
    int result = 0;
    for (const QString& word : theText.toUpper().split(','))
        result |= theWords.value(word.trimmed(), theUnknown);
    return result;
}

/// The prices of one article under a shop's order source.
class Prices : private Wrapping
{
public:
    Prices(const ShopArticle& theArticle, const NastyShop& theShop) : article(theArticle)
    {
        for (const Attributes& price : article.prices)
            read(price, theShop);
    }

    /// The lines go to the bill when there is one; an add-on inherits from what is on it.
    int priceFor(int theCount, int theSum, const Cart& theCart, Lines* theBill, int theModel = 10) const
    {
        if (transferModel == 2) {
            const int price = sum(transferPriceFor(0, theCount, theSum, theCart), unitTransfer(theCart));
            if (theBill)
                theBill->push_back({article.id(), 1, 6, 0, price, 1, 1, -1});
            return price;
        }
        const int level = theBill ? inheritedLevel(*theBill) : 0;
        const int model = theModel == 7 ? 7 : bestModel(theCount, theSum, level);
        return priceInModel(model, level, theCount, theSum, theBill);
    }

    int priceInModel(int theModel, int theLevel, int theCount, int theSum, Lines* theBill) const
    {
        const auto items = [&](int theItemLevel) {
            return add(theBill, theCount, theModel, theItemLevel, theCount, 1);
        };
        const auto fee = [&](int theFeeModel, int theQuantity) {
            return add(theBill, 1, theFeeModel, reached(theFeeModel, theQuantity), 1, 1);
        };
        if (theModel == 1)
            return items(reached(1, theCount));
        if (theModel == 2 || theModel == 3)
            return theCount == 0 ? 0 : package(theModel, theCount, theBill);
        if (theModel == 4 || theModel == 7)
            return theCount == 0 ? 0 : fee(theModel, theCount);
        if (theModel == 5)
            return theSum == 0 ? 0 : reached(5, theSum) == 0 ? fee(4, -1) : fee(5, theSum);
        if (theModel == 8)
            return items(highest(8, -1, [&](int theOwn, const Price&) { return theOwn <= theLevel; }));
        if (theBill)
            theBill->push_back({article.id(), 0, 10, 0, 0, 0, 0, 0});
        return -1;
    }

    int bestModel(int theCount, int theSum, int theInheritedLevel) const
    {
        int best = 10;
        int bestPrice = INT_MAX;
        for (int model = 0; model < 16; ++model) {
            const int level = model == 8 ? theInheritedLevel : 0;
            const int price = myModels.contains(model) ? priceInModel(model, level, theCount, theSum, nullptr) : -1;
            if (price != -1 && (model == 2 || model == 3 || model == 5 || model == 8))
                return model; // these don't compete on price
            if (price != -1 && price < bestPrice) {
                best = model;
                bestPrice = price;
            }
        }
        return best;
    }

    /// The highest level from 1 up that begins at the count or below, 0 for none.
    int reached(int theModel, int theCount, bool thePackagesOnly = false) const
    {
        return highest(theModel, 0, [&](int, const Price& thePrice) {
            return thePrice.from <= theCount && (thePrice.isPackage || !thePackagesOnly);
        });
    }

    int transferPriceFor(int theLevel, int theCount, int theSum, const Cart& theCart) const
    {
        if (transferModel != 2)
            return priceInModel(bestModel(theCount, theSum, 0), theLevel, theCount, theSum, nullptr);
        int charge = 0;
        for (const auto& item : theCart)
            charge = std::max(charge, item.first->base());
        return charge;
    }

    /// Every item pays its unit charge but one: an item of the first article with the highest base charge.
    static int unitTransfer(const Cart& theCart)
    {
        int charge = 0;
        const Prices* leading = nullptr;
        for (const auto& item : theCart) {
            charge = sum(charge, product(item.first->unit(), item.second));
            if (!leading || leading->base() < item.first->base())
                leading = item.first;
        }
        return difference(charge, leading ? leading->unit() : 0);
    }

    /// The price of the lowest level that begins there or is that level.
    int priceAtBound(int theModel, int theFrom, int theLevel) const
    {
        for (auto price = myPrices.begin(); price != myPrices.end(); ++price)
            if (price.key().first == theModel && price.key().second >= 0 &&
                (price->from == theFrom || price.key().second == theLevel))
                return price->price;
        return -1;
    }

    int upperLimit(int theModel, int theLevel) const
    {
        const auto next = myPrices.find({theModel, sum(theLevel, 1)});
        return next == myPrices.end() ? -1 : difference(next->from, 1);
    }

    const ShopArticle article;
    int transferModel = -1;

private:
    struct Price
    {
        int from = 0;
        int price = -1;
        int base = 0; ///< the charge for shipping if the article leads the order, and of any other item
        int unit = 0;
        int oldPrice = -1;
        bool isPackage = false;
        bool isEmpty = false; ///< says no more than "bulk, level 0"
    };

    void read(const Attributes& thePrice, const NastyShop& theShop)
    {
        const bool isTransfer = article.tag == "transfer";
        const bool isExpress = article.tag == "express_fee";
        const QString byPlace = isTransfer ? "F" : isExpress ? "X" : "B";
        const QString type = thePrice.value("type").isEmpty() ? byPlace : thePrice.value("type");
        const int model = decoded(type, {{"B", 1}, {"L", 2}, {"P", 3}, {"F", 4}, {"Z", 5}, {"X", 7}, {"I", 8}}, 9);
        if (model == 9 || model == 10)
            return;
        myModels.insert(model);
        const int said = decoded(article.attributes.value("model"), {{"-1", -1}, {"1", 1}, {"2", 2}}, -1);
        transferModel = !isTransfer ? -1 : said == -1 ? 1 : said;
        const auto holds = [](int theWay, int theNamed) {
            return theNamed == -1 ? theWay == 0 || theWay == 1 : theWay >= 0 && theWay == theNamed;
        };
        const QString input = thePrice.value("input_source");
        const QString delivery = thePrice.value("delivery_type");
        if (!holds(theShop.inputSource, decoded(input, {{"", -1}, {"0", 0}, {"1", 1}, {"4", 4}}, -2)) ||
            !holds(theShop.deliveryType, decoded(delivery, {{"", -1}, {"0", 0}, {"1", 1}, {"2", 2}}, -2)))
            return;
        const int level = number(thePrice, "level", 0);
        const QString end = thePrice.value("end_offer_date");
        Price price = {number(thePrice, "quantity", 0),
                       number(thePrice, "price", -1),
                       number(thePrice, "transfer_base_price", 0),
                       number(thePrice, "transfer_unit_price", 0),
                       number(thePrice, "non_offer_price", -1),
                       type.at(0).isUpper() && !isTransfer && !isExpress};
        price.isEmpty = model == 1 && price.isPackage && level == 0 && price.from == 0 && price.price == -1 &&
                        price.base == 0 && price.unit == 0 && price.oldPrice == -1 && end.isEmpty();
        price.oldPrice = end.startsWith("2999") ? price.oldPrice : -1; // no other offer runs
        myPrices.insert({model, level}, price);                        // the last one wins
    }

    template <typename Condition>
    int highest(int theModel, int theLowest, Condition theCondition) const
    {
        int level = theLowest;
        for (auto price = myPrices.begin(); price != myPrices.end(); ++price)
            if (price.key().first == theModel && theCondition(price.key().second, *price))
                level = std::max(level, price.key().second);
        return level;
    }

    /// The highest level that an article of the links has on the bill, in its first line.
    int inheritedLevel(const Lines& theBill) const
    {
        int level = 0;
        for (const int link : article.links) {
            const auto isOfLink = [&](const Line& theLine) { return theLine[ARTICLE] == link; };
            const auto line = std::find_if(theBill.begin(), theBill.end(), isOfLink);
            level = line == theBill.end() ? level : std::max(level, (*line)[LEVEL]);
        }
        return level;
    }

    /// One package, and what goes beyond it by the piece.
    int package(int theModel, int theCount, Lines* theBill) const
    {
        const int best = reached(theModel, theCount);
        const int packed = reached(theModel, theCount, true);
        const int last = upperLimit(theModel, packed);
        if (best == 0)
            return -1;
        if (packed == best)
            return add(theBill, theCount, theModel, packed, 1, last);
        const int price = packed == 0 ? 0 : add(theBill, last, theModel, packed, 1, last);
        const int rest = packed == 0 ? theCount : difference(theCount, last);
        return rest > 0 ? sum(price, add(theBill, rest, theModel, best, rest, 1)) : price;
    }

    /// Puts a line on the bill, with its price, and says what it costs: -1 without a price.
    int add(Lines* theBill, int theItems, int theModel, int theLevel, int theUnits, int theItemsPerUnit) const
    {
        const bool isThere = theLevel >= 0 && myPrices.contains({theModel, theLevel});
        const Price price = isThere ? myPrices.value({theModel, theLevel}) : Price();
        if (theBill)
            theBill->push_back(
                {article.id(), theItems, theModel, theLevel, price.price, theUnits, theItemsPerUnit, price.oldPrice});
        const bool saysNothing = price.isEmpty && upperLimit(theModel, theLevel) == -1;
        return isThere && !saysNothing ? product(price.price, theUnits) : -1;
    }

    int base() const { return myPrices.value({1, 0}).base; }
    int unit() const { return myPrices.value({1, 0}).unit; }

    QMap<QPair<int, int>, Price> myPrices; ///< by model and level
    QSet<int> myModels;
};

/// The bill of a shop's cart, which comes in the order in which products are priced. It borrows what it is made of.
class Bill : private Wrapping
{
public:
    Bill(const NastyShop& theShop, const std::vector<Prices>& thePrices, const Cart& theCart)
        : myShop(theShop), myPrices(thePrices), myCart(theCart)
    {
        for (const auto& item : myCart)
            item.first->priceFor(item.second, 0, myCart, &lines);
        for (const Line& line : lines)
            myTransfer = line[MODEL] == 3 ? FREE : myTransfer;
        myStoredTransfer = transferFee();
    }

    /// All that a bill answers about money; then the payment fee and the total for each coupon.
    std::vector<int> amounts(const QList<int>& theCoupons) const
    {
        const Prices* transfer = isFree() || myTransfer == FILTERED_OUT ? nullptr : fee("transfer");
        const int fixedTransfer = transfer ? transfer->transferPriceFor(0, count(false), cost(), myCart) : 0;
        const int unitTransfer = transfer ? Prices::unitTransfer(myCart) : 0;
        const int expressFee = fee("express_fee") ? fee("express_fee")->priceFor(count(true), 1, {}, nullptr, 7) : 0;
        const int paymentFee = fee("paymethod_fee") ? fee("paymethod_fee")->priceFor(1, 1, {}, nullptr) : 0;
        const bool isValid = std::none_of(lines.begin(), lines.end(), [](const Line& it) { return it[MODEL] == 10; });
        const int worth = sum(cost(), transferFee());
        std::vector<int> result = {cost(),        count(false), cheapest(), transferFee(),           transferCharge(),
                                   fixedTransfer, unitTransfer, expressFee, std::max(0, paymentFee), std::max(0, worth),
                                   isValid};
        for (const int coupon : theCoupons) {
            const int due = sum(worth, coupon);
            const int charged = myHasPaymentFee && due > 0 ? std::max(0, paymentFee) : 0;
            const int total = due > 0 ? std::max(0, sum(due, charged)) : 0;
            result.insert(result.end(), {charged, sum(total, expressFee)});
        }
        return result;
    }

    /// Leaves the articles of the coupon alone; a coupon without articles is for all of them.
    void filter()
    {
        if (myShop.couponArticles.isEmpty())
            return;
        const auto isNamed = [&](int theID) { return myShop.couponArticles.contains(theID); };
        keep([&](const Line& line) { return isNamed(line[ARTICLE]); });
        myHasPaymentFee = fee("paymethod_fee") && isNamed(fee("paymethod_fee")->article.id());
        myTransfer = fee("transfer") && isNamed(fee("transfer")->article.id()) ? STORED : FILTERED_OUT;
    }

    template <typename Predicate>
    void keep(Predicate theIsKept)
    {
        lines.erase(std::stable_partition(lines.begin(), lines.end(), theIsKept), lines.end());
    }

    bool isFree() const { return myTransfer == FREE; }

    Lines lines;

private:
    /// The shop's fee for this order, null without one.
    const Prices* fee(const char* theTag) const
    {
        const auto fits = [&](const Prices& thePrices, const char* theName, int theKey) {
            return number(thePrices.article.attributes, theName, theKey) == theKey;
        };
        for (const Prices& prices : myPrices)
            if (prices.article.tag == theTag && fits(prices, "group", myShop.group) &&
                fits(prices, "pay_method_id", myShop.payment) && fits(prices, "express", myShop.expressType - 1))
                return &prices;
        return nullptr;
    }

    int cost() const
    {
        int result = 0;
        for (const Line& line : lines)
            result = sum(result, product(line[UNIT_PRICE], line[UNITS]));
        return result;
    }

    /// All pieces, add-ons aside, or those of gifts and cards alone.
    int count(bool theIsPrintFunOnly) const
    {
        int result = 0;
        for (const Line& line : lines)
            for (const Prices& prices : myPrices)
                if (prices.article.id() == line[ARTICLE] && prices.article.links.isEmpty() &&
                    !(theIsPrintFunOnly && prices.article.attributes.value("arrangement") == "trivial"))
                    result = sum(result, line[ITEMS]);
        return result;
    }

    int cheapest() const
    {
        int result = INT_MAX;
        for (const Line& line : lines)
            result = std::min(result, line[UNIT_PRICE]);
        return result == INT_MAX ? 0 : result;
    }

    int transferCharge() const
    {
        return fee("transfer") ? fee("transfer")->priceFor(count(false), cost(), myCart, nullptr) : 0;
    }

    int transferFee() const
    {
        return myTransfer == COMPUTED ? transferCharge() : myTransfer == STORED ? myStoredTransfer : 0;
    }

    const NastyShop& myShop;
    const std::vector<Prices>& myPrices;
    const Cart& myCart;
    enum { COMPUTED, STORED, FILTERED_OUT, FREE } myTransfer = COMPUTED;
    int myStoredTransfer = 0;
    bool myHasPaymentFee = true;
};

} // namespace Naive

#endif
