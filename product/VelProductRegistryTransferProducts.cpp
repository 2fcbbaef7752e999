#include "product/VelProductRegistryTransferProducts.h"

#include "product/VelProductAbstract.h"

namespace {

const QString STR_TRANSFER = QStringLiteral("transfer");

} // namespace

VelProductRegistryTransferProducts::~VelProductRegistryTransferProducts()
{
    clear();
}

VelProductAbstract* VelProductRegistryTransferProducts::transferProduct(int theShippingGroupId) const
{
    return myTransferProducts.value(theShippingGroupId, nullptr);
}

VelProductAbstract* VelProductRegistryTransferProducts::transferProductWithArticleId(int theArticleID) const
{
    for (VelProductAbstract* product : myTransferProducts)
        if (product->articleID() == theArticleID)
            return product;
    return nullptr;
}

int VelProductRegistryTransferProducts::idOfTransferProduct(int theShippingGroupId) const
{
    const VelProductAbstract* product = transferProduct(theShippingGroupId);
    return product ? product->articleID() : -1;
}

void VelProductRegistryTransferProducts::readTransferPrices(const QDomElement& theSection)
{
    clear();
    read(theSection, STR_TRANSFER);
}

void VelProductRegistryTransferProducts::registerProduct(const QDomElement& theElement, VelProductAbstract* theProduct)
{
    myTransferProducts.insert(readShippingGroupId(theElement), theProduct);
}

void VelProductRegistryTransferProducts::clear()
{
    myTransferProducts.clear();
}
