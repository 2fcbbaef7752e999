#ifndef VELPRODUCTSET_H
#define VELPRODUCTSET_H

#include "frame/VelTarmExport.h"
#include "product/VelProductList.h"
#include "sibling/VelProductType.h"

#include <QStringList>

/// The products of one type at the time of its making: the variants of one scale, told apart by the order-text value
/// SCALE=. The products are borrowed; a later reload isn't followed.
class VELTARM_EXPORT VelProductSet
{
public:
    /// Collects the products of the type.
    explicit VelProductSet(const VelProductType& theType);

    /// The registry's products whose order-text type is the type's name.
    VelProductList collectProducts(const VelProductType& theType) const;

    /// The type that it was made for.
    VelProductType productType() const { return myProductType; }

    /// Whether there is a choice: more than one product.
    bool hasVariants() const { return myProducts.size() > 1; }

    /// The scale of the first product. The set must not be empty.
    QString firstValue() const;

    /// Whether the product is one of the set.
    bool contains(VelProductAbstract* theProduct) const { return myProducts.contains(theProduct); }

    /// The first product of exactly that scale, null when there is none.
    VelProductAbstract* product(const QString& theValue) const;

    /// Each product's scale in upper case. It finds its product again only if the document writes it so.
    QStringList parameterValues() const;

private:
    VelProductList myProducts;
    VelProductType myProductType;
};

#endif
