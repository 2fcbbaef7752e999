#include "host/VelshopWords.h"

#include "insight/VelPriceWords.h"
#include "ordering/VelCurrencyConfig.h"
#include "ordering/VelOrderingDetails.h"

#include <QVector>

namespace {

template <typename Value>
struct Word
{
    const char* myText;
    Value myValue;
};

const QVector<Word<VelInputSource>> INPUT_SOURCES = {
    {"NET", INPUT_SOURCE_NET},
    {"CD", INPUT_SOURCE_CD},
    {"KIOSK", INPUT_SOURCE_KIOSK},
    {"ANY", INPUT_SOURCE_ANY},
};

const QVector<Word<VelDeliveryType>> DELIVERY_TYPES = {
    {"POS", DELIVERY_TYPE_POS},
    {"MAIL", DELIVERY_TYPE_MAILORDER},
    {"ONSITE", DELIVERY_TYPE_ON_SITE},
    {"ANY", DELIVERY_TYPE_ANY},
};

const QVector<Word<VelCouponType>> COUPON_TYPES = {
    {"value", COUPON_TYPE_VALUE},
    {"percent", COUPON_TYPE_PERCENT},
    {"quantity", COUPON_TYPE_QUANTITY},
    {"unknown", COUPON_TYPE_UNKNOWN},
};

const QVector<Word<VelProductClass>> PRODUCT_CLASSES = {
    {"book", PRODUCT_CLASS_FOTO_BOOK},
    {"calendar", PRODUCT_CLASS_CALENDAR},
    {"gift", PRODUCT_CLASS_GIFT},
    {"card", PRODUCT_CLASS_CARD},
};

const QVector<Word<VelProductGroupEnum>> PRODUCT_GROUPS = {
    {"prints", PRODUCT_GROUP_FOTO},
    {"premium prints", PRODUCT_GROUP_PREMIUMFOTO},
    {"posters", PRODUCT_GROUP_POSTER},
    {"books", PRODUCT_GROUP_BOOK},
    {"calendars", PRODUCT_GROUP_CALENDAR},
    {"gifts and cards", PRODUCT_GROUP_GIFT},
    {"add-ons", PRODUCT_GROUP_ADD_ON},
    {"prints on site", PRODUCT_GROUP_ZQNFOTO},
    {"professional prints", PRODUCT_GROUP_PROFESSIONALFOTO},
};

const QVector<Word<VelImageExportTypeEnum>> IMAGE_EXPORTS = {
    {"locr", IMAGE_EXPORT_LOCR},
    {"toi", IMAGE_EXPORT_TOI},
    {"gallery", IMAGE_EXPORT_GALLERY},
};

template <typename Value>
bool readWord(const QVector<Word<Value>>& theWords, const QString& theText, Value& theValue)
{
    for (const Word<Value>& word : theWords) {
        if (theText.compare(QLatin1String(word.myText), Qt::CaseInsensitive) == 0) {
            theValue = word.myValue;
            return true;
        }
    }
    return false;
}

template <typename Value>
QString wordOf(const QVector<Word<Value>>& theWords, Value theValue)
{
    for (const Word<Value>& word : theWords)
        if (word.myValue == theValue)
            return QLatin1String(word.myText);
    return QStringLiteral("no. %1").arg(theValue);
}

} // namespace

bool VelshopWords::readInputSource(const QString& theWord, VelInputSource& theInputSource)
{
    return readWord(INPUT_SOURCES, theWord, theInputSource) && theInputSource != INPUT_SOURCE_ANY;
}

bool VelshopWords::readDeliveryType(const QString& theWord, VelDeliveryType& theDeliveryType)
{
    return readWord(DELIVERY_TYPES, theWord, theDeliveryType) && theDeliveryType != DELIVERY_TYPE_ANY;
}

QString VelshopWords::orderSource(const VelOrderSource& theOrderSource)
{
    return VelPriceWords::orderSource(theOrderSource);
}

QJsonObject VelshopWords::orderSourceData(const VelOrderSource& theOrderSource)
{
    return {{QStringLiteral("source"), wordOf(INPUT_SOURCES, theOrderSource.inputSource())},
            {QStringLiteral("delivery"), wordOf(DELIVERY_TYPES, theOrderSource.deliveryType())}};
}

QString VelshopWords::express(const VelExpressType& theExpressType)
{
    return QStringLiteral("express %1").arg(theExpressType.value() - ExpressableType_STANDARD);
}

/// The library makes a name up for a payment that the shop doesn't name.
QString VelshopWords::paymentName(VelPaymentType thePayment)
{
    const QString name = VelOrderingDetails::instance()->nameOfOrderingDetail(PAYMENT_CLASS_PAY_METHODS, thePayment);
    const QStringList names = VelOrderingDetails::instance()->namesOfOrderingDetails(PAYMENT_CLASS_PAY_METHODS);
    return names.contains(name) ? name : QString();
}

QString VelshopWords::couponType(VelCouponType theCouponType)
{
    return wordOf(COUPON_TYPES, theCouponType);
}

QString VelshopWords::discountModel(VelDiscountModel theDiscountModel)
{
    return VelPriceWords::model(theDiscountModel);
}

QString VelshopWords::productClass(VelProductClass theProductClass)
{
    return wordOf(PRODUCT_CLASSES, theProductClass);
}

QString VelshopWords::productGroup(VelProductGroupEnum theProductGroup)
{
    return wordOf(PRODUCT_GROUPS, theProductGroup);
}

QString VelshopWords::imageExport(VelImageExportTypeEnum theImageExport)
{
    return wordOf(IMAGE_EXPORTS, theImageExport);
}

QString VelshopWords::band(const VelDiscountLimit& theLimit)
{
    const int lower = theLimit.lowerLimit();
    const int upper = theLimit.upperLimit();
    return upper == -1 ? QStringLiteral("from %1").arg(lower) : QStringLiteral("%1 to %2").arg(lower).arg(upper);
}

void VelshopWords::insertBand(QJsonObject& theJson, const VelDiscountLimit& theLimit)
{
    theJson.insert(QStringLiteral("from"), theLimit.lowerLimit());
    if (theLimit.upperLimit() != -1)
        theJson.insert(QStringLiteral("to"), theLimit.upperLimit());
}

QString VelshopWords::pieces(qint64 theCount)
{
    return VelPriceWords::counted(theCount, QStringLiteral("piece"));
}

QString VelshopWords::limit(int theNumber)
{
    return theNumber == -1 ? QStringLiteral("-") : QString::number(theNumber);
}

QString VelshopWords::money(int theAmount)
{
    return VelCurrencyConfig::instance()->fullText(theAmount, true, false, false);
}
