#ifndef VELTARMBILLPOSITION_H
#define VELTARMBILLPOSITION_H

#include "bill/VelTarmBillPositionAbstract.h"

/// A priced line.
class VELTARM_EXPORT VelTarmBillPosition : public VelTarmBillPositionAbstract
{
    Q_OBJECT

public:
    /// Mind that the level stands before the price.
    VelTarmBillPosition(int theCountItems, VelProductAbstract* theProduct, VelDiscountModel theDiscountModel,
                        int theDiscountLevel, int theUnitPrice, int theUnitCount, int theDiscountItemsPerUnit,
                        int theNonOfferPrice);
    VelTarmBillPosition(const VelTarmBillPosition&) = default;

    VelTarmBillPositionAbstract* clone() const override { return new VelTarmBillPosition(*this); }
    void dump() const override;
    int unitPrice() const override { return myUnitPrice; }
    int unitCount() const override { return myUnitCount; }
    int countItems() const override { return myCountItems; }
    bool isPackage() const override { return myDiscountItemsPerUnit > 1; }
    VelDiscountModel discountModel() const override { return myDiscountModel; }
    int discountLevel() const override { return myDiscountLevel; }
    int nonOfferPrice() const override { return myNonOfferPrice; }

    /// Pieces in one unit; above 1 the position is a package.
    virtual int discountItemsPerUnit() const { return myDiscountItemsPerUnit; }

private:
    int myCountItems;
    VelDiscountModel myDiscountModel;
    int myUnitPrice;
    int myUnitCount;
    int myDiscountItemsPerUnit;
    int myDiscountLevel;
    int myNonOfferPrice;
};

#endif
