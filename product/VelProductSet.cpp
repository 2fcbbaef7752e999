#include "product/VelProductSet.h"

#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

VelProductSet::VelProductSet(const VelProductType& theType)
    : myProducts(collectProducts(theType)), myProductType(theType)
{
}

VelProductList VelProductSet::collectProducts(const VelProductType& theType) const
{
    return VelProductRegistry::instance()->findProductListWithOrderTxtType(theType.productName());
}

QString VelProductSet::firstValue() const
{
    return myProducts.first()->orderTxtScale();
}

VelProductAbstract* VelProductSet::product(const QString& theValue) const
{
    for (VelProductAbstract* product : myProducts)
        if (product->orderTxtScale() == theValue)
            return product;
    return nullptr;
}

QStringList VelProductSet::parameterValues() const
{
    QStringList values;
    for (const VelProductAbstract* product : myProducts)
        values.append(product->orderTxtScale().toUpper());
    return values;
}
