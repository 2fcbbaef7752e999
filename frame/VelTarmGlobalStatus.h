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

    /// A copy of the status, and its parts as VelTarmStatus states them.
    VelTarmStatus status() const { return myStatus; }
    VelOrderSource orderSource() const { return myStatus.orderSource(); }
    VelInputSource inputSource() const { return myStatus.inputSource(); }
    VelDeliveryType deliveryType() const { return myStatus.deliveryType(); }
    VelPaymentType payment() const { return myStatus.payment(); }
    VelTarmPriceKey priceKey() const { return myStatus.priceKey(); }

    /// These emit nothing.
    void setPayment(VelPaymentType thePayment) { myStatus.setPayment(thePayment); }
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
