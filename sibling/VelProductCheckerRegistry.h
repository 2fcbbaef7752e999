#ifndef VELPRODUCTCHECKERREGISTRY_H
#define VELPRODUCTCHECKERREGISTRY_H

#include "sibling/VelProductChecker.h"
#include "sibling/VelSiblingExport.h"

#include <QList>

/// All product checkers of the application.
class VELSIBLING_EXPORT VelProductCheckerRegistry
{
public:
    /// Built on first use, lives to the end of the process.
    static VelProductCheckerRegistry* instance();

    /// Takes the checker and keeps it for the life of the process.
    void registerChecker(VelProductChecker* theChecker);

    /// No registered checker of that kind refuses the product type; so all are valid while there is none.
    bool isValid(const VelProductType& theType, VelProductChecker::Type theCheckerType) const;

private:
    VelProductCheckerRegistry() = default;

    QList<VelProductChecker*> myCheckers;
};

#endif
