#include "host/VelshopBillWords.h"

#include "bill/VelTarmOrderObjection.h"
#include "frame/VelExpressType.h"
#include "host/VelshopBillMoney.h"
#include "host/VelshopBillSheet.h"
#include "host/VelshopWords.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductAbstract.h"

#include <QDate>
#include <QLocale>

namespace {

/// The lines of a bill name an article as customers see it, too.
QString nameOf(const VelTarmOrderObjection& theObjection)
{
    if (theObjection.myProduct)
        return theObjection.myProduct->editorName() + QStringLiteral(": ");
    const bool hasGroup = theObjection.myGroup != VelTarmOrderObjection::NO_GROUP;
    const QString group =
        hasGroup ? VelTarmShippingGroupManager::instance()->shippingGroupName(theObjection.myGroup) : QString();
    return group.isEmpty() ? group : group + QStringLiteral(": ");
}

QString reason(const VelTarmOrderObjection& theObjection)
{
    switch (theObjection.myKind) {
    case VelTarmOrderObjection::OBJECTION_ORDER_SOURCE:
        return VelshopBillWords::tr("Auf diesem Weg nimmt der Shop keine Bestellungen an");
    case VelTarmOrderObjection::OBJECTION_PAYMENT:
        return VelshopBillWords::tr("Auf diesem Weg kann so nicht bezahlt werden");
    case VelTarmOrderObjection::OBJECTION_DEPRECATED:
        return VelshopBillWords::tr("nicht mehr lieferbar");
    case VelTarmOrderObjection::OBJECTION_NO_PRICE:
    case VelTarmOrderObjection::OBJECTION_PACKAGE_PIECES:
        return VelshopBillWords::tr("auf diesem Weg ohne Preis");
    case VelTarmOrderObjection::OBJECTION_NO_EXPRESS:
        return VelshopBillWords::tr("nicht als Express erhältlich");
    case VelTarmOrderObjection::OBJECTION_LIMIT:
        return VelshopBillWords::tr("%1 Stück, höchstens %2 können bestellt werden")
            .arg(theObjection.myNumber)
            .arg(theObjection.myLimit);
    default:
        return VelshopBillWords::tr("kann nicht bestellt werden");
    }
}

} // namespace

QString VelshopBillWords::today(const QString& theLanguage)
{
    //: how a date is written; d, MMMM and yyyy stand for day, name of the month and year
    return QLocale(theLanguage).toString(QDate::currentDate(), tr("d. MMMM yyyy"));
}

QString VelshopBillWords::ordered(VelInputSource theInputSource)
{
    switch (theInputSource) {
    case INPUT_SOURCE_NET:
        return tr("über das Internet");
    case INPUT_SOURCE_CD:
        return tr("auf CD");
    case INPUT_SOURCE_KIOSK:
        return tr("am Bestellgerät in der Filiale");
    default:
        return QString();
    }
}

QString VelshopBillWords::delivered(VelDeliveryType theDeliveryType)
{
    switch (theDeliveryType) {
    case DELIVERY_TYPE_POS:
        return tr("Abholung in der Filiale");
    case DELIVERY_TYPE_MAILORDER:
        return tr("per Post");
    case DELIVERY_TYPE_ON_SITE:
        return tr("gleich zum Mitnehmen");
    default:
        return QString();
    }
}

QString VelshopBillWords::payment(VelPaymentType thePayment)
{
    return VelshopWords::paymentName(thePayment);
}

/// The express types have no names of their own in the library.
QString VelshopBillWords::speed(const VelExpressType& theExpressType)
{
    switch (theExpressType.value()) {
    case ExpressableType_EXPRESS_1:
        return tr("Express");
    case ExpressableType_EXPRESS_2:
        return tr("Express, zweite Art");
    default:
        return theExpressType.humanReadableName();
    }
}

QString VelshopBillWords::coupon(const VelshopBillCoupon& theCoupon)
{
    if (!theCoupon.myIsValid)
        return tr("%1 (nicht gültig)").arg(theCoupon.myId);
    if (theCoupon.myIsSpent && theCoupon.myShares.isEmpty())
        return tr("%1 (zählt bei dieser Bestellung nicht)").arg(theCoupon.myId);
    if (theCoupon.myIsSpent && theCoupon.myType == COUPON_TYPE_VALUE)
        return tr("%1 (Rest: %2)").arg(theCoupon.myId, VelshopBillMoney::text(theCoupon.myLeft, false));
    return theCoupon.myId;
}

QStringList VelshopBillWords::notes(const VelshopBillLine& theLine)
{
    QStringList notes;
    if (theLine.myIsPackage)
        notes.append(tr("Paket mit %1 Stück").arg(theLine.myPieces));
    else if (theLine.myLevel != 0)
        notes.append(tr("Mengenpreis"));
    if (theLine.myOldPrice != -1)
        notes.append(tr("Angebot"));
    if (theLine.myDays == QLatin1String("1"))
        notes.append(tr("Lieferzeit 1 Tag"));
    else if (!theLine.myDays.isEmpty())
        notes.append(tr("Lieferzeit %1 Tage").arg(QString(theLine.myDays).replace(QLatin1Char('-'), QChar(0x2013))));
    return notes;
}

QString VelshopBillWords::problem(const VelTarmOrderObjection& theObjection)
{
    return nameOf(theObjection) + reason(theObjection);
}

QList<VelshopBillWords::Sum> VelshopBillWords::sums(const VelTarmOrderAmounts& theAmounts)
{
    QList<Sum> sums;
    const auto add = [&](const QString& theName, qint64 theAmount) {
        sums.append({theName, static_cast<int>(theAmount)});
    };
    add(tr("Waren"), theAmounts.myItems);
    add(tr("Versand"), theAmounts.myShipping);
    if (theAmounts.myPayment != 0)
        add(tr("Zahlungsgebühr"), theAmounts.myPayment);
    if (theAmounts.myCoupon != 0)
        add(tr("Gutschein"), theAmounts.myCoupon);
    if (theAmounts.myExpress != 0)
        add(tr("Express"), theAmounts.myExpress);
    add(tr("Zu zahlen"), theAmounts.myTotal);
    return sums;
}
