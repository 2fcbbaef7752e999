#include "frame/VelTarmStatus.h"

#include "ordering/VelOrderingDetails.h"

void VelTarmStatus::setOrderSource(const VelOrderSource& theOrderSource)
{
    const VelDeliveryType formerDeliveryType = deliveryType();
    myOrderSource = theOrderSource;
    if (deliveryType() != formerDeliveryType)
        setReasonableStartingPayment();
}

void VelTarmStatus::setReasonableStartingPayment()
{
    myPayment = VelOrderingDetails::instance()->reasonableStartingPayment(myOrderSource, myPayment);
}

bool VelTarmStatus::paymentTypePermitsDifferentShippingAddress(VelPaymentType thePayment)
{
    switch (thePayment) {
    case PAYMENT_TYPE_1:
    case PAYMENT_TYPE_2:
    case PAYMENT_TYPE_9:
    case PAYMENT_TYPE_10:
    case PAYMENT_TYPE_12:
    case PAYMENT_TYPE_14:
        return true;
    default:
        return false;
    }
}

bool VelTarmStatus::differentShippingAddressPossible() const
{
    return isMailOrder() && paymentTypePermitsDifferentShippingAddress(myPayment);
}
