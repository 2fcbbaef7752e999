#ifndef VELPRODUCTCHECKER_H
#define VELPRODUCTCHECKER_H

#include "sibling/VelProductType.h"
#include "sibling/VelSiblingExport.h"

/// Extension point: a check on product types.
class VELSIBLING_EXPORT VelProductChecker
{
public:
    /// What a checker judges by. The numbers are design.
    enum Type : int {
        CHECKER_TYPE_APPLICATION = 0, ///< what the application itself can handle
        CHECKER_TYPE_PRICE_LIST = 1   ///< what the current price list offers
    };

    virtual ~VelProductChecker();

    /// Whether the checker accepts the product type.
    virtual bool isValid(const VelProductType& theType) const = 0;

    /// What it judges by.
    virtual Type type() const = 0;
};

#endif
