#ifndef VELPRODUCT_H
#define VELPRODUCT_H

#include "product/VelProductAbstract.h"

/// A plain photo product: a print or a poster.
class VELTARM_EXPORT VelProduct : public VelProductAbstract
{
public:
    /// Reads an element of the price list.
    explicit VelProduct(const QDomElement& theElement) : VelProductAbstract(theElement, PRODUCT_CLASS_PRODUCT) {}

    /// The name, followed by the name of the shipping group in brackets.
    QString fullQualifiedName() const override;

    /// True. It hides the base's test of the group, deliberately: the answer depends on the pointer's type.
    virtual bool isFotoProduct() const { return true; }
};

#endif
