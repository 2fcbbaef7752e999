#ifndef VELENUMERATIONS_H
#define VELENUMERATIONS_H

/**
 * The closed vocabularies of the documents. EnumHelper holds the text keys of each. The numbers are design: they are
 * compared, combined and ordered. Values combine by OR into ones that no enumerator names, hence the fixed type.
 */

/// The pricing rule of one price entry. The numbers order the models and are combined by decoding ("B,L" is 3).
enum VelDiscountModel : int {
    DISCOUNT_MODEL_NONE = 0, ///< of a default-constructed discount limit
    DISCOUNT_MODEL_BULK = 1, ///< every item at the unit price of the level reached
    DISCOUNT_MODEL_LEVEL_PACKAGE = 2,
    DISCOUNT_MODEL_PACKAGE = 3,
    DISCOUNT_MODEL_BULK_TRANSFER = 4,        ///< shipping cost by quantity
    DISCOUNT_MODEL_BILLING_SUM_TRANSFER = 5, ///< shipping cost by bill sum
    DISCOUNT_MODEL_TRANSFER_2 = 6,           ///< in no document: marks the bill position of transfer model 2
    DISCOUNT_MODEL_EXPRESS_FEE = 7,
    DISCOUNT_MODEL_INHERITED_DISCOUNT = 8, ///< discount level inherited from the main product
    DISCOUNT_MODEL_FUTURE_EXTENSION = 9,   ///< any unknown key; not priced, its entries are ignored
    DISCOUNT_MODEL_UNDEFINED = 10          ///< no model applies; to a copying constructor: the model stays
};

/// Whether entries of the model may be the sum for a package: by the case of their letter, see VelDiscountLimit.
constexpr bool isPackageModel(VelDiscountModel theModel)
{
    return theModel == DISCOUNT_MODEL_LEVEL_PACKAGE || theModel == DISCOUNT_MODEL_PACKAGE;
}

/// How a shipping-cost product computes. The numbers occur in documents.
enum VelTransferModel : int { TRANSFER_MODEL_UNDEFINED = -1, TRANSFER_MODEL_1 = 1, TRANSFER_MODEL_2 = 2 };

/// The three groups of payment methods in the ordering details. The numbers occur in no document.
enum VelPaymentClass : int {
    PAYMENT_CLASS_PAY_METHODS = 0,
    PAYMENT_CLASS_CREDIT_CARDS = 1,
    PAYMENT_CLASS_ONLINE_TRANSFER_METHODS = 2
};

/// The numeric payment identifier of the ordering details and the price list: the numbers occur in documents.
enum VelPaymentType : int {
    PAYMENT_TYPE_UNKNOWN = -1,
    PAYMENT_TYPE_0 = 0,
    PAYMENT_TYPE_1 = 1,
    PAYMENT_TYPE_2 = 2,
    PAYMENT_TYPE_3 = 3,
    PAYMENT_TYPE_5 = 5,
    PAYMENT_TYPE_8 = 8,
    PAYMENT_TYPE_9 = 9,
    PAYMENT_TYPE_10 = 10,
    PAYMENT_TYPE_12 = 12,
    PAYMENT_TYPE_14 = 14,
    PAYMENT_TYPE_15 = 15
};

/// How the order reaches the shop. The numbers from 0 up occur in documents.
enum VelInputSource : int {
    INPUT_SOURCE_UNKNOWN = -2, ///< makes an order source invalid
    INPUT_SOURCE_ANY = -1,     ///< wild: the net and the CD
    INPUT_SOURCE_NET = 0,
    INPUT_SOURCE_CD = 1,
    INPUT_SOURCE_KIOSK = 4
};

/// How the goods reach the customer. The numbers from 0 up occur in documents.
enum VelDeliveryType : int {
    DELIVERY_TYPE_UNKNOWN = -2, ///< makes an order source invalid
    DELIVERY_TYPE_ANY = -1,     ///< wild: point of sale and mail order
    DELIVERY_TYPE_POS = 0,
    DELIVERY_TYPE_MAILORDER = 1,
    DELIVERY_TYPE_ON_SITE = 2
};

/// The speed class of production and shipping. Meant so: the number in documents is one less than the value.
enum VelExpressTypeEnum : int {
    ExpressableType_UNKNOWN = 0,
    ExpressableType_STANDARD = 1,
    ExpressableType_EXPRESS_1 = 2,
    ExpressableType_EXPRESS_2 = 3
};

/// How the client connects for an account. The numbers occur in no document.
enum VelConnectStrategy : int {
    CONNECT_STRATEGY_DEFAULT = 0,
    CONNECT_STRATEGY_T_ONLINE_SAM = 1,
    CONNECT_STRATEGY_BOL = 2
};

/// What the client offers when a password is forgotten. The numbers occur in no document.
enum VelForgottenPasswordStrategy : int {
    FORGOTTEN_PASSWORD_DEFAULT = 0,
    FORGOTTEN_PASSWORD_SEND_EMAIL = 1,
    FORGOTTEN_PASSWORD_GOTO_URL = 2,
    FORGOTTEN_PASSWORD_JUST_PRESS_BUTTON = 3,
    FORGOTTEN_PASSWORD_CONTACT_EMAIL = 4,
    FORGOTTEN_PASSWORD_NONE = 5,
    FORGOTTEN_PASSWORD_SINGLEUSE = 6
};

/// The shop's product groups: bits that logic combines into masks.
enum VelProductGroupEnum : int {
    PRODUCT_GROUP_UNKNOWN = 0,
    PRODUCT_GROUP_FOTO = 1,
    PRODUCT_GROUP_PREMIUMFOTO = 2,
    PRODUCT_GROUP_POSTER = 4,
    PRODUCT_GROUP_BOOK = 8,
    PRODUCT_GROUP_CALENDAR = 16,
    PRODUCT_GROUP_GIFT = 32,
    PRODUCT_GROUP_ADD_ON = 64,
    PRODUCT_GROUP_ZQNFOTO = 256,
    PRODUCT_GROUP_PROFESSIONALFOTO = 512,
    PRODUCT_GROUP_ALL = 895 ///< all the bits above
};

/// The layout class of a product: bits; 2 is free.
enum VelProductArrangement : int {
    PRODUCT_ARRANGEMENT_UNKNOWN = 0,
    PRODUCT_ARRANGEMENT_TRIVIAL = 1,
    PRODUCT_ARRANGEMENT_GIFT = 4,
    PRODUCT_ARRANGEMENT_CARD = 8,
    PRODUCT_ARRANGEMENT_PHOTOBOOK = 16,
    PRODUCT_ARRANGEMENT_CALENDAR = 32
};

/// The ways an order may go out: bits. The numbers occur in no document.
enum VelOrderWay : int { ORDER_WAY_CD = 1, ORDER_WAY_NET = 2, ORDER_WAY_BOTH = 3 };

/// How many stores an account has. The numbers occur in no document.
enum VelStoreMagnitude : int { STORE_MAGNITUDE_ONE = 1, STORE_MAGNITUDE_FEW = 2, STORE_MAGNITUDE_MANY = 3 };

/// The targets to which images can be exported: bits.
enum VelImageExportTypeEnum : int {
    IMAGE_EXPORT_UNKOWN = 0, // meant so: the name is a key of the table, and documents may carry it
    IMAGE_EXPORT_LOCR = 1,
    IMAGE_EXPORT_TOI = 2,
    IMAGE_EXPORT_GALLERY = 4
};

/// What a coupon takes off. The numbers occur in no document.
enum VelCouponType : int {
    COUPON_TYPE_UNKNOWN = 0,
    COUPON_TYPE_VALUE = 1,
    COUPON_TYPE_PERCENT = 2,
    COUPON_TYPE_QUANTITY = 3
};

/// The construction class of a product: bits, given by the factory. In no document; there is no table of keys.
enum VelProductClass : int {
    PRODUCT_CLASS_NONE = 0, ///< the null product
    PRODUCT_CLASS_FOTO_BOOK = 1,
    PRODUCT_CLASS_CALENDAR = 2,
    PRODUCT_CLASS_GIFT = 4,
    PRODUCT_CLASS_CARD = 8,
    PRODUCT_CLASS_PRINT_FUN_MASK = 31, ///< mask only: any print-fun product; its bit 16 is given to none
    PRODUCT_CLASS_ADD_ON = 64,
    PRODUCT_CLASS_PRODUCT = 512, ///< plain products
    PRODUCT_CLASS_FEE = 1024     ///< express, transfer and additional fees
};

/**
 * The product type codes. Albums and calendars have a value for each code; from 402 on a value stands for a whole
 * family of sizes. The codes, not the numbers, occur in documents.
 */
enum VelProductTypeEnum : int {
    PRODUCT_TYPE_UNKNOWN = 0,
    PRODUCT_TYPE_ALB6 = 6,
    PRODUCT_TYPE_ALB7 = 7,
    PRODUCT_TYPE_ALB8 = 8,
    PRODUCT_TYPE_ALB9 = 9,
    PRODUCT_TYPE_ALB10 = 10,
    PRODUCT_TYPE_ALB11 = 11,
    PRODUCT_TYPE_ALB13 = 13,
    PRODUCT_TYPE_ALB14 = 14,
    PRODUCT_TYPE_ALB15 = 15,
    PRODUCT_TYPE_ALB16 = 16,
    PRODUCT_TYPE_ALB17 = 17,
    PRODUCT_TYPE_ALB18 = 18,
    PRODUCT_TYPE_ALB19 = 19,
    PRODUCT_TYPE_ALB28 = 28,
    PRODUCT_TYPE_ALB29 = 29,
    PRODUCT_TYPE_ALB30 = 30,
    PRODUCT_TYPE_ALB31 = 31,
    PRODUCT_TYPE_ALB32 = 32,
    PRODUCT_TYPE_ALB35 = 35,
    PRODUCT_TYPE_ALB37 = 37,
    PRODUCT_TYPE_ALB38 = 38,
    PRODUCT_TYPE_ALB39 = 39,
    PRODUCT_TYPE_ALB40 = 40,
    PRODUCT_TYPE_ALB41 = 41,
    PRODUCT_TYPE_ALB42 = 42,
    PRODUCT_TYPE_ALB44 = 44,
    PRODUCT_TYPE_ALB45 = 45,
    PRODUCT_TYPE_ALB46 = 46,
    PRODUCT_TYPE_ALB62 = 62,
    PRODUCT_TYPE_ALB63 = 63,
    PRODUCT_TYPE_ALB64 = 64,
    PRODUCT_TYPE_ALB67 = 67,
    PRODUCT_TYPE_ALB70 = 70,
    PRODUCT_TYPE_ALB71 = 71,
    PRODUCT_TYPE_ALB72 = 72,
    PRODUCT_TYPE_ALB73 = 73,
    PRODUCT_TYPE_ALB74 = 74,
    PRODUCT_TYPE_ALB75 = 75,
    PRODUCT_TYPE_ALB76 = 76,
    PRODUCT_TYPE_ALB77 = 77,
    PRODUCT_TYPE_ALB80 = 78,
    PRODUCT_TYPE_ALB81 = 79,
    PRODUCT_TYPE_CAL6 = 106,
    PRODUCT_TYPE_CAL7 = 107,
    PRODUCT_TYPE_CAL8 = 108,
    PRODUCT_TYPE_CAL9 = 109,
    PRODUCT_TYPE_CAL10 = 110,
    PRODUCT_TYPE_CAL11 = 111,
    PRODUCT_TYPE_CAL12 = 112,
    PRODUCT_TYPE_CAL13 = 113,
    PRODUCT_TYPE_CAL28 = 114,
    PRODUCT_TYPE_CAL18 = 115,
    PRODUCT_TYPE_CAL20 = 116,
    PRODUCT_TYPE_CAL21 = 117,
    PRODUCT_TYPE_CAL29 = 118,
    PRODUCT_TYPE_CAL30 = 119,
    PRODUCT_TYPE_CAL31 = 120,
    PRODUCT_TYPE_CAL35 = 121,
    PRODUCT_TYPE_CAL36 = 122,
    PRODUCT_TYPE_CAL19 = 123,
    PRODUCT_TYPE_CAL41 = 124,
    PRODUCT_TYPE_CAL42 = 125,
    PRODUCT_TYPE_CAL43 = 126,
    PRODUCT_TYPE_CAL44 = 127,
    PRODUCT_TYPE_CAL37 = 128,
    PRODUCT_TYPE_GROUP_402 = 402,
    PRODUCT_TYPE_GROUP_403 = 403,
    PRODUCT_TYPE_GROUP_404 = 404,
    PRODUCT_TYPE_GROUP_405 = 405,
    PRODUCT_TYPE_GROUP_406 = 406,
    PRODUCT_TYPE_GROUP_407 = 407,
    PRODUCT_TYPE_GROUP_408 = 408,
    PRODUCT_TYPE_GROUP_409 = 409,
    PRODUCT_TYPE_GROUP_410 = 410,
    PRODUCT_TYPE_GROUP_411 = 411,
    PRODUCT_TYPE_GROUP_412 = 412
};

#endif
