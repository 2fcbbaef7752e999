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

    virtual VelPageCountOrganization createPageOrganization(const VelProductType& theType) const = 0;
};

#endif
