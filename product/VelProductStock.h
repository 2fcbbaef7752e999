#ifndef VELPRODUCTSTOCK_H
#define VELPRODUCTSTOCK_H

#include "bill/VelTarmArticle.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductList.h"
#include "sibling/VelProductType.h"

#include <QHash>
#include <QMap>

#include <algorithm>
#include <iterator>

/// The products of the registry in the order of their first appearance, owned, with the indices over them.
class VelProductStock
{
    Q_DISABLE_COPY(VelProductStock)

public:
    VelProductStock() = default;
    ~VelProductStock();

    /// Takes ownership.
    void insert(VelProductAbstract* theProduct);

    const VelProductList& products() const { return myProducts; }

    /// The first product of each article ID, of this moment.
    QHash<int, VelProductAbstract*> firstByArticleID() const;

    /// The first product with that article ID, null for none: through an index that is made anew when any article's id
    /// has changed or the list has grown since.
    VelProductAbstract* withArticleID(int theArticleID) const
    {
        if (myIndexedIdChanges != VelTarmArticle::idChanges() || myIndexedProducts != myProducts.size())
            indexArticleIDs();
        return myByArticleID.value(theArticleID, nullptr);
    }

    /// The first product of that order-text type, null for none. Once found it is answered for ever.
    VelProductAbstract* withOrderTxtType(const QString& theType) const;

    /// The print-fun products that were of the type when they came. Never null, the same list at each call.
    VelProductList* ofType(const VelProductType& theType) const;

    /// The first product that the predicate is true of, null for none.
    template <typename Predicate>
    VelProductAbstract* first(Predicate thePredicate) const
    {
        const auto found = std::find_if(myProducts.cbegin(), myProducts.cend(), thePredicate);
        return found == myProducts.cend() ? nullptr : *found;
    }

    /// All products that the predicate is true of.
    template <typename Predicate>
    VelProductList all(Predicate thePredicate) const
    {
        VelProductList found;
        std::copy_if(myProducts.cbegin(), myProducts.cend(), std::back_inserter(found), thePredicate);
        return found;
    }

    /// The first add-on that the predicate is true of, null for none.
    template <typename Predicate>
    VelProductAddOn* firstAddOn(Predicate thePredicate) const
    {
        for (VelProductAbstract* product : myProducts) {
            VelProductAddOn* addOn = asAddOn(product);
            if (addOn && thePredicate(addOn))
                return addOn;
        }
        return nullptr;
    }

    /// All add-ons that the predicate is true of.
    template <typename Predicate>
    QList<VelProductAddOn*> addOns(Predicate thePredicate) const
    {
        QList<VelProductAddOn*> found;
        for (VelProductAbstract* product : myProducts) {
            VelProductAddOn* addOn = asAddOn(product);
            if (addOn && thePredicate(addOn))
                found.append(addOn);
        }
        return found;
    }

private:
    void indexArticleIDs() const;
    /// By its class and not by the tag last read; null for any other product.
    static VelProductAddOn* asAddOn(VelProductAbstract* theProduct)
    {
        return theProduct->isProductClass(PRODUCT_CLASS_ADD_ON) ? dynamic_cast<VelProductAddOn*>(theProduct) : nullptr;
    }

    VelProductList myProducts;
    mutable QMap<VelProductTypeEnum, VelProductList*> myByType;   ///< owns the lists, not the products
    mutable QHash<QString, VelProductAbstract*> myByOrderTxtType; ///< what was once found; never cleared
    mutable QHash<int, VelProductAbstract*> myByArticleID;        ///< an index, see withArticleID
    mutable unsigned myIndexedIdChanges = 0;                      ///< the changes of ids that the index knows
    mutable int myIndexedProducts = 0;                            ///< how many products the index knows
};

#endif
