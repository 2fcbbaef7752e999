#ifndef VELTARMGLOBALSTATUS_H
#define VELTARMGLOBALSTATUS_H

#include "frame/VelTarmExport.h"
#include "frame/VelTarmStatus.h"

#include <QObject>

/// The one application-wide status. It is for the host: nothing in the library listens to it.
class VELTARM_EXPORT VelTarmGlobalStatus : public QObject
{
    Q_OBJECT

public:
    /// Built on the first call, which is guarded; never deleted.
    static VelTarmGlobalStatus* instance();

    ~VelTarmGlobalStatus() override;

    /// A copy of the status.
    VelTarmStatus status() const { return myStatus; }
    /// The status's order source.
    VelOrderSource orderSource() const { return myStatus.orderSource(); }
    /// The input source of orderSource().
    VelInputSource inputSource() const { return myStatus.inputSource(); }
    /// The delivery type of orderSource().
    VelDeliveryType deliveryType() const { return myStatus.deliveryType(); }
    /// The status's payment.
    VelPaymentType payment() const { return myStatus.payment(); }
    /// A key of the order source alone, as VelTarmStatus::priceKey() makes it.
    VelTarmPriceKey priceKey() const { return myStatus.priceKey(); }

    /// As VelTarmStatus::setPayment(); emits nothing.
    void setPayment(VelPaymentType thePayment) { myStatus.setPayment(thePayment); }
    /// As VelTarmStatus::setReasonableStartingPayment(); emits nothing.
    void setReasonableStartingPayment() { myStatus.setReasonableStartingPayment(); }

    /// Chooses the start value: the given source if the key account enables it, else the first one available. Each of
    /// the two failures writes a warning; without any source the status stays as it is.
    void initOrderSource(const VelOrderSource& theOrderSource);

public slots:
    /// An equal source changes nothing and tells nobody.
    void setOrderSource(const VelOrderSource& theNewOrderSource);

signals:
    /// The order source is another one now; the payment may have changed with it.
    void orderSourceChanged();

private:
    VelTarmGlobalStatus();

    VelTarmStatus myStatus;
};

#endif
