#include "host/VelshopOrder.h"

#include "frame/VelTarmLoadResult.h"
#include "host/VelshopCart.h"
#include "host/VelshopProblems.h"
#include "sibling/VelXMLLoader.h"

namespace {

bool readCoupons(const VelshopCart& theCart, QList<VelCoupon>& theCoupons, VelshopError& theError)
{
    if (theCart.myCouponFile.isEmpty())
        return true;
    const QFileInfo file(theCart.myCouponFile);
    const QDomElement document = VelXMLLoader::loadDocumentElement(file);
    if (document.isNull()) {
        const VelTarmLoadResult load(file, document);
        theError = {load.file(), load.line(), load.column(),
                    QStringLiteral("%1 (coupon of %2)").arg(load.reason(), theCart.myFile)};
        return false;
    }
    theCoupons.append(VelCoupon(theCart.myCouponId, document));
    return true;
}

/// What is reckoned with amounts that don't fit isn't even to be shown.
const VelTarmOrderObjection* objectionToAmounts(const VelTarmOrder& theOrder)
{
    for (const VelTarmOrderObjection& objection : theOrder.objections())
        if (objection.myKind == VelTarmOrderObjection::OBJECTION_AMOUNT)
            return &objection;
    return nullptr;
}

} // namespace

std::optional<VelTarmOrder> makeOrder(const VelshopCart& theCart, VelshopError& theError)
{
    QList<VelCoupon> coupons;
    if (!readCoupons(theCart, coupons, theError))
        return std::nullopt;
    const VelTarmOrder order(theCart.myItems, theCart.myStatus, theCart.myExpress, coupons);
    if (const VelTarmOrderObjection* objection = objectionToAmounts(order)) {
        theError = {theCart.myFile, 0, 0, QStringLiteral("items: ") + VelshopProblems::text(*objection, order)};
        return std::nullopt;
    }
    return order;
}
