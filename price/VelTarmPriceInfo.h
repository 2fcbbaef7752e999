#ifndef VELTARMPRICEINFO_H
#define VELTARMPRICEINFO_H

#include "price/VelTarmPriceKey.h"
#include "price/VelTarmPriceStore.h"

#include <QList>
#include <QSet>

class VelOrderStatistic;
class VelProductAbstract;
class VelTarmBill;
class VelTarmBillPositionList;
struct VelTarmBillLine;
struct VelTarmPriceAnswer;
struct VelTarmPriceCharge;

/**
 * All prices of one article, and what a quantity costs. All amounts are whole cents; -1 means that there is no price
 * and 0 is a real price. Amounts and counts are multiplied and added unchecked and wrap around.
 *
 * It holds the VelTarmPriceStore, asks the VelPriceRules, and makes lines of a bill of what they charge. A null
 * VelTarmBillPositionList asks for the amount only; otherwise positions made on the heap are appended to it, which its
 * owner releases.
 */
class VelTarmPriceInfo
{
    Q_DISABLE_COPY(VelTarmPriceInfo)

public:
    /// Reads the prices of an article's element. The product is borrowed.
    VelTarmPriceInfo(VelProductAbstract* theProduct, const QDomElement& theArticle);

    /// Replaces all prices by those of the children `base_prices` and `discount_prices`, the first of each.
    void update(const QDomElement& theArticle);
    void clearAllPriceInformation();

    /// Reads every child element of a group, whatever its tag.
    void parsePricesGroup(const QDomElement& theGroup);

    /// Reads one entry. An entry of a model that this version doesn't know is dropped without a word. The last entry
    /// of a key wins. Upper limits are right for all entries read so far.
    void parsePrice(const QDomElement& theEntry);

    VelDiscountModel discountModel(const QDomElement& theEntry) const;

    /// TRANSFER_MODEL_UNDEFINED but for entries of a `transfer`: there what its `model` says, and 1 for all unknowns.
    VelTransferModel transferModel(const QDomElement& theEntry) const;

    /// That of the entry last read; TRANSFER_MODEL_UNDEFINED when none was.
    VelTransferModel transferModel() const { return myStore.transferModel(); }
    VelProductAbstract* product() const { return myProduct; }

    /// The highest level in the document, 0 for none.
    int maxDiscountLevel() const { return myStore.maxDiscountLevel(); }

    /// What the rules are asked with, for VelTarmPriceView.
    const VelTarmPriceStore& store() const { return myStore; }

    /// What an entry's source stands for: ANY for net and CD, each of the three for itself, all else for nothing.
    QList<VelInputSource> inputSources(const VelInputSource& theInputSource) const;

    /// ANY stands for point of sale and mail order, each of the three for itself, all else for nothing.
    QList<VelDeliveryType> deliveryTypes(const VelDeliveryType& theDeliveryType) const;

    /// The value under exactly that key, VelTarmPriceValue::invalidPrice() when there is none; never null. Valid until
    /// the next update.
    VelTarmPriceValue* priceValue(const VelTarmPriceKey& theKey) const;

    /// The value of the key's order source under DISCOUNT_MODEL_BULK at level 0.
    VelTarmPriceValue* basePriceValue(const VelTarmPriceKey& theKey) const;
    int nonOfferPrice(const VelTarmPriceKey& theKey) const;
    QDateTime endOfferDate(const VelTarmPriceKey& theKey) const;

    /// The bands that the pattern covers. A base limit (from 0, open above) stays only while it is the last limit of
    /// its model. Empty for a pattern of level 0 under another model than bulk.
    QSet<VelDiscountLimit> discountLimits(const VelTarmPriceKey& thePattern) const;

    /// Writes models and entries to the debug log.
    void dump() const;

    /// What the count costs, under the best model and level. The positions go to the bill when it is not null. Mind
    /// that the bill stands before the billing sum. The statistic is the order that a transfer product under
    /// TRANSFER_MODEL_2 ships; null counts as an empty one.
    int priceFor(const VelTarmPriceKey& theKey, int theCount, VelTarmBill* theBill, int theBillingSum,
                 const VelOrderStatistic* theStatistic) const;

    /// What the count costs under exactly the model of the key.
    int priceInModel(const VelTarmPriceKey& theKey, int theCount, int theBillingSum, VelTarmBill* theBill) const;

    /// The model that priceFor will use, DISCOUNT_MODEL_UNDEFINED when none has a price.
    VelDiscountModel bestDiscountModel(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                                       int theInheritedLevel) const;

    /// The highest level from 1 up whose lower limit the count reaches, 0 for none.
    int bestDiscountLevel(const VelTarmPriceKey& theKey, int theCount, bool thePackagesOnly) const;

    int priceBulk(const VelTarmPriceKey& theKey, int theCount, VelTarmBillPositionList* thePositions) const;
    int pricePackage(const VelTarmPriceKey& theKey, int theCount, VelTarmBillPositionList* thePositions) const;
    int priceInheritedDiscount(const VelTarmPriceKey& theKey, int theCount,
                               VelTarmBillPositionList* thePositions) const;
    int priceExpressFee(const VelTarmPriceKey& theKey, int theCount, VelTarmBillPositionList* thePositions) const;
    int priceBulkTransfer(const VelTarmPriceKey& theKey, int theCount, VelTarmBillPositionList* thePositions) const;
    int priceBillingSumTransfer(const VelTarmPriceKey& theKey, int theBillingSum,
                                VelTarmBillPositionList* thePositions) const;

    /// The price of the band that a limit describes, -1 when there is no such band.
    int priceAtBound(const VelTarmPriceKey& theKey, const VelDiscountLimit& theLimit) const;

    /// The last quantity of the key's band: one less than where the next level begins; -1 without a next level.
    int countItemsAtUpperBound(const VelTarmPriceKey& theKey) const;

    /// Shipping without a bill. Under TRANSFER_MODEL_2 it is the base charge alone, deliberately.
    int transferPriceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                         const VelOrderStatistic* theStatistic) const;
    int priceInTransferModel2(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic,
                              VelTarmBill* theBill) const;

    /// The highest base charge among the products of the order, at least 0.
    int baseTransferPriceInTransferModel2(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic) const;

    /// The unit charges of all items but one: an item of the first product with the highest base charge pays none.
    int unitTransferPriceInTransferModel2(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic) const;

    /// `transfer_base_price` and `transfer_unit_price` of the base entry, 0 without one.
    int baseTransferPrice(const VelTarmPriceKey& theKey) const;
    int unitTransferPrice(const VelTarmPriceKey& theKey) const;

    /// Asks the processor for the memory of an order source's prices, which will be needed soon. Changes nothing.
    void prefetch(const VelOrderSource& theSource) const;

private:
    int inheritedLevel(const VelTarmBill* theBill) const;
    static void write(const VelTarmPriceCharge& theCharge, VelTarmBill* theBill, VelTarmBillLine& theLine);
    static void writeTransferModel2(int theTotal, VelTarmBillLine& theLine);
    int chargeTo(VelTarmBill* theBill, const VelTarmPriceAnswer& theAnswer) const;
    int chargeTo(VelTarmBillPositionList* thePositions, const VelTarmPriceAnswer& theAnswer) const;

    VelProductAbstract* myProduct;
    VelTarmPriceStore myStore;
};

#endif
