#ifndef VELSHOPBILLSHEET_H
#define VELSHOPBILLSHEET_H

#include "bill/VelTarmOrderAmounts.h"
#include "frame/VelEnumerations.h"
#include "host/VelshopAdvice.h"
#include "host/VelshopError.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class VelTarmOrder;

/// One position of a bill.
struct VelshopBillLine
{
    int myArticle;
    QString myProduct;
    int myPieces;
    int myUnits;     ///< what is charged: as many as the pieces, or one package
    int myUnitPrice; ///< cents for a unit
    int myOldPrice;  ///< the unit price without the running offer, -1 when none is running
    int myAmount;
    bool myIsPackage; ///< also the last package of all, which has no end and is no package to the library
    VelDiscountModel myModel;
    int myLevel;
    QString myDays; ///< as "3-5", empty where the article has no shipping time

    /// As "package, level 2"; "-" for the plain price.
    QString discount() const;
};

/// The amounts of a bill in cents. The total may differ from their sum: a coupon never takes it below 0.
struct VelshopBillSums : VelTarmOrderAmounts
{
    VelshopBillSums() = default;
    explicit VelshopBillSums(const VelTarmOrderAmounts& theAmounts) : VelTarmOrderAmounts(theAmounts) {}

    struct Row
    {
        QString myName;
        int myAmount;
    };
    QList<Row> rows() const;

    /// Whether an int holds each of them in the other currency, too.
    bool fitInBoth() const;
};

/// The bill of one shipping group.
struct VelshopBillGroup
{
    int myId;
    QString myName;
    QList<VelshopBillLine> myLines;
    QStringList myProblems;        ///< why it can't be ordered, each naming the product
    VelshopBillSums mySums;        ///< without a problem only
    QList<VelshopAdvice> myAdvice; ///< where more pieces of a product cost less
};

/// The coupon of an order, and what it takes off.
struct VelshopBillCoupon
{
    /// What a bill adds because of it, in cents; negative where something is taken off.
    struct Share
    {
        int myGroup;
        QString myName;
        int myAmount;
    };

    QString myId;
    QString myCampaign; ///< null where the coupon names none
    VelCouponType myType = COUPON_TYPE_UNKNOWN;
    bool myIsValid = false;
    bool myIsSpent = false; ///< the order can be placed; without that there are no shares
    QList<Share> myShares;  ///< of the bills on which it counts
    int myLeft = 0;         ///< cents of a coupon of value that aren't spent

    /// How it counts, as "V50: valid, campaign 7, -9,45 € on Fotoabzüge (1), -40,55 € on Fotobücher (4); 0,00 € left".
    QString text() const;

private:
    QString use() const;
};

/// A whole order, ready to be printed.
struct VelshopBillSheet
{
    QString myHead; ///< order source, payment and express
    std::optional<VelshopBillCoupon> myCoupon;
    QList<VelshopBillGroup> myGroups;
    VelshopBillSums mySums;      ///< of an order that can be placed
    QStringList myOrderProblems; ///< why the order as a whole can't be placed
    QStringList myProblems;      ///< these and those of all groups

    bool isOrderable() const { return myProblems.isEmpty(); }
};

/// The order in words. False, with the error in one line that names the cart, when an amount is too large for one of
/// the currencies.
bool makeBillSheet(const VelTarmOrder& theOrder, const QString& theCart, VelshopBillSheet& theSheet,
                   VelshopError& theError);

#endif
