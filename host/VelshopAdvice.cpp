#include "host/VelshopAdvice.h"

#include "host/VelshopWords.h"
#include "insight/VelPriceCurve.h"

QString VelshopAdvice::text() const
{
    return QStringLiteral("%1 pieces cost %2 less than these %3")
        .arg(QString::number(myBetter), VelshopWords::money(mySaves), QString::number(myCount));
}

VelshopAdvice adviceFor(const VelProductAbstract* theProduct, int theCount, const VelOrderSource& theSource,
                        int theInheritedLevel)
{
    VelPriceCurve::Range range;
    range.myFrom = theCount;
    range.myTo = VelPriceCurve::telling(*theProduct, theSource, VelPriceCurve::BY_QUANTITY);
    range.myInheritedLevel = theInheritedLevel;
    range.myReading = VelPriceCurve::AS_SOLD;
    const VelPriceCurve curve(*theProduct, theSource, range);
    const QVector<VelPriceDip> dips = curve.dips();
    VelshopAdvice advice{theProduct, theCount, 0, 0};
    if (dips.isEmpty() || dips.first().myFrom != theCount)
        return advice;
    advice.myBetter = dips.first().myBetter;
    advice.mySaves = curve.total(theCount) - curve.total(advice.myBetter);
    return advice;
}
