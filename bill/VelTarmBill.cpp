#include "bill/VelTarmBill.h"

#include "bill/VelTarmArticle.h"
#include "bill/VelTarmBillEntry.h"
#include "bill/VelTarmBillPosition.h"
#include "frame/EnumHelper.h"
#include "frame/VelArithmetic.h"
#include "frame/VelQuickSort.h"
#include "price/VelTarmPriceKey.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductRegistry.h"

#include <algorithm>
#include <limits>

namespace {

const QString STR_DISCOUNT_TYPE = QStringLiteral("discount_type");
const QString STR_DISCOUNT_LEVEL = QStringLiteral("discount_level");
const QString STR_PRICE = QStringLiteral("price");
const QString STR_TRANSFER_BASE_PRICE = QStringLiteral("transfer_base_price");
const QString STR_TRANSFER_UNIT_PRICE = QStringLiteral("transfer_unit_price");
const QString STR_NO_DISCOUNT = QStringLiteral("-");

const int WITHOUT_TRANSFER_MASK = 6;

bool isPackageModel(VelDiscountModel theModel)
{
    return theModel == DISCOUNT_MODEL_LEVEL_PACKAGE || theModel == DISCOUNT_MODEL_PACKAGE;
}

/// Fees carry no transfer prices of their own.
bool isFeeModel(VelDiscountModel theModel)
{
    return theModel == DISCOUNT_MODEL_BULK_TRANSFER || theModel == DISCOUNT_MODEL_BILLING_SUM_TRANSFER ||
           theModel == DISCOUNT_MODEL_TRANSFER_2 || theModel == DISCOUNT_MODEL_EXPRESS_FEE;
}

/// The letter as the price list writes it: a piece under a package model that is no package has a lower-case one.
QString discountType(const VelTarmBill::DiscountInformation& theInformation)
{
    if (theInformation.discountLevel == 0)
        return STR_NO_DISCOUNT;
    const QString letter = EnumHelper::encodeDiscountModel(theInformation.discountModel).toUpper();
    return isPackageModel(theInformation.discountModel) && !theInformation.isPackage ? letter.toLower() : letter;
}

} // namespace

VelTarmBill::VelTarmBill(int theShippingGroup, const VelOrderStatistic& theStatistic,
                         const VelExpressType& theExpressType, const VelTarmStatus& theStatus)
    : myShippingGroup(theShippingGroup), myStatus(theStatus), myStatistic(theStatistic), myExpressType(theExpressType)
{
    init();
}

VelTarmBill::VelTarmBill(const VelTarmBill& theOther)
    : myShippingGroup(theOther.myShippingGroup)
    , myStatus(theOther.myStatus)
    , myStatistic(theOther.myStatistic)
    , myExpressType(theOther.myExpressType)
    , myDiscountInformation(theOther.myDiscountInformation)
    , myPaymentAgioEnabled(theOther.myPaymentAgioEnabled)
    , myTransferState(theOther.myTransferState)
    , myStoredTransferFee(theOther.myStoredTransferFee)
{
    myEntries.reserve(theOther.myEntries.size());
    for (const VelTarmBillEntry& entry : theOther.myEntries)
        myEntries.push_back(entry.clone());
}

VelTarmBill::~VelTarmBill()
{
    for (const VelTarmBillEntry& entry : myEntries)
        delete entry.madePosition();
}

/// An add-on looks up the position of its main product, so the order of this walk is part of the result.
void VelTarmBill::init()
{
    const VelTarmPriceKey key = myStatus.priceKey();
    const QMap<VelProductAbstract*, int> items = myStatistic.items();
    myEntries.reserve(static_cast<std::size_t>(items.size()));
    for (auto item = items.cbegin(); item != items.cend(); ++item) // fetched side by side, priced one by one
        item.key()->tarmArticle()->prefetchPrices(key.orderSource());
    for (auto item = items.cbegin(); item != items.cend(); ++item)
        item.key()->priceFor(key, item.value(), 0, this, &myStatistic);
    const bool isFree = std::any_of(myEntries.cbegin(), myEntries.cend(), [](const VelTarmBillEntry& theEntry) {
        return theEntry.discountModel() == DISCOUNT_MODEL_PACKAGE;
    });
    myTransferState = isFree ? TRANSFER_STATE_FREE : TRANSFER_STATE_COMPUTE;
    myStoredTransferFee = transferFee();
}

// ---- queries

VelProductAbstract* VelTarmBill::transferProduct() const
{
    return VelProductRegistry::instance()->transferProduct(myShippingGroup);
}

int VelTarmBill::idOfTransferProduct() const
{
    return VelProductRegistry::instance()->idOfTransferProduct(myShippingGroup);
}

int VelTarmBill::idOfPaymentAgioProduct() const
{
    return VelProductRegistry::instance()->idOfPaymentAgioProduct(myStatus.payment());
}

VelTarmBillPositionList VelTarmBill::orderPositions() const
{
    VelTarmBillPositionList positions;
    positions.reserve(static_cast<int>(myEntries.size()));
    for (const VelTarmBillEntry& entry : myEntries)
        positions.append(entry.position());
    return positions;
}

VelTarmBillPositionList VelTarmBill::sortedBillPositions() const
{
    VelTarmBillPositionList sorted = orderPositions();
    quickSort(sorted.begin(), sorted.end(), VelTarmBillPositionAbstract::lessThan);
    return sorted;
}

const VelTarmBillEntry* VelTarmBill::firstEntryOf(const VelProductAbstract* theProduct) const
{
    for (const VelTarmBillEntry& entry : myEntries)
        if (entry.product() == theProduct)
            return &entry;
    return nullptr;
}

VelTarmBillPosition* VelTarmBill::billPosition(const VelProductAbstract* theProduct) const
{
    const VelTarmBillEntry* entry = firstEntryOf(theProduct);
    return entry ? qobject_cast<VelTarmBillPosition*>(entry->position())
                 : nullptr; // null for an invalid first one, too
}

/// Goes through the entries, not through the articles: an add-on may fit very many articles.
int VelTarmBill::highestLevelOfMainProducts(const VelProductAddOn& theAddOn) const
{
    const auto isMainProduct = [&](const VelProductAbstract* theProduct) {
        const int articleID = theProduct->articleID();
        return theAddOn.isCompatibleWithArticleId(articleID) &&
               VelProductRegistry::instance()->productWithArticleID(articleID) == theProduct;
    };
    int highest = 0;
    for (const VelTarmBillEntry& entry : myEntries)
        if (entry.discountLevel() > highest && entry.isPriced() && isMainProduct(entry.product()) &&
            &entry == firstEntryOf(entry.product()))
            highest = entry.discountLevel();
    return highest;
}

bool VelTarmBill::isValid() const
{
    const auto isInvalid = [](const VelTarmBillEntry& theEntry) { return theEntry.isInvalid(); };
    if (std::any_of(myEntries.cbegin(), myEntries.cend(), isInvalid))
        return false;
    return priceOfPaymentAgio(0) >= 0; // it can't come out negative; the test stays all the same
}

void VelTarmBill::dump() const
{
    for (const VelTarmBillEntry& entry : myEntries)
        entry.position()->dump();
}

// ---- changing

void VelTarmBill::addLine(const VelTarmBillLine& theLine)
{
    myEntries.emplace_back(theLine);
}

void VelTarmBill::addOrderPositions(const VelTarmBillPositionList& thePositions)
{
    for (VelTarmBillPositionAbstract* position : thePositions)
        myEntries.emplace_back(position);
}

template <typename Condition>
void VelTarmBill::removeEntries(Condition theCondition)
{
    myEntries.erase(std::remove_if(myEntries.begin(), myEntries.end(), theCondition), myEntries.end());
}

void VelTarmBill::filterArticles(const QList<int>& theArticleIDs)
{
    if (theArticleIDs.isEmpty()) // every article counts, and the fees stay as they are
        return;
    removeEntries(
        [&](const VelTarmBillEntry& theEntry) { return !theArticleIDs.contains(theEntry.product()->articleID()); });
    myPaymentAgioEnabled = theArticleIDs.contains(idOfPaymentAgioProduct());
    // Even a free transfer is overwritten here; the stored fee is 0 then.
    myTransferState =
        theArticleIDs.contains(idOfTransferProduct()) ? TRANSFER_STATE_STORED : TRANSFER_STATE_FILTERED_OUT;
}

void VelTarmBill::filterOutPackages()
{
    removeEntries([](const VelTarmBillEntry& theEntry) { return theEntry.isPackage(); });
}

// ---- computing

int VelTarmBill::totalItemCost(const VelProductGroup& theGroup) const
{
    int cost = 0;
    for (const VelTarmBillEntry& entry : myEntries)
        if (entry.product()->productGroup().matches(theGroup))
            cost = VelArithmetic::sum(cost, entry.positionPrice());
    return cost;
}

int VelTarmBill::totalItemCount(const VelProductGroup& theGroup) const
{
    int count = 0;
    for (const VelTarmBillEntry& entry : myEntries)
        if (!entry.product()->isAddOn() && entry.product()->productGroup().matches(theGroup))
            count = VelArithmetic::sum(count, entry.countItems());
    return count;
}

int VelTarmBill::itemCost() const
{
    return totalItemCost(VelProductGroup(PRODUCT_GROUP_ALL));
}

int VelTarmBill::itemCount() const
{
    return totalItemCount(VelProductGroup(PRODUCT_GROUP_ALL));
}

int VelTarmBill::unitPriceOfCheapestArticle() const
{
    const int none = std::numeric_limits<int>::max();
    int cheapest = none;
    for (const VelTarmBillEntry& entry : myEntries)
        if (entry.product()->productGroup().matches(PRODUCT_GROUP_ALL))
            cheapest = qMin(cheapest, entry.unitPrice());
    return cheapest == none ? 0 : cheapest;
}

int VelTarmBill::transferFee() const
{
    if (isWithoutTransfer())
        return 0;
    return myTransferState == TRANSFER_STATE_STORED ? myStoredTransferFee : priceOfTransfer(nullptr);
}

bool VelTarmBill::isWithoutTransfer() const
{
    return (myTransferState & WITHOUT_TRANSFER_MASK) != 0;
}

int VelTarmBill::priceOfTransfer(VelTarmBill* theBill) const
{
    const VelProductAbstract* product = transferProduct();
    return product ? product->priceFor(myStatus.priceKey(), itemCount(), itemCost(), theBill, &myStatistic) : 0;
}

int VelTarmBill::priceOfTransfer() const
{
    const VelProductAbstract* product = transferProduct();
    if (isWithoutTransfer() || !product)
        return 0;
    VelTarmPriceKey key = myStatus.priceKey();
    key.setDiscountLevel(0);
    return product->transferPriceFor(key, itemCount(), itemCost(), &myStatistic);
}

int VelTarmBill::priceOfUnitTransfer() const
{
    const VelProductAbstract* product = transferProduct();
    if (isWithoutTransfer() || !product)
        return 0;
    VelTarmPriceKey key = myStatus.priceKey();
    key.setDiscountLevel(0);
    return product->unitTransferPriceFor(key, &myStatistic);
}

int VelTarmBill::priceOfExpressAgio(VelTarmBill* theBill) const
{
    const VelProductAbstract* product =
        VelProductRegistry::instance()->expressAgioProduct(myShippingGroup, myExpressType);
    if (!product)
        return 0;
    int items = 0;
    for (const VelTarmBillEntry& entry : myEntries)
        if (entry.product()->isPrintFunProduct())
            items = VelArithmetic::sum(items, entry.countItems());
    VelTarmPriceKey key = myStatus.priceKey();
    key.setDiscountModel(DISCOUNT_MODEL_EXPRESS_FEE);
    return product->priceFor(key, items, 1, theBill, nullptr);
}

int VelTarmBill::priceOfPaymentAgio(VelPaymentType thePayment, const VelTarmPriceKey& theKey)
{
    const VelProductAbstract* product = VelProductRegistry::instance()->paymentAgioProduct(thePayment);
    return product ? qMax(0, product->priceFor(theKey, 1, 1, nullptr, nullptr)) : 0;
}

int VelTarmBill::priceOfPaymentAgio(VelPaymentType thePayment) const
{
    return priceOfPaymentAgio(thePayment, myStatus.priceKey());
}

int VelTarmBill::priceOfPaymentAgio(int theCoupon) const
{
    return !myPaymentAgioEnabled || totalPriceIsVoid(theCoupon) ? 0 : priceOfPaymentAgio(myStatus.payment());
}

int VelTarmBill::costBeforeFees(int theCoupon) const
{
    return VelArithmetic::sum(VelArithmetic::sum(itemCost(), transferFee()), theCoupon);
}

bool VelTarmBill::totalPriceIsVoid(int theCoupon) const
{
    return costBeforeFees(theCoupon) < 1;
}

int VelTarmBill::totalFinalCost(int theCoupon) const
{
    int cost = 0;
    if (!totalPriceIsVoid(theCoupon))
        cost = qMax(0, VelArithmetic::sum(costBeforeFees(theCoupon), priceOfPaymentAgio(theCoupon)));
    return VelArithmetic::sum(cost, priceOfExpressAgio(nullptr)); // behind the stop at 0
}

int VelTarmBill::totalFinalCostWithoutCoupon() const
{
    return qMax(0, costBeforeFees(0));
}

// ---- the description of discounts

void VelTarmBill::initDiscountInfoForXTCI()
{
    priceOfTransfer(this);
    priceOfExpressAgio(this);
    const VelTarmPriceKey key = myStatus.priceKey();
    const VelProductAbstract* highest = myStatistic.productWithHighestBaseTransferPrice(key);
    const VelProductAbstract* transfer = transferProduct();
    const bool isTransferModel2 = transfer && transfer->transferModel() == TRANSFER_MODEL_2;
    for (const VelTarmBillEntry& entry : myEntries) {
        VelProductAbstract* product = entry.product();
        int price = entry.unitPrice();
        for (int piece = 0; piece < entry.countItems(); ++piece) {
            // Exactly one piece of the whole bill carries the base price.
            const bool carriesBase = product == highest;
            insertInfoDiscountInformationMap(product, entry.discountModel(), entry.discountLevel(), entry.isPackage(),
                                             price, isTransferModel2,
                                             carriesBase ? product->baseTransferPrice(key) : NO_BASE_TRANSFER_PRICE,
                                             product->unitTransferPrice(key));
            if (carriesBase)
                highest = nullptr;
            if (entry.isPackage() && isPackageModel(entry.discountModel()))
                price = 0; // the first piece carries the package's whole price
        }
    }
}

QList<VelTarmBill::DiscountInformation>* VelTarmBill::discountInformationList(const VelProductAbstract* theProduct)
{
    QList<DiscountInformation>*& list = myDiscountInformation[theProduct];
    if (!list)
        list = new QList<DiscountInformation>;
    return list;
}

void VelTarmBill::insertInfoDiscountInformationMap(VelProductAbstract* theProduct, VelDiscountModel theModel,
                                                   int theLevel, bool theIsPackage, int theUnitPrice,
                                                   bool theIsTransferModel2, int theBaseTransferPrice,
                                                   int theUnitTransferPrice)
{
    discountInformationList(theProduct)
        ->append({theModel, theLevel, theIsPackage, theUnitPrice, theIsTransferModel2, theUnitTransferPrice,
                  theBaseTransferPrice});
}

int VelTarmBill::itemsAvailableInCurrentDiscountLevel(VelProductAbstract* theProduct)
{
    const QList<DiscountInformation>* list = discountInformationList(theProduct);
    const auto end = std::find_if(list->cbegin(), list->cend(), [=](const DiscountInformation& theInformation) {
        return theInformation.discountLevel != list->first().discountLevel;
    });
    return static_cast<int>(end - list->cbegin());
}

VelTarmBill::DiscountInformation VelTarmBill::nextDiscountInfo(const VelProductAbstract* theProduct, int theCount)
{
    QList<DiscountInformation>* list = discountInformationList(theProduct);
    if (list->isEmpty())
        return {DISCOUNT_MODEL_UNDEFINED, 0, false, 0, false, 0, NO_BASE_TRANSFER_PRICE};
    const DiscountInformation first = list->first();
    list->erase(list->begin(), list->begin() + qBound(0, theCount, list->size()));
    return first;
}

void VelTarmBill::describeDiscount(QDomElement& theElement, const VelProductAbstract* theProduct, int theCount,
                                   bool theWithDiscountType)
{
    const DiscountInformation information = nextDiscountInfo(theProduct, theCount);
    if (theWithDiscountType) {
        theElement.setAttribute(STR_DISCOUNT_TYPE, discountType(information));
        theElement.setAttribute(STR_DISCOUNT_LEVEL, information.discountLevel);
    }
    theElement.setAttribute(STR_PRICE, priceOf(information, theCount));
    if (!information.isTransferModel2 || isFeeModel(information.discountModel))
        return;
    const bool carriesBase = information.baseTransferPrice != NO_BASE_TRANSFER_PRICE;
    if (carriesBase)
        theElement.setAttribute(STR_TRANSFER_BASE_PRICE, information.baseTransferPrice);
    if (theCount >= 2 || !carriesBase)
        theElement.setAttribute(STR_TRANSFER_UNIT_PRICE, information.unitTransferPrice);
}

/// What a group of pieces like this one costs; a bill of free transfer shows no prices but those of the express fee.
int VelTarmBill::priceOf(const DiscountInformation& theInformation, int theCount) const
{
    if (theInformation.discountModel == DISCOUNT_MODEL_EXPRESS_FEE)
        return theInformation.unitPrice;
    if (myTransferState == TRANSFER_STATE_FREE)
        return 0;
    return VelArithmetic::product(theInformation.unitPrice, theInformation.isPackage ? 1 : theCount);
}
