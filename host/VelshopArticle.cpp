#include "host/VelshopArticle.h"

#include "insight/VelShopFees.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

VelProductAbstract* findArticle(int theArticle, VelshopError& theError)
{
    VelProductAbstract* product = VelProductRegistry::instance()->productWithArticleID(theArticle);
    if (!product)
        theError = QStringLiteral("the price list has no article %1").arg(theArticle);
    return product;
}

VelProductAbstract* findArticleOrFee(int theArticle, VelDiscountModel& theKeyModel, VelshopError& theError)
{
    theKeyModel = DISCOUNT_MODEL_UNDEFINED;
    if (VelProductAbstract* product = VelProductRegistry::instance()->productWithArticleID(theArticle))
        return product;
    const VelShopFees::Fee fee = VelShopFees::find(theArticle);
    if (!fee.myProduct)
        return findArticle(theArticle, theError);
    theKeyModel = VelShopFees::keyModel(fee.myKind);
    return fee.myProduct;
}

bool isFee(const VelProductAbstract* theProduct)
{
    return VelProductRegistry::instance()->productWithArticleID(theProduct->articleID()) != theProduct;
}

int billSumFor(const VelProductAbstract* theProduct)
{
    return isFee(theProduct) ? 1 : 0;
}
