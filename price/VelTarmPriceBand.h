#ifndef VELTARMPRICEBAND_H
#define VELTARMPRICEBAND_H

#include "price/VelTarmPriceValue.h"

/**
 * One price entry of the document as it stands under one order source: the value, and which entry it was read from.
 * It lies in the store of its article and is valid until the article reads its next element.
 */
class VelTarmPriceBand
{
public:
    /// In place of an entry: no entry stands behind the band, and its value is the invalid one.
    static constexpr int NO_ENTRY = -1;

    /// The parts as they are given; the source is a number from 0 to 15 that the store gives to an order source.
    VelTarmPriceBand(int theSourceNumber, int theEntry, const VelTarmPriceValue& theValue)
        : myValue(theValue)
        , mySourceNumber(static_cast<quint32>(theSourceNumber) & SOURCE_MASK)
        , myEntry(static_cast<quint32>(theEntry) & ENTRY_MASK)
    {
    }

    /// The amounts, the limits, whether it is a package, and the offer.
    const VelTarmPriceValue& value() const { return myValue; }
    VelTarmPriceValue& value() { return myValue; }

    /// The discount model of the value.
    VelDiscountModel discountModel() const { return myValue.discountModel(); }
    /// The discount level of the value, 0 for the base price.
    int discountLevel() const { return myValue.discountLevel(); }
    /// The amount of the value in cents; -1 for no price.
    int price() const { return myValue.price(); }

    /// Which child element of `base_prices`, and going on behind its last one of `discount_prices`, the band was read
    /// from: counted from 0, whether the elements before it could be used or not. NO_ENTRY for none.
    int entry() const { return myEntry == ENTRY_MASK ? NO_ENTRY : static_cast<int>(myEntry); }

    /// The number that the store gave to the order source.
    int sourceNumber() const { return static_cast<int>(mySourceNumber); }

private:
    static constexpr quint32 SOURCE_MASK = 0xF;
    static constexpr quint32 ENTRY_MASK = 0xFFFFFFF; // no document has so many entries

    VelTarmPriceValue myValue;
    quint32 mySourceNumber : 4; // both in one word: there are very many bands
    quint32 myEntry : 28;
};

Q_DECLARE_TYPEINFO(VelTarmPriceBand, Q_MOVABLE_TYPE);

/// Bands that lie side by side, in rising order of their models and, within a model, of their levels. A view: it owns
/// nothing, and is valid for as long as its bands are.
class VelTarmPriceBands
{
public:
    /// The bands from the first up to the one before the end.
    VelTarmPriceBands(const VelTarmPriceBand* theBegin, const VelTarmPriceBand* theEnd)
        : myBegin(theBegin), myEnd(theEnd)
    {
    }

    /// The first band.
    const VelTarmPriceBand* begin() const { return myBegin; }
    /// Behind the last band.
    const VelTarmPriceBand* end() const { return myEnd; }

    /// Whether there is none.
    bool isEmpty() const { return myBegin == myEnd; }
    /// How many there are.
    int size() const { return static_cast<int>(myEnd - myBegin); }

private:
    const VelTarmPriceBand* myBegin;
    const VelTarmPriceBand* myEnd;
};

#endif
