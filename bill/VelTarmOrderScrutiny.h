#ifndef VELTARMORDERSCRUTINY_H
#define VELTARMORDERSCRUTINY_H

#include "bill/VelOrderStatistic.h"
#include "bill/VelTarmOrderObjection.h"
#include "frame/VelExpressType.h"
#include "frame/VelTarmStatus.h"

#include <QList>

class VelProductAbstract;
class VelTarmBill;
class VelTarmBillPositionAbstract;
class VelTarmOrder;

/// Looks for all that stands against one bill of an order, before any coupon.
class VelTarmOrderScrutiny
{
public:
    /// Of a bill of the order, and the cart that it is made of; all stay alive meanwhile. When nothing in the whole
    /// order can go by express, all of it is told; otherwise prints may travel at the standard pace beside it.
    VelTarmOrderScrutiny(const VelTarmBill& theBill, const VelOrderStatistic& theCart, const VelTarmOrder& theOrder,
                         bool theExpressExists);

    /// In the order: each product, their prices, the group's limit, the fees.
    QList<VelTarmOrderObjection> objections();

    /// Whether 32 bits hold the pieces, and what shipping by pieces comes to.
    bool countsFit() const;

private:
    void lookAtProduct(const VelProductAbstract* theProduct, int theCount);
    void lookAtPositions();
    void lookAtPackage(const VelTarmBillPositionAbstract& thePosition);
    void lookAtLimit();
    void lookAtFees();
    bool mustBeExpress(const VelProductAbstract& theProduct) const;
    void object(VelTarmOrderObjection::Kind theKind, const VelProductAbstract* theProduct, qint64 theNumber = 0);
    void objectToFee(VelTarmOrderObjection::Fee theFee, const VelProductAbstract* theProduct, int thePrice);

    const VelTarmBill& myBill;
    const VelOrderStatistic& myCart;
    const VelTarmStatus myStatus;
    const VelExpressType myExpressType;
    const bool myHasExpress;
    const bool myAllIsExpress; ///< rather than what the express fee counts
    QList<VelTarmOrderObjection> myObjections;
};

#endif
