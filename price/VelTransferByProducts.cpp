#include "price/VelTransferByProducts.h"

#include "bill/VelOrderStatistic.h"
#include "bill/VelTarmArticle.h"
#include "frame/VelArithmetic.h"
#include "product/VelProductAbstract.h"

VelTransferByProducts::VelTransferByProducts(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic)
{
    if (!theStatistic)
        return;
    const VelTarmPriceValue* leading = nullptr;
    const QMap<VelProductAbstract*, int> items = theStatistic->items();
    for (auto item = items.cbegin(); item != items.cend(); ++item) {
        const VelTarmPriceValue* value = item.key()->tarmArticle()->basePriceValue(theKey);
        if (!leading || leading->baseTransferPrice() < value->baseTransferPrice()) { // the first of equal ones leads
            leading = value;
            myLeader = item.key();
        }
        myUnits = VelArithmetic::sum(myUnits, VelArithmetic::product(value->unitTransferPrice(), item.value()));
    }
    if (!leading)
        return;
    myBase = qMax(0, leading->baseTransferPrice()); // the leader of the unit charges may have any
    myUnits = VelArithmetic::difference(myUnits, leading->unitTransferPrice());
}

int VelTransferByProducts::total() const
{
    return VelArithmetic::sum(myBase, myUnits);
}
