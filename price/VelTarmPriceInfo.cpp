#include "price/VelTarmPriceInfo.h"

#include "bill/VelOrderStatistic.h"
#include "bill/VelTarmArticle.h"
#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPositionList.h"
#include "frame/EnumHelper.h"
#include "frame/VelArithmetic.h"
#include "frame/VelChildElements.h"
#include "product/VelProductAddOn.h"
#include "sibling/VelXMLParser.h"

#include <QDebug>
#include <QtAlgorithms>

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

VelTarmPricePlace placeOf(const VelTarmPriceKey& theKey)
{
    return {theKey.orderSource(), theKey.discountModel(), theKey.discountLevel()};
}

/// The number of the shelf of an order source, in rising order of the sources that prices can stand under. All other
/// sources share a last shelf, which is always empty.
std::size_t shelfOf(const VelOrderSource& theSource)
{
    const int delivery = theSource.deliveryType();
    if (delivery < DELIVERY_TYPE_POS || delivery > DELIVERY_TYPE_ON_SITE)
        return VelTarmPriceInfo::SHELVES;
    switch (theSource.inputSource()) {
    case INPUT_SOURCE_NET:
        return static_cast<std::size_t>(delivery);
    case INPUT_SOURCE_CD:
        return static_cast<std::size_t>(3 + delivery);
    case INPUT_SOURCE_KIOSK:
        return static_cast<std::size_t>(6 + delivery);
    default:
        return VelTarmPriceInfo::SHELVES;
    }
}

/// These do not compete on price: the first of them that has a price at all is taken.
bool winsAtOnce(VelDiscountModel theModel)
{
    return theModel == DISCOUNT_MODEL_LEVEL_PACKAGE || theModel == DISCOUNT_MODEL_PACKAGE ||
           theModel == DISCOUNT_MODEL_BILLING_SUM_TRANSFER || theModel == DISCOUNT_MODEL_INHERITED_DISCOUNT;
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
    return &valueOrInvalid(placeOf(theKey));
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

VelTarmPriceInfo::Bands VelTarmPriceInfo::shelf(const VelOrderSource& theSource) const
{
    const std::size_t number = shelfOf(theSource);
    return {myPrices.data() + myShelfBegins[number], myPrices.data() + myShelfBegins[number + 1]};
}

void VelTarmPriceInfo::prefetch(const VelOrderSource& theSource) const
{
#if defined(__GNUC__)
    const Bands prices = shelf(theSource);
    for (const VelTarmStoredPrice* price = prices.begin(); price < prices.end(); ++price)
        __builtin_prefetch(price);
#else
    Q_UNUSED(theSource)
#endif
}

VelTarmPriceInfo::Bands VelTarmPriceInfo::bands(const VelOrderSource& theSource, VelDiscountModel theModel) const
{
    const Bands prices = shelf(theSource);
    const qint64 lowest = rankOf(theModel, 0);
    const qint64 highest = rankOf(theModel, MAX_INT);
    const bool areAll =
        prices.begin() == prices.end() || (prices.begin()->rank() >= lowest && (prices.end() - 1)->rank() <= highest);
    if (areAll) // most articles have one model
        return prices;
    const auto isBefore = [](const VelTarmStoredPrice& thePrice, qint64 theRank) { return thePrice.rank() < theRank; };
    const auto begin = std::lower_bound(prices.begin(), prices.end(), lowest, isBefore);
    return {begin, std::lower_bound(begin, prices.end(), highest + 1, isBefore)};
}

VelTarmPriceValue* VelTarmPriceInfo::find(const VelTarmPricePlace& thePlace) const
{
    const qint64 rank = rankOf(thePlace.myModel, thePlace.myLevel);
    const Bands prices = shelf(thePlace.mySource);
    const auto price =
        std::lower_bound(prices.begin(), prices.end(), rank,
                         [](const VelTarmStoredPrice& thePrice, qint64 theRank) { return thePrice.rank() < theRank; });
    if (price == prices.end() || price->rank() != rank)
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

int VelTarmPriceInfo::countItemsAtUpperBound(const VelTarmPriceKey& theKey) const
{
    return itemsAtUpperBound(placeOf(theKey));
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
    myShelfBegins.fill(0);
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
    const QList<VelInputSource> inputs = inputSources(written.inputSource());
    const QList<VelDeliveryType> deliveries = deliveryTypes(written.deliveryType());
    for (const VelInputSource inputSource : inputs)
        for (const VelDeliveryType deliveryType : deliveries)
            myPrices.push_back({VelOrderSource(inputSource, deliveryType), value});
}

/// Sorts the store, keeps the last one read of each place, and tells each its upper limit. Once for all entries rather
/// than after each: an article with very many entries must not take for ever.
void VelTarmPriceInfo::settle()
{
    std::stable_sort(myPrices.begin(), myPrices.end());
    const auto firstKept =
        std::unique(myPrices.rbegin(), myPrices.rend(),
                    [](const auto& theLater, const auto& theEarlier) { return !(theEarlier < theLater); });
    myPrices.erase(myPrices.begin(), firstKept.base());
    for (std::size_t shelf = 0, place = 0; shelf < myShelfBegins.size(); ++shelf) {
        while (place < myPrices.size() && shelfOf(myPrices[place].mySource) < shelf)
            ++place;
        myShelfBegins[shelf] = static_cast<quint32>(place);
    }
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
    return chargeTo(theBill, bestAnswer(theKey.orderSource(), theCount, theBillingSum, inheritedLevel(theBill)));
}

/// The highest discount level that any main product of an add-on has in the bill so far.
int VelTarmPriceInfo::inheritedLevel(const VelTarmBill* theBill) const
{
    if (!theBill || !myProduct->isProductClass(PRODUCT_CLASS_ADD_ON)) // spares all others the cast
        return 0;
    const auto* addOn = dynamic_cast<const VelProductAddOn*>(myProduct);
    return addOn ? theBill->highestLevelOfMainProducts(*addOn) : 0;
}

int VelTarmPriceInfo::priceInModel(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                                   VelTarmBill* theBill) const
{
    return chargeTo(theBill, answer(placeOf(theKey), theCount, theBillingSum));
}

VelTarmPriceInfo::Answer VelTarmPriceInfo::answer(const VelTarmPricePlace& thePlace, int theCount,
                                                  int theBillingSum) const
{
    switch (thePlace.myModel) {
    case DISCOUNT_MODEL_BULK:
        return bulk(thePlace.mySource, theCount);
    case DISCOUNT_MODEL_LEVEL_PACKAGE:
    case DISCOUNT_MODEL_PACKAGE:
        return package(thePlace.mySource, thePlace.myModel, theCount);
    case DISCOUNT_MODEL_BULK_TRANSFER:
    case DISCOUNT_MODEL_EXPRESS_FEE:
        return oneFee(thePlace.mySource, thePlace.myModel, theCount);
    case DISCOUNT_MODEL_BILLING_SUM_TRANSFER:
        return billingSumTransfer(thePlace.mySource, theBillingSum);
    case DISCOUNT_MODEL_INHERITED_DISCOUNT:
        return inheritedDiscount(thePlace, theCount);
    default:
        return noAnswer();
    }
}

VelDiscountModel VelTarmPriceInfo::bestDiscountModel(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                                                     int theInheritedLevel) const
{
    return bestAnswer(theKey.orderSource(), theCount, theBillingSum, theInheritedLevel).myModel;
}

/// Models are tried in rising order of their numbers. What the best one answers is kept: its rule runs only once.
VelTarmPriceInfo::Answer VelTarmPriceInfo::bestAnswer(const VelOrderSource& theSource, int theCount, int theBillingSum,
                                                      int theInheritedLevel) const
{
    Answer best = noAnswer();
    int bestPrice = MAX_INT;
    for (unsigned models = myDiscountModels; models != 0; models &= models - 1) {
        const auto model = static_cast<VelDiscountModel>(qCountTrailingZeroBits(models));
        const int level = model == DISCOUNT_MODEL_INHERITED_DISCOUNT ? theInheritedLevel : 0;
        const Answer candidate = answer({theSource, model, level}, theCount, theBillingSum);
        if (candidate.myPrice == -1)
            continue;
        if (winsAtOnce(model))
            return candidate;
        if (bestPrice > candidate.myPrice) { // strictly: of two equal prices the lower model number wins
            best = candidate;
            bestPrice = candidate.myPrice;
        }
    }
    return best;
}

/// The highest level from 1 up whose lower limit the count reaches, null for none. The highest level wins, whatever the
/// limits below it; upper limits and gaps play no part.
const VelTarmPriceValue* VelTarmPriceInfo::reached(const Bands& theBands, int theCount, bool thePackagesOnly)
{
    for (auto band = theBands.end(); band != theBands.begin();) {
        const VelTarmPriceValue& value = (--band)->myValue;
        if (value.discountLevel() < 1)
            break;
        if (value.lowerLimit() <= theCount && (!thePackagesOnly || value.isPackagePrice()) && value.isValid())
            return &value;
    }
    return nullptr;
}

/// What remains when no level is reached: the entry at level 0, the invalid value without one.
const VelTarmPriceValue& VelTarmPriceInfo::valueAtLevelZero(const Bands& theBands)
{
    const bool hasOne = theBands.begin() != theBands.end() && theBands.begin()->myValue.discountLevel() == 0;
    return hasOne ? theBands.begin()->myValue : *VelTarmPriceValue::invalidPrice();
}

int VelTarmPriceInfo::bestDiscountLevel(const VelTarmPriceKey& theKey, int theCount, bool thePackagesOnly) const
{
    const Bands levels = bands(theKey.orderSource(), theKey.discountModel());
    const VelTarmPriceValue* value = reached(levels, theCount, thePackagesOnly);
    return value ? value->discountLevel() : 0;
}

VelTarmPriceInfo::Answer VelTarmPriceInfo::noAnswer()
{
    return {DISCOUNT_MODEL_UNDEFINED, -1, true, 0, {}};
}

VelTarmPriceInfo::Answer VelTarmPriceInfo::answerOf(VelDiscountModel theModel, int thePrice)
{
    return {theModel, thePrice, false, 0, {}};
}

VelTarmPriceInfo::Answer VelTarmPriceInfo::answerOf(VelDiscountModel theModel, int thePrice, const Charge& theCharge)
{
    return {theModel, thePrice, false, 1, {theCharge, {}}};
}

/// Reaching a level reprices all the items.
VelTarmPriceInfo::Answer VelTarmPriceInfo::bulk(const VelOrderSource& theSource, int theCount) const
{
    const Bands levels = bands(theSource, DISCOUNT_MODEL_BULK);
    const VelTarmPriceValue* band = reached(levels, theCount, false);
    const VelTarmPriceValue& value = band ? *band : valueAtLevelZero(levels);
    const int price = value.isValid() ? VelArithmetic::product(theCount, value.price()) : -1;
    return answerOf(DISCOUNT_MODEL_BULK, price,
                    {&value, DISCOUNT_MODEL_BULK, band ? band->discountLevel() : 0, theCount, theCount, 1});
}

VelTarmPriceInfo::Answer VelTarmPriceInfo::package(const VelOrderSource& theSource, VelDiscountModel theModel,
                                                   int theCount) const
{
    if (theCount == 0)
        return answerOf(theModel, 0);
    const Bands levels = bands(theSource, theModel);
    const VelTarmPriceValue* best = reached(levels, theCount, false);
    if (!best) // below the first band there is no price at all in these models
        return answerOf(theModel, -1);
    Answer answer = answerOf(theModel, 0);
    int rest = theCount;
    if (const VelTarmPriceValue* package = reached(levels, theCount, true)) {
        const int size = package->upperLimit();
        answer = answerOf(theModel, package->price(),
                          {package, theModel, package->discountLevel(), package == best ? theCount : size, 1, size});
        // A package without a following level has the upper limit -1, and the rest comes to one more than the count.
        rest = package == best ? 0 : VelArithmetic::difference(theCount, size);
    }
    if (rest > 0) {
        answer.myPrice = VelArithmetic::sum(answer.myPrice, VelArithmetic::product(rest, best->price()));
        answer.myCharges[answer.myChargeCount++] = {best, theModel, best->discountLevel(), rest, rest, 1};
    }
    return answer;
}

/// The first valid level from the place's own one downwards.
VelTarmPriceInfo::Answer VelTarmPriceInfo::inheritedDiscount(const VelTarmPricePlace& thePlace, int theCount) const
{
    const Bands levels = bands(thePlace.mySource, thePlace.myModel);
    for (auto level = levels.end(); level != levels.begin();) {
        const VelTarmPriceValue& value = (--level)->myValue;
        if (value.discountLevel() <= thePlace.myLevel && value.isValid())
            return answerOf(thePlace.myModel, VelArithmetic::product(theCount, value.price()),
                            {&value, thePlace.myModel, value.discountLevel(), theCount, theCount, 1});
    }
    return answerOf(thePlace.myModel, -1,
                    {VelTarmPriceValue::invalidPrice(), thePlace.myModel, -1, theCount, theCount, 1});
}

/// One fee for the whole quantity.
VelTarmPriceInfo::Answer VelTarmPriceInfo::oneFee(const VelOrderSource& theSource, VelDiscountModel theModel,
                                                  int theCount) const
{
    if (theCount == 0)
        return answerOf(theModel, 0);
    const Bands levels = bands(theSource, theModel);
    const VelTarmPriceValue* band = reached(levels, theCount, false);
    const VelTarmPriceValue& value = band ? *band : valueAtLevelZero(levels);
    return answerOf(theModel, value.price(), {&value, theModel, band ? band->discountLevel() : 0, 1, 1, 1});
}

VelTarmPriceInfo::Answer VelTarmPriceInfo::billingSumTransfer(const VelOrderSource& theSource, int theBillingSum) const
{
    const VelDiscountModel model = DISCOUNT_MODEL_BILLING_SUM_TRANSFER;
    if (theBillingSum == 0)
        return answerOf(model, 0);
    const VelTarmPriceValue* band = reached(bands(theSource, model), theBillingSum, false);
    if (band)
        return answerOf(model, band->price(), {band, model, band->discountLevel(), 1, 1, 1});
    // Under every band: the count -1 reaches none there either and so asks for the level 0.
    Answer answer = oneFee(theSource, DISCOUNT_MODEL_BULK_TRANSFER, -1);
    answer.myModel = model;
    return answer;
}

VelTarmBillLine VelTarmPriceInfo::line(const Charge& theCharge) const
{
    return {myProduct,
            theCharge.myCountItems,
            theCharge.myModel,
            theCharge.myLevel,
            theCharge.myValue->price(),
            theCharge.myUnitCount,
            theCharge.myItemsPerUnit,
            theCharge.myValue->shownNonOfferPrice(),
            false};
}

int VelTarmPriceInfo::chargeTo(VelTarmBill* theBill, const Answer& theAnswer) const
{
    if (theBill && theAnswer.myIsInvalid)
        theBill->addLine(VelTarmBillLine::invalid(myProduct));
    for (int charge = 0; theBill && charge < theAnswer.myChargeCount; ++charge)
        theBill->addLine(line(theAnswer.myCharges[charge]));
    return theAnswer.myPrice;
}

int VelTarmPriceInfo::chargeTo(VelTarmBillPositionList* thePositions, const Answer& theAnswer) const
{
    for (int charge = 0; thePositions && charge < theAnswer.myChargeCount; ++charge)
        thePositions->append(line(theAnswer.myCharges[charge]).newPosition());
    return theAnswer.myPrice;
}

int VelTarmPriceInfo::priceBulk(const VelTarmPriceKey& theKey, int theCount,
                                VelTarmBillPositionList* thePositions) const
{
    return chargeTo(thePositions, bulk(theKey.orderSource(), theCount));
}

int VelTarmPriceInfo::pricePackage(const VelTarmPriceKey& theKey, int theCount,
                                   VelTarmBillPositionList* thePositions) const
{
    return chargeTo(thePositions, package(theKey.orderSource(), theKey.discountModel(), theCount));
}

int VelTarmPriceInfo::priceInheritedDiscount(const VelTarmPriceKey& theKey, int theCount,
                                             VelTarmBillPositionList* thePositions) const
{
    return chargeTo(thePositions, inheritedDiscount(placeOf(theKey), theCount));
}

int VelTarmPriceInfo::priceExpressFee(const VelTarmPriceKey& theKey, int theCount,
                                      VelTarmBillPositionList* thePositions) const
{
    return chargeTo(thePositions, oneFee(theKey.orderSource(), DISCOUNT_MODEL_EXPRESS_FEE, theCount));
}

int VelTarmPriceInfo::priceBulkTransfer(const VelTarmPriceKey& theKey, int theCount,
                                        VelTarmBillPositionList* thePositions) const
{
    return chargeTo(thePositions, oneFee(theKey.orderSource(), DISCOUNT_MODEL_BULK_TRANSFER, theCount));
}

int VelTarmPriceInfo::priceBillingSumTransfer(const VelTarmPriceKey& theKey, int theBillingSum,
                                              VelTarmBillPositionList* thePositions) const
{
    return chargeTo(thePositions, billingSumTransfer(theKey.orderSource(), theBillingSum));
}

int VelTarmPriceInfo::priceAtBound(const VelTarmPriceKey& theKey, const VelDiscountLimit& theLimit) const
{
    for (const VelTarmStoredPrice& price : bands(theKey.orderSource(), theLimit.discountModel())) {
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
    const VelDiscountModel model = bestDiscountModel(theKey, theCount, theBillingSum, 0);
    return answer({theKey.orderSource(), model, theKey.discountLevel()}, theCount, theBillingSum).myPrice;
}

int VelTarmPriceInfo::priceInTransferModel2(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic,
                                            VelTarmBill* theBill) const
{
    const TransferCharges charges = transferCharges(theKey, theStatistic);
    const int total = VelArithmetic::sum(charges.myBase, charges.myUnits);
    if (theBill)
        theBill->addLine({myProduct, 1, DISCOUNT_MODEL_TRANSFER_2, 0, total, 1, 1, -1, false});
    return total;
}

int VelTarmPriceInfo::baseTransferPriceInTransferModel2(const VelTarmPriceKey& theKey,
                                                        const VelOrderStatistic* theStatistic) const
{
    return transferCharges(theKey, theStatistic).myBase;
}

int VelTarmPriceInfo::unitTransferPriceInTransferModel2(const VelTarmPriceKey& theKey,
                                                        const VelOrderStatistic* theStatistic) const
{
    return transferCharges(theKey, theStatistic).myUnits;
}

/// The base charge is never below 0, while the leader of the unit charges may have any.
VelTarmPriceInfo::TransferCharges VelTarmPriceInfo::transferCharges(const VelTarmPriceKey& theKey,
                                                                    const VelOrderStatistic* theStatistic)
{
    int units = 0;
    const VelTarmPriceValue* leader = nullptr;
    const auto items = theStatistic ? theStatistic->items() : QMap<VelProductAbstract*, int>();
    for (auto item = items.cbegin(); item != items.cend(); ++item) {
        const VelTarmPriceValue* value = item.key()->tarmArticle()->basePriceValue(theKey);
        if (!leader || leader->baseTransferPrice() < value->baseTransferPrice()) // the first of equal ones leads
            leader = value;
        units = VelArithmetic::sum(units, VelArithmetic::product(value->unitTransferPrice(), item.value()));
    }
    if (!leader)
        return {0, 0};
    return {qMax(0, leader->baseTransferPrice()), VelArithmetic::difference(units, leader->unitTransferPrice())};
}

int VelTarmPriceInfo::baseTransferPrice(const VelTarmPriceKey& theKey) const
{
    return baseValue(theKey).baseTransferPrice();
}

int VelTarmPriceInfo::unitTransferPrice(const VelTarmPriceKey& theKey) const
{
    return baseValue(theKey).unitTransferPrice();
}
