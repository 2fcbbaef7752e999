#include "bill/VelTarmOrderScrutiny.h"

#include "bill/VelTarmArticle.h"
#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "bill/VelTarmOrder.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

namespace {

/// The pieces that a limit counts: add-ons belong to their main products.
qint64 piecesOf(const VelOrderStatistic& theCart)
{
    qint64 pieces = 0;
    const QMap<VelProductAbstract*, int> items = theCart.items();
    for (auto item = items.cbegin(); item != items.cend(); ++item)
        if (!item.key()->isAddOn())
            pieces += item.value();
    return pieces;
}

/// What shipping by pieces comes to at the most: the highest base charge and a unit charge for every piece.
qint64 mostTransferByPieces(const VelTarmBill& theBill, const VelOrderStatistic& theCart, const VelTarmPriceKey& theKey)
{
    const VelProductAbstract* transfer = theBill.transferProduct();
    if (!transfer || transfer->transferModel() != TRANSFER_MODEL_2)
        return 0;
    qint64 sum = 0;
    qint64 highest = 0;
    const QMap<VelProductAbstract*, int> items = theCart.items();
    for (auto item = items.cbegin(); item != items.cend(); ++item) {
        sum += static_cast<qint64>(item.key()->unitTransferPrice(theKey)) * item.value();
        highest = qMax<qint64>(highest, item.key()->baseTransferPrice(theKey));
    }
    return sum + highest;
}

/// A payment that the price list says nothing about for this order source costs nothing; one with an entry that can't
/// be read, or is below 0, isn't meant to.
bool hasSpoiltPrice(const VelProductAbstract& theFee, const VelTarmPriceKey& theKey)
{
    const VelTarmPriceValue* base = theFee.tarmArticle()->basePriceValue(theKey);
    return base != VelTarmPriceValue::invalidPrice() && base->price() < 0;
}

} // namespace

VelTarmOrderScrutiny::VelTarmOrderScrutiny(const VelTarmBill& theBill, const VelOrderStatistic& theCart,
                                           const VelTarmOrder& theOrder, bool theExpressExists)
    : myBill(theBill)
    , myCart(theCart)
    , myStatus(theOrder.status())
    , myExpressType(theOrder.expressType())
    , myHasExpress(theOrder.hasExpress())
    , myAllIsExpress(!theExpressExists || theBill.priceOfExpressAgio(nullptr) != 0)
{
}

QList<VelTarmOrderObjection> VelTarmOrderScrutiny::objections()
{
    const QMap<VelProductAbstract*, int> items = myCart.items();
    for (auto item = items.cbegin(); item != items.cend(); ++item)
        lookAtProduct(item.key(), item.value());
    lookAtPositions();
    lookAtLimit();
    lookAtFees();
    return myObjections;
}

void VelTarmOrderScrutiny::lookAtProduct(const VelProductAbstract* theProduct, int theCount)
{
    if (theCount < 1)
        object(VelTarmOrderObjection::OBJECTION_COUNT, theProduct, theCount);
    if (theProduct->isDeprecated())
        object(VelTarmOrderObjection::OBJECTION_DEPRECATED, theProduct);
    else if (!theProduct->isOrderable())
        object(VelTarmOrderObjection::OBJECTION_NOT_ORDERABLE, theProduct);
    if (mustBeExpress(*theProduct) && !theProduct->isExpressable(myStatus.deliveryType(), myExpressType))
        object(VelTarmOrderObjection::OBJECTION_NO_EXPRESS, theProduct);
}

/// What the express fee is charged for. Prints don't count for it and may go at the standard pace beside the rest, but
/// not in a bill that pays it. Add-ons travel with their main products.
bool VelTarmOrderScrutiny::mustBeExpress(const VelProductAbstract& theProduct) const
{
    return myHasExpress && !theProduct.isAddOn() && (theProduct.isPrintFunProduct() || myAllIsExpress);
}

/// The positions of a product stand side by side; one objection to its price is enough.
void VelTarmOrderScrutiny::lookAtPositions()
{
    const VelProductAbstract* unpriced = nullptr;
    for (const VelTarmBillPositionAbstract* position : myBill.orderPositions()) {
        const bool isPriced = qobject_cast<const VelTarmBillPosition*>(position) && position->unitPrice() >= 0;
        if (isPriced)
            lookAtPackage(*position);
        else if (position->product() != unpriced)
            object(VelTarmOrderObjection::OBJECTION_NO_PRICE, position->product(), qMin(-1, position->unitPrice()));
        if (!isPriced)
            unpriced = position->product();
    }
}

/// A package ends where the following level begins: with that level missing it is charged for -1 pieces, and the whole
/// count with one piece more beside it.
void VelTarmOrderScrutiny::lookAtPackage(const VelTarmBillPositionAbstract& thePosition)
{
    if (thePosition.countItems() < 1 && myCart.value(thePosition.product(), 0) > 0)
        object(VelTarmOrderObjection::OBJECTION_PACKAGE_PIECES, thePosition.product(), thePosition.countItems());
}

void VelTarmOrderScrutiny::lookAtLimit()
{
    const int limit = VelTarmShippingGroupManager::instance()->maxOrderItems(myBill.shippingGroup());
    const qint64 pieces = piecesOf(myCart);
    if (limit < 0 || pieces <= limit) // without a limit it is -1
        return;
    object(VelTarmOrderObjection::OBJECTION_LIMIT, nullptr, pieces);
    myObjections.last().myLimit = limit;
}

void VelTarmOrderScrutiny::lookAtFees()
{
    const VelProductRegistry* registry = VelProductRegistry::instance();
    const int transfer = myBill.transferFee();
    if (transfer < 0 && countsFit()) // not one that only wrapped around
        objectToFee(VelTarmOrderObjection::FEE_TRANSFER, myBill.transferProduct(), transfer);
    const VelProductAbstract* payment = registry->paymentAgioProduct(myStatus.payment());
    const int paying = payment ? payment->priceFor(myStatus.priceKey(), 1, 1, nullptr, nullptr) : 0;
    if (paying < 0 && !myBill.totalPriceIsVoid(0) && hasSpoiltPrice(*payment, myStatus.priceKey()))
        objectToFee(VelTarmOrderObjection::FEE_PAYMENT, payment, paying);
    const int express = myBill.priceOfExpressAgio(nullptr);
    if (express < 0)
        objectToFee(VelTarmOrderObjection::FEE_EXPRESS,
                    registry->expressAgioProduct(myBill.shippingGroup(), myExpressType), express);
}

bool VelTarmOrderScrutiny::countsFit() const
{
    return VelTarmOrderAmounts::fits(piecesOf(myCart)) &&
           VelTarmOrderAmounts::fits(mostTransferByPieces(myBill, myCart, myStatus.priceKey()));
}

void VelTarmOrderScrutiny::object(VelTarmOrderObjection::Kind theKind, const VelProductAbstract* theProduct,
                                  qint64 theNumber)
{
    VelTarmOrderObjection objection;
    objection.myKind = theKind;
    objection.myGroup = myBill.shippingGroup();
    objection.myProduct = theProduct;
    objection.myNumber = theNumber;
    myObjections.append(objection);
}

void VelTarmOrderScrutiny::objectToFee(VelTarmOrderObjection::Fee theFee, const VelProductAbstract* theProduct,
                                       int thePrice)
{
    object(VelTarmOrderObjection::OBJECTION_NO_PRICE, theProduct, thePrice);
    myObjections.last().myFee = theFee;
}
