#ifndef VELTARMBILL_H
#define VELTARMBILL_H

#include "bill/VelOrderStatistic.h"
#include "bill/VelTarmBillPositionList.h"
#include "bill/VelTarmDiscountDescription.h"
#include "frame/VelExpressType.h"
#include "frame/VelTarmExport.h"
#include "frame/VelTarmStatus.h"
#include "sibling/VelProductGroup.h"

#include <QDomElement>

#include <vector>

class VelProductAbstract;
class VelProductAddOn;
class VelTarmBillEntry;
class VelTarmBillPosition;
struct VelTarmBillLine;

/**
 * The cart of one shipping group in money: items, transfer fee (shipping), payment agio, express agio, total. All
 * amounts are whole cents and wrap around; -1 means that there is no price. The bill owns its positions; it makes them
 * objects when they are asked for.
 *
 * Products get positions when the bill is built. The transfer fee is a computed value beside them, and both agios are
 * computed each time they are asked for; transfer and express get positions only by initDiscountInfoForXTCI().
 *
 * A coupon is an amount that is added, so it is zero or negative.
 */
class VELTARM_EXPORT VelTarmBill
{
public:
    /// How transferFee() answers. The numbers are bits: the last two of them stand for no transfer charge.
    enum TransferState : int {
        TRANSFER_STATE_COMPUTE = 0,      ///< computes the fee afresh
        TRANSFER_STATE_STORED = 1,       ///< the fee that was found when the bill was built
        TRANSFER_STATE_FILTERED_OUT = 2, ///< no charge: the transfer article was filtered out
        TRANSFER_STATE_FREE = 4          ///< no charge: the bill holds a position of DISCOUNT_MODEL_PACKAGE
    };

    /// One sold piece, as the description of discounts sees it.
    using DiscountInformation = VelTarmDiscountInformation;

    /// In place of a base charge: the piece carries none.
    static const int NO_BASE_TRANSFER_PRICE = VelTarmDiscountDescription::NO_BASE_TRANSFER_PRICE;

    /// Copies its arguments and prices every product of the statistic, in the statistic's order, under the status.
    VelTarmBill(int theShippingGroup, const VelOrderStatistic& theStatistic, const VelExpressType& theExpressType,
                const VelTarmStatus& theStatus);

    /// The copy has positions of its own; it shares the lists of discount information.
    VelTarmBill(const VelTarmBill& theOther);
    VelTarmBill& operator=(const VelTarmBill&) = delete;

    ~VelTarmBill();

    /// The id that the constructor was given.
    int shippingGroup() const { return myShippingGroup; }

    /// The cart that the constructor was given.
    const VelOrderStatistic& cart() const { return myStatistic; }
    /// Its order source and payment.
    const VelTarmStatus& status() const { return myStatus; }
    /// The express type that the constructor was given.
    const VelExpressType& expressType() const { return myExpressType; }
    /// How transferFee() answers.
    TransferState transferState() const { return myTransferState; }

    /// The fee product of the group's shipping, borrowed from the registry; null when it has none.
    VelProductAbstract* transferProduct() const;
    /// The article id of transferProduct(), -1 for none.
    int idOfTransferProduct() const;
    /// The article id of the fee product of the bill's payment, 0 for none.
    int idOfPaymentAgioProduct() const;

    /// A copy of the list, in the order of the bill; the positions stay the bill's.
    VelTarmBillPositionList orderPositions() const;
    /// The positions of orderPositions() sorted by product name, with numbers by value; they stay the bill's.
    VelTarmBillPositionList sortedBillPositions() const;

    /// The first position of the product; null when there is none or when that one is invalid.
    VelTarmBillPosition* billPosition(const VelProductAbstract* theProduct) const;

    /// Appends the list; the bill takes the positions over.
    void addOrderPositions(const VelTarmBillPositionList& thePositions);

    /// What tells a running offer from one that is over, in milliseconds since the epoch: while the bill is made, one
    /// moment for all its lines, afterwards the clock.
    qint64 present();

    /// The highest discount level that a main product of the add-on has, each by its first position; 0 for none, and
    /// at least 0.
    int highestLevelOfMainProducts(const VelProductAddOn& theAddOn) const;

    /// Whether every product has a price under the bill's status.
    bool isValid() const;

    /// Cents of the positions whose product's group matches, add-ons included.
    int totalItemCost(const VelProductGroup& theGroup) const;
    /// Pieces of the positions whose product's group matches; add-ons don't count.
    int totalItemCount(const VelProductGroup& theGroup) const;

    /// The lowest unit price of all positions, 0 when there is none.
    int unitPriceOfCheapestArticle() const;

    /// What the transfer fee comes to, as the transfer state says.
    int transferFee() const;

    /// The charge of the transfer article, whatever the transfer state. Its positions go to the given bill, to none
    /// for null; the sums that it is reckoned from are always this bill's.
    int priceOfTransfer(VelTarmBill* theBill) const;

    /// The charge of the transfer article without positions, 0 in a state without transfer. Under transfer model 2 it
    /// is the base charge alone.
    int priceOfTransfer() const;
    /// The charge for further items under transfer model 2, 0 in a state without transfer.
    int priceOfUnitTransfer() const;

    /// The fee of the express type for all books, calendars, cards and gifts of the bill, 0 without one. Its position
    /// goes to the given bill, to none for null. It is always paid in full.
    int priceOfExpressAgio(VelTarmBill* theBill) const;

    /// The fee of a payment under the key; a payment without a price costs nothing.
    static int priceOfPaymentAgio(VelPaymentType thePayment, const VelTarmPriceKey& theKey);
    /// The fee of a payment under the bill's status; a payment without a price costs nothing.
    int priceOfPaymentAgio(VelPaymentType thePayment) const;

    /// The fee of the bill's own payment; a bill that comes to nothing is charged none.
    int priceOfPaymentAgio(int theCoupon) const;

    /// Whether items, transfer and coupon come to less than one cent.
    bool totalPriceIsVoid(int theCoupon) const;

    /// Items, transfer, payment agio and coupon, not below 0, and then the express agio.
    int totalFinalCost(int theCoupon) const;

    /// Items and transfer alone, not below 0.
    int totalFinalCostWithoutCoupon() const;

    /// Narrows the bill to the articles of the list; an empty list changes nothing at all. Transfer and payment are
    /// charged only if the list holds their articles, the transfer as reckoned for the whole bill. For copies: a
    /// position that was asked for and is taken out of the list stays alive, owned by nobody.
    void filterArticles(const QList<int>& theArticleIDs);

    /// Takes the packages out of the list, in the same way.
    void filterOutPackages();

    /// Writes every position to the log.
    void dump() const;

    // ---- the description of discounts
    // Discounts are described by initDiscountInfoForXTCI() once, and then for each product, as long as pieces are left,
    // by itemsAvailableInCurrentDiscountLevel() and describeDiscount() of so many or fewer.

    /// Adds the positions of transfer and express fee to the bill and unfolds all positions into pieces.
    void initDiscountInfoForXTCI();

    /// The product's list, made when there is none; it is the bill's and shared with its copies.
    QList<DiscountInformation>* discountInformationList(const VelProductAbstract* theProduct);

    /// Appends a piece. Mind that base and unit transfer price stand in another order than in the record.
    void insertInfoDiscountInformationMap(VelProductAbstract* theProduct, VelDiscountModel theModel, int theLevel,
                                          bool theIsPackage, int theUnitPrice, bool theIsTransferModel2,
                                          int theBaseTransferPrice, int theUnitTransferPrice);

    /// How many pieces from the front share the first one's level; 0 when none is left.
    int itemsAvailableInCurrentDiscountLevel(VelProductAbstract* theProduct);

    /// The first piece; takes so many off the front. An empty list gives a piece without price.
    DiscountInformation nextDiscountInfo(const VelProductAbstract* theProduct, int theCount);

    /// Takes so many pieces off and writes them as attributes: `discount_type` and `discount_level` when wanted,
    /// `price`, and under transfer model 2 `transfer_base_price` and `transfer_unit_price`.
    void describeDiscount(QDomElement& theElement, const VelProductAbstract* theProduct, int theCount,
                          bool theWithDiscountType);

private:
    friend class VelTarmPriceInfo; // which prices into the bill

    /// Appends a line of the product, without a price so far, for pricing to fill in; valid until the next is added. A
    /// position is made of it when one is asked for.
    VelTarmBillLine& addLine(VelProductAbstract* theProduct);

    using Entries = std::vector<VelTarmBillEntry>;

    void init();
    const VelTarmBillEntry* firstEntryOf(const VelProductAbstract* theProduct) const;
    bool isFirstOfItsProduct(const VelTarmBillEntry& theEntry) const;
    template <typename Condition>
    void removeEntries(Condition theCondition);
    bool isWithoutTransfer() const;
    int itemCost() const;
    int itemCount() const;
    int costBeforeFees(int theCoupon) const;

    Entries myEntries; ///< in the order of the positions; those that were made are the bill's
    int myShippingGroup;
    VelTarmStatus myStatus;
    VelOrderStatistic myStatistic;
    VelExpressType myExpressType;
    VelTarmDiscountDescription myDiscountDescription;
    bool myPaymentAgioEnabled = true;
    TransferState myTransferState = TRANSFER_STATE_COMPUTE;
    int myStoredTransferFee = 0;
    bool myHoldsPresent = false;
    qint64 myPresent = 0; ///< 0 until it is asked for
};

#endif
