#include "bill/VelTarmBill.h"

#include "bill/VelTarmArticle.h"
#include "bill/VelTarmBillEntry.h"
#include "bill/VelTarmBillPosition.h"
#include "frame/VelArithmetic.h"
#include "frame/VelQuickSort.h"
#include "price/VelTarmPriceKey.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductRegistry.h"

#include <algorithm>
#include <limits>

namespace {

/// The states in which a bill carries no transfer charge.
const int WITHOUT_TRANSFER = VelTarmBill::TRANSFER_STATE_FILTERED_OUT | VelTarmBill::TRANSFER_STATE_FREE;

/// Whether the add-on may be had with the product, which has to be the one that its article ID stands for.
bool isMainProduct(const VelProductAbstract* theProduct, const VelProductAddOn& theAddOn)
{
    const int articleID = theProduct->articleID();
    return theAddOn.isCompatibleWithArticleId(articleID) &&
           VelProductRegistry::instance()->productWithArticleID(articleID) == theProduct;
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
    , myDiscountDescription(theOther.myDiscountDescription)
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
    myHoldsPresent = true;
    for (auto item = items.cbegin(); item != items.cend(); ++item)
        item.key()->priceFor(key, item.value(), 0, this, &myStatistic);
    myHoldsPresent = false;
    const bool isFree = std::any_of(myEntries.cbegin(), myEntries.cend(), [](const VelTarmBillEntry& theEntry) {
        return theEntry.line().myDiscountModel == DISCOUNT_MODEL_PACKAGE;
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
        if (entry.line().myProduct == theProduct)
            return &entry;
    return nullptr;
}

bool VelTarmBill::isFirstOfItsProduct(const VelTarmBillEntry& theEntry) const
{
    return firstEntryOf(theEntry.line().myProduct) == &theEntry;
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
    int highest = 0;
    for (const VelTarmBillEntry& entry : myEntries) {
        const VelTarmBillLine& line = entry.line();
        const bool isCandidate = line.myDiscountLevel > highest && line.myKind == VelTarmBillLine::PRICED;
        if (isCandidate && isMainProduct(line.myProduct, theAddOn) && isFirstOfItsProduct(entry))
            highest = line.myDiscountLevel;
    }
    return highest;
}

bool VelTarmBill::isValid() const
{
    const auto isInvalid = [](const VelTarmBillEntry& theEntry) {
        return theEntry.line().myKind == VelTarmBillLine::WITHOUT_PRICE;
    };
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

qint64 VelTarmBill::present()
{
    if (!myHoldsPresent || myPresent == 0)
        myPresent = QDateTime::currentMSecsSinceEpoch();
    return myPresent;
}

VelTarmBillLine& VelTarmBill::addLine(VelProductAbstract* theProduct)
{
    myEntries.emplace_back();
    VelTarmBillLine& line = myEntries.back().newLine();
    line.myProduct = theProduct;
    return line;
}

void VelTarmBill::addOrderPositions(const VelTarmBillPositionList& thePositions)
{
    for (VelTarmBillPositionAbstract* position : thePositions)
        myEntries.emplace_back(position);
}

template <typename Condition>
void VelTarmBill::removeEntries(Condition theCondition)
{
    const auto isRemoved = [&](const VelTarmBillEntry& theEntry) { return theCondition(theEntry.line()); };
    myEntries.erase(std::remove_if(myEntries.begin(), myEntries.end(), isRemoved), myEntries.end());
}

void VelTarmBill::filterArticles(const QList<int>& theArticleIDs)
{
    if (theArticleIDs.isEmpty()) // every article counts, and the fees stay as they are
        return;
    removeEntries(
        [&](const VelTarmBillLine& theLine) { return !theArticleIDs.contains(theLine.myProduct->articleID()); });
    myPaymentAgioEnabled = theArticleIDs.contains(idOfPaymentAgioProduct());
    // Even a free transfer is overwritten here; the stored fee is 0 then.
    myTransferState =
        theArticleIDs.contains(idOfTransferProduct()) ? TRANSFER_STATE_STORED : TRANSFER_STATE_FILTERED_OUT;
}

void VelTarmBill::filterOutPackages()
{
    removeEntries([](const VelTarmBillLine& theLine) { return theLine.isPackage(); });
}

// ---- computing

int VelTarmBill::totalItemCost(const VelProductGroup& theGroup) const
{
    int cost = 0;
    for (const VelTarmBillEntry& entry : myEntries) {
        const VelTarmBillLine& line = entry.line();
        if (line.myProduct->productGroup().matches(theGroup))
            cost = VelArithmetic::sum(cost, line.myPrice);
    }
    return cost;
}

int VelTarmBill::totalItemCount(const VelProductGroup& theGroup) const
{
    int count = 0;
    for (const VelTarmBillEntry& entry : myEntries) {
        const VelTarmBillLine& line = entry.line();
        if (!line.myProduct->isAddOn() && line.myProduct->productGroup().matches(theGroup))
            count = VelArithmetic::sum(count, line.myCountItems);
    }
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
    for (const VelTarmBillEntry& entry : myEntries) {
        const VelTarmBillLine& line = entry.line();
        if (line.myProduct->productGroup().matches(PRODUCT_GROUP_ALL))
            cheapest = qMin(cheapest, line.myUnitPrice);
    }
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
    return (myTransferState & WITHOUT_TRANSFER) != 0;
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
    for (const VelTarmBillEntry& entry : myEntries) {
        const VelTarmBillLine& line = entry.line();
        if (line.myProduct->isPrintFunProduct())
            items = VelArithmetic::sum(items, line.myCountItems);
    }
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
    const VelProductAbstract* transfer = transferProduct();
    const bool isTransferModel2 = transfer && transfer->transferModel() == TRANSFER_MODEL_2;
    VelTarmDiscountDescription::Shipping shipping{key, myStatistic.productWithHighestBaseTransferPrice(key),
                                                  isTransferModel2};
    for (const VelTarmBillEntry& entry : myEntries)
        myDiscountDescription.unfold(entry.line(), shipping);
}

QList<VelTarmBill::DiscountInformation>* VelTarmBill::discountInformationList(const VelProductAbstract* theProduct)
{
    return myDiscountDescription.pieces(theProduct);
}

void VelTarmBill::insertInfoDiscountInformationMap(VelProductAbstract* theProduct, VelDiscountModel theModel,
                                                   int theLevel, bool theIsPackage, int theUnitPrice,
                                                   bool theIsTransferModel2, int theBaseTransferPrice,
                                                   int theUnitTransferPrice)
{
    myDiscountDescription.pieces(theProduct)
        ->append({theModel, theLevel, theIsPackage, theUnitPrice, theIsTransferModel2, theUnitTransferPrice,
                  theBaseTransferPrice});
}

int VelTarmBill::itemsAvailableInCurrentDiscountLevel(VelProductAbstract* theProduct)
{
    return myDiscountDescription.piecesOfFirstLevel(theProduct);
}

VelTarmBill::DiscountInformation VelTarmBill::nextDiscountInfo(const VelProductAbstract* theProduct, int theCount)
{
    return myDiscountDescription.take(theProduct, theCount);
}

void VelTarmBill::describeDiscount(QDomElement& theElement, const VelProductAbstract* theProduct, int theCount,
                                   bool theWithDiscountType)
{
    const bool isFree = myTransferState == TRANSFER_STATE_FREE;
    myDiscountDescription.describe(theElement, theProduct, theCount, theWithDiscountType, isFree);
}
