#include "product/VelProductStock.h"

#include "product/VelProductPrintFun.h"

VelProductStock::~VelProductStock()
{
    qDeleteAll(myProducts);
    qDeleteAll(myByType);
}

void VelProductStock::insert(VelProductAbstract* theProduct)
{
    myProducts.append(theProduct);
    if (!theProduct->isPrintFunProduct())
        return;
    // A host may bring a product of a print-fun class that isn't one, and so has no type to file it under.
    if (const auto* printFun = dynamic_cast<VelProductPrintFun*>(theProduct))
        ofType(printFun->productType())->append(theProduct);
}

QHash<int, VelProductAbstract*> VelProductStock::firstByArticleID() const
{
    QHash<int, VelProductAbstract*> productsByID;
    productsByID.reserve(myProducts.size());
    for (VelProductAbstract* product : myProducts) {
        VelProductAbstract*& first = productsByID[product->articleID()];
        if (!first)
            first = product;
    }
    return productsByID;
}

VelProductAbstract* VelProductStock::withOrderTxtType(const QString& theType) const
{
    if (VelProductAbstract* known = myByOrderTxtType.value(theType, nullptr))
        return known;
    VelProductAbstract* product =
        first([&](const VelProductAbstract* theProduct) { return theProduct->orderTxtType() == theType; });
    if (product)
        myByOrderTxtType.insert(theType, product);
    return product;
}

VelProductList* VelProductStock::ofType(const VelProductType& theType) const
{
    VelProductList*& list = myByType[theType.type()];
    if (!list)
        list = new VelProductList;
    return list;
}

void VelProductStock::indexArticleIDs() const
{
    myByArticleID = firstByArticleID();
    myIndexedIdChanges = VelTarmArticle::idChanges();
    myIndexedProducts = static_cast<int>(myProducts.size());
}
