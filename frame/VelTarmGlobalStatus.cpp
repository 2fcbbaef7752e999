#include "frame/VelTarmGlobalStatus.h"

#include "frame/VelGuardedInstance.h"
#include "frame/VelTarmConfig.h"
#include "ordering/VelOrderingDetails.h"

VelTarmGlobalStatus::VelTarmGlobalStatus()
{
    initOrderSource(VelTarmConfig::instance()->defaultOrderSource());
    setReasonableStartingPayment();
}

VelTarmGlobalStatus* VelTarmGlobalStatus::instance()
{
    static QMutex myInstanceMutex;
    static QAtomicPointer<VelTarmGlobalStatus> myInstance;
    return guardedInstance(myInstance, myInstanceMutex, [] { return new VelTarmGlobalStatus; });
}

VelTarmGlobalStatus::~VelTarmGlobalStatus()
{
    qWarning("VelTarmGlobalStatus::~VelTarmGlobalStatus()");
}

void VelTarmGlobalStatus::initOrderSource(const VelOrderSource& theOrderSource)
{
    const VelOrderingDetails* details = VelOrderingDetails::instance();
    if (details->orderSourceEnabled(theOrderSource)) {
        setOrderSource(theOrderSource);
        return;
    }
    const QList<VelOrderSource> sources = details->availableOrderSources();
    if (sources.isEmpty()) {
        qWarning("VelTarmGlobalStatus::initOrderSource() -- Wir haben keinen Bestellweg.");
        return;
    }
    qWarning("VelTarmGlobalStatus::initOrderSource() -- Konfiguriere auf den ersten verfügbaren Bestellweg um. "
             "Default- UND konfigurierter Bestellweg sind nicht verfügbar.");
    setOrderSource(sources.first());
}

void VelTarmGlobalStatus::setOrderSource(const VelOrderSource& theNewOrderSource)
{
    if (myStatus.hasOrderSource(theNewOrderSource))
        return;
    myStatus.setOrderSource(theNewOrderSource);
    emit orderSourceChanged();
}
