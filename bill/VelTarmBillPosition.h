#ifndef VELTARMBILLPOSITION_H
#define VELTARMBILLPOSITION_H

#include "bill/VelTarmBillLine.h"
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

    /// Of the values of a priced line.
    explicit VelTarmBillPosition(const VelTarmBillLine& theLine);

    VelTarmBillPosition(const VelTarmBillPosition&) = default;

    VelTarmBillPositionAbstract* clone() const override { return new VelTarmBillPosition(*this); }
    void dump() const override;
    int unitPrice() const override { return myLine.myUnitPrice; }
    int unitCount() const override { return myLine.myUnitCount; }
    int countItems() const override { return myLine.myCountItems; }
    bool isPackage() const override { return myLine.isPackage(); }
    VelDiscountModel discountModel() const override { return myLine.myDiscountModel; }
    int discountLevel() const override { return myLine.myDiscountLevel; }
    int nonOfferPrice() const override { return myLine.myNonOfferPrice; }

    /// Pieces in one unit; above 1 the position is a package.
    virtual int discountItemsPerUnit() const { return myLine.myDiscountItemsPerUnit; }

    /// All values as this class holds them, with the product that stands here now.
    VelTarmBillLine line() const;

private:
    VelTarmBillLine myLine; ///< but for the product, which the base holds
};

#endif
