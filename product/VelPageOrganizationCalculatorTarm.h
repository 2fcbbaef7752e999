#ifndef VELPAGEORGANIZATIONCALCULATORTARM_H
#define VELPAGEORGANIZATIONCALCULATORTARM_H

#include "frame/VelTarmExport.h"
#include "sibling/VelPageCountOrganization.h"
#include "sibling/VelPageOrganizationCalculator.h"

/// Tells by the price list how many pages a photo book may have.
class VELTARM_EXPORT VelPageOrganizationCalculatorTarm : public VelPageOrganizationCalculator
{
public:
    /// availableNumOfPagesBook for a photo book; no organisation for any other class.
    VelPageCountOrganization createPageOrganization(const VelProductType& theType) const override;

    /// Lowest and highest number of pages and the step; three times 0 when the type doesn't have exactly one book. A
    /// book without a page package can't grow: its highest number is the lowest, whatever its document says.
    VelPageCountOrganization availableNumOfPagesBook(const VelProductType& theType) const;
};

#endif
