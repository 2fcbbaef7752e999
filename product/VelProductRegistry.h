#ifndef VELPRODUCTREGISTRY_H
#define VELPRODUCTREGISTRY_H

#include "frame/VelEnumerations.h"
#include "frame/VelTarmExport.h"
#include "frame/VelTarmLoadResult.h"
#include "product/VelProductList.h"
#include "sibling/VelProductGroup.h"
#include "sibling/VelProductType.h"

#include <QDomElement>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QStringList>

class VelDiscountLimit;
class VelExpressType;
class VelProductAddOn;
class VelProductPrintFun;
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

    // ---- one product
    // Null when there is none. Deprecated products are found like all others, and "first" means first in productList().

    /// The first product with that article ID.
    VelProductAbstract* productWithArticleID(int theArticleID) const;

    /// The first product of the group with that name; a deprecated product's name carries its suffix.
    VelProductAbstract* findProduct(const QString& theName, const VelProductGroup& theGroup) const;

    /// By findFotoBook, findCalendar or findPrintFun, as the type's class says.
    VelProductAbstract* findProduct(const VelProductType& theType) const;

    /// The only book of the type; null also when there are two or more, which is meant.
    VelProductPrintFun* findFotoBook(const VelProductType& theType) const;

    /// The first calendar of the type.
    VelProductAbstract* findCalendar(const VelProductType& theType) const;

    /// The first print-fun product of the type whose order-text type is the type's name.
    VelProductAbstract* findPrintFun(const VelProductType& theType) const;

    /// The first product of that order-text type. Once found it is answered for ever, deprecated or not.
    VelProductAbstract* findProductWithOrderTXTType(const QString& theType) const;

    /// The first product of the group with that order-text head; null for an empty head.
    VelProductAbstract* findProductWithOrderTXTHead(const QString& theHead, const VelProductGroup& theGroup) const;
    /// The first product of the group with that order-text head and BORDER= value; null for an empty head.
    VelProductAbstract* findProductWithOrderTXTHead(const QString& theHead, const VelProductGroup& theGroup,
                                                    const QString& theBorder) const;

    /// Reads the text as an order-text type, then as a product type, then as an order-text head.
    VelProductAbstract* product(const QString& theText) const;

    /// The group's nearest equal of a product: same head and border, same head, or else the nearest size in pixels, for
    /// which add-ons and deprecated products count as well.
    VelProductAbstract* mostEquivalentProduct(VelProductAbstract* theProduct, const VelProductGroup& theGroup) const;

    // ---- the add-ons of a main product
    // Deprecated add-ons are found like all others, and "first" means first in productList().

    /// The first add-on that fits the article and has that product class; null for none.
    VelProductAddOn* supplement(int theArticleID, const QString& theProductClass) const;
    /// As supplement().
    VelProductAddOn* findContent(int theArticleID, const QString& theProductClass) const;
    /// As supplement(), for the product that findProduct() gives for the type; null also without one.
    VelProductAddOn* findContent(const VelProductType& theType, const QString& theProductClass) const;
    /// Whether supplement() finds an add-on.
    bool productHasSupplement(int theArticleID, const QString& theProductClass) const;

    /// All add-ons that fit the article.
    QList<VelProductAddOn*> possibleAddOns(int theArticleID) const;

    /// Of the possible add-ons those that the customer may pick himself.
    QList<VelProductAddOn*> possibleSupplements(int theArticleID) const;

    /// All frames among the possible add-ons.
    QList<VelProductAddOn*> findPossibleFrames(int theArticleID) const;
    /// The first page package among the possible add-ons; null for none.
    VelProductAddOn* findPagePackage(int theArticleID) const;

    /// The video add-on of the type's book, see findFotoBook(); null for none.
    VelProductAddOn* qrCodeSupplement(const VelProductType& theType) const;
    /// Whether qrCodeSupplement() finds one.
    bool qrCodeAllowed(const VelProductType& theType) const;
    /// The price of qrCodeSupplement() as text in the primary currency; null without one.
    QString qrCodePriceText(const VelProductType& theType) const;

    // ---- lists and sets
    // Deprecated products are among them.

    /// The print-fun products whose first reading gave that type. Never null; the list stays the registry's, and is the
    /// same object at each call.
    VelProductList* productsOfType(const VelProductType& theType) const;

    /// All books.
    QList<VelProductPrintFun*> fotoBooks() const;
    /// The books among productsOfType().
    QList<VelProductPrintFun*> fotoBooks(const VelProductType& theType) const;

    /// All products of that order-text type.
    VelProductList findProductListWithOrderTxtType(const QString& theType) const;

    /// The main products of a shipping group; with theIncludeAddOns every add-on, whatever its group. Sorted by
    /// sortProductByNumber.
    VelProductList productsForShippingGroup(int theId, bool theIncludeAddOns) const;

    /// The products of a group; with theIncludeAddOns every add-on, whatever its group. Sorted by sortProductByNumber.
    VelProductList productsForProductGroup(const VelProductGroup& theGroup, bool theIncludeAddOns) const;

    /// The names of the products of a group, sorted by sortByNumber.
    QStringList productListAsStringList(const VelProductGroup& theGroup) const;

    /// The bands that the pattern covers in a shipping group with all add-ons. A base limit (from 0, open above) stays
    /// only while it is the last limit of its model.
    QSet<VelDiscountLimit> discountLimits(int theShippingGroupId, const VelTarmPriceKey& theKey) const;

    // ---- tests
    // Deprecated products count like all others.

    /// Whether the text is an order-text type or a product type of the list; unlike product(), heads don't count.
    bool productExists(const QString& theText) const;

    /// Whether some product has exactly that group value; a mask matches nothing here.
    bool containsProductGroup(const VelProductGroup& theGroup) const;

    /// Whether any product has shipping times.
    bool shippingTimesEnabled() const;

    /// Whether a main product of the shipping group is a plain one.
    bool shippingGroupHasNonPrintFunProducts(int theId) const;

    /// Whether a product of the shipping group, or an add-on, has a band of the model under the key.
    bool containsDiscountModel(int theShippingGroupId, const VelTarmPriceKey& theKey, VelDiscountModel theModel) const;

    // ---- groups

    /// VelProductGroup::matches.
    bool groupsMatch(const VelProductGroup& theLeft, const VelProductGroup& theRight) const;

    // ---- fees
    // Fee products are the last load's, and stay alive when a further one replaces them; they aren't in productList().

    /// The shipping of a group; null when it has none.
    VelProductAbstract* transferProduct(int theShippingGroupId) const;
    /// The shipping of that article ID; null when there is none.
    VelProductAbstract* transferProductWithArticleId(int theArticleID) const;
    /// The article ID of the group's shipping, -1 when it has none.
    int idOfTransferProduct(int theShippingGroupId) const;
    /// The fee of a payment; null when it has none.
    VelProductAbstract* paymentAgioProduct(VelPaymentType thePayment) const;
    /// The article ID of the payment's fee, 0 when it has none.
    int idOfPaymentAgioProduct(VelPaymentType thePayment) const;
    /// The express fees of a group; empty when it has none.
    QList<VelProductAbstract*> expressAgioProducts(int theShippingGroupId) const;
    /// The group's fee of that express type; null when it has none.
    VelProductAbstract* expressAgioProduct(int theShippingGroupId, const VelExpressType& theExpressType) const;
    /// The express types of the group whose fee costs more than 0 under the key.
    QList<VelExpressType> supportedExpressTypes(int theShippingGroupId, const VelTarmPriceKey& theKey) const;
    /// Whether any group has an express fee.
    bool containsExpressAgioProducts() const;

    /// How the last load went, with its counts of products. It stands when priceListUpdated() is emitted.
    VelTarmLoadResult lastLoad() const { return myLastLoad; }

    /// Reads the sections of a document element: `articles`, `add_ons`, `paymethod_fees`, `transfers`,
    /// `express_fees`, the first of each and in this order, whatever their order in the document. A null node counts
    /// as a document without sections. Called for itself it counts its products into lastLoad(), whose file stays.
    void updateProducts(const QDomNode& theNode);

    /// Updates the product of each element's `id` (default 0), or builds a new one and takes it in. A print-fun
    /// product of an unknown type is dropped without a word.
    void readProducts(const QDomElement& theSection);

    /// Takes ownership of a new product; null is ignored.
    void insertProduct(VelProductAbstract* theProduct);

    /// Every product; those that a reload then reads are revived.
    void setProductsDeprecated();

    /// A new product owned by the caller, or null.
    VelProductAbstract* buildAbstractProduct(const QDomElement& theElement) const;

    /// Replaces the shippings by those of a section `transfers`.
    void readTransferPrices(const QDomElement& theSection);
    /// Replaces the payment fees by those of a section `paymethod_fees`.
    void readAdditionalPaymentFees(const QDomElement& theSection);
    /// Replaces the express fees by those of a section `express_fees`.
    void readExpressFees(const QDomElement& theSection);

public slots:
    /// Loads or reloads from that file. One that can't be read leaves every product deprecated; lastLoad() tells why.
    void loadAllProducts(const QFileInfo& theProductListFileInfo);

    /// Loads or reloads the current key account's price list.
    void loadAllProducts();

signals:
    /// Emitted once at the end of every load.
    void priceListUpdated();

private:
    QHash<int, VelProductAbstract*> firstProductsByArticleID() const;
    void countProducts(int theKnownProducts);

    template <typename Predicate>
    VelProductAbstract* firstProduct(Predicate thePredicate) const;
    template <typename Predicate>
    VelProductAddOn* firstAddOn(Predicate thePredicate) const;
    template <typename Predicate>
    QList<VelProductAddOn*> addOns(Predicate thePredicate) const;

    QList<VelProductAbstract*> myProductList;
    mutable QMap<VelProductTypeEnum, VelProductList*> myProductsByType;   ///< owns the lists, not the products
    mutable QHash<QString, VelProductAbstract*> myProductsByOrderTxtType; ///< what was once found; never cleared
    mutable QHash<int, VelProductAbstract*> myProductsByArticleID;        ///< an index, see productWithArticleID
    mutable unsigned myIndexedIdChanges = 0;                              ///< the changes of ids that the index knows
    mutable int myIndexedProducts = 0;                                    ///< the length of the list that it knows
    VelTarmLoadResult myLastLoad;
    VelProductRegistryTransferProducts* myTransferProducts;
    VelProductRegistryExpressFees* myExpressFees;
    VelProductRegistryPaymentAgio* myPaymentAgio;
    VelProductRegistryFotoBookCache* myFotoBookCache;
};

#endif
