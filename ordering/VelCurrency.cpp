#include "ordering/VelCurrency.h"

#include "sibling/VelXMLParser.h"

#include <QDebug>

namespace {

const QString STR_NAME = QStringLiteral("name");
const QString STR_SYMBOL_HTML = QStringLiteral("symbolHTML");
const QString STR_ISO_CODE = QStringLiteral("isocode");
const QString STR_DECIMAL_SEP = QStringLiteral("decimalsep");
const QString STR_SYMBOL_IN_FRONT = QStringLiteral("symbolinfront");
const QString STR_DECIMAL_PLACES = QStringLiteral("decimalplaces");
const QString STR_SYMBOL = QStringLiteral("symbol");

const QString STR_DEFAULT_NAME = QStringLiteral("Euro");
const QString STR_DEFAULT_SYMBOL_HTML = QStringLiteral("&euro;");
const QString STR_DEFAULT_DECIMAL_SEP = QStringLiteral(",");

/// The euro sign by its code point: a byte in the local encoding is the euro sign on some systems only.
const QString STR_DEFAULT_SYMBOL = QString(QChar(0x20AC));

/// The absolute value; unsigned, so that the most negative int has one too.
uint magnitude(int theAmount)
{
    return theAmount < 0 ? 0u - static_cast<uint>(theAmount) : static_cast<uint>(theAmount);
}

} // namespace

VelCurrency::VelCurrency(const QDomElement& theElement)
{
    myGenericName = VelXMLParser::text(theElement, STR_NAME, STR_DEFAULT_NAME);
    mySymbolHTML = VelXMLParser::text(theElement, STR_SYMBOL_HTML, STR_DEFAULT_SYMBOL_HTML);
    myIsoCode = VelXMLParser::attribute(theElement, STR_ISO_CODE, QString());
    myDecimalSep = VelXMLParser::text(theElement, STR_DECIMAL_SEP, STR_DEFAULT_DECIMAL_SEP);
    mySymbolInFront = VelXMLParser::boolText(theElement, STR_SYMBOL_IN_FRONT, false);
    myDecimalPlaces = VelXMLParser::intText(theElement, STR_DECIMAL_PLACES, 2);
    mySymbol = VelXMLParser::text(theElement, STR_SYMBOL, STR_DEFAULT_SYMBOL);
    if (myIsoCode.isEmpty())
        qWarning("VelCurrency::VelCurrency found currency without isocode");
}

QString VelCurrency::symbolHTML() const
{
    return mySymbolHTML.isNull() ? mySymbol : mySymbolHTML;
}

QString VelCurrency::symbol(bool theHtml) const
{
    return theHtml ? symbolHTML() : symbol();
}

QString VelCurrency::formatedMain(int theAmount) const
{
    const QString sign = theAmount < 0 ? QStringLiteral("-") : QString();
    return sign + QString::number(magnitude(theAmount) / 100);
}

/// Negative places keep the separator, though no digit follows it; that is meant.
QString VelCurrency::formatedSeparator() const
{
    return myDecimalPlaces == 0 ? QStringLiteral("") : myDecimalSep;
}

/// Only two places pad, so that 12.05 prints as "12,5" with one place or three; that is meant.
QString VelCurrency::formatedFraction(int theAmount) const
{
    if (myDecimalPlaces < 1)
        return QString();
    const uint hundredths = magnitude(theAmount) % 100;
    const QString padding = hundredths <= 9 && myDecimalPlaces == 2 ? QStringLiteral("0") : QString();
    return padding + QString::number(hundredths).left(myDecimalPlaces);
}

QString VelCurrency::format(int theAmount, bool theHtml, bool theWithSymbol) const
{
    const QString number = formatedMain(theAmount) + formatedSeparator() + formatedFraction(theAmount);
    if (!theWithSymbol)
        return number;
    return mySymbolInFront ? symbol(theHtml) + QLatin1Char(' ') + number : number + QLatin1Char(' ') + symbol(theHtml);
}
