#include "sibling/VelProductGroup.h"

VelProductGroup::VelProductGroup(VelProductGroupEnum theValue) : myValue(theValue) {}

bool VelProductGroup::matches(VelProductGroupEnum theMask) const
{
    return (myValue & theMask) != 0;
}

bool VelProductGroup::matches(const VelProductGroup& theOther) const
{
    return matches(theOther.myValue);
}
