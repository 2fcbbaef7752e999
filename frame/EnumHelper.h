#ifndef ENUMHELPER_H
#define ENUMHELPER_H

#include "frame/VelEnumerations.h"

#include <QHash>
#include <QString>

/**
 * What one table offers, for the example DiscountModel:
 *
 * - globalMapDiscountModelString: key to value. The keys are upper case, but for DiscountModel and PaymentClass.
 * - globalDiscountModelDefaultKey, globalDiscountModelDefaultValue: the answers to an unknown value and an unknown key.
 * - initGlobalDiscountModelStringMap(): makes the table's content.
 * - decodeDiscountModel(text): the text in upper case is split at commas; each part, trimmed, gives the value of its
 *   key or the default value, and all are combined by OR. A null or empty text is one empty part.
 * - encodeDiscountModel(value): a key that carries the value, else the default key as it is written. Of several keys
 *   the one that sorts first.
 */
#define VEL_DECLARE_ENUM_TABLE(Name)                                                                                   \
    extern const QHash<QString, Vel##Name> globalMap##Name##String;                                                    \
    extern const QString global##Name##DefaultKey;                                                                     \
    extern const Vel##Name global##Name##DefaultValue;                                                                 \
    QHash<QString, Vel##Name> initGlobal##Name##StringMap();                                                           \
    Vel##Name decode##Name(const QString& theText);                                                                    \
    QString encode##Name(Vel##Name theValue);

/**
 * The text keys of the enumerations. The tables are filled before main and constant: reading them needs no lock. No
 * static object of another file may use them while it is being constructed.
 */
namespace EnumHelper {

VEL_DECLARE_ENUM_TABLE(DiscountModel)
VEL_DECLARE_ENUM_TABLE(TransferModel)
VEL_DECLARE_ENUM_TABLE(PaymentClass)
VEL_DECLARE_ENUM_TABLE(PaymentType)
VEL_DECLARE_ENUM_TABLE(InputSource)
VEL_DECLARE_ENUM_TABLE(DeliveryType)
VEL_DECLARE_ENUM_TABLE(ExpressTypeEnum)
VEL_DECLARE_ENUM_TABLE(ConnectStrategy)
VEL_DECLARE_ENUM_TABLE(ForgottenPasswordStrategy)
VEL_DECLARE_ENUM_TABLE(ProductGroupEnum)
VEL_DECLARE_ENUM_TABLE(ProductArrangement)
VEL_DECLARE_ENUM_TABLE(OrderWay)
VEL_DECLARE_ENUM_TABLE(StoreMagnitude)
VEL_DECLARE_ENUM_TABLE(ImageExportTypeEnum)
VEL_DECLARE_ENUM_TABLE(ProductTypeEnum)
VEL_DECLARE_ENUM_TABLE(CouponType)

} // namespace EnumHelper

#undef VEL_DECLARE_ENUM_TABLE

#endif
