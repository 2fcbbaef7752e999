#ifndef VELTARMPRICEVALUE_H
#define VELTARMPRICEVALUE_H

#include "frame/VelTarmExport.h"
#include "price/VelDiscountLimit.h"

#include <QDateTime>
#include <QDomElement>

/// One price entry of the price list: its limit with the amounts, all in whole cents, and its offer.
class VELTARM_EXPORT VelTarmPriceValue
{
public:
    /// Reads `price` (default -1), `transfer_unit_price` and `transfer_base_price` (0), `non_offer_price` (-1),
    /// `end_offer_date` (ISO, default the Unix epoch), and the limit.
    explicit VelTarmPriceValue(const QDomElement& theEntry);

    /// The one invalid value, as read from an entry without attributes; it lives to the end of the process.
    static VelTarmPriceValue* invalidPrice();

    /// Whether the value differs from invalidPrice(), the upper limit included. So an entry that says nothing is
    /// invalid until a following level gives it an upper limit, and a price of -1 alone does not make one invalid.
    bool isValid() const { return myPrice != NO_PRICE || *this != *invalidPrice(); }

    /// By all fields; a pointer stands for what it points to.
    bool operator==(const VelTarmPriceValue& theOther) const;
    bool operator!=(const VelTarmPriceValue& theOther) const { return !(*this == theOther); }
    bool operator==(const VelTarmPriceValue* theOther) const { return *this == *theOther; }
    bool operator!=(const VelTarmPriceValue* theOther) const { return *this != *theOther; }

    /// Cents; -1 for no price.
    int price() const { return myPrice; }

    /// Cents of shipping for the first item of an order under transfer model 2.
    int baseTransferPrice() const { return myBaseTransferPrice; }

    /// Cents of shipping for each further item under transfer model 2.
    int unitTransferPrice() const { return myUnitTransferPrice; }

    /// Cents that are shown as the old price while the offer runs; -1 for none.
    int nonOfferPrice() const { return myNonOfferPrice; }

    /// When the offer ends; the Unix epoch without one.
    QDateTime endOfferDate() const { return myEndOfferDate; }

    /// nonOfferPrice() while the present, in milliseconds since the epoch, lies before the end of the offer, then -1.
    /// The amount itself is not touched by an offer. A date without offset means local time; which moment that is, is
    /// settled while reading: a process that changes its time zone has to load again.
    int shownNonOfferPrice(qint64 thePresent) const { return thePresent < myEndOfOffer ? myNonOfferPrice : -1; }

    /// When the price holds.
    VelDiscountLimit discountLimit() const { return myDiscountLimit; }
    /// VelDiscountLimit::discountModel() of discountLimit().
    VelDiscountModel discountModel() const { return myDiscountLimit.discountModel(); }
    /// VelDiscountLimit::lowerLimit() of discountLimit().
    int lowerLimit() const { return myDiscountLimit.lowerLimit(); }
    /// VelDiscountLimit::upperLimit() of discountLimit().
    int upperLimit() const { return myDiscountLimit.upperLimit(); }
    /// VelDiscountLimit::level() of discountLimit().
    int discountLevel() const { return myDiscountLimit.level(); }
    /// VelDiscountLimit::isPackage() of discountLimit().
    bool isPackagePrice() const { return myDiscountLimit.isPackage(); }

    /// Closes the band; -1 leaves it open.
    void setUpperLimit(int theUpperLimit) { myDiscountLimit.setUpperLimit(theUpperLimit); }

private:
    static constexpr int NO_PRICE = -1;

    int myPrice;
    VelDiscountLimit myDiscountLimit;
    int myUnitTransferPrice;
    int myBaseTransferPrice;
    int myNonOfferPrice;
    QDateTime myEndOfferDate;
    qint64 myEndOfOffer; ///< the same in milliseconds since the epoch; 0 where no old price can be shown
};

Q_DECLARE_TYPEINFO(VelTarmPriceValue, Q_MOVABLE_TYPE);

#endif
