#ifndef VELTARMDISCOUNTDESCRIPTION_H
#define VELTARMDISCOUNTDESCRIPTION_H

#include "frame/VelEnumerations.h"

#include <QDomElement>
#include <QList>
#include <QMap>

class VelProductAbstract;
class VelTarmPriceKey;
struct VelTarmBillLine;

/// One sold piece, as the description of discounts sees it.
struct VelTarmDiscountInformation
{
    VelDiscountModel discountModel; ///< of the position that the piece belongs to
    int discountLevel;              ///< of that position
    bool isPackage;                 ///< whether that position is a package
    int unitPrice;         ///< cents for this piece; the first of a package carries all of its price, the others 0
    bool isTransferModel2; ///< whether shipping is charged by piece
    int unitTransferPrice; ///< cents of shipping for this piece under that model
    int baseTransferPrice; ///< on the one piece that carries it, else VelTarmBill::NO_BASE_TRANSFER_PRICE
};

/**
 * The pieces of a bill, product by product, which a host takes off the front in groups of its own and describes on an
 * element. The lists are shared with copies and never freed: what one takes is gone for the other.
 *
 * The bill is what a host asks, see VelTarmBill::initDiscountInfoForXTCI.
 */
class VelTarmDiscountDescription
{
public:
    /// In place of a base charge: the piece carries none.
    static const int NO_BASE_TRANSFER_PRICE = -1000000;

    /// What all pieces of a bill have in common.
    struct Shipping
    {
        const VelTarmPriceKey& myKey;           ///< by which transfer prices are asked
        const VelProductAbstract* myBaseBearer; ///< whose next piece carries the base charge, null for none any more
        bool myIsTransferModel2;                ///< whether shipping is charged by piece
    };

    /// Appends a piece for each item of the line.
    void unfold(const VelTarmBillLine& theLine, Shipping& theShipping);

    /// The product's list, made when there is none.
    QList<VelTarmDiscountInformation>* pieces(const VelProductAbstract* theProduct);

    /// How many pieces from the front share the first one's level; 0 when none is left.
    int piecesOfFirstLevel(const VelProductAbstract* theProduct);

    /// The first piece; takes so many off the front. An empty list gives a piece without price.
    VelTarmDiscountInformation take(const VelProductAbstract* theProduct, int theCount);

    /// Takes so many pieces off and writes them as attributes. Where all is free no prices are shown but those of the
    /// express fee.
    void describe(QDomElement& theElement, const VelProductAbstract* theProduct, int theCount, bool theWithDiscountType,
                  bool theIsFree);

private:
    QMap<const VelProductAbstract*, QList<VelTarmDiscountInformation>*> myPieces;
};

#endif
