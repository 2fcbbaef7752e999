#include "sibling/VelProductType.h"

#include "frame/EnumHelper.h"

VelProductType::VelProductType(VelProductTypeEnum theType)
    : myType(theType), myText(EnumHelper::encodeProductTypeEnum(theType))
{
}

VelProductType::VelProductType(const QString& theText)
    : myType(EnumHelper::decodeProductTypeEnum(theText)), myText(theText)
{
}

VelProductClass VelProductType::productClass() const
{
    const auto isWithin = [this](VelProductTypeEnum theFirst, VelProductTypeEnum theLast) {
        return myType >= theFirst && myType <= theLast;
    };
    if (isWithin(PRODUCT_TYPE_ALB6, PRODUCT_TYPE_ALB81))
        return PRODUCT_CLASS_FOTO_BOOK;
    if (isWithin(PRODUCT_TYPE_CAL6, PRODUCT_TYPE_CAL37))
        return PRODUCT_CLASS_CALENDAR;
    if (myType == PRODUCT_TYPE_GROUP_402)
        return PRODUCT_CLASS_CARD;
    if (isWithin(PRODUCT_TYPE_GROUP_403, PRODUCT_TYPE_GROUP_412))
        return PRODUCT_CLASS_GIFT;
    return PRODUCT_CLASS_NONE;
}
