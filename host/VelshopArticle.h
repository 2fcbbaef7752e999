#ifndef VELSHOPARTICLE_H
#define VELSHOPARTICLE_H

#include "frame/VelEnumerations.h"
#include "host/VelshopError.h"

class VelProductAbstract;

/// The product of an article id, which stays the registry's; null, with the error in one line, when the price list has
/// none.
VelProductAbstract* findArticle(int theArticle, VelshopError& theError);

/// The same of a fee's article, too, with the model that a price key asks for it with.
VelProductAbstract* findArticleOrFee(int theArticle, VelDiscountModel& theKeyModel, VelshopError& theError);

/// Whether the product is a fee. An article of the same id comes first.
bool isFee(const VelProductAbstract* theProduct);

/// The bill sum in cents that a product by itself is priced with. Articles have none, as on a bill; of fees shipping by
/// bill sum costs nothing for 0.
int billSumFor(const VelProductAbstract* theProduct);

#endif
