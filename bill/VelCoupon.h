#ifndef VELCOUPON_H
#define VELCOUPON_H

#include "frame/VelEnumerations.h"
#include "frame/VelTarmExport.h"

#include <QDomElement>
#include <QList>
#include <QString>
#include <QStringList>

class VelTarmBill;

/**
 * A voucher: its terms, and what it takes off a bill. A discount is a value in cents that is added to the bill, so what
 * takes something off is negative, in the coupon's document too. A value class; bills handed in stay as they are.
 */
class VELTARM_EXPORT VelCoupon
{
public:
    /// The coupon's code, and the element that holds its terms, see parseXML.
    VelCoupon(const QString& theId, const QDomElement& theElement);

    /// Reads the first `coupon` of `coupons`; without one all is read as missing. Called again, it adds to the valid
    /// articles, and a `price` that the new type doesn't read keeps its former value.
    void parseXML(const QDomElement& theElement);

    /// Whether `campaign_no` was there, if only as an empty text, and the type is known. A coupon that isn't valid is
    /// not to be used, but it computes all the same.
    bool isValid() const;

    /// The coupon's code.
    QString id() const { return myId; }

    /// Attribute `campaign_no`, null when missing.
    QString campaign() const { return myCampaign; }

    /// Attribute `type`, its words combined by OR: "value,percent" is a quantity coupon.
    VelCouponType type() const { return myType; }

    /// The non-zero `art_id` of the children `condition`, in order; none means that every article counts. Fee articles
    /// may be among them.
    QList<int> validArticles() const { return myValidArticles; }

    /// Attribute `price` of a value coupon, in cents, negative to take off; 0 of any other coupon.
    int maximumDiscountValue() const { return myMaximumDiscountValue; }
    /// Attribute `price` of a percent coupon, the percentage, negative to take off; 0 of any other coupon.
    int discountPercentage() const { return myDiscountPercentage; }

    /// Attribute `minimum_price`, cents that the valid articles must come to; a quantity coupon doesn't ask for it.
    int minimumSpentValue() const { return myMinimumSpentValue; }

    /// Attribute `free_quantity`: the pieces given free.
    int freeQuantity() const { return myFreeQuantity; }
    /// Attribute `minimum_quantity`: the pieces that must be bought.
    int minimumQuantity() const { return myMinimumQuantity; }

    /// Attribute `shareable`. It has no effect here.
    bool isShareable() const { return myShareable; }

    /// Cents, 0 or more: the valid articles, with the transfer fee of the whole bill if its article is among them. No
    /// payment or express agio.
    int totalValueOfOrder(const VelTarmBill& theBill) const;

    /// Whether that reaches minimumSpentValue().
    bool spentEnoughMoney(const VelTarmBill& theBill) const;

    /// What a percent coupon gives, before the bound of discountForOrder; the coupon's own type isn't looked at.
    int percentDiscount(const VelTarmBill& theBill) const;
    /// What a value coupon gives, before the bound of discountForOrder; the coupon's own type isn't looked at. The
    /// offset is subtracted as it stands, in the coupon's sign; 0 leaves the whole value.
    int valueDiscount(const VelTarmBill& theBill, int theOffset) const;
    /// What a quantity coupon gives, before the bound of discountForOrder; the coupon's own type isn't looked at.
    int quantityDiscount(const VelTarmBill& theBill) const;

    /// What VelTarmBill::totalFinalCost takes: the discount of the coupon's type, but never more off than
    /// totalValueOfOrder. 0 for an unknown type.
    int discountForOrder(const VelTarmBill& theBill, int theOffset) const;

    /// The valid articles as the customer knows them, sorted, each name once. An id that no product has is passed over.
    QStringList validArticleNames() const;

private:
    void readGrant(const QDomElement& theCoupon);
    void readValidArticles(const QDomElement& theCoupon);

    QString myId;
    QString myCampaign;
    VelCouponType myType = COUPON_TYPE_UNKNOWN;
    QList<int> myValidArticles;
    int myMaximumDiscountValue = 0;
    int myMinimumSpentValue = 0;
    int myFreeQuantity = 0;
    int myMinimumQuantity = 0;
    int myDiscountPercentage = 0;
    bool myShareable = false;
};

#endif
