#ifndef VELINSIGHTEXPORT_H
#define VELINSIGHTEXPORT_H

#include <QtGlobal>

/// Marks the classes that the library of observers offers; everything else stays hidden.
#define VELINSIGHT_EXPORT Q_DECL_EXPORT

#endif
