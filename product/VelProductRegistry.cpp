#include "product/VelProductRegistry.h"

#include "bill/VelTarmArticle.h"
#include "frame/VelChildElements.h"
#include "frame/VelDocumentMemory.h"
#include "frame/VelGuardedInstance.h"
#include "frame/VelKeptTexts.h"
#include "ordering/VelCurrencyConfig.h"
#include "price/VelDiscountLimit.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductFactory.h"
#include "product/VelProductPrintFun.h"
#include "product/VelProductRegistryExpressFees.h"
#include "product/VelProductRegistryFotoBookCache.h"
#include "product/VelProductRegistryPaymentAgio.h"
#include "product/VelProductRegistryTransferProducts.h"
#include "product/VelProductSorting.h"
#include "sibling/VelKeyAccount.h"
#include "sibling/VelXMLLoader.h"
#include "sibling/VelXMLParser.h"

#include <algorithm>
#include <limits>

namespace {

const QString STR_ARTICLES = QStringLiteral("articles");
const QString STR_ADD_ONS = QStringLiteral("add_ons");
const QString STR_PAYMETHOD_FEES = QStringLiteral("paymethod_fees");
const QString STR_TRANSFERS = QStringLiteral("transfers");
const QString STR_EXPRESS_FEES = QStringLiteral("express_fees");
const QString STR_ID = QStringLiteral("id");
const QString STR_BORDER = QStringLiteral("BORDER");

/// The bit of PRODUCT_CLASS_PRINT_FUN_MASK that no product has yet.
const int SPARE_PRINT_FUN_CLASS = PRODUCT_CLASS_PRINT_FUN_MASK & ~(PRODUCT_CLASS_FOTO_BOOK | PRODUCT_CLASS_CALENDAR |
                                                                   PRODUCT_CLASS_GIFT | PRODUCT_CLASS_CARD);

bool isOfUnknownType(const VelProductAbstract* theProduct)
{
    const auto* printFun = dynamic_cast<const VelProductPrintFun*>(theProduct);
    return printFun && printFun->productType().isUnknown();
}

/// The product as an add-on, by its class and not by the tag last read; null for any other.
VelProductAddOn* asAddOn(VelProductAbstract* theProduct)
{
    return theProduct->isProductClass(PRODUCT_CLASS_ADD_ON) ? dynamic_cast<VelProductAddOn*>(theProduct) : nullptr;
}

QList<VelProductPrintFun*> booksOf(const VelProductList& theProducts)
{
    QList<VelProductPrintFun*> books;
    for (VelProductAbstract* product : theProducts)
        if (auto* book = product->isKindOfBook() ? dynamic_cast<VelProductPrintFun*>(product) : nullptr)
            books.append(book);
    return books;
}

bool hasLimitOfModel(const QSet<VelDiscountLimit>& theLimits, VelDiscountModel theModel)
{
    return std::any_of(theLimits.begin(), theLimits.end(),
                       [=](const VelDiscountLimit& theLimit) { return theLimit.discountModel() == theModel; });
}

/// The product with the nearest number of pixels, the first of several; null for an empty list.
VelProductAbstract* nearestInSize(const VelProductList& theProducts, int thePixels)
{
    VelProductAbstract* nearest = nullptr;
    qint64 smallestDistance = std::numeric_limits<int>::max();
    for (VelProductAbstract* product : theProducts) {
        const qint64 distance = qAbs(static_cast<qint64>(product->countPrintPixels()) - thePixels);
        if (distance < smallestDistance) {
            smallestDistance = distance;
            nearest = product;
        }
    }
    return nearest;
}

} // namespace

VelProductRegistry* VelProductRegistry::instance()
{
    static QMutex myInstanceMutex;
    static QAtomicPointer<VelProductRegistry> myInstance;
    return guardedInstance(myInstance, myInstanceMutex, [] { return new VelProductRegistry; });
}

VelProductRegistry::VelProductRegistry()
    : myTransferProducts(new VelProductRegistryTransferProducts)
    , myExpressFees(new VelProductRegistryExpressFees)
    , myPaymentAgio(new VelProductRegistryPaymentAgio)
    , myFotoBookCache(new VelProductRegistryFotoBookCache)
{
    loadAllProducts(VelKeyAccount::instance()->pricelistXMLFileInfo(false));
    connect(VelKeyAccount::instance(), SIGNAL(applicationKeyAccountChanged()), SLOT(loadAllProducts()));
}

VelProductRegistry::~VelProductRegistry()
{
    qDeleteAll(myProductList);
    delete myFotoBookCache;
    delete myPaymentAgio;
    delete myExpressFees;
    delete myTransferProducts;
    qDeleteAll(myProductsByType);
}

// ---- the way of a price list into the registry

void VelProductRegistry::loadAllProducts()
{
    loadAllProducts(VelKeyAccount::instance()->pricelistXMLFileInfo(false));
}

void VelProductRegistry::loadAllProducts(const QFileInfo& theProductListFileInfo)
{
    QDomElement root = VelXMLLoader::loadDocumentElement(theProductListFileInfo);
    myLastLoad = VelTarmLoadResult(theProductListFileInfo, root);
    updateProducts(root);
    VelDocumentMemory::giveBack(root, theProductListFileInfo);
}

void VelProductRegistry::updateProducts(const QDomNode& theNode)
{
    const VelKeptTexts reading;
    const auto knownProducts = static_cast<int>(myProductList.size());
    myFotoBookCache->clear();
    setProductsDeprecated();
    readProducts(theNode.firstChildElement(STR_ARTICLES));
    readProducts(theNode.firstChildElement(STR_ADD_ONS));
    readAdditionalPaymentFees(theNode.firstChildElement(STR_PAYMETHOD_FEES));
    readTransferPrices(theNode.firstChildElement(STR_TRANSFERS));
    readExpressFees(theNode.firstChildElement(STR_EXPRESS_FEES));
    countProducts(knownProducts);
    emit priceListUpdated();
}

void VelProductRegistry::setProductsDeprecated()
{
    for (VelProductAbstract* product : qAsConst(myProductList))
        product->setDeprecated(true);
}

void VelProductRegistry::readProducts(const QDomElement& theSection)
{
    // An id changes neither by an update with an element of that id nor otherwise while a section is read.
    QHash<int, VelProductAbstract*> productsByID = firstProductsByArticleID();
    for (const QDomElement& element : VelChildElements(theSection)) {
        VelProductAbstract*& product = productsByID[VelXMLParser::intAttribute(element, STR_ID, 0)];
        if (product) {
            product->update(element);
            continue;
        }
        product = buildAbstractProduct(element);
        if (product && isOfUnknownType(product)) {
            delete product;
            product = nullptr;
        }
        insertProduct(product);
    }
}

/// The lookup of one section's reading: a scan of the list per element would make a load quadratic.
QHash<int, VelProductAbstract*> VelProductRegistry::firstProductsByArticleID() const
{
    QHash<int, VelProductAbstract*> productsByID;
    productsByID.reserve(myProductList.size());
    for (VelProductAbstract* product : myProductList) {
        VelProductAbstract*& first = productsByID[product->articleID()];
        if (!first)
            first = product;
    }
    return productsByID;
}

VelProductAbstract* VelProductRegistry::buildAbstractProduct(const QDomElement& theElement) const
{
    return VelProductFactory::instance()->build(theElement);
}

void VelProductRegistry::insertProduct(VelProductAbstract* theProduct)
{
    if (!theProduct)
        return;
    myProductList.append(theProduct);
    if (!theProduct->isPrintFunProduct())
        return;
    // A host may bring a product of a print-fun class that isn't one, and so has no type to file it under.
    if (const auto* printFun = dynamic_cast<VelProductPrintFun*>(theProduct))
        productsOfType(printFun->productType())->append(theProduct);
}

void VelProductRegistry::readAdditionalPaymentFees(const QDomElement& theSection)
{
    myPaymentAgio->readAdditionalPaymentFees(theSection);
}

void VelProductRegistry::readTransferPrices(const QDomElement& theSection)
{
    myTransferProducts->readTransferPrices(theSection);
}

void VelProductRegistry::readExpressFees(const QDomElement& theSection)
{
    myExpressFees->readExpressFees(theSection);
}

void VelProductRegistry::countProducts(int theKnownProducts)
{
    const auto deprecated = static_cast<int>(
        std::count_if(myProductList.cbegin(), myProductList.cend(),
                      [](const VelProductAbstract* theProduct) { return theProduct->isDeprecated(); }));
    myLastLoad.setProducts(static_cast<int>(myProductList.size()) - theKnownProducts, theKnownProducts - deprecated,
                           deprecated);
}

// ---- one product

/// Through an index that is made anew when any article's id has changed or the list has grown since.
VelProductAbstract* VelProductRegistry::productWithArticleID(int theArticleID) const
{
    if (myIndexedIdChanges != VelTarmArticle::idChanges() || myIndexedProducts != myProductList.size()) {
        myProductsByArticleID = firstProductsByArticleID();
        myIndexedIdChanges = VelTarmArticle::idChanges();
        myIndexedProducts = myProductList.size();
    }
    return myProductsByArticleID.value(theArticleID, nullptr);
}

template <typename Predicate>
VelProductAbstract* VelProductRegistry::firstProduct(Predicate thePredicate) const
{
    const auto found = std::find_if(myProductList.cbegin(), myProductList.cend(), thePredicate);
    return found == myProductList.cend() ? nullptr : *found;
}

VelProductAbstract* VelProductRegistry::findProduct(const QString& theName, const VelProductGroup& theGroup) const
{
    return firstProduct([&](const VelProductAbstract* theProduct) {
        return theProduct->isProductGroup(theGroup) && theProduct->name() == theName;
    });
}

VelProductAbstract* VelProductRegistry::findProduct(const VelProductType& theType) const
{
    switch (static_cast<int>(theType.productClass())) {
    case PRODUCT_CLASS_FOTO_BOOK:
        return findFotoBook(theType);
    case PRODUCT_CLASS_CALENDAR:
        return findCalendar(theType);
    case PRODUCT_CLASS_GIFT:
    case PRODUCT_CLASS_CARD:
    case SPARE_PRINT_FUN_CLASS:
        return findPrintFun(theType);
    default:
        return nullptr;
    }
}

VelProductPrintFun* VelProductRegistry::findFotoBook(const VelProductType& theType) const
{
    const QList<VelProductPrintFun*> books = fotoBooks(theType);
    return books.size() == 1 ? books.first() : nullptr;
}

VelProductAbstract* VelProductRegistry::findCalendar(const VelProductType& theType) const
{
    for (VelProductAbstract* product : *productsOfType(theType))
        if (product->isProductClass(PRODUCT_CLASS_CALENDAR))
            return product;
    return nullptr;
}

VelProductAbstract* VelProductRegistry::findPrintFun(const VelProductType& theType) const
{
    for (VelProductAbstract* product : *productsOfType(theType))
        if (product->isPrintFunProduct() && product->orderTxtType() == theType.productName())
            return product;
    return nullptr;
}

VelProductAbstract* VelProductRegistry::findProductWithOrderTXTType(const QString& theType) const
{
    if (VelProductAbstract* known = myProductsByOrderTxtType.value(theType, nullptr))
        return known;
    VelProductAbstract* product =
        firstProduct([&](const VelProductAbstract* theProduct) { return theProduct->orderTxtType() == theType; });
    if (product)
        myProductsByOrderTxtType.insert(theType, product);
    return product;
}

VelProductAbstract* VelProductRegistry::findProductWithOrderTXTHead(const QString& theHead,
                                                                    const VelProductGroup& theGroup) const
{
    if (theHead.isEmpty())
        return nullptr;
    return firstProduct([&](const VelProductAbstract* theProduct) {
        return theProduct->orderTxtHead() == theHead && theProduct->isProductGroup(theGroup);
    });
}

VelProductAbstract* VelProductRegistry::findProductWithOrderTXTHead(const QString& theHead,
                                                                    const VelProductGroup& theGroup,
                                                                    const QString& theBorder) const
{
    if (theHead.isEmpty())
        return nullptr;
    return firstProduct([&](const VelProductAbstract* theProduct) {
        return theProduct->orderTxtHead() == theHead && theProduct->isProductGroup(theGroup) &&
               theProduct->orderTxtValue(STR_BORDER) == theBorder;
    });
}

VelProductAbstract* VelProductRegistry::product(const QString& theText) const
{
    if (VelProductAbstract* product = findProductWithOrderTXTType(theText))
        return product;
    if (VelProductAbstract* product = findProduct(VelProductType(theText)))
        return product;
    return findProductWithOrderTXTHead(theText, VelProductGroup(PRODUCT_GROUP_ALL));
}

VelProductAbstract* VelProductRegistry::mostEquivalentProduct(VelProductAbstract* theProduct,
                                                              const VelProductGroup& theGroup) const
{
    const QString head = theProduct->orderTxtHead();
    if (VelProductAbstract* twin = findProductWithOrderTXTHead(head, theGroup, theProduct->orderTxtValue(STR_BORDER)))
        return twin;
    if (VelProductAbstract* sibling = findProductWithOrderTXTHead(head, theGroup))
        return sibling;
    return nearestInSize(productsForProductGroup(theGroup, true), theProduct->countPrintPixels());
}

// ---- the add-ons of a main product

template <typename Predicate>
VelProductAddOn* VelProductRegistry::firstAddOn(Predicate thePredicate) const
{
    for (VelProductAbstract* product : myProductList) {
        VelProductAddOn* addOn = asAddOn(product);
        if (addOn && thePredicate(addOn))
            return addOn;
    }
    return nullptr;
}

template <typename Predicate>
QList<VelProductAddOn*> VelProductRegistry::addOns(Predicate thePredicate) const
{
    QList<VelProductAddOn*> found;
    for (VelProductAbstract* product : myProductList) {
        VelProductAddOn* addOn = asAddOn(product);
        if (addOn && thePredicate(addOn))
            found.append(addOn);
    }
    return found;
}

VelProductAddOn* VelProductRegistry::supplement(int theArticleID, const QString& theProductClass) const
{
    return firstAddOn(
        [&](const VelProductAddOn* theAddOn) { return theAddOn->matches(theArticleID, theProductClass); });
}

VelProductAddOn* VelProductRegistry::findContent(int theArticleID, const QString& theProductClass) const
{
    return supplement(theArticleID, theProductClass);
}

VelProductAddOn* VelProductRegistry::findContent(const VelProductType& theType, const QString& theProductClass) const
{
    const VelProductAbstract* product = findProduct(theType);
    return product ? findContent(product->articleID(), theProductClass) : nullptr;
}

bool VelProductRegistry::productHasSupplement(int theArticleID, const QString& theProductClass) const
{
    return supplement(theArticleID, theProductClass) != nullptr;
}

QList<VelProductAddOn*> VelProductRegistry::possibleAddOns(int theArticleID) const
{
    return addOns([=](const VelProductAddOn* theAddOn) { return theAddOn->isCompatibleWithArticleId(theArticleID); });
}

QList<VelProductAddOn*> VelProductRegistry::possibleSupplements(int theArticleID) const
{
    return addOns([=](const VelProductAddOn* theAddOn) {
        return theAddOn->isCompatibleWithArticleId(theArticleID) && theAddOn->isOrderableByUser();
    });
}

QList<VelProductAddOn*> VelProductRegistry::findPossibleFrames(int theArticleID) const
{
    return addOns([=](const VelProductAddOn* theAddOn) {
        return theAddOn->isFrame() && theAddOn->isCompatibleWithArticleId(theArticleID);
    });
}

VelProductAddOn* VelProductRegistry::findPagePackage(int theArticleID) const
{
    return firstAddOn([=](const VelProductAddOn* theAddOn) {
        return theAddOn->isPagePackage() && theAddOn->isCompatibleWithArticleId(theArticleID);
    });
}

VelProductAddOn* VelProductRegistry::qrCodeSupplement(const VelProductType& theType) const
{
    const VelProductPrintFun* book = findFotoBook(theType);
    return book ? supplement(book->articleID(), VelProductAddOn::videoName()) : nullptr;
}

bool VelProductRegistry::qrCodeAllowed(const VelProductType& theType) const
{
    return qrCodeSupplement(theType) != nullptr;
}

QString VelProductRegistry::qrCodePriceText(const VelProductType& theType) const
{
    const VelProductAddOn* supplement = qrCodeSupplement(theType);
    return supplement ? VelCurrencyConfig::instance()->fullText(supplement->price(), true, false, false) : QString();
}

// ---- lists and sets

VelProductList* VelProductRegistry::productsOfType(const VelProductType& theType) const
{
    VelProductList*& list = myProductsByType[theType.type()];
    if (!list)
        list = new VelProductList;
    return list;
}

QList<VelProductPrintFun*> VelProductRegistry::fotoBooks() const
{
    return booksOf(myProductList);
}

QList<VelProductPrintFun*> VelProductRegistry::fotoBooks(const VelProductType& theType) const
{
    return booksOf(*productsOfType(theType));
}

VelProductList VelProductRegistry::findProductListWithOrderTxtType(const QString& theType) const
{
    VelProductList products;
    for (VelProductAbstract* product : myProductList)
        if (product->orderTxtType() == theType)
            products.append(product);
    return products;
}

VelProductList VelProductRegistry::productsForShippingGroup(int theId, bool theIncludeAddOns) const
{
    VelProductList products;
    for (VelProductAbstract* product : myProductList)
        if (product->isAddOn() ? theIncludeAddOns : product->shippingGroupId() == theId)
            products.append(product);
    sortProductsByNumber(products);
    return products;
}

VelProductList VelProductRegistry::productsForProductGroup(const VelProductGroup& theGroup, bool theIncludeAddOns) const
{
    VelProductList products;
    for (VelProductAbstract* product : myProductList)
        if (product->isProductGroup(theGroup) || (theIncludeAddOns && product->isAddOn()))
            products.append(product);
    sortProductsByNumber(products);
    return products;
}

QStringList VelProductRegistry::productListAsStringList(const VelProductGroup& theGroup) const
{
    QStringList names;
    for (const VelProductAbstract* product : productsForProductGroup(theGroup, false))
        names.append(product->name());
    return names;
}

QSet<VelDiscountLimit> VelProductRegistry::discountLimits(int theShippingGroupId, const VelTarmPriceKey& theKey) const
{
    QSet<VelDiscountLimit> limits;
    for (const VelProductAbstract* product : productsForShippingGroup(theShippingGroupId, true))
        limits.unite(product->discountLimits(theKey));
    VelDiscountLimit::removeSupersededBaseLimits(limits);
    return limits;
}

// ---- tests

bool VelProductRegistry::productExists(const QString& theText) const
{
    return findProductWithOrderTXTType(theText) || findProduct(VelProductType(theText));
}

bool VelProductRegistry::containsProductGroup(const VelProductGroup& theGroup) const
{
    return firstProduct(
        [&](const VelProductAbstract* theProduct) { return theProduct->productGroup().value() == theGroup.value(); });
}

bool VelProductRegistry::shippingTimesEnabled() const
{
    return firstProduct([](const VelProductAbstract* theProduct) { return theProduct->shippingTimesEnabled(); });
}

bool VelProductRegistry::shippingGroupHasNonPrintFunProducts(int theId) const
{
    return firstProduct([=](const VelProductAbstract* theProduct) {
        return !theProduct->isAddOn() && theProduct->shippingGroupId() == theId && !theProduct->isPrintFunProduct();
    });
}

bool VelProductRegistry::containsDiscountModel(int theShippingGroupId, const VelTarmPriceKey& theKey,
                                               VelDiscountModel theModel) const
{
    return firstProduct([&](const VelProductAbstract* theProduct) {
        return (theProduct->isAddOn() || theProduct->shippingGroupId() == theShippingGroupId) &&
               hasLimitOfModel(theProduct->discountLimits(theKey), theModel);
    });
}

bool VelProductRegistry::groupsMatch(const VelProductGroup& theLeft, const VelProductGroup& theRight) const
{
    return theLeft.matches(theRight);
}

// ---- fees

VelProductAbstract* VelProductRegistry::transferProduct(int theShippingGroupId) const
{
    return myTransferProducts->transferProduct(theShippingGroupId);
}

VelProductAbstract* VelProductRegistry::transferProductWithArticleId(int theArticleID) const
{
    return myTransferProducts->transferProductWithArticleId(theArticleID);
}

int VelProductRegistry::idOfTransferProduct(int theShippingGroupId) const
{
    return myTransferProducts->idOfTransferProduct(theShippingGroupId);
}

VelProductAbstract* VelProductRegistry::paymentAgioProduct(VelPaymentType thePayment) const
{
    return myPaymentAgio->paymentAgioProduct(thePayment);
}

int VelProductRegistry::idOfPaymentAgioProduct(VelPaymentType thePayment) const
{
    return myPaymentAgio->idOfPaymentAgioProduct(thePayment);
}

QList<VelProductAbstract*> VelProductRegistry::expressAgioProducts(int theShippingGroupId) const
{
    return myExpressFees->expressAgioProducts(theShippingGroupId);
}

VelProductAbstract* VelProductRegistry::expressAgioProduct(int theShippingGroupId,
                                                           const VelExpressType& theExpressType) const
{
    return myExpressFees->expressAgioProduct(theShippingGroupId, theExpressType);
}

QList<VelExpressType> VelProductRegistry::supportedExpressTypes(int theShippingGroupId,
                                                                const VelTarmPriceKey& theKey) const
{
    return myExpressFees->supportedExpressTypes(theShippingGroupId, theKey);
}

bool VelProductRegistry::containsExpressAgioProducts() const
{
    return myExpressFees->containsExpressAgioProducts();
}
