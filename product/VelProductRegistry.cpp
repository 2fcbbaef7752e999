#include "product/VelProductRegistry.h"

#include "frame/VelChildElements.h"
#include "frame/VelGuardedInstance.h"
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

#include <QtAlgorithms>

namespace {

const QString STR_ARTICLES = QStringLiteral("articles");
const QString STR_ADD_ONS = QStringLiteral("add_ons");
const QString STR_PAYMETHOD_FEES = QStringLiteral("paymethod_fees");
const QString STR_TRANSFERS = QStringLiteral("transfers");
const QString STR_EXPRESS_FEES = QStringLiteral("express_fees");
const QString STR_ID = QStringLiteral("id");

bool isOfUnknownType(const VelProductAbstract* theProduct)
{
    const auto* printFun = dynamic_cast<const VelProductPrintFun*>(theProduct);
    return printFun && printFun->productType().isUnknown();
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

VelProductAbstract* VelProductRegistry::productWithArticleID(int theArticleID) const
{
    for (VelProductAbstract* product : myProductList)
        if (product->articleID() == theArticleID)
            return product;
    return nullptr;
}

VelProductList* VelProductRegistry::productsOfType(const VelProductType& theType) const
{
    VelProductList*& list = myProductsByType[theType.type()];
    if (!list)
        list = new VelProductList;
    return list;
}

VelProductList VelProductRegistry::productsForProductGroup(const VelProductGroup& theGroup, bool theIncludeAddOns) const
{
    VelProductList products;
    for (VelProductAbstract* product : myProductList)
        if (product->isProductGroup(theGroup) || (theIncludeAddOns && product->isAddOn()))
            products.append(product);
    qSort(products.begin(), products.end(), sortProductByNumber);
    return products;
}

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

void VelProductRegistry::loadAllProducts()
{
    loadAllProducts(VelKeyAccount::instance()->pricelistXMLFileInfo(false));
}

void VelProductRegistry::loadAllProducts(const QFileInfo& theProductListFileInfo)
{
    updateProducts(VelXMLLoader::loadDocumentElement(theProductListFileInfo));
}

void VelProductRegistry::updateProducts(const QDomNode& theNode)
{
    myFotoBookCache->clear();
    setProductsDeprecated();
    readProducts(theNode.firstChildElement(STR_ARTICLES));
    readProducts(theNode.firstChildElement(STR_ADD_ONS));
    readAdditionalPaymentFees(theNode.firstChildElement(STR_PAYMETHOD_FEES));
    readTransferPrices(theNode.firstChildElement(STR_TRANSFERS));
    readExpressFees(theNode.firstChildElement(STR_EXPRESS_FEES));
    emit priceListUpdated();
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

void VelProductRegistry::insertProduct(VelProductAbstract* theProduct)
{
    if (!theProduct)
        return;
    myProductList.append(theProduct);
    if (theProduct->isProductClass(PRODUCT_CLASS_PRINT_FUN_MASK))
        productsOfType(static_cast<VelProductPrintFun*>(theProduct)->productType())->append(theProduct);
}

void VelProductRegistry::setProductsDeprecated()
{
    for (VelProductAbstract* product : qAsConst(myProductList))
        product->setDeprecated(true);
}

VelProductAbstract* VelProductRegistry::buildAbstractProduct(const QDomElement& theElement) const
{
    return VelProductFactory::instance()->build(theElement);
}

void VelProductRegistry::readTransferPrices(const QDomElement& theSection)
{
    myTransferProducts->readTransferPrices(theSection);
}

void VelProductRegistry::readAdditionalPaymentFees(const QDomElement& theSection)
{
    myPaymentAgio->readAdditionalPaymentFees(theSection);
}

void VelProductRegistry::readExpressFees(const QDomElement& theSection)
{
    myExpressFees->readExpressFees(theSection);
}
