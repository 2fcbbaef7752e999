#ifndef VELSHOPCART_H
#define VELSHOPCART_H

#include "bill/VelOrderStatistic.h"
#include "frame/VelExpressType.h"
#include "frame/VelTarmStatus.h"
#include "host/VelshopError.h"

#include <QString>

/// What a customer wants: a JSON file with an order source (`source` with `delivery`, by default the starting choice),
/// `payment` (a number, by default the order way's first), `express` ("0", "1" or "2"), `items`, and `coupon` (a file,
/// relative to the cart; where the cart comes from a pipe, to the current folder) with `couponId`. An item has
/// `article` and `count`, and for a book or calendar `pages`, `maps`, `videos` and `templates` (uses by price class) of
/// one piece.
struct VelshopCart
{
    QString myFile;
    VelTarmStatus myStatus; ///< order source and payment
    VelExpressType myExpress = VelExpressType(ExpressableType_STANDARD);
    VelOrderStatistic myItems; ///< all pieces, with the add-ons that their parts cost
    QString myCouponFile;      ///< empty without a coupon
    QString myCouponId;
};

/// Reads the cart. False, with the error in one line that names file and place, when it can't be ordered as it stands.
bool readCart(const QString& theFile, VelshopCart& theCart, VelshopError& theError);

#endif
