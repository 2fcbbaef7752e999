#ifndef PLAINSHOP_H
#define PLAINSHOP_H

#include "benchmarks/SqlitePricing.h"
#include "bill/VelOrderStatistic.h"

/// A cart for all ways of pricing, with room for the lines of those that need it.
struct PlainCart
{
    std::vector<CartItem> myItems;
    VelOrderStatistic myStatistic;
    mutable std::vector<FlatLine> myLines;
};

/// A shop whose list holds ladders, packages and base prices and nothing else, all of them in the shipping group with
/// transfer by products: in the application's registry, and for the ways that are compared with it.
class PlainShop
{
    Q_DISABLE_COPY(PlainShop)

public:
    /// Its list is loaded into the registry if another one is in it.
    static PlainShop& instance();

    /// A cart of so many articles, spread over the list. Carts of different numbers differ.
    PlainCart cart(int theLines, int theNumber) const;

    /// Null when all ways of pricing give the same lines and totals for the cart, otherwise what differs.
    const char* difference(const PlainCart& theCart);

    int libraryTotal(const PlainCart& theCart) const;
    int flatTotal(const PlainCart& theCart) const;
    int sqliteTotal(const PlainCart& theCart);

private:
    PlainShop();

    FlatPricing myFlat;
    SqlitePricing mySqlite;
};

#endif
