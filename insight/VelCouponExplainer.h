#ifndef VELCOUPONEXPLAINER_H
#define VELCOUPONEXPLAINER_H

#include "frame/VelArithmetic.h"
#include "insight/VelExplanationSources.h"
#include "insight/VelPriceExplanation.h"

class VelCoupon;
class VelTarmBill;

/// A coupon on one bill of an order.
struct VelCouponUse
{
    int myNumber = 0;          ///< of the coupon in the order
    int myShare = 0;           ///< cents that it adds to this bill
    int myTaken = 0;           ///< cents that it added to the bills before
    int myLeftBefore = 0;      ///< cents that it could take off in front of this bill, see VelTarmOrderCoupon::left()
    int myLeft = 0;            ///< the same behind it
    bool myIsPlaceable = true; ///< whether nothing stands against the bill

    /// On to the next bill, of which it takes that share and leaves that rest.
    void goOn(int theShare, int theLeft)
    {
        myTaken = VelArithmetic::sum(myTaken, myShare);
        myShare = theShare;
        myLeftBefore = myLeft;
        myLeft = theLeft;
    }
};

/// Explains what coupons add to a bill.
class VelCouponExplainer
{
public:
    /// Bill and sources stay alive meanwhile.
    VelCouponExplainer(const VelTarmBill& theBill, const VelExplanationSources& theSources)
        : myBill(theBill), mySources(theSources)
    {
    }

    VelExplainedTerm term(const VelCoupon& theCoupon, const VelCouponUse& theUse) const;

private:
    QString reason(const VelCoupon& theCoupon, const VelCouponUse& theUse) const;
    QString use(const VelCoupon& theCoupon, const VelCouponUse& theUse) const;
    QString percentOrValue(const VelCoupon& theCoupon, const VelCouponUse& theUse) const;
    QString freePieces(const VelCoupon& theCoupon) const;
    void cite(VelExplainedPlaces& thePlaces, const VelCoupon& theCoupon, const VelCouponUse& theUse) const;
    void citeObjections(QVector<VelExplainedPlace>& thePlaces) const;

    const VelTarmBill& myBill;
    const VelExplanationSources& mySources;
};

#endif
