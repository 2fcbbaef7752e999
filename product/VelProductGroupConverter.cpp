#include "product/VelProductGroupConverter.h"

namespace {

const QString STR_SALESLINE_FOTO = QStringLiteral("3");
const QString STR_SALESLINE_PREMIUMFOTO = QStringLiteral("4");
const int SHIPPING_GROUP_ZQNFOTO = 23;
const int SHIPPING_GROUP_PROFESSIONALFOTO = 24;

VelProductGroupEnum groupOfTrivialProduct(int theShippingGroupId, const QString& theSalesline)
{
    if (theSalesline == STR_SALESLINE_FOTO)
        return PRODUCT_GROUP_FOTO;
    if (theSalesline == STR_SALESLINE_PREMIUMFOTO)
        return PRODUCT_GROUP_PREMIUMFOTO;
    if (theShippingGroupId == SHIPPING_GROUP_ZQNFOTO)
        return PRODUCT_GROUP_ZQNFOTO;
    if (theShippingGroupId == SHIPPING_GROUP_PROFESSIONALFOTO)
        return PRODUCT_GROUP_PROFESSIONALFOTO;
    return PRODUCT_GROUP_POSTER; // what nothing else claims
}

} // namespace

VelProductGroup VelProductGroupConverter::detectProductGroup(bool theIsAddOn, VelProductArrangement theArrangement,
                                                             int theShippingGroupId, const QString& theSalesline)
{
    if (theIsAddOn)
        return VelProductGroup(PRODUCT_GROUP_ADD_ON);
    switch (theArrangement) {
    case PRODUCT_ARRANGEMENT_TRIVIAL:
        return VelProductGroup(groupOfTrivialProduct(theShippingGroupId, theSalesline));
    case PRODUCT_ARRANGEMENT_GIFT:
    case PRODUCT_ARRANGEMENT_CARD:
        return VelProductGroup(PRODUCT_GROUP_GIFT);
    case PRODUCT_ARRANGEMENT_PHOTOBOOK:
        return VelProductGroup(PRODUCT_GROUP_BOOK);
    case PRODUCT_ARRANGEMENT_CALENDAR:
        return VelProductGroup(PRODUCT_GROUP_CALENDAR);
    default:
        return VelProductGroup(PRODUCT_GROUP_UNKNOWN);
    }
}
