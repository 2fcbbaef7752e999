#include "insight/VelFeeGaps.h"

#include "frame/VelExpressType.h"
#include "insight/VelGapFinder.h"
#include "ordering/VelOrderingDetails.h"
#include "price/VelTarmPriceView.h"
#include "product/VelProductAbstract.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

using Cell = VelPriceGaps::Cell;
using Fee = VelShopFees::Fee;

bool isBefore(const Fee& theLeft, const Fee& theRight)
{
    const auto place = [](const Fee& theFee) {
        return std::make_tuple(theFee.myKind, theFee.myGroup, theFee.myPayment, theFee.myExpress);
    };
    return place(theLeft) < place(theRight);
}

/// Unless the shop has it, or another article lacked it before.
void addMissing(const Fee& theFee, QVector<Fee>& theFees)
{
    const auto isSame = [&](const Fee& theOther) { return !isBefore(theFee, theOther) && !isBefore(theOther, theFee); };
    if (std::none_of(theFees.cbegin(), theFees.cend(), isSame))
        theFees.append(theFee);
}

bool isExpressable(const VelProductAbstract& theProduct, VelExpressTypeEnum theType)
{
    const auto types = {DELIVERY_TYPE_POS, DELIVERY_TYPE_MAILORDER, DELIVERY_TYPE_ON_SITE};
    return std::any_of(types.begin(), types.end(), [&](VelDeliveryType theDelivery) {
        return theProduct.isExpressable(theDelivery, VelExpressType(theType));
    });
}

/// What the orders of an article would ask for. Add-ons go with their main products.
void addFeesFor(const VelProductAbstract& theProduct, QVector<Fee>& theFees)
{
    const int group = theProduct.shippingGroupId();
    addMissing({VelShopFees::FEE_TRANSFER, nullptr, group, PAYMENT_TYPE_UNKNOWN, ExpressableType_UNKNOWN}, theFees);
    for (const VelExpressTypeEnum type : {ExpressableType_EXPRESS_1, ExpressableType_EXPRESS_2})
        if (isExpressable(theProduct, type))
            addMissing({VelShopFees::FEE_EXPRESS, nullptr, group, PAYMENT_TYPE_UNKNOWN, type}, theFees);
}

Cell unpriced(VelPriceGaps::Why theWhy)
{
    Cell cell;
    cell.myWhy = theWhy;
    return cell;
}

bool hasNoEntry(const Cell& theCell)
{
    return theCell.myWhy == VelPriceGaps::WHY_NO_ENTRIES || theCell.myWhy == VelPriceGaps::WHY_NO_ENTRY_HERE;
}

/// As a bill asks: for one piece and one cent. A payment costs nothing by an order source that no entry names.
Cell paymentCell(const Fee& theFee, const VelOrderSource& theSource, const VelGapFinder& theFinder)
{
    VelPriceCurve::Range range;
    range.myTo = 1;
    const Cell cell =
        theFee.myProduct ? theFinder.cellOf(*theFee.myProduct, theSource, range) : unpriced(VelPriceGaps::WHY_NO_FEE);
    const bool isPermitted = VelOrderingDetails::instance()->availablePayments(theSource).contains(theFee.myPayment);
    if (!cell.isPriced() && !isPermitted)
        return unpriced(VelPriceGaps::WHY_NOT_PERMITTED);
    return hasNoEntry(cell) ? unpriced(VelPriceGaps::WHY_NO_FEE) : cell;
}

/// Shipping by bill sum may have a price where no count has one.
Cell transferCell(const Fee& theFee, const VelOrderSource& theSource, const VelGapFinder& theFinder)
{
    const VelTarmPriceView view(*theFee.myProduct, theSource);
    Cell cell;
    cell.myFrom = 1;
    if (view.transferModel() == TRANSFER_MODEL_2) // the products of an order are charged for, whatever they are
        return cell;
    cell = theFinder.cellOf(*theFee.myProduct, theSource, VelPriceCurve::Range());
    if (cell.isPriced() || view.bands(DISCOUNT_MODEL_BILLING_SUM_TRANSFER).isEmpty())
        return cell;
    VelPriceCurve::Range sums;
    sums.myVariable = VelPriceCurve::BY_SUM;
    sums.myTo = std::numeric_limits<int>::max();
    const Cell bySum = theFinder.cellOf(*theFee.myProduct, theSource, sums);
    cell = bySum.isPriced() ? bySum : cell;
    cell.myIsBySum = bySum.isPriced();
    return cell;
}

Cell expressCell(const Fee& theFee, const VelOrderSource& theSource, const VelGapFinder& theFinder)
{
    VelPriceCurve::Range range;
    range.myModel = VelShopFees::keyModel(VelShopFees::FEE_EXPRESS);
    return theFinder.cellOf(*theFee.myProduct, theSource, range);
}

Cell cellOf(const Fee& theFee, const VelOrderSource& theSource, const VelGapFinder& theFinder)
{
    if (theFee.myKind == VelShopFees::FEE_PAYMENT)
        return paymentCell(theFee, theSource, theFinder);
    if (!theFee.myProduct)
        return unpriced(VelPriceGaps::WHY_NO_FEE);
    return theFee.myKind == VelShopFees::FEE_TRANSFER ? transferCell(theFee, theSource, theFinder)
                                                      : expressCell(theFee, theSource, theFinder);
}

} // namespace

QVector<Fee> VelFeeGaps::fees(const QVector<const VelProductAbstract*>& theProducts)
{
    QVector<Fee> fees = VelShopFees::all();
    for (const VelProductAbstract* product : theProducts)
        if (!product->isAddOn())
            addFeesFor(*product, fees);
    std::stable_sort(fees.begin(), fees.end(), isBefore);
    return fees;
}

QVector<Cell> VelFeeGaps::cellsOf(const Fee& theFee, const VelGapFinder& theFinder)
{
    QVector<Cell> cells;
    for (const VelOrderSource& source : theFinder.sources())
        cells.append(cellOf(theFee, source, theFinder));
    return cells;
}
