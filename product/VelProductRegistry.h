#ifndef VELPRODUCTREGISTRY_H
#define VELPRODUCTREGISTRY_H

#include "frame/VelEnumerations.h"
#include "frame/VelTarmExport.h"
#include "product/VelProductList.h"
#include "sibling/VelProductGroup.h"
#include "sibling/VelProductType.h"

#include <QDomElement>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>

class VelExpressType;
class VelProductRegistryExpressFees;
class VelProductRegistryFotoBookCache;
class VelProductRegistryPaymentAgio;
class VelProductRegistryTransferProducts;
class VelTarmPriceKey;

/**
 * Owns every product of the price lists read so far. A product is never deleted: one that left the price list stays in
 * the list, deprecated, and one that comes back is the same object. Product pointers are valid for ever.
 *
 * Loads at its first use, and again whenever the key account changes. Not safe against concurrent use.
 */
class VELTARM_EXPORT VelProductRegistry : public QObject
{
    Q_OBJECT

public:
    /// Built on the first call, which is guarded; never deleted. Nothing on the load path may call it.
    static VelProductRegistry* instance();

    /// A registry beside the application's one, loaded from the current key account and owned by the caller. Prices of
    /// add-ons look their main products up in instance().
    VelProductRegistry();
    ~VelProductRegistry() override;

    /// Every main product and add-on ever read, in order of first appearance.
    QList<VelProductAbstract*> productList() const { return myProductList; }

    /// The first product with that article ID, null when there is none.
    VelProductAbstract* productWithArticleID(int theArticleID) const;

    /// The print-fun products whose first reading gave that type. Never null; the list stays the registry's, and is the
    /// same object at each call.
    VelProductList* productsOfType(const VelProductType& theType) const;

    /// The products of a group, sorted by sortProductByNumber; with theIncludeAddOns every add-on, whatever its group.
    VelProductList productsForProductGroup(const VelProductGroup& theGroup, bool theIncludeAddOns) const;

    /// The fee products. Null, -1 for a transfer product's id and 0 for a payment fee's stand for none.
    VelProductAbstract* transferProduct(int theShippingGroupId) const;
    VelProductAbstract* transferProductWithArticleId(int theArticleID) const;
    int idOfTransferProduct(int theShippingGroupId) const;
    VelProductAbstract* paymentAgioProduct(VelPaymentType thePayment) const;
    int idOfPaymentAgioProduct(VelPaymentType thePayment) const;
    QList<VelProductAbstract*> expressAgioProducts(int theShippingGroupId) const;
    VelProductAbstract* expressAgioProduct(int theShippingGroupId, const VelExpressType& theExpressType) const;
    QList<VelExpressType> supportedExpressTypes(int theShippingGroupId, const VelTarmPriceKey& theKey) const;
    bool containsExpressAgioProducts() const;

    /// Reads the sections of a document element: `articles`, `add_ons`, `paymethod_fees`, `transfers`,
    /// `express_fees`, the first of each and in this order, whatever their order in the document. A null node counts
    /// as a document without sections.
    void updateProducts(const QDomNode& theNode);

    /// Updates the product of each element's `id` (default 0), or builds a new one and takes it in. A print-fun
    /// product of an unknown type is dropped without a word.
    void readProducts(const QDomElement& theSection);

    /// Takes ownership of a new product; null is ignored.
    void insertProduct(VelProductAbstract* theProduct);
    void setProductsDeprecated();

    /// A new product owned by the caller, or null.
    VelProductAbstract* buildAbstractProduct(const QDomElement& theElement) const;
    void readTransferPrices(const QDomElement& theSection);
    void readAdditionalPaymentFees(const QDomElement& theSection);
    void readExpressFees(const QDomElement& theSection);

public slots:
    /// Loads or reloads from that file. One that can't be read leaves every product deprecated.
    void loadAllProducts(const QFileInfo& theProductListFileInfo);

    /// Loads or reloads the current key account's price list.
    void loadAllProducts();

signals:
    /// Emitted once at the end of every load.
    void priceListUpdated();

private:
    QHash<int, VelProductAbstract*> firstProductsByArticleID() const;

    QList<VelProductAbstract*> myProductList;
    mutable QMap<VelProductTypeEnum, VelProductList*> myProductsByType; ///< owns the lists, not the products
    VelProductRegistryTransferProducts* myTransferProducts;
    VelProductRegistryExpressFees* myExpressFees;
    VelProductRegistryPaymentAgio* myPaymentAgio;
    VelProductRegistryFotoBookCache* myFotoBookCache;
};

#endif
