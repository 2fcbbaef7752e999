#ifndef FLATPRICING_H
#define FLATPRICING_H

#include "benchmarks/FlatRules.h"
#include "benchmarks/PriceRows.h"

#include <vector>

/// The floor for bills: the same rules over plain arrays, without objects, keys, hashes or shared containers. Whoever
/// asks brings the array for the lines, and keeps it from bill to bill.
class FlatPricing
{
public:
    explicit FlatPricing(const std::vector<ArticleRow>& theArticles);

    /// Articles go by their number in the price list.
    int price(int theArticle, int theSource, const FlatQuery& theQuery) const;

    /// Writes the lines of a cart, in the order of its articles, and gives their number. There must be room for two
    /// lines of each item.
    int makeLines(const CartItem* theCart, int theItems, int theSource, FlatLine* theLines) const;

    /// Items and shipping of these lines, at least 0.
    int total(const CartItem* theCart, int theItems, int theGroup, int theSource, const FlatLine* theLines,
              int theLineCount) const;

    /// The same with the fees of the payment and of express.
    int finalCost(const CartItem* theCart, int theItems, int theGroup, int theSource, const FlatLine* theLines,
                  int theLineCount) const;

private:
    /// An article under one order source.
    struct Shelf
    {
        int myFirstLadder;
        int myLadders;
        int myBaseTransfer;
        int myUnitTransfer;
    };
    struct Article
    {
        int myId;
        int myFirstLink;
        int myLinks;
        bool myIsAddOn;
        bool myIsPrintFun;
    };
    struct Transfer
    {
        int myGroup;
        int myArticle;
        VelTransferModel myModel;
    };

    /// Cents, pieces without add-ons, and pieces of composed products.
    struct Sums
    {
        int myCost;
        int myCount;
        int myPrintFuns;
    };

    void addShelf(const ArticleRow& theArticle, int theSource);
    const Article& article(int theArticle) const;
    const Shelf& shelf(int theArticle, int theSource) const;
    FlatPrices prices(int theArticle, int theSource) const;
    int inheritedLevel(const Article& theAddOn, const FlatLine* theBegin, const FlatLine* theEnd) const;
    Sums sumsOf(const FlatLine* theLines, int theLineCount) const;
    int transferFee(const CartItem* theCart, int theItems, int theGroup, int theSource, const Sums& theSums) const;
    int transferByProducts(const CartItem* theCart, int theItems, int theSource) const;

    std::vector<FlatBand> myBands;
    std::vector<FlatLadder> myLadders;
    std::vector<Shelf> myShelves; ///< all articles of the first source, then those of the next one
    std::vector<Article> myArticles;
    std::vector<int> myLinks;
    std::vector<Transfer> myTransfers;
    int myPaymentFee = -1;
    int myExpressFee = -1;
    int myExpressGroup = -1;
};

#endif
