#include "frame/VelTarmGlobalStatus.h"

#include "frame/VelGuardedInstance.h"

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
