#ifndef VELTARMSTATUS_H
#define VELTARMSTATUS_H

#include "frame/VelOrderSource.h"
#include "frame/VelTarmExport.h"
#include "price/VelTarmPriceKey.h"

/// Order source and payment: the state that prices depend on. A value.
class VELTARM_EXPORT VelTarmStatus
{
public:
    /// Net, mail order, PAYMENT_TYPE_3.
    VelTarmStatus() = default;

    VelOrderSource orderSource() const { return myOrderSource; }
    VelInputSource inputSource() const { return myOrderSource.inputSource(); }
    VelDeliveryType deliveryType() const { return myOrderSource.deliveryType(); }
    VelPaymentType payment() const { return myPayment; }

    void setPayment(VelPaymentType thePayment) { myPayment = thePayment; }
    void setOrderSource(const VelOrderSource& theOrderSource) { myOrderSource = theOrderSource; }

    /// A key of the order source alone: level -1, DISCOUNT_MODEL_UNDEFINED.
    VelTarmPriceKey priceKey() const { return VelTarmPriceKey(myOrderSource, -1, DISCOUNT_MODEL_UNDEFINED); }

private:
    VelOrderSource myOrderSource = VelOrderSource::onlineMailOrder();
    VelPaymentType myPayment = PAYMENT_TYPE_3;
};

#endif
