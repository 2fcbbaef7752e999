#include "benchmarks/FlatPricing.h"

#include <algorithm>

FlatPricing::FlatPricing(const std::vector<ArticleRow>& theArticles)
{
    for (const ArticleRow& row : theArticles) {
        const auto number = static_cast<int>(myArticles.size());
        myArticles.push_back({row.myId, static_cast<int>(myLinks.size()), static_cast<int>(row.myLinks.size()),
                              row.mySection == Section::ADD_ONS, row.myIsPrintFun});
        myLinks.insert(myLinks.end(), row.myLinks.begin(), row.myLinks.end());
        if (row.mySection == Section::TRANSFERS)
            myTransfers.push_back({row.myGroup, number, row.myTransferModel});
        if (row.mySection == Section::PAYMENT_FEES)
            myPaymentFee = number;
        if (row.mySection == Section::EXPRESS_FEES) {
            myExpressFee = number;
            myExpressGroup = row.myGroup;
        }
    }
    for (int source = 0; source < SOURCES; ++source)
        for (const ArticleRow& row : theArticles)
            addShelf(row, source);
}

void FlatPricing::addShelf(const ArticleRow& theArticle, int theSource)
{
    Shelf shelf{static_cast<int>(myLadders.size()), 0, 0, 0};
    for (const PriceRow& row : theArticle.myPrices) {
        if (row.mySource != theSource)
            continue;
        if (shelf.myLadders == 0 || myLadders.back().myModel != row.myModel) {
            myLadders.push_back({row.myModel, static_cast<int>(myBands.size()), 0});
            ++shelf.myLadders;
        }
        ++myLadders.back().myCount;
        myBands.insert(myBands.begin() + myLadders.back().myFirst, // the highest level first
                       {row.myOfferEnd, row.myLevel, row.myQuantity, row.myUpperLimit, row.myPrice, row.myOldPrice,
                        row.myIsPackage});
        if (row.myModel == DISCOUNT_MODEL_BULK && row.myLevel == 0) {
            shelf.myBaseTransfer = row.myBaseTransfer;
            shelf.myUnitTransfer = row.myUnitTransfer;
        }
    }
    myShelves.push_back(shelf);
}

// ---- queries

const FlatPricing::Article& FlatPricing::article(int theArticle) const
{
    return myArticles[static_cast<std::size_t>(theArticle)];
}

const FlatPricing::Shelf& FlatPricing::shelf(int theArticle, int theSource) const
{
    return myShelves[static_cast<std::size_t>(theSource) * myArticles.size() + static_cast<std::size_t>(theArticle)];
}

// ---- computing

FlatPrices FlatPricing::prices(int theArticle, int theSource) const
{
    const Shelf& found = shelf(theArticle, theSource);
    return {myLadders.data() + found.myFirstLadder, found.myLadders, myBands.data()};
}

int FlatPricing::price(int theArticle, int theSource, const FlatQuery& theQuery) const
{
    return flatAnswer(prices(theArticle, theSource), theQuery).myPrice;
}

/// The highest level that an article of the add-on has in the lines so far, each by its first line.
int FlatPricing::inheritedLevel(const Article& theAddOn, const FlatLine* theBegin, const FlatLine* theEnd) const
{
    const auto links = myLinks.begin() + theAddOn.myFirstLink;
    int highest = 0;
    int former = -1;
    for (const FlatLine* line = theBegin; line != theEnd; ++line) {
        if (line->myLevel > highest && line->myArticle != former &&
            std::binary_search(links, links + theAddOn.myLinks, article(line->myArticle).myId))
            highest = line->myLevel;
        former = line->myArticle;
    }
    return highest;
}

int FlatPricing::makeLines(const CartItem* theCart, int theItems, int theSource, FlatLine* theLines) const
{
    FlatLine* end = theLines;
    for (const CartItem* item = theCart; item != theCart + theItems; ++item) {
        const Article& wanted = article(item->myArticle);
        const int level = wanted.myIsAddOn ? inheritedLevel(wanted, theLines, end) : 0;
        const FlatPrices found = prices(item->myArticle, theSource);
        const FlatAnswer answer = flatAnswer(found, {item->myCount, 0, level});
        end = writeLines(found, answer, item->myCount, item->myArticle, end);
    }
    return static_cast<int>(end - theLines);
}

/// One base charge, the highest, and the unit charge of every item but one of the article that pays it.
int FlatPricing::transferByProducts(const CartItem* theCart, int theItems, int theSource) const
{
    int highest = 0;
    int units = 0;
    int leadersUnit = 0;
    for (int item = 0; item < theItems; ++item) {
        const Shelf& prices = shelf(theCart[item].myArticle, theSource);
        if (item == 0 || prices.myBaseTransfer > highest) {
            highest = prices.myBaseTransfer;
            leadersUnit = prices.myUnitTransfer;
        }
        units += prices.myUnitTransfer * theCart[item].myCount;
    }
    return highest + units - leadersUnit;
}

int FlatPricing::transferFee(const CartItem* theCart, int theItems, int theGroup, int theSource,
                             const Sums& theSums) const
{
    for (const Transfer& transfer : myTransfers) {
        if (transfer.myGroup == theGroup)
            return transfer.myModel == TRANSFER_MODEL_2
                       ? transferByProducts(theCart, theItems, theSource)
                       : price(transfer.myArticle, theSource, {theSums.myCount, theSums.myCost, 0});
    }
    return 0;
}

FlatPricing::Sums FlatPricing::sumsOf(const FlatLine* theLines, int theLineCount) const
{
    Sums sums{0, 0, 0};
    for (const FlatLine* line = theLines; line != theLines + theLineCount; ++line) {
        const Article& sold = article(line->myArticle);
        sums.myCost += line->myUnitPrice * line->myUnitCount;
        sums.myCount += sold.myIsAddOn ? 0 : line->myCountItems;
        sums.myPrintFuns += sold.myIsPrintFun ? line->myCountItems : 0;
    }
    return sums;
}

int FlatPricing::total(const CartItem* theCart, int theItems, int theGroup, int theSource, const FlatLine* theLines,
                       int theLineCount) const
{
    const Sums sums = sumsOf(theLines, theLineCount);
    const bool isFree = isShippingFree(theLines, theLineCount);
    const int fee = isFree ? 0 : transferFee(theCart, theItems, theGroup, theSource, sums);
    return std::max(0, sums.myCost + fee);
}

int FlatPricing::finalCost(const CartItem* theCart, int theItems, int theGroup, int theSource, const FlatLine* theLines,
                           int theLineCount) const
{
    int cost = total(theCart, theItems, theGroup, theSource, theLines, theLineCount);
    if (cost > 0)
        cost += std::max(0, price(myPaymentFee, theSource, {1, 1, 0}));
    if (theGroup != myExpressGroup)
        return cost;
    return cost + price(myExpressFee, theSource, {sumsOf(theLines, theLineCount).myPrintFuns, 1, 0});
}
