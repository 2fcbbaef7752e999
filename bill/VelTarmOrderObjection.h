#ifndef VELTARMORDEROBJECTION_H
#define VELTARMORDEROBJECTION_H

#include <QtGlobal>

#include <limits>

class VelProductAbstract;

/// One thing that stands against placing an order. The words for people are the host's.
struct VelTarmOrderObjection
{
    /// What it is; behind each the fields that it fills beside the group.
    enum Kind : int {
        OBJECTION_ORDER_SOURCE,   ///< the shop takes no orders that way; no group
        OBJECTION_PAYMENT,        ///< the order source doesn't permit the payment; number: the payment; no group
        OBJECTION_NO_PRODUCT,     ///< the cart holds a null product; number: its count; no group
        OBJECTION_COUNT,          ///< product; number: its count, below 1
        OBJECTION_DEPRECATED,     ///< product, which is missing from the price list last read
        OBJECTION_NOT_ORDERABLE,  ///< product, current, but the shop doesn't sell its shipping group
        OBJECTION_NO_PRICE,       ///< product or fee; number: the price that was found, below 0
        OBJECTION_PACKAGE_PIECES, ///< product with a package of no pieces; number: the pieces, below 1
        OBJECTION_NO_EXPRESS,     ///< product, which can't be had by the chosen delivery and express type
        OBJECTION_LIMIT,          ///< number: the pieces of the shipping group without add-ons; limit: the most
        OBJECTION_AMOUNT          ///< an amount on the way to the total is beyond 32 bits; no group: that of all bills
    };

    /// The charge of a bill that an objection to a price speaks of.
    enum Fee : int {
        FEE_NONE,     ///< that of a product of the cart
        FEE_TRANSFER, ///< shipping
        FEE_PAYMENT,
        FEE_EXPRESS
    };

    /// In place of a group: the objection is to the whole order.
    static constexpr int NO_GROUP = std::numeric_limits<int>::min();

    Kind myKind;                                   ///< what it is
    int myGroup = NO_GROUP;                        ///< id of the shipping group, of the bill
    const VelProductAbstract* myProduct = nullptr; ///< the registry's; of a fee its product; null where none is named
    Fee myFee = FEE_NONE;                          ///< of a missing price: of which charge
    qint64 myNumber = 0;                           ///< as the kind says it; 0 for a kind without a number
    qint64 myLimit = 0;                            ///< the most that OBJECTION_LIMIT allows; 0 for all others
};

#endif
