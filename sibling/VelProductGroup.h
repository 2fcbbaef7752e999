#ifndef VELPRODUCTGROUP_H
#define VELPRODUCTGROUP_H

#include "frame/VelEnumerations.h"
#include "sibling/VelSiblingExport.h"

/// A set of product-group bits. Two groups are compared by matches(); there is no equality on purpose.
class VELSIBLING_EXPORT VelProductGroup
{
public:
    /// Of one group, or of a mask.
    VelProductGroup(VelProductGroupEnum theValue) : myValue(theValue) {}

    /// The group, or the mask of several.
    VelProductGroupEnum value() const { return myValue; }

    /// The two have a bit in common; so the unknown group, which has none, matches nothing.
    bool matches(VelProductGroupEnum theMask) const { return (myValue & theMask) != 0; }
    bool matches(const VelProductGroup& theOther) const { return matches(theOther.myValue); }

private:
    VelProductGroupEnum myValue;
};

#endif
