#ifndef VELSHOPFIELD_H
#define VELSHOPFIELD_H

#include "frame/VelOrderSource.h"

#include <QString>
#include <QVariant>

/// Which of several values of one name a field is: of which order source, band, shipping time, group or payment.
struct VelShopPlace
{
    /// In place of an id or a level: the field has none.
    static constexpr int NONE = -1;

    QString myElement;                                           ///< the document's element; null in an article
    int myId = NONE;                                             ///< of that element
    VelInputSource myInputSource = INPUT_SOURCE_UNKNOWN;         ///< unknown where it doesn't matter
    VelDeliveryType myDeliveryType = DELIVERY_TYPE_UNKNOWN;      ///< unknown where it doesn't matter
    VelExpressTypeEnum myExpressType = ExpressableType_UNKNOWN;  ///< unknown where it doesn't matter
    VelDiscountModel myDiscountModel = DISCOUNT_MODEL_UNDEFINED; ///< undefined where it doesn't matter
    int myDiscountLevel = NONE;                                  ///< of the band

    /// Of an order source.
    static VelShopPlace of(const VelOrderSource& theSource)
    {
        VelShopPlace place;
        place.myInputSource = theSource.inputSource();
        place.myDeliveryType = theSource.deliveryType();
        return place;
    }
    /// Of an element of a document, by its id where it has one.
    static VelShopPlace of(const QString& theElement, int theId = NONE)
    {
        VelShopPlace place;
        place.myElement = theElement;
        place.myId = theId;
        return place;
    }

    /// All parts alike.
    bool operator==(const VelShopPlace& theOther) const
    {
        return myId == theOther.myId && myInputSource == theOther.myInputSource &&
               myDeliveryType == theOther.myDeliveryType && myExpressType == theOther.myExpressType &&
               myDiscountModel == theOther.myDiscountModel && myDiscountLevel == theOther.myDiscountLevel &&
               myElement == theOther.myElement;
    }
};

/// What became of an attribute, or of a line of the order text, when it was read.
struct VelShopField
{
    QString myName;       ///< the document's attribute or element, or the key of an order-text line
    VelShopPlace myPlace; ///< of values that occur more than once
    QVariant myValue;     ///< number, text, truth, or a list of these
    /// A list of what other fields tell about: only the order of what stands on both sides counts.
    bool myIsOrder = false;

    /// Whether both tell of the same thing, whatever its value.
    bool isSameAs(const VelShopField& theOther) const
    {
        return myName == theOther.myName && myPlace == theOther.myPlace;
    }
};

/// A field whose reading differs. A value that isn't there is an invalid QVariant.
struct VelShopFieldChange
{
    QString myName;       ///< as in VelShopField
    VelShopPlace myPlace; ///< as in VelShopField
    QVariant myOld;       ///< what was read before
    QVariant myNew;       ///< what is read now
};

#endif
