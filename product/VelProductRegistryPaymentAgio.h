#ifndef VELPRODUCTREGISTRYPAYMENTAGIO_H
#define VELPRODUCTREGISTRYPAYMENTAGIO_H

#include "frame/VelEnumerations.h"
#include "product/VelProductRegistryAbstract.h"

#include <QMap>

/// The fee of each payment type. Products stay alive when a load replaces them; the destructor deletes those at hand.
class VelProductRegistryPaymentAgio : public VelProductRegistryAbstract
{
public:
    ~VelProductRegistryPaymentAgio() override;

    /// Replaces all by the children `paymethod_fee` of the section.
    void readAdditionalPaymentFees(const QDomElement& theSection);

    /// The key is the number in `pay_method_id`, 0 for any other text; it isn't compared with the known types.
    void registerProduct(const QDomElement& theElement, VelProductAbstract* theProduct) override;

    /// Null when the payment has no fee.
    VelProductAbstract* paymentAgioProduct(VelPaymentType thePayment) const;

    /// Its article ID, 0 when there is none.
    int idOfPaymentAgioProduct(VelPaymentType thePayment) const;

private:
    QMap<VelPaymentType, VelProductAbstract*> myPaymentAgioProducts;
};

#endif
