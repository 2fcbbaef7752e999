#ifndef VELTARMGLOBALSTATUS_H
#define VELTARMGLOBALSTATUS_H

#include "frame/VelTarmExport.h"
#include "frame/VelTarmStatus.h"

#include <QObject>

/// The one application-wide status.
class VELTARM_EXPORT VelTarmGlobalStatus : public QObject
{
    Q_OBJECT

public:
    /// Built on the first call, which is guarded; never deleted.
    static VelTarmGlobalStatus* instance();

    ~VelTarmGlobalStatus() override;

    VelTarmStatus status() const { return myStatus; }
    VelOrderSource orderSource() const { return myStatus.orderSource(); }
    VelInputSource inputSource() const { return myStatus.inputSource(); }
    VelDeliveryType deliveryType() const { return myStatus.deliveryType(); }
    VelPaymentType payment() const { return myStatus.payment(); }
    VelTarmPriceKey priceKey() const { return myStatus.priceKey(); }

private:
    VelTarmGlobalStatus() = default;

    VelTarmStatus myStatus;
};

#endif
