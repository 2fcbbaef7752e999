#include "bill/VelTarmDiscountDescription.h"

#include "bill/VelTarmBillLine.h"
#include "frame/EnumHelper.h"
#include "frame/VelArithmetic.h"
#include "product/VelProductAbstract.h"

#include <algorithm>

namespace {

const QString STR_DISCOUNT_TYPE = QStringLiteral("discount_type");
const QString STR_DISCOUNT_LEVEL = QStringLiteral("discount_level");
const QString STR_PRICE = QStringLiteral("price");
const QString STR_TRANSFER_BASE_PRICE = QStringLiteral("transfer_base_price");
const QString STR_TRANSFER_UNIT_PRICE = QStringLiteral("transfer_unit_price");
const QString STR_NO_DISCOUNT = QStringLiteral("-");

using Piece = VelTarmDiscountInformation;

/// Fees carry no transfer prices of their own.
bool isFeeModel(VelDiscountModel theModel)
{
    return theModel == DISCOUNT_MODEL_BULK_TRANSFER || theModel == DISCOUNT_MODEL_BILLING_SUM_TRANSFER ||
           theModel == DISCOUNT_MODEL_TRANSFER_2 || theModel == DISCOUNT_MODEL_EXPRESS_FEE;
}

/// The letter as the price list writes it: a piece under a package model that is no package has a lower-case one.
QString discountType(const Piece& thePiece)
{
    if (thePiece.discountLevel == 0)
        return STR_NO_DISCOUNT;
    const QString letter = EnumHelper::encodeDiscountModel(thePiece.discountModel).toUpper();
    return isPackageModel(thePiece.discountModel) && !thePiece.isPackage ? letter.toLower() : letter;
}

/// What a group of pieces like this one costs.
int priceOf(const Piece& thePiece, int theCount, bool theIsFree)
{
    if (thePiece.discountModel == DISCOUNT_MODEL_EXPRESS_FEE)
        return thePiece.unitPrice;
    if (theIsFree)
        return 0;
    return VelArithmetic::product(thePiece.unitPrice, thePiece.isPackage ? 1 : theCount);
}

void describeTransfer(QDomElement& theElement, const Piece& thePiece, int theCount)
{
    const bool carriesBase = thePiece.baseTransferPrice != VelTarmDiscountDescription::NO_BASE_TRANSFER_PRICE;
    if (carriesBase)
        theElement.setAttribute(STR_TRANSFER_BASE_PRICE, thePiece.baseTransferPrice);
    if (theCount >= 2 || !carriesBase)
        theElement.setAttribute(STR_TRANSFER_UNIT_PRICE, thePiece.unitTransferPrice);
}

Piece pieceOf(const VelTarmBillLine& theLine, const VelTarmDiscountDescription::Shipping& theShipping)
{
    Piece piece{};
    piece.discountModel = theLine.myDiscountModel;
    piece.discountLevel = theLine.myDiscountLevel;
    piece.isPackage = theLine.isPackage();
    piece.unitPrice = theLine.myUnitPrice;
    piece.isTransferModel2 = theShipping.myIsTransferModel2;
    piece.unitTransferPrice = theLine.myProduct->unitTransferPrice(theShipping.myKey);
    piece.baseTransferPrice = VelTarmDiscountDescription::NO_BASE_TRANSFER_PRICE;
    return piece;
}

} // namespace

void VelTarmDiscountDescription::unfold(const VelTarmBillLine& theLine, Shipping& theShipping)
{
    if (theLine.myCountItems < 1)
        return;
    Piece following = pieceOf(theLine, theShipping);
    Piece first = following;
    if (theLine.myProduct == theShipping.myBaseBearer) { // one piece of the whole bill carries the base charge
        first.baseTransferPrice = theLine.myProduct->baseTransferPrice(theShipping.myKey);
        theShipping.myBaseBearer = nullptr;
    }
    if (first.isPackage && isPackageModel(first.discountModel)) // the first one carries the package's whole price
        following.unitPrice = 0;
    QList<Piece>& list = *pieces(theLine.myProduct);
    list.append(first);
    for (int piece = 1; piece < theLine.myCountItems; ++piece)
        list.append(following);
}

QList<VelTarmDiscountInformation>* VelTarmDiscountDescription::pieces(const VelProductAbstract* theProduct)
{
    QList<Piece>*& list = myPieces[theProduct];
    if (!list)
        list = new QList<Piece>;
    return list;
}

int VelTarmDiscountDescription::piecesOfFirstLevel(const VelProductAbstract* theProduct)
{
    const QList<Piece>* list = pieces(theProduct);
    const auto end = std::find_if(list->cbegin(), list->cend(), [=](const Piece& thePiece) {
        return thePiece.discountLevel != list->first().discountLevel;
    });
    return static_cast<int>(end - list->cbegin());
}

VelTarmDiscountInformation VelTarmDiscountDescription::take(const VelProductAbstract* theProduct, int theCount)
{
    QList<Piece>* list = pieces(theProduct);
    if (list->isEmpty())
        return {DISCOUNT_MODEL_UNDEFINED, 0, false, 0, false, 0, NO_BASE_TRANSFER_PRICE};
    const Piece first = list->first();
    list->erase(list->begin(), list->begin() + qBound(0, theCount, static_cast<int>(list->size())));
    return first;
}

void VelTarmDiscountDescription::describe(QDomElement& theElement, const VelProductAbstract* theProduct, int theCount,
                                          bool theWithDiscountType, bool theIsFree)
{
    const Piece piece = take(theProduct, theCount);
    if (theWithDiscountType) {
        theElement.setAttribute(STR_DISCOUNT_TYPE, discountType(piece));
        theElement.setAttribute(STR_DISCOUNT_LEVEL, piece.discountLevel);
    }
    theElement.setAttribute(STR_PRICE, priceOf(piece, theCount, theIsFree));
    if (piece.isTransferModel2 && !isFeeModel(piece.discountModel))
        describeTransfer(theElement, piece, theCount);
}
