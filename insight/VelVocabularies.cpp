#include "insight/VelVocabularies.h"

#include "frame/EnumHelper.h"

#include <initializer_list>
#include <utility>

namespace {

/// Letters stay as the table has them; words are written in lower case by the authors.
QString written(const QString& theKey)
{
    return theKey.size() > 1 ? theKey.toLower() : theKey;
}

template <typename Enum>
VelVocabulary made(const char* theName, const QHash<QString, Enum>& theTable, QString (*theEncode)(Enum),
                   int (*theDecode)(const QString&), std::initializer_list<std::pair<Enum, const char*>> theWords)
{
    VelVocabulary vocabulary;
    vocabulary.myName = QString::fromLatin1(theName);
    for (const auto& word : theWords)
        vocabulary.myWords.append({written(theEncode(word.first)), word.first, QString::fromUtf8(word.second)});
    for (auto row = theTable.begin(); row != theTable.end(); ++row)
        vocabulary.myTableKeys.append(row.key().toUpper());
    vocabulary.myTableKeys.removeDuplicates();
    vocabulary.myTableKeys.sort();
    vocabulary.myDecode = theDecode;
    return vocabulary;
}

/// Some values of a table, each with its meaning: VEL_VOCABULARY(InputSource, {INPUT_SOURCE_NET, "by net"}).
#define VEL_VOCABULARY(Name, ...)                                                                                      \
    made<Vel##Name>(#Name, EnumHelper::globalMap##Name##String, EnumHelper::encode##Name,                              \
                    [](const QString& theText) { return static_cast<int>(EnumHelper::decode##Name(theText)); },        \
                    {__VA_ARGS__})

} // namespace

namespace VelVocabularies {

VelVocabulary inputSources()
{
    return VEL_VOCABULARY(InputSource, {INPUT_SOURCE_NET, "net"}, {INPUT_SOURCE_CD, "CD"},
                          {INPUT_SOURCE_KIOSK, "kiosk"});
}

VelVocabulary deliveryTypes()
{
    return VEL_VOCABULARY(DeliveryType, {DELIVERY_TYPE_POS, "point of sale"}, {DELIVERY_TYPE_MAILORDER, "mail order"},
                          {DELIVERY_TYPE_ON_SITE, "on site"});
}

VelVocabulary expressTypes()
{
    return VEL_VOCABULARY(ExpressTypeEnum, {ExpressableType_STANDARD, "standard"},
                          {ExpressableType_EXPRESS_1, "express class 1"},
                          {ExpressableType_EXPRESS_2, "express class 2"});
}

VelVocabulary arrangements()
{
    return VEL_VOCABULARY(ProductArrangement, {PRODUCT_ARRANGEMENT_TRIVIAL, "prints and posters"},
                          {PRODUCT_ARRANGEMENT_GIFT, "gifts"}, {PRODUCT_ARRANGEMENT_CARD, "cards"},
                          {PRODUCT_ARRANGEMENT_PHOTOBOOK, "photo books"}, {PRODUCT_ARRANGEMENT_CALENDAR, "calendars"});
}

VelVocabulary lettersOfArticles()
{
    return VEL_VOCABULARY(DiscountModel, {DISCOUNT_MODEL_BULK, "each piece costs the price of the level reached"},
                          {DISCOUNT_MODEL_LEVEL_PACKAGE, "upper case: one sum for a package; lower case: each piece"},
                          {DISCOUNT_MODEL_PACKAGE, "as L, and the bill is free of shipping"});
}

VelVocabulary lettersOfAddOns()
{
    VelVocabulary letters = lettersOfArticles();
    letters.myWords += VEL_VOCABULARY(DiscountModel, {DISCOUNT_MODEL_INHERITED_DISCOUNT,
                                                      "each piece costs the price of the main article's level"})
                           .myWords;
    return letters;
}

VelVocabulary lettersOfTransfers()
{
    return VEL_VOCABULARY(DiscountModel, {DISCOUNT_MODEL_BULK_TRANSFER, "one sum, by the number of pieces"},
                          {DISCOUNT_MODEL_BILLING_SUM_TRANSFER, "one sum, by the bill sum"});
}

VelVocabulary lettersOfExpressFees()
{
    return VEL_VOCABULARY(DiscountModel, {DISCOUNT_MODEL_EXPRESS_FEE, "one sum, by the number of pieces"});
}

VelVocabulary lettersOfPaymentFees()
{
    return VEL_VOCABULARY(DiscountModel, {DISCOUNT_MODEL_BULK, "the sum for a bill"});
}

VelVocabulary transferModels()
{
    return VEL_VOCABULARY(TransferModel, {TRANSFER_MODEL_1, "by the entries of the transfer"},
                          {TRANSFER_MODEL_2, "by the transfer prices of the articles"});
}

VelVocabulary allLetters()
{
    VelVocabulary letters = lettersOfAddOns();
    letters.myWords += lettersOfTransfers().myWords + lettersOfExpressFees().myWords;
    return letters;
}

VelVocabulary payments()
{
    const char* const ownMeaning = "a payment of the shop";
    return VEL_VOCABULARY(PaymentType, {PAYMENT_TYPE_0, ownMeaning}, {PAYMENT_TYPE_1, "stands for all credit_cards"},
                          {PAYMENT_TYPE_2, ownMeaning}, {PAYMENT_TYPE_3, ownMeaning}, {PAYMENT_TYPE_8, ownMeaning},
                          {PAYMENT_TYPE_9, "stands for all online_transfer_methods"}, {PAYMENT_TYPE_10, ownMeaning},
                          {PAYMENT_TYPE_12, ownMeaning}, {PAYMENT_TYPE_14, ownMeaning}, {PAYMENT_TYPE_15, ownMeaning});
}

VelVocabulary strategies()
{
    return VEL_VOCABULARY(ForgottenPasswordStrategy, {FORGOTTEN_PASSWORD_DEFAULT, "the usual handling"},
                          {FORGOTTEN_PASSWORD_SEND_EMAIL, "a mail is sent"},
                          {FORGOTTEN_PASSWORD_GOTO_URL, "the target is an address to go to"},
                          {FORGOTTEN_PASSWORD_JUST_PRESS_BUTTON, "a button is pressed"},
                          {FORGOTTEN_PASSWORD_CONTACT_EMAIL, "the target is whom to write to"},
                          {FORGOTTEN_PASSWORD_NONE, "nothing"}, {FORGOTTEN_PASSWORD_SINGLEUSE, "for a single use"});
}

VelVocabulary connectStrategies()
{
    return VEL_VOCABULARY(ConnectStrategy, {CONNECT_STRATEGY_DEFAULT, "the usual way"},
                          {CONNECT_STRATEGY_T_ONLINE_SAM, "also switches the image export toi on"},
                          {CONNECT_STRATEGY_BOL, "the way of this name"});
}

VelVocabulary imageExports()
{
    return VEL_VOCABULARY(ImageExportTypeEnum, {IMAGE_EXPORT_LOCR, "maps"}, {IMAGE_EXPORT_TOI, "albums online"},
                          {IMAGE_EXPORT_GALLERY, "a gallery"});
}

VelVocabulary couponTypes()
{
    return VEL_VOCABULARY(CouponType, {COUPON_TYPE_VALUE, "an amount"}, {COUPON_TYPE_PERCENT, "a percentage"},
                          {COUPON_TYPE_QUANTITY, "free pieces, or the shipping"});
}

} // namespace VelVocabularies
