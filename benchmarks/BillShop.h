#ifndef BILLSHOP_H
#define BILLSHOP_H

#include "bill/VelOrderStatistic.h"

class VelTarmBill;

enum class AddOns { NONE, OF_FEW_ARTICLES, OF_MANY_ARTICLES };
const int ADD_ONS_IN_CART = 4;

struct Cart
{
    VelOrderStatistic myStatistic;
};

/// The application's registry with a synthetic price list.
class BillShop
{
public:
    /// The shop of so many articles, loaded into the registry if another list is in it.
    static BillShop of(int theArticleCount);

    /// A cart of so many articles, spread over the list, and further add-ons. Carts of different numbers differ.
    Cart cart(int theArticles, AddOns theAddOns, int theNumber) const;

    /// A cart of so many articles of one kind, see SyntheticShop.
    Cart cartOfKind(int theArticles, int theKind) const;

private:
    explicit BillShop(int theArticleCount) : myArticleCount(theArticleCount) {}

    int myArticleCount;
};

/// The bill as an application makes it.
VelTarmBill libraryBill(const Cart& theCart, int theGroup);

/// Null when everything has its price and the lines with shipping come to the total, otherwise what is wrong.
const char* faultOf(const VelTarmBill& theBill);

#endif
