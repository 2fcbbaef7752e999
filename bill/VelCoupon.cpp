#include "bill/VelCoupon.h"

#include "bill/VelTarmBill.h"
#include "frame/EnumHelper.h"
#include "frame/VelArithmetic.h"
#include "frame/VelChildElements.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelProductCheckerRegistry.h"
#include "sibling/VelXMLParser.h"

#include <QObject>

namespace {

const QString STR_COUPONS = QStringLiteral("coupons");
const QString STR_COUPON = QStringLiteral("coupon");
const QString STR_TYPE = QStringLiteral("type");
const QString STR_PRICE = QStringLiteral("price");
const QString STR_MINIMUM_PRICE = QStringLiteral("minimum_price");
const QString STR_FREE_QUANTITY = QStringLiteral("free_quantity");
const QString STR_MINIMUM_QUANTITY = QStringLiteral("minimum_quantity");
const QString STR_CAMPAIGN_NO = QStringLiteral("campaign_no");
const QString STR_SHAREABLE = QStringLiteral("shareable");
const QString STR_CONDITION = QStringLiteral("condition");
const QString STR_ART_ID = QStringLiteral("art_id");

/// Empty and not null: what is null is a campaign that the document doesn't name.
const QString CAMPAIGN_NO_DEFAULT = QStringLiteral("");

/// Exactly one of the groups; a combination is none of them.
bool isNamedWithShippingGroup(const VelProductGroup& theGroup)
{
    switch (theGroup.value()) {
    case PRODUCT_GROUP_FOTO:
    case PRODUCT_GROUP_PREMIUMFOTO:
    case PRODUCT_GROUP_POSTER:
    case PRODUCT_GROUP_ZQNFOTO:
    case PRODUCT_GROUP_PROFESSIONALFOTO:
        return true;
    default:
        return false;
    }
}

bool applicationKnowsTypeOf(const VelProductAbstract& theProduct)
{
    const QString typeName = theProduct.orderTxtType();
    const VelProductType type(typeName.isEmpty() ? theProduct.orderTxtHead() : typeName);
    return VelProductCheckerRegistry::instance()->isValid(type, VelProductChecker::CHECKER_TYPE_APPLICATION);
}

QString nameWithShippingGroup(const QString& theName, const VelProductAbstract& theProduct)
{
    const VelTarmShippingGroupManager* groups = VelTarmShippingGroupManager::instance();
    return QObject::tr("%1 (%2)").arg(theName, groups->shippingGroupName(theProduct.shippingGroupId()));
}

/// None for a product of a type that the application doesn't know.
QStringList namesOfProduct(const VelProductAbstract& theProduct)
{
    if (isNamedWithShippingGroup(theProduct.productGroup()))
        return {nameWithShippingGroup(theProduct.editorName(), theProduct)};
    return applicationKnowsTypeOf(theProduct) ? QStringList(theProduct.editorName()) : QStringList();
}

QStringList namesOfArticle(int theArticleID)
{
    const VelProductRegistry* registry = VelProductRegistry::instance();
    if (const VelProductAbstract* product = registry->productWithArticleID(theArticleID))
        return namesOfProduct(*product);
    if (const VelProductAbstract* transfer = registry->transferProductWithArticleId(theArticleID))
        return {nameWithShippingGroup(transfer->fullQualifiedName(), *transfer)};
    return {};
}

} // namespace

VelCoupon::VelCoupon(const QString& theId, const QDomElement& theElement) : myId(theId), myCampaign(CAMPAIGN_NO_DEFAULT)
{
    parseXML(theElement);
}

bool VelCoupon::isValid() const
{
    return !myCampaign.isNull() && myType != COUPON_TYPE_UNKNOWN;
}

QStringList VelCoupon::validArticleNames() const
{
    QStringList names;
    for (const int id : myValidArticles)
        names += namesOfArticle(id);
    names.removeDuplicates();
    names.sort();
    return names;
}

void VelCoupon::parseXML(const QDomElement& theElement)
{
    const QDomElement coupon = theElement.firstChildElement(STR_COUPONS).firstChildElement(STR_COUPON);
    readGrant(coupon);
    myMinimumSpentValue = VelXMLParser::intAttribute(coupon, STR_MINIMUM_PRICE, 0);
    myFreeQuantity = VelXMLParser::intAttribute(coupon, STR_FREE_QUANTITY, 0);
    myMinimumQuantity = VelXMLParser::intAttribute(coupon, STR_MINIMUM_QUANTITY, 0);
    myCampaign = VelXMLParser::attribute(coupon, STR_CAMPAIGN_NO, QString());
    myShareable = VelXMLParser::boolAttribute(coupon, STR_SHAREABLE, false);
    readValidArticles(coupon);
}

/// Nothing guards against a combination of types: "value,percent" is a quantity coupon, deliberately.
void VelCoupon::readGrant(const QDomElement& theCoupon)
{
    myType = EnumHelper::decodeCouponType(VelXMLParser::attribute(theCoupon, STR_TYPE, QString()));
    if (myType != COUPON_TYPE_VALUE && myType != COUPON_TYPE_PERCENT)
        return;
    const int price = VelXMLParser::intAttribute(theCoupon, STR_PRICE, 0);
    myMaximumDiscountValue = myType == COUPON_TYPE_VALUE ? price : 0;
    myDiscountPercentage = myType == COUPON_TYPE_PERCENT ? price : 0;
}

/// Doesn't clear the list, deliberately: reading twice adds up.
void VelCoupon::readValidArticles(const QDomElement& theCoupon)
{
    for (const QDomElement& condition : VelChildElements(theCoupon, STR_CONDITION))
        if (const int id = VelXMLParser::intAttribute(condition, STR_ART_ID, 0))
            myValidArticles.append(id);
}

int VelCoupon::totalValueOfOrder(const VelTarmBill& theBill) const
{
    VelTarmBill bill(theBill);
    bill.filterArticles(myValidArticles);
    return bill.totalFinalCostWithoutCoupon();
}

bool VelCoupon::spentEnoughMoney(const VelTarmBill& theBill) const
{
    return totalValueOfOrder(theBill) >= myMinimumSpentValue;
}

/// The division truncates towards zero: ten percent off 999 are 99.
int VelCoupon::percentDiscount(const VelTarmBill& theBill) const
{
    if (!spentEnoughMoney(theBill))
        return 0;
    return VelArithmetic::product(totalValueOfOrder(theBill), myDiscountPercentage) / 100;
}

int VelCoupon::valueDiscount(const VelTarmBill& theBill, int theOffset) const
{
    return spentEnoughMoney(theBill) ? VelArithmetic::difference(myMaximumDiscountValue, theOffset) : 0;
}

/// Deliberately asks for no minimum spend, and values each free piece at the price of the cheapest article.
int VelCoupon::quantityDiscount(const VelTarmBill& theBill) const
{
    VelTarmBill bill(theBill);
    // The coupon pays the shipping; asked before the filter, which changes how the bill answers for it.
    int discount = myValidArticles.contains(bill.idOfTransferProduct()) ? bill.transferFee() : 0;
    bill.filterArticles(myValidArticles);
    bill.filterOutPackages();
    if (bill.totalItemCount(VelProductGroup(PRODUCT_GROUP_ALL)) >= myMinimumQuantity) {
        const int freePieces = VelArithmetic::product(myFreeQuantity, bill.unitPriceOfCheapestArticle());
        discount = VelArithmetic::sum(discount, freePieces);
    }
    return VelArithmetic::difference(0, discount);
}

int VelCoupon::discountForOrder(const VelTarmBill& theBill, int theOffset) const
{
    int discount = 0;
    switch (myType) {
    case COUPON_TYPE_PERCENT:
        discount = percentDiscount(theBill);
        break;
    case COUPON_TYPE_QUANTITY:
        discount = quantityDiscount(theBill);
        break;
    case COUPON_TYPE_VALUE:
        discount = valueDiscount(theBill, theOffset);
        break;
    default:
        return 0;
    }
    const int total = totalValueOfOrder(theBill);
    return VelArithmetic::sum(discount, total) < 0 ? VelArithmetic::difference(0, total) : discount;
}
