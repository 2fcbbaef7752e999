#include "bill/VelProductPriceCalculator.h"
#include "bill/VelTarmArticle.h"
#include "bill/VelTarmBill.h"
#include "frame/VelArithmetic.h"
#include "frame/VelChildElements.h"
#include "fuzz/FuzzAudit.h"
#include "fuzz/FuzzBill.h"
#include "fuzz/FuzzShop.h"
#include "ordering/VelOrderingDetails.h"
#include "price/VelDiscountLimitCache.h"
#include "price/VelTarmPriceInfo.h"
#include "product/VelPageOrganizationCalculatorTarm.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductGroupManager.h"
#include "product/VelProductPrintFun.h"
#include "product/VelProductRegistry.h"
#include "product/VelProductRegistryProductChecker.h"
#include "product/VelProductSet.h"
#include "sibling/VelKeyAccount.h"

#include <QDebug>

#include <limits>
#include <new>

namespace {

const QString STR_PRICE_LIST = QStringLiteral("pricelist.xml");

/// The queries of one product walk all of them; a long list of products would show no more than a short one.
const int MOST_PRODUCTS = 40;

const int HIGHEST = std::numeric_limits<int>::max();
const int LOWEST = std::numeric_limits<int>::min();
const int COUNTS[] = {1, 7, 100, 0, -1, HIGHEST, LOWEST};
const QList<int> CART_COUNTS = {1, 2, 7, 51, 120, 0, -3};

const QList<VelTarmPriceKey>& keys()
{
    static const QList<VelTarmPriceKey> keys = {
        {VelOrderSource::onlineMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED},
        {VelOrderSource::onlinePointOfSale(), 0, DISCOUNT_MODEL_BULK},
        {VelOrderSource::cdPointOfSale(), 2, DISCOUNT_MODEL_INHERITED_DISCOUNT},
        {VelOrderSource::kioskOnSite(), HIGHEST, DISCOUNT_MODEL_EXPRESS_FEE},
        {VelOrderSource(INPUT_SOURCE_UNKNOWN, DELIVERY_TYPE_UNKNOWN), -1, DISCOUNT_MODEL_UNDEFINED},
    };
    return keys;
}

/// An empty registry in the place of the application's one, so that no input depends on those before it. The cache's
/// connection went with the former one.
VelProductRegistry* emptyRegistry()
{
    VelKeyAccount::instance()->setPricelistXMLFileInfo(QFileInfo());
    VelProductRegistry* registry = VelProductRegistry::instance();
    registry->~VelProductRegistry();
    new (registry) VelProductRegistry;
    VelDiscountLimitCache* cache = VelDiscountLimitCache::instance();
    cache->clear();
    QObject::connect(registry, &VelProductRegistry::priceListUpdated, cache, &VelDiscountLimitCache::clear);
    return registry;
}

QList<VelProductAbstract*> feesOf(const VelProductRegistry& theRegistry, int theGroup)
{
    QList<VelProductAbstract*> fees = theRegistry.expressAgioProducts(theGroup);
    fees.append(theRegistry.transferProduct(theGroup));
    fees.append(theRegistry.paymentAgioProduct(PAYMENT_TYPE_3));
    fees.removeAll(nullptr);
    return fees;
}

QList<int> pricesOf(const QList<VelProductAbstract*>& theProducts)
{
    QList<int> prices;
    for (const VelProductAbstract* product : theProducts)
        for (const VelTarmPriceKey& key : keys())
            for (const int count : COUNTS)
                prices << product->price(key, count, count) << product->transferPriceFor(key, count, count, nullptr);
    return prices;
}

// ---- one product

void askLimits(const VelProductAbstract& theProduct)
{
    for (const VelTarmPriceKey& key : keys()) {
        for (const VelDiscountLimit& limit : theProduct.discountLimits(key))
            theProduct.priceAtBound(key, limit);
        FUZZ_REQUIRE(theProduct.minPriceFor(key, true) <= theProduct.minPriceFor(key, false));
        theProduct.nonOfferPrice(key);
        theProduct.endOfferDate(key);
        theProduct.tarmArticle()->discountLevel(key, 7, 1);
    }
    theProduct.minPrice(true);
    theProduct.priceFirstFit();
}

void askProperties(const VelProductAbstract& theProduct)
{
    QString text;
    QDebug(&text) << theProduct;
    theProduct.toOrderTxt();
    theProduct.isoFileNameSuggestion();
    theProduct.printPixelSize(QSize(3, 2));
    theProduct.countPrintPixels();
    theProduct.orderableViaPOS();
    theProduct.isOrderable();
    theProduct.isFotoProduct();
    theProduct.qualityOnScaleForPPMM(7.5);
    theProduct.shippingTime(DELIVERY_TYPE_MAILORDER, ExpressableType_STANDARD);
    theProduct.isExpressable(DELIVERY_TYPE_POS, ExpressableType_EXPRESS_1);
    theProduct.orderTxtSalesline();
}

/// A price with positions is the price without, and what the positions come to; but an add-on looks at the bill.
void askPositions(const VelProductAbstract& theProduct, int theCount)
{
    const VelTarmPriceKey& key = keys().first();
    VelTarmBill bill(theProduct.shippingGroupId(), VelOrderStatistic(), VelExpressType(), VelTarmStatus());
    const int price = theProduct.priceFor(key, theCount, theCount, &bill, nullptr);
    FUZZ_REQUIRE(price == theProduct.price(key, theCount, theCount) || theProduct.isProductClass(PRODUCT_CLASS_ADD_ON));
    int sum = 0;
    for (const VelTarmBillPositionAbstract* position : bill.orderPositions())
        sum = VelArithmetic::sum(sum, position->positionPrice());
    FUZZ_REQUIRE(price == sum || price == -1);
}

void askCalculator(VelProductAbstract* theProduct)
{
    for (const int pages : {0, 42, HIGHEST, LOWEST}) {
        VelProductPriceCalculator calculator(theProduct, pages, pages, 1, {{QStringLiteral("12"), pages}});
        calculator.countPagePackages();
        calculator.countAdditionalContents();
        calculator.boughtTemplates();
        calculator.unitPrice();
        calculator.isOrderable(keys().last());
    }
}

void askProduct(VelProductAbstract* theProduct)
{
    askLimits(*theProduct);
    askProperties(*theProduct);
    for (const int count : COUNTS)
        askPositions(*theProduct, count);
    askCalculator(theProduct);
}

/// What no product passes on, for each entry of the document by itself.
void askPrices(const QDomElement& theSection)
{
    for (const QDomElement& element : VelChildElements(theSection)) {
        VelTarmPriceInfo prices(VelProductAbstract::nullProduct(), element);
        prices.dump();
        for (const VelTarmPriceKey& key : keys())
            for (const int count : COUNTS) {
                prices.bestDiscountModel(key, count, count, count);
                prices.priceInModel(key, count, count, nullptr);
                prices.countItemsAtUpperBound(key);
                FUZZ_REQUIRE(prices.priceValue(key));
            }
    }
}

// ---- the registry

void askByType(const VelProductRegistry& theRegistry, const VelProductType& theType)
{
    theRegistry.findProduct(theType);
    theRegistry.findContent(theType, QStringLiteral("MAP1"));
    theRegistry.qrCodePriceText(theType);
    theRegistry.qrCodeAllowed(theType);
    theRegistry.fotoBooks(theType);
    VelPageOrganizationCalculatorTarm().createPageOrganization(theType);
    VelProductRegistryProductChecker().isValid(theType);
    const VelProductSet set(theType);
    if (set.hasVariants())
        FUZZ_REQUIRE(set.product(set.firstValue()));
    set.parameterValues();
}

void askAbout(const VelProductRegistry& theRegistry, VelProductAbstract* theProduct)
{
    const int id = theProduct->articleID();
    FUZZ_REQUIRE(theRegistry.productWithArticleID(id)->articleID() == id);
    FUZZ_REQUIRE(theRegistry.findProductWithOrderTXTType(theProduct->orderTxtType()));
    theRegistry.product(theProduct->orderTxtHead());
    theRegistry.productExists(theProduct->name());
    const VelProductGroup group = theProduct->productGroup();
    const VelProductAbstract* twin = theRegistry.findProduct(theProduct->name(), group);
    FUZZ_REQUIRE(twin || group.value() == PRODUCT_GROUP_UNKNOWN);
    theRegistry.mostEquivalentProduct(theProduct, VelProductGroup(PRODUCT_GROUP_ALL));
    FUZZ_REQUIRE(theRegistry.possibleSupplements(id).size() <= theRegistry.possibleAddOns(id).size());
    theRegistry.findPossibleFrames(id);
    theRegistry.findPagePackage(id);
    theRegistry.transferProductWithArticleId(id);
    askByType(theRegistry, VelProductType(theProduct->orderTxtType()));
}

void askAboutGroup(const VelProductRegistry& theRegistry, int theGroup)
{
    for (const VelTarmPriceKey& key : keys()) {
        FUZZ_REQUIRE(VelDiscountLimitCache::instance()->discountLimit(theGroup, key).size() ==
                     theRegistry.discountLimits(theGroup, key).size());
        theRegistry.containsDiscountModel(theGroup, key, DISCOUNT_MODEL_LEVEL_PACKAGE);
        theRegistry.supportedExpressTypes(theGroup, key);
    }
    theRegistry.shippingGroupHasNonPrintFunProducts(theGroup);
    theRegistry.idOfTransferProduct(theGroup);
    for (VelProductAbstract* fee : feesOf(theRegistry, theGroup))
        askProduct(fee);
}

void askRegistry(const VelProductRegistry& theRegistry)
{
    for (const VelProductGroup& group : VelProductGroupManager::instance()->activeProductGroups())
        theRegistry.productListAsStringList(group);
    theRegistry.containsProductGroup(VelProductGroup(PRODUCT_GROUP_BOOK));
    theRegistry.shippingTimesEnabled();
    theRegistry.containsExpressAgioProducts();
    theRegistry.fotoBooks();
    theRegistry.idOfPaymentAgioProduct(PAYMENT_TYPE_3);
    VelOrderingDetails::instance()->canKioskOnSite();
}

// ---- bills

VelOrderStatistic cart(const QList<VelProductAbstract*>& theProducts)
{
    VelOrderStatistic cart;
    int index = 0;
    for (VelProductAbstract* product : theProducts)
        cart.add(product, CART_COUNTS.at(index++ % CART_COUNTS.size()));
    return cart;
}

void describe(VelTarmBill theBill, const VelOrderStatistic& theCart)
{
    theBill.initDiscountInfoForXTCI();
    QDomDocument document;
    for (VelProductAbstract* product : theCart.products())
        while (const int count = theBill.itemsAvailableInCurrentDiscountLevel(product)) {
            QDomElement pieces = document.createElement(QStringLiteral("pieces"));
            theBill.describeDiscount(pieces, product, count, true);
        }
}

void askBills(int theGroup, const QList<VelProductAbstract*>& theProducts)
{
    const VelOrderStatistic items = cart(theProducts);
    for (const VelTarmPriceKey& key : keys()) {
        VelTarmStatus status;
        status.setPriceKey(key);
        items.totalPrice(key);
        items.productWithHighestBaseTransferPrice(key);
        const VelTarmBill bill(theGroup, items, VelExpressType(ExpressableType_EXPRESS_1), status);
        askBill(bill);
        describe(bill, items);
    }
    VelOrderStatistic hugeItems;
    hugeItems.add(items, HIGHEST / 3);
    askBill(VelTarmBill(theGroup, hugeItems, VelExpressType(ExpressableType_STANDARD), VelTarmStatus()));
}

// ---- the whole of it

void askEverything(const VelProductRegistry& theRegistry)
{
    askRegistry(theRegistry);
    QMap<int, QList<VelProductAbstract*>> groups;
    for (VelProductAbstract* product : theRegistry.productList().mid(0, MOST_PRODUCTS)) {
        askProduct(product);
        askAbout(theRegistry, product);
        groups[product->shippingGroupId()].append(product);
    }
    for (auto group = groups.cbegin(); group != groups.cend(); ++group) {
        askAboutGroup(theRegistry, group.key());
        askBills(group.key(), *group);
    }
}

void load(VelProductRegistry& theRegistry, const QByteArray& theDocument)
{
    VelKeyAccount::instance()->setPricelistXMLFileInfo(QFileInfo(FuzzShop::write(STR_PRICE_LIST, theDocument)));
    theRegistry.loadAllProducts();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzShop::open();
    return 0;
}

/// Price lists one after the other, and the first of them again: a price stands in the document alone, whatever was
/// read before.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    const QList<QByteArray> documents = FuzzShop::documents(theData, theSize);
    VelProductRegistry* registry = emptyRegistry();
    load(*registry, documents.first());
    const QList<VelProductAbstract*> products = registry->productList();
    const QList<int> prices = pricesOf(products.mid(0, MOST_PRODUCTS));
    load(*registry, documents.first());
    FUZZ_REQUIRE(registry->productList() == products);
    FUZZ_REQUIRE(pricesOf(products.mid(0, MOST_PRODUCTS)) == prices);
    askEverything(*registry);
    for (const QDomElement& section : VelChildElements(FuzzShop::load(documents.first())))
        askPrices(section);
    for (const QByteArray& document : documents.mid(1)) {
        load(*registry, document);
        askEverything(*registry);
    }
    load(*registry, documents.first());
    FUZZ_REQUIRE(pricesOf(products.mid(0, MOST_PRODUCTS)) == prices);
    auditDocument(QStringLiteral("pricelist.xml"), documents.first());
    return 0;
}
