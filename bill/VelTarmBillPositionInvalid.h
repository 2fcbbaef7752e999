#ifndef VELTARMBILLPOSITIONINVALID_H
#define VELTARMBILLPOSITIONINVALID_H

#include "bill/VelTarmBillPositionAbstract.h"

/// The marker of a product that has no price under the key at hand. It makes its whole bill invalid.
class VELTARM_EXPORT VelTarmBillPositionInvalid : public VelTarmBillPositionAbstract
{
    Q_OBJECT

public:
    /// Of the product that has no price.
    explicit VelTarmBillPositionInvalid(VelProductAbstract* theProduct) : VelTarmBillPositionAbstract(theProduct) {}
    VelTarmBillPositionInvalid(const VelTarmBillPositionInvalid&) = default;

    VelTarmBillPositionAbstract* clone() const override { return new VelTarmBillPositionInvalid(*this); }
    void dump() const override;
    int unitPrice() const override { return 0; }
    int unitCount() const override { return 0; }
    int countItems() const override { return 0; }
    bool isPackage() const override { return false; }
    VelDiscountModel discountModel() const override { return DISCOUNT_MODEL_UNDEFINED; }
    int discountLevel() const override { return 0; }
    int nonOfferPrice() const override { return 0; }
};

#endif
