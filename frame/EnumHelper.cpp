#include "frame/EnumHelper.h"

#include "frame/VelEnumFlags.h"

#include <QStringList>

namespace {

template <typename Enum>
struct Row
{
    const char* key;
    Enum value;
};

constexpr Row<VelDiscountModel> DISCOUNT_MODELS[] = {
    {"B", DISCOUNT_MODEL_BULK},
    {"b", DISCOUNT_MODEL_BULK},
    {"L", DISCOUNT_MODEL_LEVEL_PACKAGE},
    {"l", DISCOUNT_MODEL_LEVEL_PACKAGE},
    {"P", DISCOUNT_MODEL_PACKAGE},
    {"p", DISCOUNT_MODEL_PACKAGE},
    {"F", DISCOUNT_MODEL_BULK_TRANSFER},
    {"f", DISCOUNT_MODEL_BULK_TRANSFER},
    {"Z", DISCOUNT_MODEL_BILLING_SUM_TRANSFER},
    {"z", DISCOUNT_MODEL_BILLING_SUM_TRANSFER},
    {"X", DISCOUNT_MODEL_EXPRESS_FEE},
    {"x", DISCOUNT_MODEL_EXPRESS_FEE},
    {"I", DISCOUNT_MODEL_INHERITED_DISCOUNT}, // meant so: no lower-case twin
};

constexpr Row<VelTransferModel> TRANSFER_MODELS[] = {
    {"-1", TRANSFER_MODEL_UNDEFINED},
    {"1", TRANSFER_MODEL_1},
    {"2", TRANSFER_MODEL_2},
};

constexpr Row<VelPaymentClass> PAYMENT_CLASSES[] = {
    {"pay_methods", PAYMENT_CLASS_PAY_METHODS},
    {"credit_cards", PAYMENT_CLASS_CREDIT_CARDS},
    {"online_transfer_methods", PAYMENT_CLASS_ONLINE_TRANSFER_METHODS},
};

constexpr Row<VelPaymentType> PAYMENT_TYPES[] = {
    {"-1", PAYMENT_TYPE_UNKNOWN}, {"0", PAYMENT_TYPE_0},   {"1", PAYMENT_TYPE_1},   {"2", PAYMENT_TYPE_2},
    {"3", PAYMENT_TYPE_3},        {"5", PAYMENT_TYPE_5},   {"8", PAYMENT_TYPE_8},   {"9", PAYMENT_TYPE_9},
    {"10", PAYMENT_TYPE_10},      {"12", PAYMENT_TYPE_12}, {"14", PAYMENT_TYPE_14}, {"15", PAYMENT_TYPE_15},
};

constexpr Row<VelInputSource> INPUT_SOURCES[] = {
    {"", INPUT_SOURCE_ANY},
    {"0", INPUT_SOURCE_NET},
    {"1", INPUT_SOURCE_CD},
    {"4", INPUT_SOURCE_KIOSK},
};

constexpr Row<VelDeliveryType> DELIVERY_TYPES[] = {
    {"", DELIVERY_TYPE_ANY},
    {"0", DELIVERY_TYPE_POS},
    {"1", DELIVERY_TYPE_MAILORDER},
    {"2", DELIVERY_TYPE_ON_SITE},
};

constexpr Row<VelExpressTypeEnum> EXPRESS_TYPES[] = {
    {"", ExpressableType_UNKNOWN}, // meant so: each digit is one less than its value
    {"0", ExpressableType_STANDARD},
    {"1", ExpressableType_EXPRESS_1},
    {"2", ExpressableType_EXPRESS_2},
};

constexpr Row<VelConnectStrategy> CONNECT_STRATEGIES[] = {
    {"default", CONNECT_STRATEGY_DEFAULT},
    {"t-online-sam", CONNECT_STRATEGY_T_ONLINE_SAM},
    {"bol", CONNECT_STRATEGY_BOL},
};

constexpr Row<VelForgottenPasswordStrategy> FORGOTTEN_PASSWORD_STRATEGIES[] = {
    {"default", FORGOTTEN_PASSWORD_DEFAULT},
    {"send_email", FORGOTTEN_PASSWORD_SEND_EMAIL},
    {"goto_url", FORGOTTEN_PASSWORD_GOTO_URL},
    {"just_press_button", FORGOTTEN_PASSWORD_JUST_PRESS_BUTTON},
    {"contact_email", FORGOTTEN_PASSWORD_CONTACT_EMAIL},
    {"none", FORGOTTEN_PASSWORD_NONE},
    {"singleuse", FORGOTTEN_PASSWORD_SINGLEUSE},
};

constexpr Row<VelProductGroupEnum> PRODUCT_GROUPS[] = {
    {"foto", PRODUCT_GROUP_FOTO},
    {"premiumfoto", PRODUCT_GROUP_PREMIUMFOTO},
    {"product_foto", PRODUCT_GROUP_PREMIUMFOTO}, // meant so: a synonym of premiumfoto, not of foto
    {"poster", PRODUCT_GROUP_POSTER},
    {"product_poster", PRODUCT_GROUP_POSTER},
    {"book", PRODUCT_GROUP_BOOK},
    {"product_fotobook", PRODUCT_GROUP_BOOK},
    {"printfun", PRODUCT_GROUP_CALENDAR},
    {"calendar", PRODUCT_GROUP_CALENDAR},
    {"product_calendar", PRODUCT_GROUP_CALENDAR},
    {"fun", PRODUCT_GROUP_GIFT},
    {"gift", PRODUCT_GROUP_GIFT},
    {"product_gift", PRODUCT_GROUP_GIFT},
    {"zqnfoto", PRODUCT_GROUP_ZQNFOTO},
    {"professionalfoto", PRODUCT_GROUP_PROFESSIONALFOTO},
};

constexpr Row<VelProductArrangement> PRODUCT_ARRANGEMENTS[] = {
    {"trivial", PRODUCT_ARRANGEMENT_TRIVIAL},   {"gift", PRODUCT_ARRANGEMENT_GIFT},
    {"card", PRODUCT_ARRANGEMENT_CARD},         {"photobook", PRODUCT_ARRANGEMENT_PHOTOBOOK},
    {"calendar", PRODUCT_ARRANGEMENT_CALENDAR},
};

constexpr Row<VelOrderWay> ORDER_WAYS[] = {
    {"cd", ORDER_WAY_CD},
    {"net", ORDER_WAY_NET},
    {"both", ORDER_WAY_BOTH},
};

constexpr Row<VelStoreMagnitude> STORE_MAGNITUDES[] = {
    {"one", STORE_MAGNITUDE_ONE},
    {"few", STORE_MAGNITUDE_FEW},
    {"many", STORE_MAGNITUDE_MANY},
};

constexpr Row<VelImageExportTypeEnum> IMAGE_EXPORT_TYPES[] = {
    {"IMAGE_EXPORT_UNKOWN", IMAGE_EXPORT_UNKOWN},
    {"locr", IMAGE_EXPORT_LOCR},
    {"toi", IMAGE_EXPORT_TOI},
    {"gallery", IMAGE_EXPORT_GALLERY},
};

constexpr Row<VelCouponType> COUPON_TYPES[] = {
    {"value", COUPON_TYPE_VALUE},
    {"percent", COUPON_TYPE_PERCENT},
    {"quantity", COUPON_TYPE_QUANTITY},
};

/// The albums and the calendars: one key for each value.
constexpr Row<VelProductTypeEnum> PRODUCT_TYPES[] = {
    {"ALB6", PRODUCT_TYPE_ALB6},   {"ALB7", PRODUCT_TYPE_ALB7},   {"ALB8", PRODUCT_TYPE_ALB8},
    {"ALB9", PRODUCT_TYPE_ALB9},   {"ALB10", PRODUCT_TYPE_ALB10}, {"ALB11", PRODUCT_TYPE_ALB11},
    {"ALB13", PRODUCT_TYPE_ALB13}, {"ALB14", PRODUCT_TYPE_ALB14}, {"ALB15", PRODUCT_TYPE_ALB15},
    {"ALB16", PRODUCT_TYPE_ALB16}, {"ALB17", PRODUCT_TYPE_ALB17}, {"ALB18", PRODUCT_TYPE_ALB18},
    {"ALB19", PRODUCT_TYPE_ALB19}, {"ALB28", PRODUCT_TYPE_ALB28}, {"ALB29", PRODUCT_TYPE_ALB29},
    {"ALB30", PRODUCT_TYPE_ALB30}, {"ALB31", PRODUCT_TYPE_ALB31}, {"ALB32", PRODUCT_TYPE_ALB32},
    {"ALB35", PRODUCT_TYPE_ALB35}, {"ALB37", PRODUCT_TYPE_ALB37}, {"ALB38", PRODUCT_TYPE_ALB38},
    {"ALB39", PRODUCT_TYPE_ALB39}, {"ALB40", PRODUCT_TYPE_ALB40}, {"ALB41", PRODUCT_TYPE_ALB41},
    {"ALB42", PRODUCT_TYPE_ALB42}, {"ALB44", PRODUCT_TYPE_ALB44}, {"ALB45", PRODUCT_TYPE_ALB45},
    {"ALB46", PRODUCT_TYPE_ALB46}, {"ALB62", PRODUCT_TYPE_ALB62}, {"ALB63", PRODUCT_TYPE_ALB63},
    {"ALB64", PRODUCT_TYPE_ALB64}, {"ALB67", PRODUCT_TYPE_ALB67}, {"ALB70", PRODUCT_TYPE_ALB70},
    {"ALB71", PRODUCT_TYPE_ALB71}, {"ALB72", PRODUCT_TYPE_ALB72}, {"ALB73", PRODUCT_TYPE_ALB73},
    {"ALB74", PRODUCT_TYPE_ALB74}, {"ALB75", PRODUCT_TYPE_ALB75}, {"ALB76", PRODUCT_TYPE_ALB76},
    {"ALB77", PRODUCT_TYPE_ALB77}, {"ALB80", PRODUCT_TYPE_ALB80}, {"ALB81", PRODUCT_TYPE_ALB81},
    {"CAL6", PRODUCT_TYPE_CAL6},   {"CAL7", PRODUCT_TYPE_CAL7},   {"CAL8", PRODUCT_TYPE_CAL8},
    {"CAL9", PRODUCT_TYPE_CAL9},   {"CAL10", PRODUCT_TYPE_CAL10}, {"CAL11", PRODUCT_TYPE_CAL11},
    {"CAL12", PRODUCT_TYPE_CAL12}, {"CAL13", PRODUCT_TYPE_CAL13}, {"CAL28", PRODUCT_TYPE_CAL28},
    {"CAL18", PRODUCT_TYPE_CAL18}, {"CAL20", PRODUCT_TYPE_CAL20}, {"CAL21", PRODUCT_TYPE_CAL21},
    {"CAL29", PRODUCT_TYPE_CAL29}, {"CAL30", PRODUCT_TYPE_CAL30}, {"CAL31", PRODUCT_TYPE_CAL31},
    {"CAL35", PRODUCT_TYPE_CAL35}, {"CAL36", PRODUCT_TYPE_CAL36}, {"CAL19", PRODUCT_TYPE_CAL19},
    {"CAL41", PRODUCT_TYPE_CAL41}, {"CAL42", PRODUCT_TYPE_CAL42}, {"CAL43", PRODUCT_TYPE_CAL43},
    {"CAL44", PRODUCT_TYPE_CAL44}, {"CAL37", PRODUCT_TYPE_CAL37},
};

/// Product types whose keys share one value: each stem with the ending is a key.
struct ProductTypeFamily
{
    VelProductTypeEnum value;
    const char* stems; // separated by one blank
    const char* ending;
};

constexpr char SMALL_SIZES[] = "20x30 30x45 40x60 50x75";
constexpr char ALL_SIZES[] = "20x30 30x30 20x60 30x40 30x45 40x40 40x50 40x60 50x50 50x60 30x90 45x60 60x60 50x70 "
                             "50x75 40x120 60x80 70x70 60x90 80x80 50x150 90x90 80x120 70x100 80x100 100x100 90x120 "
                             "100x150";

constexpr ProductTypeFamily PRODUCT_TYPE_FAMILIES[] = {
    {PRODUCT_TYPE_GROUP_402,
     "PSC101 PSC102 PSC103 PSC104 PSC105 PSC107 PSC108 PSC109 PSC110 PSC111 PSC112 PSC116 PSC117 PSC118 PSC119 PSC120 "
     "PSC121",
     ""},
    {PRODUCT_TYPE_GROUP_403, SMALL_SIZES, "AG"},
    {PRODUCT_TYPE_GROUP_404, SMALL_SIZES, "AD"},
    {PRODUCT_TYPE_GROUP_405, "10x15 13x18", "AGP"},
    {PRODUCT_TYPE_GROUP_406, ALL_SIZES, "ADP"},
    {PRODUCT_TYPE_GROUP_407, ALL_SIZES, "AGP"},
    {PRODUCT_TYPE_GROUP_408,
     "LFP101 LFP104 LFP105 LFP108 LFP109 LFP111 LFP113 LFP114 LFP115 LFP118 LFP119 LFP124 LFP126 LFP130 LFP131 LFP132 "
     "LFP133 LFP134 LFP135 LFP137",
     ""},
    {PRODUCT_TYPE_GROUP_409, "LFP103 LFP107 LFP112 LFP117 LFP120 LFP122 LFP125 LFP136", ""},
    {PRODUCT_TYPE_GROUP_410, "LFP102 LFP106 LFP110 LFP116 LFP129", ""},
    {PRODUCT_TYPE_GROUP_411, ALL_SIZES, "GAP"},
    {PRODUCT_TYPE_GROUP_412, ALL_SIZES, "FSP"},
};

enum class KeyCase { Upper, AsWritten };

template <typename Enum, size_t Count>
QHash<QString, Enum> filled(const Row<Enum> (&theRows)[Count], KeyCase theCase = KeyCase::Upper)
{
    QHash<QString, Enum> result;
    result.reserve(static_cast<int>(Count));
    for (const Row<Enum>& row : theRows) {
        const QString key = QString::fromLatin1(row.key);
        result.insert(theCase == KeyCase::Upper ? key.toUpper() : key, row.value);
    }
    return result;
}

QHash<QString, VelProductTypeEnum> filledWithProductTypes()
{
    QHash<QString, VelProductTypeEnum> result = filled(PRODUCT_TYPES);
    for (const ProductTypeFamily& family : PRODUCT_TYPE_FAMILIES) {
        for (const QString& stem : QString::fromLatin1(family.stems).split(QLatin1Char(' ')))
            result.insert((stem + QLatin1String(family.ending)).toUpper(), family.value);
    }
    return result;
}

template <typename Enum>
Enum decoded(const QHash<QString, Enum>& theTable, const QString& theText, Enum theDefault)
{
    const QString text = theText.toUpper();
    if (!text.contains(QLatin1Char(',')))
        return theTable.value(text.trimmed(), theDefault);

    int result = 0;
    for (const QString& part : text.split(QLatin1Char(',')))
        result |= theTable.value(part.trimmed(), theDefault);
    return static_cast<Enum>(result);
}

template <typename Enum>
QString encoded(const QHash<QString, Enum>& theTable, Enum theValue, const QString& theDefaultKey)
{
    const auto row = smallestKeyOf(theTable, theValue);
    return row == theTable.constEnd() ? theDefaultKey : row.key();
}

} // namespace

// Each table is filled by its own initialiser, which needs nothing but the rows above.
#define VEL_DEFINE_ENUM_TABLE(Name, Content, TheKey, TheDefault)                                                       \
    QHash<QString, Vel##Name> initGlobal##Name##StringMap()                                                            \
    {                                                                                                                  \
        return Content;                                                                                                \
    }                                                                                                                  \
    const QHash<QString, Vel##Name> globalMap##Name##String = initGlobal##Name##StringMap();                           \
    const QString global##Name##DefaultKey = QStringLiteral(TheKey);                                                   \
    const Vel##Name global##Name##DefaultValue = TheDefault;                                                           \
    Vel##Name decode##Name(const QString& theText)                                                                     \
    {                                                                                                                  \
        return decoded(globalMap##Name##String, theText, global##Name##DefaultValue);                                  \
    }                                                                                                                  \
    QString encode##Name(Vel##Name theValue)                                                                           \
    {                                                                                                                  \
        return encoded(globalMap##Name##String, theValue, global##Name##DefaultKey);                                   \
    }

namespace EnumHelper {

// clang-format off
VEL_DEFINE_ENUM_TABLE(DiscountModel, filled(DISCOUNT_MODELS, KeyCase::AsWritten), "DISCOUNT_MODEL_FUTURE_EXTENSION", DISCOUNT_MODEL_FUTURE_EXTENSION)
VEL_DEFINE_ENUM_TABLE(TransferModel, filled(TRANSFER_MODELS), "-1", TRANSFER_MODEL_UNDEFINED)
// Meant so: its keys stay in lower case, so that decoding, which upper-cases the text, would find none; none is made.
VEL_DEFINE_ENUM_TABLE(PaymentClass, filled(PAYMENT_CLASSES, KeyCase::AsWritten), "pay_methods", PAYMENT_CLASS_PAY_METHODS)
VEL_DEFINE_ENUM_TABLE(PaymentType, filled(PAYMENT_TYPES), "-1", PAYMENT_TYPE_UNKNOWN)
VEL_DEFINE_ENUM_TABLE(InputSource, filled(INPUT_SOURCES), "INPUT_SOURCE_UNKNOWN", INPUT_SOURCE_UNKNOWN)
VEL_DEFINE_ENUM_TABLE(DeliveryType, filled(DELIVERY_TYPES), "DELIVERY_TYPE_UNKNOWN", DELIVERY_TYPE_UNKNOWN)
VEL_DEFINE_ENUM_TABLE(ExpressTypeEnum, filled(EXPRESS_TYPES), "ExpressableType_UNKNOWN", ExpressableType_UNKNOWN)
VEL_DEFINE_ENUM_TABLE(ConnectStrategy, filled(CONNECT_STRATEGIES), "default", CONNECT_STRATEGY_DEFAULT)
VEL_DEFINE_ENUM_TABLE(ForgottenPasswordStrategy, filled(FORGOTTEN_PASSWORD_STRATEGIES), "default", FORGOTTEN_PASSWORD_DEFAULT)
VEL_DEFINE_ENUM_TABLE(ProductGroupEnum, filled(PRODUCT_GROUPS), "unknown", PRODUCT_GROUP_UNKNOWN)
VEL_DEFINE_ENUM_TABLE(ProductArrangement, filled(PRODUCT_ARRANGEMENTS), "unbekanntes Arrangement", PRODUCT_ARRANGEMENT_UNKNOWN)
VEL_DEFINE_ENUM_TABLE(OrderWay, filled(ORDER_WAYS), "both", ORDER_WAY_BOTH)
VEL_DEFINE_ENUM_TABLE(StoreMagnitude, filled(STORE_MAGNITUDES), "many", STORE_MAGNITUDE_MANY)
VEL_DEFINE_ENUM_TABLE(ImageExportTypeEnum, filled(IMAGE_EXPORT_TYPES), "IMAGE_EXPORT_UNKOWN", IMAGE_EXPORT_UNKOWN)
VEL_DEFINE_ENUM_TABLE(ProductTypeEnum, filledWithProductTypes(), "nicht benannter Typ", PRODUCT_TYPE_UNKNOWN)
VEL_DEFINE_ENUM_TABLE(CouponType, filled(COUPON_TYPES), "unbenannter Gutschein", COUPON_TYPE_UNKNOWN)
// clang-format on

} // namespace EnumHelper

#undef VEL_DEFINE_ENUM_TABLE
