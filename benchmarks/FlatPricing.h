#ifndef FLATPRICING_H
#define FLATPRICING_H

#include "frame/VelEnumerations.h"

#include <vector>

/// An article by its number in the price list, and how many of it.
struct CartItem
{
    int myArticle;
    int myCount;
};

/// A band with its price in cents. The base price of an article is its band of level 0, and has the charges for
/// shipping.
struct FlatBand
{
    VelDiscountModel myModel;
    int myLevel;
    int myQuantity;
    int myUpperLimit;
    int myPrice;
    bool myIsPackage;
    int myBaseTransfer;
    int myUnitTransfer;
};

/// A line of a bill.
struct FlatLine
{
    int myArticle;
    VelDiscountModel myModel;
    int myLevel;
    int myCountItems;
    int myUnitPrice;
    int myUnitCount;
    bool operator==(const FlatLine& theOther) const;
};

/// A bill that its articles are added to one by one. The lines go where its owner keeps them from bill to bill; there
/// must be room for two of each article.
class FlatBill
{
public:
    explicit FlatBill(FlatLine* theLines) : myLines(theLines), myEnd(theLines) {}

    /// Of the article's bands those that the count reaches, the highest level first and the base price last.
    void add(const CartItem& theItem, const FlatBand* theReached, const FlatBand* theBase);

    int lineCount() const { return static_cast<int>(myEnd - myLines); }

    /// Items and shipping, which is charged by the products.
    int total() const;

private:
    void addLine(int theArticle, const FlatBand& theBand, int theItems, int theUnits);
    void addTransfer(const FlatBand& theBase, int theCount);

    FlatLine* myLines;
    FlatLine* myEnd;
    int myCost = 0;
    int myHighestBase = -1;
    int myUnitOfHighest = 0;
    int myUnits = 0;
    bool myIsShippingFree = false;
};

/// The floor for bills: bulk prices, packages and transfer by products over plain arrays, for one order source, without
/// objects, keys, hashes or shared containers.
class FlatPricing
{
public:
    /// The bands of each article, the highest level first.
    explicit FlatPricing(const std::vector<std::vector<FlatBand>>& theArticles);

    FlatBill bill(const std::vector<CartItem>& theCart, FlatLine* theLines) const;

private:
    std::vector<FlatBand> myBands;
    std::vector<int> myFirstBands; ///< by article; one more behind the last
};

#endif
