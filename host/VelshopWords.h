#ifndef VELSHOPWORDS_H
#define VELSHOPWORDS_H

#include "frame/VelExpressType.h"
#include "frame/VelOrderSource.h"
#include "price/VelDiscountLimit.h"

#include <QJsonObject>
#include <QString>

/// The order desk's own words for the vocabulary of the library.
namespace VelshopWords {

/// NET, CD, KIOSK in any case; false for any other word.
bool readInputSource(const QString& theWord, VelInputSource& theInputSource);

/// POS, MAIL, ONSITE in any case; false for any other word.
bool readDeliveryType(const QString& theWord, VelDeliveryType& theDeliveryType);

/// As "NET, MAIL".
QString orderSource(const VelOrderSource& theOrderSource);

/// The same as data: `source` and `delivery`, each a word of the table.
QJsonObject orderSourceData(const VelOrderSource& theOrderSource);

/// As "express 1".
QString express(const VelExpressType& theExpressType);

/// The shop's name for the payment; null where it names none.
QString paymentName(VelPaymentType thePayment);

/// As "value", the word of the coupon's document; "unknown" for none.
QString couponType(VelCouponType theCouponType);

/// As "bulk".
QString discountModel(VelDiscountModel theDiscountModel);

/// As "book".
QString productClass(VelProductClass theProductClass);

/// As "posters".
QString productGroup(VelProductGroupEnum theProductGroup);

/// As "gallery".
QString imageExport(VelImageExportTypeEnum theImageExport);

/// As "25 to 49" or "from 100".
QString band(const VelDiscountLimit& theLimit);

/// The same as data: "from", and "to" where the band ends.
void insertBand(QJsonObject& theJson, const VelDiscountLimit& theLimit);

/// As "1 piece", "12 pieces".
QString pieces(qint64 theCount);

/// A number of which -1 means that there is none.
QString limit(int theNumber);

/// Whole cents in the primary currency with its symbol.
QString money(int theAmount);

} // namespace VelshopWords

#endif
