#ifndef VELCURRENCYCONFIG_H
#define VELCURRENCYCONFIG_H

#include "frame/VelTarmExport.h"
#include "sibling/VelXMLConfig.h"

#include <QMap>
#include <QString>

class VelCurrency;

/**
 * The currencies of `currencies.xml`, and which two of them the key account uses. Prints every amount that a customer
 * reads. Amounts are whole hundredths of the main unit of the primary currency.
 *
 * Built once and never read again: the currencies of the first key account stay in force after a change of key account,
 * while the factor is always that of the current one.
 */
class VELTARM_EXPORT VelCurrencyConfig : public VelXMLConfig
{
    Q_OBJECT

public:
    /// Built on first use without a lock; never deleted. Ends the program when `currencies.xml` holds no currency.
    static VelCurrencyConfig* instance();

    /// The secondary currency when it is asked for and there is one, otherwise the primary; null when the file doesn't
    /// hold that one. Owned by the configuration, alive for ever.
    VelCurrency* currency(bool theSecondary) const;

    /// The currency of an ISO code; null, with a warning, for an unknown one.
    VelCurrency* currency(const QString& theIsoCode) const;

    /// A literal would be taken for the flag.
    VelCurrency* currency(const char* theIsoCode) const = delete;

    /// These are null without a primary currency.
    QString currencySymbol(bool theHtml, bool theSecondary) const;

    /// Mind the order of the flags: VelCurrency::format() takes the one for the symbol last. A secondary amount is the
    /// amount times the key account's factor, cut towards zero (999 and -999 at 0.5 give 499 and -499), the most
    /// negative int where that is beyond an int. The factor counts without a secondary currency, too.
    QString fullText(int theAmount, bool theWithSymbol, bool theHtml, bool theSecondary) const;

    /// The bare number.
    QString text(int theAmount, bool theSecondary) const;

private:
    VelCurrencyConfig();

    QMap<QString, VelCurrency*> myCurrencies; ///< all of the file, by ISO code
    VelCurrency* myPrimary = nullptr;
    VelCurrency* mySecondary = nullptr;
};

#endif
