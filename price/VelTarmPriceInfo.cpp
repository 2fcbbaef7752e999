#include "price/VelTarmPriceInfo.h"

#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "bill/VelTarmBillPositionList.h"
#include "frame/VelArithmetic.h"
#include "price/VelPriceRules.h"
#include "price/VelTransferByProducts.h"
#include "product/VelProductAddOn.h"

#include <QDebug>
#include <QMap>

namespace {

const QString STR_BASE_PRICES = QStringLiteral("base_prices");
const QString STR_DISCOUNT_PRICES = QStringLiteral("discount_prices");

VelTarmPriceKey keyOf(const VelTarmPriceBand& theBand)
{
    return VelTarmPriceKey(VelTarmPriceStore::orderSource(theBand.sourceNumber()), theBand.discountLevel(),
                           theBand.discountModel());
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
    return VelTarmPriceStore::inputSources(theInputSource);
}

QList<VelDeliveryType> VelTarmPriceInfo::deliveryTypes(const VelDeliveryType& theDeliveryType) const
{
    return VelTarmPriceStore::deliveryTypes(theDeliveryType);
}

VelTarmPriceValue* VelTarmPriceInfo::priceValue(const VelTarmPriceKey& theKey) const
{
    return myStore.valueAt(theKey.orderSource(), theKey.discountModel(), theKey.discountLevel());
}

VelTarmPriceValue* VelTarmPriceInfo::basePriceValue(const VelTarmPriceKey& theKey) const
{
    return myStore.valueAt(theKey.orderSource(), DISCOUNT_MODEL_BULK, 0);
}

int VelTarmPriceInfo::nonOfferPrice(const VelTarmPriceKey& theKey) const
{
    return basePriceValue(theKey)->nonOfferPrice();
}

QDateTime VelTarmPriceInfo::endOfferDate(const VelTarmPriceKey& theKey) const
{
    return basePriceValue(theKey)->endOfferDate();
}

int VelTarmPriceInfo::baseTransferPrice(const VelTarmPriceKey& theKey) const
{
    return basePriceValue(theKey)->baseTransferPrice();
}

int VelTarmPriceInfo::unitTransferPrice(const VelTarmPriceKey& theKey) const
{
    return basePriceValue(theKey)->unitTransferPrice();
}

QSet<VelDiscountLimit> VelTarmPriceInfo::discountLimits(const VelTarmPriceKey& thePattern) const
{
    QSet<VelDiscountLimit> limits;
    if (thePattern.discountLevel() == 0 && thePattern.discountModel() != DISCOUNT_MODEL_BULK)
        return limits;
    for (const VelTarmPriceBand& band : myStore.bands())
        if (thePattern.supercedes(VelTarmPriceStore::orderSource(band.sourceNumber()), band.discountLevel(),
                                  band.discountModel()))
            limits.insert(band.value().discountLimit());
    VelDiscountLimit::removeSupersededBaseLimits(limits);
    return limits;
}

int VelTarmPriceInfo::priceAtBound(const VelTarmPriceKey& theKey, const VelDiscountLimit& theLimit) const
{
    for (const VelTarmPriceBand& band : myStore.bands(theKey.orderSource(), theLimit.discountModel()))
        if (band.value().lowerLimit() == theLimit.lowerLimit() || band.discountLevel() == theLimit.level())
            return band.price();
    return -1;
}

int VelTarmPriceInfo::countItemsAtUpperBound(const VelTarmPriceKey& theKey) const
{
    return myStore.lastCountOf(theKey.orderSource(), theKey.discountModel(), theKey.discountLevel());
}

VelDiscountModel VelTarmPriceInfo::discountModel(const QDomElement& theEntry) const
{
    return VelDiscountLimit(theEntry).discountModel();
}

VelTransferModel VelTarmPriceInfo::transferModel(const QDomElement& theEntry) const
{
    return VelTarmPriceStore::transferModel(theEntry);
}

void VelTarmPriceInfo::dump() const
{
    for (int model = 0; model < VelTarmPriceStore::MODEL_BOUND; ++model)
        if (myStore.modelBits() & (1U << static_cast<unsigned>(model)))
            qDebug("%s", qPrintable(QStringLiteral("Discountmodel: %1").arg(model)));

    QMultiMap<VelTarmPriceKey, const VelTarmPriceBand*> bandsByKey;
    for (const VelTarmPriceBand& band : myStore.bands())
        bandsByKey.insert(keyOf(band), &band);
    for (auto band = bandsByKey.cbegin(); band != bandsByKey.cend(); ++band) {
        const QString line = QStringLiteral("Key: (IS: %1, PY: %2, Level: %3, Model: %4) => (P: %5, Q: %6)")
                                 .arg(band.key().inputSource())
                                 .arg(band.key().deliveryType())
                                 .arg(band.key().discountLevel())
                                 .arg(band.key().discountModel())
                                 .arg(band.value()->price())
                                 .arg(band.value()->value().lowerLimit());
        qDebug("%s", qPrintable(line));
    }
}

void VelTarmPriceInfo::prefetch(const VelOrderSource& theSource) const
{
#if defined(__GNUC__)
    for (const VelTarmPriceBand& band : myStore.bands(theSource))
        __builtin_prefetch(&band);
#else
    Q_UNUSED(theSource)
#endif
}

// ---- reading

void VelTarmPriceInfo::update(const QDomElement& theArticle)
{
    myStore.clear();
    myStore.readGroup(theArticle.firstChildElement(STR_BASE_PRICES));
    myStore.readGroup(theArticle.firstChildElement(STR_DISCOUNT_PRICES));
    myStore.settle();
    myStore.releaseSpareMemory();
}

void VelTarmPriceInfo::clearAllPriceInformation()
{
    myStore.clear();
}

void VelTarmPriceInfo::parsePricesGroup(const QDomElement& theGroup)
{
    myStore.readGroup(theGroup);
    myStore.settle();
}

void VelTarmPriceInfo::parsePrice(const QDomElement& theEntry)
{
    myStore.readEntry(theEntry);
    myStore.settle();
}

// ---- computing

int VelTarmPriceInfo::priceFor(const VelTarmPriceKey& theKey, int theCount, VelTarmBill* theBill, int theBillingSum,
                               const VelOrderStatistic* theStatistic) const
{
    if (transferModel() == TRANSFER_MODEL_2)
        return priceInTransferModel2(theKey, theStatistic, theBill);
    if (theKey.discountModel() == DISCOUNT_MODEL_EXPRESS_FEE)
        return priceInModel(theKey, theCount, theBillingSum, theBill);
    const VelPriceRules rules(myStore, theKey.orderSource());
    return chargeTo(theBill, rules.best(theCount, theBillingSum, inheritedLevel(theBill)));
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
    const VelPriceRules rules(myStore, theKey.orderSource());
    return chargeTo(theBill, rules.inModel(theKey.discountModel(), theKey.discountLevel(), theCount, theBillingSum));
}

VelDiscountModel VelTarmPriceInfo::bestDiscountModel(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                                                     int theInheritedLevel) const
{
    return VelPriceRules(myStore, theKey.orderSource()).best(theCount, theBillingSum, theInheritedLevel).myModel;
}

int VelTarmPriceInfo::bestDiscountLevel(const VelTarmPriceKey& theKey, int theCount, bool thePackagesOnly) const
{
    const VelPriceRules rules(myStore, theKey.orderSource());
    const VelTarmPriceBand* band = rules.reached(
        theKey.discountModel(), theCount, thePackagesOnly ? VelPriceRules::PACKAGES_ONLY : VelPriceRules::ALL_BANDS);
    return band ? band->discountLevel() : 0;
}

int VelTarmPriceInfo::priceBulk(const VelTarmPriceKey& theKey, int theCount,
                                VelTarmBillPositionList* thePositions) const
{
    return chargeTo(thePositions, VelPriceRules(myStore, theKey.orderSource()).bulk(theCount));
}

int VelTarmPriceInfo::pricePackage(const VelTarmPriceKey& theKey, int theCount,
                                   VelTarmBillPositionList* thePositions) const
{
    const VelPriceRules rules(myStore, theKey.orderSource());
    return chargeTo(thePositions, rules.package(theKey.discountModel(), theCount));
}

int VelTarmPriceInfo::priceInheritedDiscount(const VelTarmPriceKey& theKey, int theCount,
                                             VelTarmBillPositionList* thePositions) const
{
    const VelPriceRules rules(myStore, theKey.orderSource());
    return chargeTo(thePositions, rules.inheritedDiscount(theKey.discountModel(), theKey.discountLevel(), theCount));
}

int VelTarmPriceInfo::priceExpressFee(const VelTarmPriceKey& theKey, int theCount,
                                      VelTarmBillPositionList* thePositions) const
{
    const VelPriceRules rules(myStore, theKey.orderSource());
    return chargeTo(thePositions, rules.oneFee(DISCOUNT_MODEL_EXPRESS_FEE, theCount));
}

int VelTarmPriceInfo::priceBulkTransfer(const VelTarmPriceKey& theKey, int theCount,
                                        VelTarmBillPositionList* thePositions) const
{
    const VelPriceRules rules(myStore, theKey.orderSource());
    return chargeTo(thePositions, rules.oneFee(DISCOUNT_MODEL_BULK_TRANSFER, theCount));
}

int VelTarmPriceInfo::priceBillingSumTransfer(const VelTarmPriceKey& theKey, int theBillingSum,
                                              VelTarmBillPositionList* thePositions) const
{
    return chargeTo(thePositions, VelPriceRules(myStore, theKey.orderSource()).transferByBillingSum(theBillingSum));
}

// ---- shipping

int VelTarmPriceInfo::transferPriceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                                       const VelOrderStatistic* theStatistic) const
{
    if (transferModel() == TRANSFER_MODEL_2) // without the unit charge, deliberately
        return baseTransferPriceInTransferModel2(theKey, theStatistic);
    const VelDiscountModel model = bestDiscountModel(theKey, theCount, theBillingSum, 0);
    const VelPriceRules rules(myStore, theKey.orderSource());
    return rules.inModel(model, theKey.discountLevel(), theCount, theBillingSum).myPrice;
}

int VelTarmPriceInfo::priceInTransferModel2(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic,
                                            VelTarmBill* theBill) const
{
    const int total = VelTransferByProducts(theKey, theStatistic).total();
    if (theBill)
        writeTransferModel2(total, theBill->addLine(myProduct));
    return total;
}

int VelTarmPriceInfo::baseTransferPriceInTransferModel2(const VelTarmPriceKey& theKey,
                                                        const VelOrderStatistic* theStatistic) const
{
    return VelTransferByProducts(theKey, theStatistic).base();
}

int VelTarmPriceInfo::unitTransferPriceInTransferModel2(const VelTarmPriceKey& theKey,
                                                        const VelOrderStatistic* theStatistic) const
{
    return VelTransferByProducts(theKey, theStatistic).units();
}

// ---- what is charged, as lines of a bill, which are written where they stand

/// The clock is read only where there is an old price to show.
void VelTarmPriceInfo::write(const VelTarmPriceCharge& theCharge, VelTarmBill* theBill, VelTarmBillLine& theLine)
{
    const VelTarmPriceValue& value = theCharge.myBand->value();
    const auto present = [=] { return theBill ? theBill->present() : QDateTime::currentMSecsSinceEpoch(); };
    theLine.myKind = VelTarmBillLine::PRICED;
    theLine.myCountItems = theCharge.myPieces;
    theLine.myDiscountModel = theCharge.myModel;
    theLine.myDiscountLevel = theCharge.myLevel;
    theLine.myUnitPrice = theCharge.myBand->price();
    theLine.myUnitCount = theCharge.myUnits;
    theLine.myDiscountItemsPerUnit = theCharge.myItemsPerUnit;
    theLine.myNonOfferPrice = value.nonOfferPrice() == -1 ? -1 : value.shownNonOfferPrice(present());
    theLine.myPrice = VelArithmetic::product(theLine.myUnitPrice, theLine.myUnitCount);
}

/// The charge that no price entry stands behind.
void VelTarmPriceInfo::writeTransferModel2(int theTotal, VelTarmBillLine& theLine)
{
    theLine.myKind = VelTarmBillLine::PRICED;
    theLine.myCountItems = 1;
    theLine.myDiscountModel = DISCOUNT_MODEL_TRANSFER_2;
    theLine.myUnitPrice = theTotal;
    theLine.myUnitCount = 1;
    theLine.myDiscountItemsPerUnit = 1;
    theLine.myNonOfferPrice = -1;
    theLine.myPrice = theTotal;
}

int VelTarmPriceInfo::chargeTo(VelTarmBill* theBill, const VelTarmPriceAnswer& theAnswer) const
{
    if (!theBill)
        return theAnswer.myPrice;
    if (!theAnswer.myHasRule)
        theBill->addLine(myProduct);
    for (const VelTarmPriceCharge& charge : theAnswer)
        write(charge, theBill, theBill->addLine(myProduct));
    return theAnswer.myPrice;
}

int VelTarmPriceInfo::chargeTo(VelTarmBillPositionList* thePositions, const VelTarmPriceAnswer& theAnswer) const
{
    if (!thePositions)
        return theAnswer.myPrice;
    for (const VelTarmPriceCharge& charge : theAnswer) {
        VelTarmBillLine line;
        line.myProduct = myProduct;
        write(charge, nullptr, line);
        thePositions->append(new VelTarmBillPosition(line));
    }
    return theAnswer.myPrice;
}
