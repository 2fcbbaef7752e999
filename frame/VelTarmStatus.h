#ifndef VELTARMSTATUS_H
#define VELTARMSTATUS_H

#include "frame/VelOrderSource.h"
#include "frame/VelTarmExport.h"
#include "price/VelTarmPriceKey.h"

/// Order source and payment: the state that prices depend on. A value; a bill holds a copy of its own.
class VELTARM_EXPORT VelTarmStatus
{
public:
    /// Net, mail order, PAYMENT_TYPE_3.
    VelTarmStatus() = default;

    /// The order source.
    VelOrderSource orderSource() const { return myOrderSource; }
    /// The input source of orderSource().
    VelInputSource inputSource() const { return myOrderSource.inputSource(); }
    /// The delivery type of orderSource().
    VelDeliveryType deliveryType() const { return myOrderSource.deliveryType(); }
    /// The payment.
    VelPaymentType payment() const { return myPayment; }

    /// Nothing is tested: the order source need not permit the payment.
    void setPayment(VelPaymentType thePayment) { myPayment = thePayment; }

    /// A change of the delivery type chooses a reasonable payment; a change of the input source alone keeps it, since
    /// the choice depends on the delivery type.
    void setOrderSource(const VelOrderSource& theOrderSource);

    /// Keeps the payment when the ordering details permit it for the order source, else takes the first permitted one;
    /// PAYMENT_TYPE_UNKNOWN when there is none.
    void setReasonableStartingPayment();

    /// A key of the order source alone: level -1, DISCOUNT_MODEL_UNDEFINED.
    VelTarmPriceKey priceKey() const { return VelTarmPriceKey(myOrderSource, -1, DISCOUNT_MODEL_UNDEFINED); }

    /// Takes the key's order source; its level and model are ignored.
    void setPriceKey(const VelTarmPriceKey& theKey) { setOrderSource(theKey.orderSource()); }

    /// Whether the order source is exactly that one.
    bool hasOrderSource(const VelOrderSource& theOrderSource) const { return myOrderSource == theOrderSource; }
    bool isOnlinePointOfSale() const { return myOrderSource.isOnlinePointOfSale(); }
    bool isOnlineMailOrder() const { return myOrderSource.isOnlineMailOrder(); }
    bool isCDPointOfSale() const { return myOrderSource.isCDPointOfSale(); }
    bool isKioskOnSite() const { return myOrderSource.isKioskOnSite(); }
    bool isCdMailOrder() const { return myOrderSource.isCDMailOrder(); }

    /// Whether the order comes by the net, whatever the delivery type.
    bool isNetOrder() const { return inputSource() == INPUT_SOURCE_NET; }
    /// Whether the goods go by mail, whatever the input source.
    bool isMailOrder() const { return deliveryType() == DELIVERY_TYPE_MAILORDER; }

    /// A closed list of payments.
    static bool paymentTypePermitsDifferentShippingAddress(VelPaymentType thePayment);

    /// For mail order with a payment that permits it.
    bool differentShippingAddressPossible() const;

private:
    VelOrderSource myOrderSource = VelOrderSource::onlineMailOrder();
    VelPaymentType myPayment = PAYMENT_TYPE_3;
};

#endif
