#ifndef SQLITEPRICING_H
#define SQLITEPRICING_H

#include "benchmarks/FlatRules.h"
#include "benchmarks/PriceRows.h"

#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

/// What one would take without the library: the prices in an in-process database, in memory and indexed, and a prepared
/// statement for each line, which gives the bands that the quantity reaches. The rules themselves are FlatRules.
class SqlitePricing
{
public:
    explicit SqlitePricing(const std::vector<ArticleRow>& theArticles);

    /// Writes the lines of a cart, in the order of its articles, and gives their number. There must be room for two
    /// lines of each item.
    int makeLines(const CartItem* theCart, int theItems, int theSource, FlatLine* theLines);

    /// Items and shipping of these lines, at least 0.
    int total(const CartItem* theCart, int theItems, int theGroup, int theSource, const FlatLine* theLines,
              int theLineCount);

private:
    struct Closer
    {
        void operator()(sqlite3* theDatabase) const;
        void operator()(sqlite3_stmt* theStatement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Closer>;

    void execute(const char* theSql);
    Statement prepared(const char* theSql);
    void insert(int theNumber, const ArticleRow& theArticle);
    FlatPrices prices(int theArticle, int theSource, const FlatQuery& theQuery);
    int inheritedLevel(int theAddOn, const FlatLine* theBegin, const FlatLine* theEnd);
    bool isAddOn(int theArticle) const { return theArticle >= myFirstAddOn && theArticle <= myLastAddOn; }
    int transferByProducts(const CartItem* theCart, int theItems, int theSource);
    int transferFee(const CartItem* theCart, int theItems, int theGroup, int theSource, int theSum, int theCount);

    std::unique_ptr<sqlite3, Closer> myDatabase; // in front of the statements, which have to be gone first
    Statement myInsertPrice;
    Statement myInsertLink;
    Statement myReached;
    Statement myIsLinked;
    Statement myTransferPrices;
    Statement myTransfer;
    std::vector<FlatBand> myBands;     ///< those that the last query reached
    std::vector<FlatLadder> myLadders; ///< by model
    int myFirstAddOn = 0;
    int myLastAddOn = -1;
};

#endif
