#ifndef VELPRODUCTREGISTRYPRODUCTCHECKER_H
#define VELPRODUCTREGISTRYPRODUCTCHECKER_H

#include "frame/VelTarmExport.h"
#include "sibling/VelProductChecker.h"

/// Accepts the product types that the current price list offers.
class VELTARM_EXPORT VelProductRegistryProductChecker : public VelProductChecker
{
public:
    /// Whether the registry finds a product of the type and it isn't deprecated.
    bool isValid(const VelProductType& theType) const override;

    /// It judges by the price list.
    Type type() const override { return CHECKER_TYPE_PRICE_LIST; }
};

#endif
