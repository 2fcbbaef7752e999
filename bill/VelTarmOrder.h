#ifndef VELTARMORDER_H
#define VELTARMORDER_H

#include "bill/VelOrderStatistic.h"
#include "bill/VelTarmOrderAmounts.h"
#include "bill/VelTarmOrderBill.h"
#include "bill/VelTarmOrderCoupon.h"
#include "bill/VelTarmOrderObjection.h"
#include "frame/VelExpressType.h"
#include "frame/VelTarmExport.h"
#include "frame/VelTarmStatus.h"

#include <QList>
#include <QPair>

#include <utility>

/**
 * A whole order: a cart of any shipping groups, order source, payment, express and coupons in; the bill of each group,
 * the amounts of all together, and everything that stands against placing the order out.
 *
 * It asks the bills and coupons and changes no answer of theirs; it sees what they don't refuse: a bill sells an
 * article with the price -1, more pieces than the group's limit, express where there is none, and a product that the
 * shop doesn't sell. All is reckoned on construction; a price list that is read later doesn't change an order that was
 * made, but the fees of its bills answer anew, so make a new order then. A value, of one thread like the registry.
 * The lists of one that nobody keeps come by value, so that a loop may run over them.
 */
class VELTARM_EXPORT VelTarmOrder
{
public:
    /// A product of the registry, borrowed, and how many pieces of it.
    using Item = QPair<VelProductAbstract*, int>;

    /// The counts of a product are pieces, add-ons counted as often as they are charged. The status gives order source
    /// and payment. An express type that is unknown or ExpressableType_STANDARD is no express. Coupons count in the
    /// order of the list.
    VelTarmOrder(const VelOrderStatistic& theCart, const VelTarmStatus& theStatus, const VelExpressType& theExpressType,
                 const QList<VelCoupon>& theCoupons = QList<VelCoupon>());

    /// The same of items; a product that stands there several times is bought so many times over.
    VelTarmOrder(const QList<Item>& theItems, const VelTarmStatus& theStatus, const VelExpressType& theExpressType,
                 const QList<VelCoupon>& theCoupons = QList<VelCoupon>());

    // ---- what was chosen, as it was given

    /// The whole cart.
    const VelOrderStatistic& cart() const { return myCart; }

    /// Order source and payment.
    const VelTarmStatus& status() const { return myStatus; }

    /// The express type, the same for every bill.
    const VelExpressType& expressType() const { return myExpressType; }

    /// Whether an express type above the standard one was chosen.
    bool hasExpress() const;

    /// The coupons in the order in which they count, each with what was taken of it and what is left.
    const QList<VelTarmOrderCoupon>& coupons() const& { return myCoupons; }
    QList<VelTarmOrderCoupon> coupons() && { return std::move(myCoupons); }

    // ---- what it comes to

    /// A bill for each shipping group of which the cart holds anything, in the order of the group ids.
    const QList<VelTarmOrderBill>& bills() const& { return myBills; }
    QList<VelTarmOrderBill> bills() && { return std::move(myBills); }

    /// The sums of all bills. Each shipping group travels in a parcel of its own and is charged on its own, so every
    /// bill that comes to anything pays shipping, payment and express.
    const VelTarmOrderAmounts& amounts() const { return myAmounts; }

    /// What stands against the order: first what concerns the order as a whole, then that of each bill in the order of
    /// the bills. See VelTarmOrderObjection for what is told.
    const QList<VelTarmOrderObjection>& objections() const& { return myObjections; }
    QList<VelTarmOrderObjection> objections() && { return std::move(myObjections); }

    /// Whether nothing stands against it. An empty cart has no objection: whether it is worth sending the host decides.
    bool canBePlaced() const { return myObjections.isEmpty(); }

private:
    void makeBills();
    void addBill(int theGroup, const VelOrderStatistic& theCart, bool theExpressExists);
    bool useCoupons(VelTarmOrderBill& theBill, bool theIsPlaceable);
    static void reckon(VelTarmOrderBill& theBill);
    QList<VelTarmOrderObjection> objectionsToOrder() const;
    bool isExpressPossible() const;

    VelOrderStatistic myCart;
    VelTarmStatus myStatus;
    VelExpressType myExpressType;
    QList<VelTarmOrderCoupon> myCoupons;
    QList<VelTarmOrderBill> myBills;
    VelTarmOrderAmounts myAmounts;
    QList<VelTarmOrderObjection> myObjections;
};

#endif
