#ifndef VELSHOPBILLWORDS_H
#define VELSHOPBILLWORDS_H

#include "bill/VelTarmOrderAmounts.h"
#include "frame/VelEnumerations.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

class VelExpressType;
class VelTarmOrder;
struct VelTarmOrderObjection;
struct VelshopBillCoupon;
struct VelshopBillLine;

/// What a customer reads on a bill, in the installed language; the texts stand in German.
class VelshopBillWords
{
    Q_DECLARE_TR_FUNCTIONS(VelshopBillWords)

public:
    /// Today, as "24. Dezember 2026"; the language is "de" or "en".
    static QString today(const QString& theLanguage);
    /// How the order comes in, as "über das Internet".
    static QString ordered(VelInputSource theInputSource);
    /// How the goods go out, as "per Post".
    static QString delivered(VelDeliveryType theDeliveryType);
    /// The payment's name in the ordering details.
    static QString payment(VelPaymentType thePayment);
    static QString speed(const VelExpressType& theExpressType);
    /// The coupon's code, and what the amounts don't tell of it.
    static QString coupon(const VelshopBillCoupon& theCoupon);
    /// What is special about a line's price, and when the article comes.
    static QStringList notes(const VelshopBillLine& theLine);
    /// Why an order can't be placed, naming the article.
    static QString problem(const VelTarmOrderObjection& theObjection);

    struct Sum
    {
        QString myName;
        int myAmount; ///< cents
    };
    /// Articles, shipping and total always, fees and coupon where there are any.
    static QList<Sum> sums(const VelTarmOrderAmounts& theAmounts);
};

#endif
