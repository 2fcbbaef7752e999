#ifndef VELTARMPRICESTORE_H
#define VELTARMPRICESTORE_H

#include "frame/VelOrderSource.h"
#include "price/VelTarmPriceBand.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <vector>

/**
 * The price entries of one article. Each entry of the document stands under every order source that it spans, as a band
 * of its own, at its level and model; none of these is wild. The bands lie in one block, sorted by order source, model
 * and level, so that a rule finds those of a model side by side.
 *
 * Entries are read one by one and stand in the store after settle().
 */
class VelTarmPriceStore
{
    Q_DISABLE_COPY(VelTarmPriceStore)

public:
    /// The order sources that prices can stand under: net, CD and kiosk, each to a shop, by mail and on site.
    static constexpr int ORDER_SOURCES = 9;

    /// Decoded models are OR-ed from the values up to 9 and so stay below this.
    static constexpr int MODEL_BOUND = 16;

    VelTarmPriceStore() = default;

    void clear();

    /// Reads every child element of a group, whatever its tag.
    void readGroup(const QDomElement& theGroup);

    /// Reads one entry. An entry of a model that this version doesn't know is dropped without a word.
    void readEntry(const QDomElement& theEntry);

    /// Makes what was read the content of the store: the last entry of each key, indexed by order source, with right
    /// upper limits. Once for all entries rather than after each: very many entries must not take for ever.
    void settle();
    void releaseSpareMemory() { myBands.shrink_to_fit(); }

    /// All bands, those of an order source, and the levels from 0 up of one of its models.
    VelTarmPriceBands bands() const { return {myBands.data(), myBands.data() + myBands.size()}; }
    VelTarmPriceBands bands(const VelOrderSource& theSource) const;
    VelTarmPriceBands bands(const VelOrderSource& theSource, VelDiscountModel theModel) const;
    static VelTarmPriceBands levelsOf(VelDiscountModel theModel, const VelTarmPriceBands& theBandsOfOneSource);

    /// The value at exactly that place, the invalid one when there is none; never null. Even a reader may change it.
    VelTarmPriceValue* valueAt(const VelOrderSource& theSource, VelDiscountModel theModel, int theLevel) const;

    /// One less than where the next level begins; -1 without a next level.
    int lastCountOf(const VelOrderSource& theSource, VelDiscountModel theModel, int theLevel) const;

    /// The models that occur in entries, as bits: bit n for the model n. A model may have no band at all, where its
    /// entries name an unknown order source.
    unsigned modelBits() const { return myModelBits; }

    /// The highest level in the document, 0 for none.
    int maxDiscountLevel() const { return myMaxDiscountLevel; }

    /// That of the entry last read; TRANSFER_MODEL_UNDEFINED when none was.
    VelTransferModel transferModel() const { return myTransferModel; }

    /// TRANSFER_MODEL_UNDEFINED but for entries of a `transfer`: there what its `model` says, and 1 for all unknowns.
    static VelTransferModel transferModel(const QDomElement& theEntry);

    /// What an entry's source stands for: ANY for net and CD, each of the three for itself, all else for nothing.
    static QList<VelInputSource> inputSources(VelInputSource theInputSource);

    /// ANY stands for point of sale and mail order, each of the three for itself, all else for nothing.
    static QList<VelDeliveryType> deliveryTypes(VelDeliveryType theDeliveryType);

    /// The number of an order source, in rising order of the sources that prices can stand under. All others share the
    /// number ORDER_SOURCES, under which there is never a price.
    static int numberOf(const VelOrderSource& theSource);
    static VelOrderSource orderSource(int theNumber);

private:
    const VelTarmPriceBand* find(const VelOrderSource& theSource, VelDiscountModel theModel, int theLevel) const;
    void keepLastOfEachKey();
    void indexOrderSources();
    void closeBands();

    std::vector<VelTarmPriceBand> myBands;
    std::array<quint32, ORDER_SOURCES + 2> myBegins{}; ///< where each order source begins, and the end twice
    unsigned myModelBits = 0;
    int myMaxDiscountLevel = 0;
    VelTransferModel myTransferModel = TRANSFER_MODEL_UNDEFINED;
    int myEntriesRead = 0;
};

// ---- what each price is searched with, in reach of the compiler

inline int VelTarmPriceStore::numberOf(const VelOrderSource& theSource)
{
    const int delivery = theSource.deliveryType();
    if (delivery < DELIVERY_TYPE_POS || delivery > DELIVERY_TYPE_ON_SITE)
        return ORDER_SOURCES;
    switch (theSource.inputSource()) {
    case INPUT_SOURCE_NET:
        return delivery;
    case INPUT_SOURCE_CD:
        return 3 + delivery;
    case INPUT_SOURCE_KIOSK:
        return 6 + delivery;
    default:
        return ORDER_SOURCES;
    }
}

/// Model and level as one number, by which the bands of an order source are sorted.
inline qint64 rankOf(VelDiscountModel theModel, int theLevel)
{
    return static_cast<qint64>(theModel) * (Q_INT64_C(1) << 32) + theLevel;
}

inline qint64 rankOf(const VelTarmPriceBand& theBand)
{
    return rankOf(theBand.discountModel(), theBand.discountLevel());
}

inline VelTarmPriceBands VelTarmPriceStore::bands(const VelOrderSource& theSource) const
{
    const auto number = static_cast<std::size_t>(numberOf(theSource));
    return {myBands.data() + myBegins[number], myBands.data() + myBegins[number + 1]};
}

inline VelTarmPriceBands VelTarmPriceStore::bands(const VelOrderSource& theSource, VelDiscountModel theModel) const
{
    return levelsOf(theModel, bands(theSource));
}

inline VelTarmPriceBands VelTarmPriceStore::levelsOf(VelDiscountModel theModel, const VelTarmPriceBands& theBands)
{
    const qint64 lowest = rankOf(theModel, 0);
    const qint64 highest = rankOf(theModel, std::numeric_limits<int>::max());
    if (theBands.isEmpty() || (rankOf(*theBands.begin()) >= lowest && rankOf(*(theBands.end() - 1)) <= highest))
        return theBands; // most articles have one model
    const auto isBefore = [](const VelTarmPriceBand& theBand, qint64 theRank) { return rankOf(theBand) < theRank; };
    const auto begin = std::lower_bound(theBands.begin(), theBands.end(), lowest, isBefore);
    return {begin, std::lower_bound(begin, theBands.end(), highest + 1, isBefore)};
}

#endif
