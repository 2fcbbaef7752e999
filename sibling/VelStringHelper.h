#ifndef VELSTRINGHELPER_H
#define VELSTRINGHELPER_H

#include "sibling/VelSiblingExport.h"

#include <QString>

/// Helpers for texts.
class VELSIBLING_EXPORT VelStringHelper
{
public:
    /// Natural order of product names, the same in every locale: runs of the digits 0 to 9 compare by value, whatever
    /// their length, all else without regard to case; names equal so far compare plainly. A strict weak order.
    static bool numberAwareProductNameLessThan(const QString& theLeft, const QString& theRight);
};

#endif
