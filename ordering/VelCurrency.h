#ifndef VELCURRENCY_H
#define VELCURRENCY_H

#include "frame/VelTarmExport.h"

#include <QDomElement>
#include <QString>

/**
 * How one currency looks, as an element of `currencies.xml` says it, and how an amount is printed in it. Each field
 * that the element leaves out has the euro's value. Amounts are whole hundredths of the main unit, whatever the decimal
 * places.
 */
class VELTARM_EXPORT VelCurrency
{
public:
    /// Warns when the ISO code is missing or empty.
    explicit VelCurrency(const QDomElement& theElement);

    /// `symbolinfront`, default false.
    bool symbolInFront() const { return mySymbolInFront; }

    /// `decimalplaces`, default 2; any int.
    int decimalPlaces() const { return myDecimalPlaces; }

    /// `name`, default "Euro".
    QString genericName() const { return myGenericName; }

    /// The attribute `isocode`, null when missing.
    QString isoCode() const { return myIsoCode; }

    /// `decimalsep`, default ",".
    QString decimalSep() const { return myDecimalSep; }

    /// `symbol`, default U+20AC.
    QString symbol() const { return mySymbol; }

    /// `symbolHTML`, default "&euro;". The plain symbol in place of a null text, but not of an empty one.
    QString symbolHTML() const;

    /// symbolHTML() or symbol().
    QString symbol(bool theHtml) const;

    /// The whole units, behind a minus sign when the amount is negative (-50 gives "-0"). Nothing groups the digits.
    QString formatedMain(int theAmount) const;

    /// The empty text when the decimal places are exactly 0.
    QString formatedSeparator() const;

    /// The first digits of the hundredths, as many as there are decimal places; null for less than one place. They are
    /// cut and never rounded, and padded with 0 only for exactly two places: 1205 gives "5" with one place or three.
    QString formatedFraction(int theAmount) const;

    /// The amount, with theWithSymbol the symbol and one blank behind or in front of it: "-12,34 €", "€ -12,34".
    QString format(int theAmount, bool theHtml, bool theWithSymbol) const;

private:
    QString mySymbol;
    QString myGenericName;
    QString mySymbolHTML;
    QString myIsoCode;
    QString myDecimalSep;
    bool mySymbolInFront;
    int myDecimalPlaces;
};

#endif
