#include "bill/VelOrderStatistic.h"

#include "frame/VelArithmetic.h"
#include "price/VelTarmPriceKey.h"
#include "product/VelProductAbstract.h"

int VelOrderStatistic::totalPrice(const VelTarmPriceKey& theKey) const
{
    int total = 0;
    for (auto item = myItems.cbegin(); item != myItems.cend(); ++item)
        total = VelArithmetic::sum(total, VelArithmetic::product(item.value(), item.key()->price(theKey, 1, 1)));
    return total;
}

VelProductAbstract* VelOrderStatistic::productWithHighestBaseTransferPrice(const VelTarmPriceKey& theKey) const
{
    VelTarmPriceKey bulkKey(theKey);
    bulkKey.setDiscountModel(DISCOUNT_MODEL_BULK);
    int highest = 0;
    VelProductAbstract* best = nullptr;
    for (auto item = myItems.cbegin(); item != myItems.cend(); ++item) {
        const int price = item.key()->baseTransferPrice(bulkKey);
        if (price > highest) {
            highest = price;
            best = item.key();
        }
    }
    return best;
}

void VelOrderStatistic::add(VelProductAbstract* theProduct, int theCount)
{
    int& count = myItems[theProduct];
    count = VelArithmetic::sum(count, theCount);
}

void VelOrderStatistic::add(const VelOrderStatistic& theOther, int theFactor)
{
    const QMap<VelProductAbstract*, int> items = theOther.items(); // a copy: the other cart may be this one
    for (auto item = items.cbegin(); item != items.cend(); ++item)
        add(item.key(), VelArithmetic::product(item.value(), theFactor));
}
