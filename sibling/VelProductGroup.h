#ifndef VELPRODUCTGROUP_H
#define VELPRODUCTGROUP_H

#include "frame/VelEnumerations.h"
#include "sibling/VelSiblingExport.h"

/// A set of product-group bits. Two groups are compared by matches(); there is no equality on purpose.
class VELSIBLING_EXPORT VelProductGroup
{
public:
    /// Of one group, or of a mask.
    VelProductGroup(VelProductGroupEnum theValue);

    VelProductGroupEnum value() const { return myValue; }

    /// The two have a bit in common; so the unknown group, which has none, matches nothing.
    bool matches(VelProductGroupEnum theMask) const;
    bool matches(const VelProductGroup& theOther) const;

private:
    VelProductGroupEnum myValue;
};

#endif
