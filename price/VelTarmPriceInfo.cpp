#include "price/VelTarmPriceInfo.h"

#include "bill/VelOrderStatistic.h"
#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "bill/VelTarmBillPositionInvalid.h"
#include "bill/VelTarmBillPositionList.h"
#include "frame/EnumHelper.h"
#include "frame/VelArithmetic.h"
#include "frame/VelChildElements.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelXMLParser.h"

#include <QDebug>

#include <algorithm>
#include <limits>

namespace {

const QString STR_BASE_PRICES = QStringLiteral("base_prices");
const QString STR_DISCOUNT_PRICES = QStringLiteral("discount_prices");
const QString STR_MODEL = QStringLiteral("model");

const int MAX_INT = std::numeric_limits<int>::max();

/// Decoded models are OR-ed from the values up to 9 and so stay below this.
const int MODEL_BOUND = 16;

unsigned bitOf(VelDiscountModel theModel)
{
    return 1U << static_cast<unsigned>(theModel);
}

bool isIgnored(VelDiscountModel theModel)
{
    return theModel == DISCOUNT_MODEL_FUTURE_EXTENSION || theModel == DISCOUNT_MODEL_UNDEFINED;
}

/// These do not compete on price: the first of them that has a price at all is taken.
bool winsAtOnce(VelDiscountModel theModel)
{
    return theModel == DISCOUNT_MODEL_LEVEL_PACKAGE || theModel == DISCOUNT_MODEL_PACKAGE ||
           theModel == DISCOUNT_MODEL_BILLING_SUM_TRANSFER || theModel == DISCOUNT_MODEL_INHERITED_DISCOUNT;
}

/// The old price beside the new one, for as long as the offer lasts; the amount itself is not touched by an offer.
/// The clock is read only where there is an old price to show.
int shownNonOfferPrice(const VelTarmPriceValue& theValue)
{
    if (theValue.nonOfferPrice() == -1)
        return -1;
    const bool offerRuns = QDateTime::currentMSecsSinceEpoch() < theValue.endOfferDate().toMSecsSinceEpoch();
    return offerRuns ? theValue.nonOfferPrice() : -1;
}

} // namespace

VelTarmPriceInfo::VelTarmPriceInfo(VelProductAbstract* theProduct, const QDomElement& theArticle)
    : myProduct(theProduct)
{
    update(theArticle);
}

// ---- queries of the store

QList<VelInputSource> VelTarmPriceInfo::inputSources(const VelInputSource& theInputSource) const
{
    static const QList<VelInputSource> netAndCD{INPUT_SOURCE_NET, INPUT_SOURCE_CD}; // the kiosk must be named
    switch (theInputSource) {
    case INPUT_SOURCE_ANY:
        return netAndCD;
    case INPUT_SOURCE_NET:
    case INPUT_SOURCE_CD:
    case INPUT_SOURCE_KIOSK:
        return {theInputSource};
    default:
        return {};
    }
}

QList<VelDeliveryType> VelTarmPriceInfo::deliveryTypes(const VelDeliveryType& theDeliveryType) const
{
    static const QList<VelDeliveryType> posAndMail{DELIVERY_TYPE_POS, DELIVERY_TYPE_MAILORDER}; // on site must be named
    switch (theDeliveryType) {
    case DELIVERY_TYPE_ANY:
        return posAndMail;
    case DELIVERY_TYPE_POS:
    case DELIVERY_TYPE_MAILORDER:
    case DELIVERY_TYPE_ON_SITE:
        return {theDeliveryType};
    default:
        return {};
    }
}

VelTarmPriceValue* VelTarmPriceInfo::priceValue(const VelTarmPriceKey& theKey) const
{
    const VelTarmPricePlace place{theKey.orderSource(), theKey.discountModel(), theKey.discountLevel()};
    return &valueOrInvalid(place);
}

VelTarmPriceValue* VelTarmPriceInfo::basePriceValue(const VelTarmPriceKey& theKey) const
{
    return &baseValue(theKey);
}

int VelTarmPriceInfo::nonOfferPrice(const VelTarmPriceKey& theKey) const
{
    return baseValue(theKey).nonOfferPrice();
}

QDateTime VelTarmPriceInfo::endOfferDate(const VelTarmPriceKey& theKey) const
{
    return baseValue(theKey).endOfferDate();
}

QSet<VelDiscountLimit> VelTarmPriceInfo::discountLimits(const VelTarmPriceKey& thePattern) const
{
    QSet<VelDiscountLimit> limits;
    if (thePattern.discountLevel() == 0 && thePattern.discountModel() != DISCOUNT_MODEL_BULK)
        return limits;
    for (const VelTarmStoredPrice& price : myPrices)
        if (thePattern.supercedes(price.mySource, price.myValue.discountLevel(), price.myValue.discountModel()))
            limits.insert(price.myValue.discountLimit());
    VelDiscountLimit::removeSupersededBaseLimits(limits);
    return limits;
}

void VelTarmPriceInfo::dump() const
{
    for (int model = 0; model < MODEL_BOUND; ++model)
        if (myDiscountModels & bitOf(static_cast<VelDiscountModel>(model)))
            qDebug("%s", qPrintable(QStringLiteral("Discountmodel: %1").arg(model)));

    QMultiMap<VelTarmPriceKey, const VelTarmPriceValue*> pricesByKey;
    for (const VelTarmStoredPrice& price : myPrices)
        pricesByKey.insert(
            VelTarmPriceKey(price.mySource, price.myValue.discountLevel(), price.myValue.discountModel()),
            &price.myValue);
    for (auto price = pricesByKey.cbegin(); price != pricesByKey.cend(); ++price) {
        const QString line = QStringLiteral("Key: (IS: %1, PY: %2, Level: %3, Model: %4) => (P: %5, Q: %6)")
                                 .arg(price.key().inputSource())
                                 .arg(price.key().deliveryType())
                                 .arg(price.key().discountLevel())
                                 .arg(price.key().discountModel())
                                 .arg(price.value()->price())
                                 .arg(price.value()->lowerLimit());
        qDebug("%s", qPrintable(line));
    }
}

VelTarmPriceInfo::Prices::const_iterator VelTarmPriceInfo::firstNotBefore(const VelTarmPricePlace& thePlace) const
{
    return std::lower_bound(myPrices.begin(), myPrices.end(), thePlace,
                            [](const VelTarmStoredPrice& thePrice, const VelTarmPricePlace& theBound) {
                                return thePrice.place() < theBound;
                            });
}

VelTarmPriceValue* VelTarmPriceInfo::find(const VelTarmPricePlace& thePlace) const
{
    const auto price = firstNotBefore(thePlace);
    if (price == myPrices.end() || thePlace < price->place())
        return nullptr;
    return const_cast<VelTarmPriceValue*>(&price->myValue); // a value is handed out for writing even by const queries
}

VelTarmPriceValue& VelTarmPriceInfo::valueOrInvalid(const VelTarmPricePlace& thePlace) const
{
    VelTarmPriceValue* value = find(thePlace);
    return value ? *value : *VelTarmPriceValue::invalidPrice();
}

VelTarmPriceValue& VelTarmPriceInfo::baseValue(const VelTarmPriceKey& theKey) const
{
    return valueOrInvalid({theKey.orderSource(), DISCOUNT_MODEL_BULK, 0});
}

VelTarmPriceInfo::Bands VelTarmPriceInfo::bands(const VelOrderSource& theSource, VelDiscountModel theModel,
                                                int theLowestLevel, int theHighestLevel) const
{
    const auto begin = firstNotBefore({theSource, theModel, theLowestLevel});
    auto end = begin;
    while (end != myPrices.end() && !(VelTarmPricePlace{theSource, theModel, theHighestLevel} < end->place()))
        ++end;
    return {begin, end};
}

int VelTarmPriceInfo::countItemsAtUpperBound(const VelTarmPriceKey& theKey) const
{
    return itemsAtUpperBound({theKey.orderSource(), theKey.discountModel(), theKey.discountLevel()});
}

int VelTarmPriceInfo::itemsAtUpperBound(const VelTarmPricePlace& thePlace) const
{
    const VelTarmPriceValue* next =
        find({thePlace.mySource, thePlace.myModel, VelArithmetic::sum(thePlace.myLevel, 1)});
    return next ? VelArithmetic::difference(next->lowerLimit(), 1) : -1;
}

// ---- reading

void VelTarmPriceInfo::update(const QDomElement& theArticle)
{
    clearAllPriceInformation();
    readGroup(theArticle.firstChildElement(STR_BASE_PRICES));
    readGroup(theArticle.firstChildElement(STR_DISCOUNT_PRICES));
    settle();
    myPrices.shrink_to_fit();
}

void VelTarmPriceInfo::clearAllPriceInformation()
{
    myPrices.clear();
    myDiscountModels = 0;
    myMaxDiscountLevel = 0;
    myTransferModel = TRANSFER_MODEL_UNDEFINED;
}

void VelTarmPriceInfo::parsePricesGroup(const QDomElement& theGroup)
{
    readGroup(theGroup);
    settle();
}

void VelTarmPriceInfo::parsePrice(const QDomElement& theEntry)
{
    readEntry(theEntry);
    settle();
}

void VelTarmPriceInfo::readGroup(const QDomElement& theGroup)
{
    for (const QDomElement& entry : VelChildElements(theGroup))
        readEntry(entry);
}

/// Appends the entry's prices; they stand in the store after settle().
void VelTarmPriceInfo::readEntry(const QDomElement& theEntry)
{
    const VelTarmPriceValue value(theEntry);
    const VelDiscountModel model = value.discountModel();
    if (isIgnored(model)) // how a client that is older than its price list survives new models
        return;
    myDiscountModels |= bitOf(model);
    myTransferModel = transferModel(theEntry);
    myMaxDiscountLevel = qMax(myMaxDiscountLevel, value.discountLevel());
    const VelOrderSource written(theEntry);
    for (const VelInputSource inputSource : inputSources(written.inputSource()))
        for (const VelDeliveryType deliveryType : deliveryTypes(written.deliveryType()))
            myPrices.push_back({VelOrderSource(inputSource, deliveryType), value});
}

/// Sorts the store, keeps the last one read of each place, and tells each its upper limit. Once for all entries rather
/// than after each: an article with very many entries must not take for ever.
void VelTarmPriceInfo::settle()
{
    const auto isBefore = [](const VelTarmStoredPrice& theLeft, const VelTarmStoredPrice& theRight) {
        return theLeft.place() < theRight.place();
    };
    std::stable_sort(myPrices.begin(), myPrices.end(), isBefore);
    const auto firstKept =
        std::unique(myPrices.rbegin(), myPrices.rend(),
                    [&](const auto& theLater, const auto& theEarlier) { return !isBefore(theEarlier, theLater); });
    myPrices.erase(myPrices.begin(), firstKept.base());
    for (VelTarmStoredPrice& price : myPrices)
        price.myValue.setUpperLimit(itemsAtUpperBound(price.place()));
}

VelDiscountModel VelTarmPriceInfo::discountModel(const QDomElement& theEntry) const
{
    return VelDiscountLimit(theEntry).discountModel();
}

VelTransferModel VelTarmPriceInfo::transferModel(const QDomElement& theEntry) const
{
    if (!VelDiscountLimit::isTransferEntry(theEntry))
        return TRANSFER_MODEL_UNDEFINED;
    const QDomElement transfer = theEntry.parentNode().parentNode().toElement();
    const VelTransferModel model =
        EnumHelper::decodeTransferModel(VelXMLParser::attribute(transfer, STR_MODEL, QString()));
    return model == TRANSFER_MODEL_UNDEFINED ? TRANSFER_MODEL_1 : model;
}

// ---- computing

int VelTarmPriceInfo::priceFor(const VelTarmPriceKey& theKey, int theCount, VelTarmBill* theBill, int theBillingSum,
                               const VelOrderStatistic* theStatistic) const
{
    if (myTransferModel == TRANSFER_MODEL_2)
        return priceInTransferModel2(theKey, theStatistic, theBill);
    if (theKey.discountModel() == DISCOUNT_MODEL_EXPRESS_FEE)
        return priceInModel(theKey, theCount, theBillingSum, theBill);

    const int mainProductsLevel = inheritedLevel(theBill);
    VelTarmPriceKey key(theKey);
    const VelDiscountModel model = searchBestModel(key, theCount, theBillingSum, mainProductsLevel);
    key.setDiscountModel(model);
    if (model == DISCOUNT_MODEL_INHERITED_DISCOUNT)
        key.setDiscountLevel(mainProductsLevel);
    return priceInModel(key, theCount, theBillingSum, theBill);
}

/// The highest discount level that any main product of an add-on has in the bill so far.
int VelTarmPriceInfo::inheritedLevel(const VelTarmBill* theBill) const
{
    const auto* addOn = theBill ? dynamic_cast<const VelProductAddOn*>(myProduct) : nullptr;
    if (!addOn)
        return 0;
    int level = 0;
    for (const int articleID : addOn->articleIDs()) {
        const VelProductAbstract* mainProduct = VelProductRegistry::instance()->productWithArticleID(articleID);
        if (const VelTarmBillPosition* position = theBill->billPosition(mainProduct))
            level = qMax(level, position->discountLevel());
    }
    return level;
}

int VelTarmPriceInfo::priceInModel(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                                   VelTarmBill* theBill) const
{
    if (!theBill)
        return applyRule(theKey, theCount, theBillingSum, nullptr);
    VelTarmBillPositionList positions;
    const int price = applyRule(theKey, theCount, theBillingSum, &positions);
    theBill->addOrderPositions(positions);
    return price;
}

int VelTarmPriceInfo::applyRule(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                                VelTarmBillPositionList* thePositions) const
{
    switch (theKey.discountModel()) {
    case DISCOUNT_MODEL_BULK:
        return priceBulk(theKey, theCount, thePositions);
    case DISCOUNT_MODEL_LEVEL_PACKAGE:
    case DISCOUNT_MODEL_PACKAGE:
        return pricePackage(theKey, theCount, thePositions);
    case DISCOUNT_MODEL_BULK_TRANSFER:
        return priceBulkTransfer(theKey, theCount, thePositions);
    case DISCOUNT_MODEL_BILLING_SUM_TRANSFER:
        return priceBillingSumTransfer(theKey, theBillingSum, thePositions);
    case DISCOUNT_MODEL_EXPRESS_FEE:
        return priceExpressFee(theKey, theCount, thePositions);
    case DISCOUNT_MODEL_INHERITED_DISCOUNT:
        return priceInheritedDiscount(theKey, theCount, thePositions);
    default:
        if (thePositions)
            thePositions->append(new VelTarmBillPositionInvalid(myProduct));
        return -1;
    }
}

VelDiscountModel VelTarmPriceInfo::bestDiscountModel(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                                                     int theInheritedLevel) const
{
    VelTarmPriceKey workingKey(theKey);
    return searchBestModel(workingKey, theCount, theBillingSum, theInheritedLevel);
}

/// Tries the models in the caller's key, whose order source it leaves alone, so that a query makes one key only.
VelDiscountModel VelTarmPriceInfo::searchBestModel(VelTarmPriceKey& theWorkingKey, int theCount, int theBillingSum,
                                                   int theInheritedLevel) const
{
    VelDiscountModel best = DISCOUNT_MODEL_UNDEFINED;
    int bestPrice = MAX_INT;
    for (int number = 0; number < MODEL_BOUND; ++number) {
        const auto model = static_cast<VelDiscountModel>(number);
        if (!(myDiscountModels & bitOf(model)))
            continue;
        theWorkingKey.setDiscountModel(model);
        theWorkingKey.setDiscountLevel(model == DISCOUNT_MODEL_INHERITED_DISCOUNT ? theInheritedLevel : 0);
        const int price = applyRule(theWorkingKey, theCount, theBillingSum, nullptr);
        if (price == -1)
            continue;
        if (winsAtOnce(model))
            return model;
        if (bestPrice > price) { // strictly: of two equal prices the lower model number wins
            best = model;
            bestPrice = price;
        }
    }
    return best;
}

int VelTarmPriceInfo::bestDiscountLevel(const VelTarmPriceKey& theKey, int theCount, bool thePackagesOnly) const
{
    return levelReached(theKey.orderSource(), theKey.discountModel(), theCount, thePackagesOnly);
}

/// The highest level wins, whatever the limits below it. Level 0 is what remains when no level is reached; upper
/// limits and gaps play no part.
int VelTarmPriceInfo::levelReached(const VelOrderSource& theSource, VelDiscountModel theModel, int theCount,
                                   bool thePackagesOnly) const
{
    const Bands levels = bands(theSource, theModel, 1, MAX_INT);
    for (auto level = levels.end(); level != levels.begin();) {
        const VelTarmPriceValue& value = (--level)->myValue;
        if (value.lowerLimit() <= theCount && (!thePackagesOnly || value.isPackagePrice()) && value.isValid())
            return value.discountLevel();
    }
    return 0;
}

int VelTarmPriceInfo::priceBulk(const VelTarmPriceKey& theKey, int theCount,
                                VelTarmBillPositionList* thePositions) const
{
    const int level = levelReached(theKey.orderSource(), DISCOUNT_MODEL_BULK, theCount, false);
    const VelTarmPriceValue& value = valueOrInvalid({theKey.orderSource(), DISCOUNT_MODEL_BULK, level});
    appendPosition(thePositions, value, DISCOUNT_MODEL_BULK, level, theCount);
    return value.isValid() ? VelArithmetic::product(theCount, value.price()) : -1;
}

int VelTarmPriceInfo::pricePackage(const VelTarmPriceKey& theKey, int theCount,
                                   VelTarmBillPositionList* thePositions) const
{
    if (theCount == 0)
        return 0;
    const VelOrderSource source = theKey.orderSource();
    const VelDiscountModel model = theKey.discountModel();
    const int bestLevel = levelReached(source, model, theCount, false);
    if (bestLevel == 0) // below the first band there is no price at all in these models
        return -1;

    const int packageLevel = levelReached(source, model, theCount, true);
    if (packageLevel == 0)
        return priceOfItems({source, model, bestLevel}, theCount, thePositions);

    const VelTarmPriceValue& package = valueOrInvalid({source, model, packageLevel});
    const bool holdsAll = packageLevel == bestLevel;
    appendPackage(thePositions, package, holdsAll ? theCount : package.upperLimit());
    if (holdsAll)
        return package.price();
    // A package without a following level has the upper limit -1, and the rest comes to one more than the count.
    const int rest = VelArithmetic::difference(theCount, package.upperLimit());
    if (rest <= 0)
        return package.price();
    return VelArithmetic::sum(package.price(), priceOfItems({source, model, bestLevel}, rest, thePositions));
}

int VelTarmPriceInfo::priceInheritedDiscount(const VelTarmPriceKey& theKey, int theCount,
                                             VelTarmBillPositionList* thePositions) const
{
    const Bands levels = bands(theKey.orderSource(), theKey.discountModel(), 0, theKey.discountLevel());
    for (auto level = levels.end(); level != levels.begin();) {
        const VelTarmPriceValue& value = (--level)->myValue;
        if (!value.isValid())
            continue;
        appendPosition(thePositions, value, theKey.discountModel(), value.discountLevel(), theCount);
        return VelArithmetic::product(theCount, value.price());
    }
    appendPosition(thePositions, *VelTarmPriceValue::invalidPrice(), theKey.discountModel(), -1, theCount);
    return -1;
}

int VelTarmPriceInfo::priceExpressFee(const VelTarmPriceKey& theKey, int theCount,
                                      VelTarmBillPositionList* thePositions) const
{
    if (theCount == 0)
        return 0;
    const int level = levelReached(theKey.orderSource(), DISCOUNT_MODEL_EXPRESS_FEE, theCount, false);
    return priceOfOneFee({theKey.orderSource(), DISCOUNT_MODEL_EXPRESS_FEE, level}, thePositions);
}

int VelTarmPriceInfo::priceBulkTransfer(const VelTarmPriceKey& theKey, int theCount,
                                        VelTarmBillPositionList* thePositions) const
{
    if (theCount == 0)
        return 0;
    const int level = levelReached(theKey.orderSource(), DISCOUNT_MODEL_BULK_TRANSFER, theCount, false);
    return priceOfOneFee({theKey.orderSource(), DISCOUNT_MODEL_BULK_TRANSFER, level}, thePositions);
}

int VelTarmPriceInfo::priceBillingSumTransfer(const VelTarmPriceKey& theKey, int theBillingSum,
                                              VelTarmBillPositionList* thePositions) const
{
    if (theBillingSum == 0)
        return 0;
    const VelOrderSource source = theKey.orderSource();
    const int level = levelReached(source, DISCOUNT_MODEL_BILLING_SUM_TRANSFER, theBillingSum, false);
    if (level < 1) // under every band: the count -1 reaches none there either and so asks for the level 0
        return priceBulkTransfer(theKey, -1, thePositions);
    return priceOfOneFee({source, DISCOUNT_MODEL_BILLING_SUM_TRANSFER, level}, thePositions);
}

/// One fee for the whole quantity. A missing entry gives the invalid value's price, which is -1.
int VelTarmPriceInfo::priceOfOneFee(const VelTarmPricePlace& thePlace, VelTarmBillPositionList* thePositions) const
{
    const VelTarmPriceValue& value = valueOrInvalid(thePlace);
    appendPosition(thePositions, value, thePlace.myModel, thePlace.myLevel, 1);
    return value.price();
}

/// So many items, each at the price of that place.
int VelTarmPriceInfo::priceOfItems(const VelTarmPricePlace& thePlace, int theCount,
                                   VelTarmBillPositionList* thePositions) const
{
    const VelTarmPriceValue& value = valueOrInvalid(thePlace);
    appendPosition(thePositions, value, thePlace.myModel, thePlace.myLevel, theCount);
    return VelArithmetic::product(theCount, value.price());
}

/// The line of one package, which stands for so many of its items.
void VelTarmPriceInfo::appendPackage(VelTarmBillPositionList* thePositions, const VelTarmPriceValue& thePackage,
                                     int theCountItems) const
{
    if (thePositions)
        thePositions->append(new VelTarmBillPosition(theCountItems, myProduct, thePackage.discountModel(),
                                                     thePackage.discountLevel(), thePackage.price(), 1,
                                                     thePackage.upperLimit(), shownNonOfferPrice(thePackage)));
}

/// A line of so many items at the price of each; a null list wants none.
void VelTarmPriceInfo::appendPosition(VelTarmBillPositionList* thePositions, const VelTarmPriceValue& theValue,
                                      VelDiscountModel theModel, int theLevel, int theCount) const
{
    if (thePositions)
        thePositions->append(new VelTarmBillPosition(theCount, myProduct, theModel, theLevel, theValue.price(),
                                                     theCount, 1, shownNonOfferPrice(theValue)));
}

int VelTarmPriceInfo::priceAtBound(const VelTarmPriceKey& theKey, const VelDiscountLimit& theLimit) const
{
    for (const VelTarmStoredPrice& price : bands(theKey.orderSource(), theLimit.discountModel(), 0, MAX_INT)) {
        const VelTarmPriceValue& value = price.myValue;
        if (value.lowerLimit() == theLimit.lowerLimit() || value.discountLevel() == theLimit.level())
            return value.price();
    }
    return -1;
}

int VelTarmPriceInfo::transferPriceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                                       const VelOrderStatistic* theStatistic) const
{
    if (myTransferModel == TRANSFER_MODEL_2) // without the unit charge, deliberately
        return baseTransferPriceInTransferModel2(theKey, theStatistic);
    VelTarmPriceKey key(theKey);
    key.setDiscountModel(bestDiscountModel(theKey, theCount, theBillingSum, 0));
    return priceInModel(key, theCount, theBillingSum, nullptr);
}

int VelTarmPriceInfo::priceInTransferModel2(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic,
                                            VelTarmBill* theBill) const
{
    const VelTarmPriceKey baseKey(theKey, DISCOUNT_MODEL_BULK);
    const int total = VelArithmetic::sum(baseTransferPriceInTransferModel2(baseKey, theStatistic),
                                         unitTransferPriceInTransferModel2(baseKey, theStatistic));
    if (theBill) {
        VelTarmBillPositionList positions;
        positions.append(new VelTarmBillPosition(1, myProduct, DISCOUNT_MODEL_TRANSFER_2, 0, total, 1, 1, -1));
        theBill->addOrderPositions(positions);
    }
    return total;
}

int VelTarmPriceInfo::baseTransferPriceInTransferModel2(const VelTarmPriceKey& theKey,
                                                        const VelOrderStatistic* theStatistic) const
{
    if (!theStatistic)
        return 0;
    int highest = 0;
    for (const VelProductAbstract* product : theStatistic->products())
        highest = qMax(highest, product->baseTransferPrice(theKey));
    return highest;
}

int VelTarmPriceInfo::unitTransferPriceInTransferModel2(const VelTarmPriceKey& theKey,
                                                        const VelOrderStatistic* theStatistic) const
{
    if (!theStatistic)
        return 0;
    int sum = 0;
    const VelProductAbstract* leader = nullptr;
    const QMap<VelProductAbstract*, int> items = theStatistic->items();
    for (auto item = items.cbegin(); item != items.cend(); ++item) {
        const VelProductAbstract* product = item.key();
        if (!leader || leader->baseTransferPrice(theKey) < product->baseTransferPrice(theKey))
            leader = product;
        sum = VelArithmetic::sum(sum, VelArithmetic::product(product->unitTransferPrice(theKey), item.value()));
    }
    return leader ? VelArithmetic::difference(sum, leader->unitTransferPrice(theKey)) : sum;
}

int VelTarmPriceInfo::baseTransferPrice(const VelTarmPriceKey& theKey) const
{
    return baseValue(theKey).baseTransferPrice();
}

int VelTarmPriceInfo::unitTransferPrice(const VelTarmPriceKey& theKey) const
{
    return baseValue(theKey).unitTransferPrice();
}
