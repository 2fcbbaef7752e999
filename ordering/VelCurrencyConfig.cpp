#include "ordering/VelCurrencyConfig.h"

#include "frame/VelArithmetic.h"
#include "frame/VelChildElements.h"
#include "ordering/VelCurrency.h"
#include "ordering/VelOrderingDetails.h"

#include <QDebug>

namespace {

const QString STR_CURRENCIES_FILE = QStringLiteral("currencies.xml");

int inSecondaryCurrency(int theAmount)
{
    return VelArithmetic::truncated(theAmount * VelOrderingDetails::instance()->secondaryCurrencyFactor());
}

} // namespace

VelCurrencyConfig* VelCurrencyConfig::instance()
{
    static VelCurrencyConfig* config = nullptr;
    if (!config)
        config = new VelCurrencyConfig;
    return config;
}

/// Of two currencies of one code the later counts; the earlier one stays alive.
VelCurrencyConfig::VelCurrencyConfig() : VelXMLConfig(STR_CURRENCIES_FILE)
{
    for (const QDomElement& element : VelChildElements(documentElement())) {
        auto* currency = new VelCurrency(element);
        myCurrencies.insert(currency->isoCode(), currency);
    }
    if (myCurrencies.isEmpty()) // no entry is built, whatever the text says
        qFatal("VelCurrencyConfig::VelCurrencyConfig() no currencies defined, building default entry");
    const VelOrderingDetails* details = VelOrderingDetails::instance();
    myPrimary = myCurrencies.value(details->currency(), nullptr);
    if (details->hasSecondaryCurrency())
        mySecondary = myCurrencies.value(details->secondaryCurrency(), nullptr);
}

VelCurrency* VelCurrencyConfig::currency(bool theSecondary) const
{
    return theSecondary && mySecondary ? mySecondary : myPrimary;
}

VelCurrency* VelCurrencyConfig::currency(const QString& theIsoCode) const
{
    VelCurrency* currency = myCurrencies.value(theIsoCode, nullptr);
    if (!currency)
        qWarning("unknown currency: '%s'", theIsoCode.toLocal8Bit().constData());
    return currency;
}

QString VelCurrencyConfig::currencySymbol(bool theHtml, bool theSecondary) const
{
    const VelCurrency* shown = currency(theSecondary);
    return shown ? shown->symbol(theHtml) : QString();
}

/// Doesn't ask whether there is a secondary currency before it multiplies: that is meant, the factor is 1.0 without
/// one.
QString VelCurrencyConfig::fullText(int theAmount, bool theWithSymbol, bool theHtml, bool theSecondary) const
{
    const int amount = theSecondary ? inSecondaryCurrency(theAmount) : theAmount;
    const VelCurrency* shown = currency(theSecondary);
    return shown ? shown->format(amount, theHtml, theWithSymbol) : QString();
}

QString VelCurrencyConfig::text(int theAmount, bool theSecondary) const
{
    return fullText(theAmount, false, false, theSecondary);
}
