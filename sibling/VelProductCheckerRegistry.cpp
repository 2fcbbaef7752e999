#include "sibling/VelProductCheckerRegistry.h"

#include <algorithm>

VelProductCheckerRegistry* VelProductCheckerRegistry::instance()
{
    static VelProductCheckerRegistry* const ourInstance = new VelProductCheckerRegistry;
    return ourInstance;
}

void VelProductCheckerRegistry::registerChecker(VelProductChecker* theChecker)
{
    myCheckers.append(theChecker);
}

bool VelProductCheckerRegistry::isValid(const VelProductType& theType, VelProductChecker::Type theCheckerType) const
{
    return std::none_of(myCheckers.cbegin(), myCheckers.cend(), [&](const VelProductChecker* theChecker) {
        return theChecker->type() == theCheckerType && !theChecker->isValid(theType);
    });
}
