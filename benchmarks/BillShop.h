#ifndef BILLSHOP_H
#define BILLSHOP_H

#include "benchmarks/FlatPricing.h"
#include "benchmarks/SqlitePricing.h"
#include "bill/VelOrderStatistic.h"

#include <QHash>

#include <memory>
#include <vector>

class VelTarmBill;

enum class AddOns { NONE, OF_FEW_ARTICLES, OF_MANY_ARTICLES };
const int ADD_ONS_IN_CART = 4;

/// A cart for all ways of pricing, with room for the lines of those that need it.
struct Cart
{
    std::vector<CartItem> myItems;
    VelOrderStatistic myStatistic;
    mutable std::vector<FlatLine> myLines;
    int itemCount() const { return static_cast<int>(myItems.size()); }
};

/// The application's registry with a synthetic price list, and the same list for the ways that are compared with it.
class BillShop
{
    Q_DISABLE_COPY(BillShop)

public:
    /// The shop of so many articles, loaded into the registry if another size is in it.
    static BillShop& of(int theArticleCount);

    /// A cart of so many articles, spread over the list, and further add-ons. Carts of different numbers differ.
    Cart cart(int theArticles, AddOns theAddOns, int theNumber) const;

    /// Null when all ways of pricing give the same lines and totals for the cart, otherwise what differs.
    const char* difference(const Cart& theCart, int theGroup);

    int flatTotal(const Cart& theCart, int theGroup) const;
    int flatFinalCost(const Cart& theCart, int theGroup) const;
    int sqliteTotal(const Cart& theCart, int theGroup);

private:
    explicit BillShop(int theArticleCount);

    void add(Cart& theCart, int theId, int theCount) const;
    std::vector<FlatLine> linesOf(const VelTarmBill& theBill) const;
    SqlitePricing& sqlite();

    int myArticleCount;
    std::vector<ArticleRow> myRows;
    FlatPricing myFlat;
    std::unique_ptr<SqlitePricing> mySqlite; ///< filled when it is first asked for
    QHash<int, int> myNumbers;               ///< of the articles, by their ids
};

/// The bill as an application makes it.
VelTarmBill libraryBill(const Cart& theCart, int theGroup);

#endif
