#include "price/VelTarmPriceKey.h"

#include "frame/EnumHelper.h"

namespace {

unsigned computedHash(const VelTarmPriceKeyImpl& theKey)
{
    const unsigned hash = static_cast<unsigned>(theKey.myOrderSource.inputSource()) * 1000000U +
                          static_cast<unsigned>(theKey.myOrderSource.deliveryType()) * 10000U +
                          static_cast<unsigned>(theKey.myDiscountLevel) * 100U +
                          static_cast<unsigned>(theKey.myDiscountModel);
    return hash == 0 ? 1 : hash;
}

} // namespace

unsigned VelTarmPriceKey::hashValue() const
{
    // The cache belongs to the shared part, not to this handle: filling it must not detach.
    auto* impl = const_cast<VelTarmPriceKeyImpl*>(myImpl.constData());
    if (impl->myHashValue == 0)
        impl->myHashValue = computedHash(*impl);
    return impl->myHashValue;
}

bool VelTarmPriceKey::operator==(const VelTarmPriceKey& theOther) const
{
    return myImpl.constData() == theOther.myImpl.constData() ||
           (orderSource() == theOther.orderSource() && discountLevel() == theOther.discountLevel() &&
            discountModel() == theOther.discountModel());
}

bool VelTarmPriceKey::supercedes(const VelOrderSource& theOrderSource, int theDiscountLevel,
                                 VelDiscountModel theModel) const
{
    return (inputSource() == INPUT_SOURCE_UNKNOWN || inputSource() == theOrderSource.inputSource()) &&
           (deliveryType() == DELIVERY_TYPE_UNKNOWN || deliveryType() == theOrderSource.deliveryType()) &&
           (discountLevel() == -1 || discountLevel() == theDiscountLevel) &&
           (discountModel() == DISCOUNT_MODEL_UNDEFINED || discountModel() == theModel);
}

QDebug operator<<(QDebug theDebug, const VelTarmPriceKey& theKey)
{
    theDebug << "Order Source : " << theKey.orderSource() << ",";
    theDebug << "Input Source : " << EnumHelper::encodeInputSource(theKey.inputSource()) << ",";
    theDebug << "Delivery Type : " << EnumHelper::encodeDeliveryType(theKey.deliveryType()) << ",";
    theDebug << "Discount Level : " << theKey.discountLevel() << ",";
    theDebug << "Discount Model : " << EnumHelper::encodeDiscountModel(theKey.discountModel());
    return theDebug;
}
