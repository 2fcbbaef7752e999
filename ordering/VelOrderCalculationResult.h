#ifndef VELORDERCALCULATIONRESULT_H
#define VELORDERCALCULATIONRESULT_H

#include "frame/VelExpressType.h"
#include "frame/VelTarmExport.h"
#include "ordering/VelTarmShippingDate.h"

#include <QDomElement>
#include <QMap>

/// What a server calculated for an order: taxes, sum and shipping dates. Amounts are cents, -1 is one not given. A
/// value.
class VELTARM_EXPORT VelOrderCalculationResult
{
public:
    /// Reads the texts of the children `sales_tax`, `bill_sum` and `provincial_sales_tax` (default -1 each), and the
    /// shipping dates. A null element gives the result of clear().
    explicit VelOrderCalculationResult(const QDomElement& theElement);

    /// All amounts -1, no dates.
    void clear();

    /// The sales tax as it was read or set, valid or not.
    int salesTaxValue() const { return mySalesTax; }
    /// The bill's sum as it was read or set, valid or not.
    int billSumValue() const { return myBillSum; }
    /// The provincial sales tax as it was read or set, valid or not.
    int provincialSalesTax() const { return myProvincialSalesTax; }
    /// Replaces the sales tax; nothing is tested.
    void setSalesTaxValue(int theValue) { mySalesTax = theValue; }
    /// Replaces the bill's sum; nothing is tested.
    void setBillSumValue(int theValue) { myBillSum = theValue; }
    /// Replaces the provincial sales tax; nothing is tested.
    void setProvincialSalesTaxValue(int theValue) { myProvincialSalesTax = theValue; }

    /// Whether the sales tax is 0 or more. Differs from provincialSalesTaxIsValid() on purpose.
    bool salesTaxIsValid() const { return mySalesTax >= 0; }
    /// Whether the provincial sales tax isn't -1. Differs from salesTaxIsValid() on purpose.
    bool provincialSalesTaxIsValid() const { return myProvincialSalesTax != -1; }

    /// An invalid date for an express type that has none.
    VelTarmShippingDate shippingDate(const VelExpressType& theType) const { return myShippingDates.value(theType); }

    /// Whether both days are known.
    bool shippingDateIsValid(const VelExpressType& theType) const { return shippingDate(theType).isValid(); }

    /// Replaces the date of that express type.
    void setShippingDate(const VelExpressType& theType, const VelTarmShippingDate& theDate);

    /// Adds the dates of `shipping_times`, the later of two for one express type; what has been read before stays. A
    /// `shipping_time` without a valid `express` or with invalid dates is left out.
    void readShippingDates(const QDomElement& theElement);

    /// Writes the valid taxes into an order declaration, as children `sales_tax` and `provincial_sales_tax` with the
    /// attribute `price`.
    void buildOrderDeclarationSalesTaxElement(QDomElement& theParent) const;

    /// By the three amounts and all dates.
    bool operator==(const VelOrderCalculationResult& theOther) const;
    bool operator!=(const VelOrderCalculationResult& theOther) const { return !(*this == theOther); }

private:
    int mySalesTax = -1;
    int myBillSum = -1;
    int myProvincialSalesTax = -1;
    QMap<VelExpressType, VelTarmShippingDate> myShippingDates;
};

#endif
