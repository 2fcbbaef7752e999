#ifndef VELPRODUCTGROUPCONVERTER_H
#define VELPRODUCTGROUPCONVERTER_H

#include "frame/VelEnumerations.h"
#include "sibling/VelProductGroup.h"

#include <QString>

/// Derives the product group of a product.
class VelProductGroupConverter
{
public:
    /// An add-on is an add-on whatever else is given; otherwise the arrangement decides, and for a trivial one the
    /// order-text value of SALESLINE= before the shipping group.
    static VelProductGroup detectProductGroup(bool theIsAddOn, VelProductArrangement theArrangement,
                                              int theShippingGroupId, const QString& theSalesline);
};

#endif
