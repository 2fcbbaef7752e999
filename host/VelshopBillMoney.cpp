#include "host/VelshopBillMoney.h"

#include "ordering/VelCurrency.h"
#include "ordering/VelCurrencyConfig.h"
#include "ordering/VelOrderingDetails.h"

#include <QRegularExpression>
#include <QVector>

#include <cmath>
#include <limits>

namespace {

QString numbered(const QString& theText)
{
    QString references;
    for (const uint code : theText.toUcs4())
        references += QStringLiteral("&#%1;").arg(code);
    return references;
}

} // namespace

bool VelshopBillMoney::hasSecondary()
{
    const VelCurrencyConfig* config = VelCurrencyConfig::instance();
    return config->currency(true) != config->currency(false) &&
           std::isfinite(VelOrderingDetails::instance()->secondaryCurrencyFactor());
}

bool VelshopBillMoney::fits(qint64 theAmount)
{
    const double highest = std::numeric_limits<int>::max();
    const double factor = hasSecondary() ? VelOrderingDetails::instance()->secondaryCurrencyFactor() : 1.0;
    const double amount = static_cast<double>(theAmount);
    return std::fabs(amount) <= highest && std::fabs(amount * factor) <= highest;
}

QString VelshopBillMoney::code(bool theSecondary)
{
    return VelCurrencyConfig::instance()->currency(theSecondary)->isoCode();
}

QString VelshopBillMoney::text(int theAmount, bool theSecondary)
{
    return VelCurrencyConfig::instance()->fullText(theAmount, true, false, theSecondary);
}

QString VelshopBillMoney::html(int theAmount, bool theSecondary)
{
    static const QRegularExpression name(QStringLiteral("^&[A-Za-z][A-Za-z0-9]*;$"));
    const VelCurrencyConfig* config = VelCurrencyConfig::instance();
    const QString symbol = config->currencySymbol(true, theSecondary);
    QString amount = config->fullText(theAmount, true, true, theSecondary);
    if (name.match(symbol).hasMatch())
        amount.replace(symbol, numbered(config->currencySymbol(false, theSecondary)));
    return amount;
}
