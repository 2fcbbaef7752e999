#include "host/VelshopArticle.h"

#include "product/VelProductRegistry.h"

VelProductAbstract* findArticle(int theArticle, VelshopError& theError)
{
    VelProductAbstract* product = VelProductRegistry::instance()->productWithArticleID(theArticle);
    if (!product)
        theError = QStringLiteral("the price list has no article %1").arg(theArticle);
    return product;
}
