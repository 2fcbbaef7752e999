#ifndef VELTARMEXPORT_H
#define VELTARMEXPORT_H

#include <QtGlobal>

/// Marks the classes that the shared library offers to a host; everything else stays hidden.
#define VELTARM_EXPORT Q_DECL_EXPORT

#endif
