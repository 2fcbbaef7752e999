#include "host/VelshopWords.h"

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
};

const QVector<Word<VelDeliveryType>> DELIVERY_TYPES = {
    {"POS", DELIVERY_TYPE_POS},
    {"MAIL", DELIVERY_TYPE_MAILORDER},
    {"ONSITE", DELIVERY_TYPE_ON_SITE},
};

const QVector<Word<VelDiscountModel>> DISCOUNT_MODELS = {
    {"bulk", DISCOUNT_MODEL_BULK},
    {"level package", DISCOUNT_MODEL_LEVEL_PACKAGE},
    {"package", DISCOUNT_MODEL_PACKAGE},
    {"shipping by quantity", DISCOUNT_MODEL_BULK_TRANSFER},
    {"shipping by bill sum", DISCOUNT_MODEL_BILLING_SUM_TRANSFER},
    {"shipping by products", DISCOUNT_MODEL_TRANSFER_2},
    {"express fee", DISCOUNT_MODEL_EXPRESS_FEE},
    {"inherited discount", DISCOUNT_MODEL_INHERITED_DISCOUNT},
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
    return QStringLiteral("model %1").arg(theValue);
}

} // namespace

bool VelshopWords::readInputSource(const QString& theWord, VelInputSource& theInputSource)
{
    return readWord(INPUT_SOURCES, theWord, theInputSource);
}

bool VelshopWords::readDeliveryType(const QString& theWord, VelDeliveryType& theDeliveryType)
{
    return readWord(DELIVERY_TYPES, theWord, theDeliveryType);
}

QString VelshopWords::orderSource(const VelOrderSource& theOrderSource)
{
    return wordOf(INPUT_SOURCES, theOrderSource.inputSource()) + QStringLiteral(", ") +
           wordOf(DELIVERY_TYPES, theOrderSource.deliveryType());
}

QString VelshopWords::discountModel(VelDiscountModel theDiscountModel)
{
    return wordOf(DISCOUNT_MODELS, theDiscountModel);
}

QString VelshopWords::amount(int theAmount)
{
    return QStringLiteral("%1 cents").arg(theAmount);
}
