#ifndef VELSHOPBILLSHEET_H
#define VELSHOPBILLSHEET_H

#include "frame/VelEnumerations.h"
#include "host/VelshopError.h"

#include <QList>
#include <QString>
#include <QStringList>

struct VelshopCart;

/// One position of a bill.
struct VelshopBillLine
{
    int myArticle;
    QString myProduct;
    int myPieces;
    int myUnitPrice; ///< cents for a piece, or for a whole package
    int myOldPrice;  ///< the unit price without the running offer, -1 when none is running
    int myAmount;
    bool myIsPackage;
    VelDiscountModel myModel;
    int myLevel;
    QString myDays; ///< as "3-5", empty where the article has no shipping time

    /// As "package, level 2"; "-" for the plain price.
    QString discount() const;
};

/// The amounts of a bill in cents. The total may differ from their sum: a coupon never takes it below 0.
struct VelshopBillSums
{
    qint64 myItems = 0;
    qint64 myShipping = 0;
    qint64 myPayment = 0;
    qint64 myCoupon = 0;
    qint64 myExpress = 0;
    qint64 myTotal = 0;

    struct Row
    {
        QString myName;
        int myAmount;
    };
    QList<Row> rows() const;
    void add(const VelshopBillSums& theOther);

    /// The library's amounts wrap around; at a desk an amount that no int can hold, in the one currency or in the
    /// other, is not to be believed.
    bool fit() const;
};

/// The bill of one shipping group.
struct VelshopBillGroup
{
    int myId;
    QString myName;
    QList<VelshopBillLine> myLines;
    QStringList myProblems; ///< why it can't be ordered, each naming the product
    VelshopBillSums mySums; ///< without a problem only
};

/// A whole order, ready to be printed.
struct VelshopBillSheet
{
    QString myHead;   ///< order source, payment and express
    QString myCoupon; ///< how the coupon counts, empty without one
    QList<VelshopBillGroup> myGroups;
    VelshopBillSums mySums; ///< of an order that can be placed
    QStringList myProblems; ///< of all groups

    bool isOrderable() const { return myProblems.isEmpty(); }
};

/// Makes a bill for each shipping group of the cart. False, with the error in one line, when the coupon can't be read
/// or an amount is too large.
bool makeBillSheet(const VelshopCart& theCart, VelshopBillSheet& theSheet, VelshopError& theError);

#endif
