#include "insight/VelPriceWords.h"

#include "frame/VelOrderSource.h"
#include "price/VelTarmPriceAnswer.h"
#include "product/VelProductAbstract.h"

namespace {

struct Word
{
    int myValue;
    const char* myText;
};

const Word MODELS[] = {{DISCOUNT_MODEL_BULK, "bulk"},
                       {DISCOUNT_MODEL_LEVEL_PACKAGE, "level package"},
                       {DISCOUNT_MODEL_PACKAGE, "package"},
                       {DISCOUNT_MODEL_BULK_TRANSFER, "shipping by quantity"},
                       {DISCOUNT_MODEL_BILLING_SUM_TRANSFER, "shipping by bill sum"},
                       {DISCOUNT_MODEL_TRANSFER_2, "shipping by products"},
                       {DISCOUNT_MODEL_EXPRESS_FEE, "express fee"},
                       {DISCOUNT_MODEL_INHERITED_DISCOUNT, "inherited discount"}};
const Word INPUT_SOURCES[] = {
    {INPUT_SOURCE_NET, "NET"}, {INPUT_SOURCE_CD, "CD"}, {INPUT_SOURCE_KIOSK, "KIOSK"}, {INPUT_SOURCE_ANY, "ANY"}};
const Word DELIVERY_TYPES[] = {{DELIVERY_TYPE_POS, "POS"},
                               {DELIVERY_TYPE_MAILORDER, "MAIL"},
                               {DELIVERY_TYPE_ON_SITE, "ONSITE"},
                               {DELIVERY_TYPE_ANY, "ANY"}};

template <typename Words>
QString wordOf(const Words& theWords, int theValue)
{
    for (const Word& word : theWords)
        if (word.myValue == theValue)
            return QLatin1String(word.myText);
    return QStringLiteral("no. %1").arg(theValue);
}

} // namespace

QString VelPriceWords::model(VelDiscountModel theModel)
{
    return wordOf(MODELS, theModel);
}

QString VelPriceWords::orderSource(const VelOrderSource& theSource)
{
    return wordOf(INPUT_SOURCES, theSource.inputSource()) + QStringLiteral(", ") +
           wordOf(DELIVERY_TYPES, theSource.deliveryType());
}

QString VelPriceWords::counted(qint64 theCount, const QString& theWord)
{
    const QString text = QStringLiteral("%1 %2").arg(QString::number(theCount), theWord);
    return theCount == 1 ? text : text + QLatin1Char('s');
}

QString VelPriceWords::product(const VelProductAbstract& theProduct)
{
    return QStringLiteral("%1 %2").arg(theProduct.articleID()).arg(theProduct.name());
}

QString VelPriceWords::band(const VelTarmPriceBand& theBand)
{
    const VelTarmPriceValue& value = theBand.value();
    return value.upperLimit() == -1 ? QStringLiteral("from %1").arg(value.lowerLimit())
                                    : QStringLiteral("%1 to %2").arg(value.lowerLimit()).arg(value.upperLimit());
}

QString VelPriceWords::charges(const VelTarmPriceAnswer& theAnswer)
{
    QStringList charges;
    for (const VelTarmPriceCharge& charge : theAnswer)
        charges.append(QStringLiteral("%1 x %2").arg(charge.myUnits).arg(charge.myBand->price()));
    return charges.join(QStringLiteral(" + "));
}

QString VelPriceWords::list(const QStringList& theWords)
{
    if (theWords.size() < 2)
        return theWords.value(0);
    return theWords.mid(0, theWords.size() - 1).join(QStringLiteral("; ")) + QStringLiteral(" and ") + theWords.last();
}
