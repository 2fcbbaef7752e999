#ifndef VELGUARDEDINSTANCE_H
#define VELGUARDEDINSTANCE_H

#include <QAtomicPointer>
#include <QMutex>
#include <QMutexLocker>

/// The instance behind the pointer, built by the function on first use: the pointer is tested before and after the
/// lock, so that concurrent first calls build one object. The mutex is held while the object is built, so nothing that
/// its constructor reaches may ask for the instance.
template <typename Class, typename Build>
Class* guardedInstance(QAtomicPointer<Class>& theInstance, QMutex& theMutex, Build theBuild)
{
    if (Class* instance = theInstance.loadAcquire())
        return instance;
    QMutexLocker locker(&theMutex);
    if (!theInstance.loadRelaxed())
        theInstance.storeRelease(theBuild());
    return theInstance.loadRelaxed();
}

#endif
