#ifndef SQLITEPRICING_H
#define SQLITEPRICING_H

#include "benchmarks/FlatPricing.h"

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

/// What one would take without the library: the bands in an in-process database, in memory and indexed, and a prepared
/// statement for each line, which gives those that the quantity reaches.
class SqlitePricing
{
public:
    /// The bands of each article, the highest level first.
    explicit SqlitePricing(const std::vector<std::vector<FlatBand>>& theArticles);

    FlatBill bill(const std::vector<CartItem>& theCart, FlatLine* theLines);

private:
    struct Closer
    {
        void operator()(sqlite3* theDatabase) const;
        void operator()(sqlite3_stmt* theStatement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Closer>;

    void execute(const char* theSql);
    Statement prepared(const char* theSql);
    const std::vector<FlatBand>& reached(const CartItem& theItem);

    std::unique_ptr<sqlite3, Closer> myDatabase; // in front of the statement, which has to be gone first
    Statement myStatement;
    std::vector<FlatBand> myReached; ///< by the last query
};

#endif
