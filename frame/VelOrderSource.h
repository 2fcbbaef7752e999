#ifndef VELORDERSOURCE_H
#define VELORDERSOURCE_H

#include "frame/VelEnumerations.h"
#include "frame/VelTarmExport.h"

#include <QDebug>
#include <QDomElement>
#include <QString>

/**
 * By which way an order reaches the shop and by which way the goods come back: the pair by which the shop prices and
 * permits. A value.
 */
class VELTARM_EXPORT VelOrderSource
{
public:
    /// Stores both halves; nothing is tested, see isValid().
    VelOrderSource(VelInputSource theInputSource, VelDeliveryType theDeliveryType)
        : myInputSource(theInputSource), myDeliveryType(theDeliveryType)
    {
    }

    /// Reads the attributes `input_source` and `delivery_type`; a missing one is the wild value -1.
    explicit VelOrderSource(const QDomElement& theElement);

    /// By the net, to the customer by mail.
    static VelOrderSource onlineMailOrder() { return {INPUT_SOURCE_NET, DELIVERY_TYPE_MAILORDER}; }
    /// By the net, to be fetched at a point of sale.
    static VelOrderSource onlinePointOfSale() { return {INPUT_SOURCE_NET, DELIVERY_TYPE_POS}; }
    /// At a kiosk, made on the spot.
    static VelOrderSource kioskOnSite() { return {INPUT_SOURCE_KIOSK, DELIVERY_TYPE_ON_SITE}; }
    /// On a CD, to the customer by mail.
    static VelOrderSource cdMailOrder() { return {INPUT_SOURCE_CD, DELIVERY_TYPE_MAILORDER}; }
    /// On a CD, to be fetched at a point of sale.
    static VelOrderSource cdPointOfSale() { return {INPUT_SOURCE_CD, DELIVERY_TYPE_POS}; }

    /// By which way the order reaches the shop.
    VelInputSource inputSource() const { return myInputSource; }
    /// By which way the goods come back.
    VelDeliveryType deliveryType() const { return myDeliveryType; }

    /// Whether this is exactly that order way; a wild half is none of them.
    bool isOnlineMailOrder() const { return *this == onlineMailOrder(); }
    bool isOnlinePointOfSale() const { return *this == onlinePointOfSale(); }
    bool isKioskOnSite() const { return *this == kioskOnSite(); }
    bool isCDMailOrder() const { return *this == cdMailOrder(); }
    bool isCDPointOfSale() const { return *this == cdPointOfSale(); }

    /// False when a half is unknown (-2), and when a kiosk does not deliver on site or anything else does. The wild
    /// pair (-1, -1) is valid.
    bool isValid() const;

    /// The two document keys joined by an underscore, as "0_1"; "_" for the wild pair.
    QString toSquishString() const;

    /// By both halves; the wild value equals itself alone.
    bool operator==(const VelOrderSource& theOther) const
    {
        return myInputSource == theOther.myInputSource && myDeliveryType == theOther.myDeliveryType;
    }
    bool operator!=(const VelOrderSource& theOther) const { return !(*this == theOther); }

    /// By input source, then delivery type, as signed numbers.
    bool operator<(const VelOrderSource& theOther) const
    {
        return myInputSource != theOther.myInputSource ? myInputSource < theOther.myInputSource
                                                       : myDeliveryType < theOther.myDeliveryType;
    }

private:
    VelInputSource myInputSource;
    VelDeliveryType myDeliveryType;
};

Q_DECLARE_TYPEINFO(VelOrderSource, Q_MOVABLE_TYPE);

VELTARM_EXPORT QDebug operator<<(QDebug theDebug, const VelOrderSource& theOrderSource);

#endif
