#ifndef VELPAGEORGANIZATIONCALCULATOR_H
#define VELPAGEORGANIZATIONCALCULATOR_H

#include "sibling/VelPageCountOrganization.h"
#include "sibling/VelProductType.h"
#include "sibling/VelSiblingExport.h"

/// Extension point: a source of page counts.
class VELSIBLING_EXPORT VelPageOrganizationCalculator
{
public:
    virtual ~VelPageOrganizationCalculator();

    /// The page counts of the type's product; all 0 for a type that it knows nothing of.
    virtual VelPageCountOrganization createPageOrganization(const VelProductType& theType) const = 0;
};

#endif
