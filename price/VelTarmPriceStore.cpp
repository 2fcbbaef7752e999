#include "price/VelTarmPriceStore.h"

#include "frame/EnumHelper.h"
#include "frame/VelArithmetic.h"
#include "frame/VelChildElements.h"
#include "sibling/VelXMLParser.h"

namespace {

const QString STR_MODEL = QStringLiteral("model");

bool isIgnored(VelDiscountModel theModel)
{
    return theModel == DISCOUNT_MODEL_FUTURE_EXTENSION || theModel == DISCOUNT_MODEL_UNDEFINED;
}

bool isOrdered(const VelTarmPriceBand& theLeft, const VelTarmPriceBand& theRight)
{
    const int left = theLeft.sourceNumber();
    const int right = theRight.sourceNumber();
    return left != right ? left < right : rankOf(theLeft) < rankOf(theRight);
}

bool haveOneKey(const VelTarmPriceBand& theLeft, const VelTarmPriceBand& theRight)
{
    return theLeft.sourceNumber() == theRight.sourceNumber() && rankOf(theLeft) == rankOf(theRight);
}

} // namespace

// ---- queries

QList<VelInputSource> VelTarmPriceStore::inputSources(VelInputSource theInputSource)
{
    static const QList<VelInputSource> netAndCD{INPUT_SOURCE_NET, INPUT_SOURCE_CD}; // the kiosk must be named
    switch (theInputSource) {
    case INPUT_SOURCE_ANY:
        return netAndCD;
    case INPUT_SOURCE_NET:
    case INPUT_SOURCE_CD:
    case INPUT_SOURCE_KIOSK:
        return {theInputSource};
    default:
        return {};
    }
}

QList<VelDeliveryType> VelTarmPriceStore::deliveryTypes(VelDeliveryType theDeliveryType)
{
    static const QList<VelDeliveryType> posAndMail{DELIVERY_TYPE_POS, DELIVERY_TYPE_MAILORDER}; // on site must be named
    switch (theDeliveryType) {
    case DELIVERY_TYPE_ANY:
        return posAndMail;
    case DELIVERY_TYPE_POS:
    case DELIVERY_TYPE_MAILORDER:
    case DELIVERY_TYPE_ON_SITE:
        return {theDeliveryType};
    default:
        return {};
    }
}

VelOrderSource VelTarmPriceStore::orderSource(int theNumber)
{
    static const VelInputSource inputs[] = {INPUT_SOURCE_NET, INPUT_SOURCE_CD, INPUT_SOURCE_KIOSK};
    if (theNumber < 0 || theNumber >= ORDER_SOURCES)
        return {INPUT_SOURCE_UNKNOWN, DELIVERY_TYPE_UNKNOWN};
    return {inputs[theNumber / 3], static_cast<VelDeliveryType>(theNumber % 3)};
}

const VelTarmPriceBand* VelTarmPriceStore::find(const VelOrderSource& theSource, VelDiscountModel theModel,
                                                int theLevel) const
{
    const VelTarmPriceBands ofSource = bands(theSource);
    const qint64 rank = rankOf(theModel, theLevel);
    const auto isBefore = [](const VelTarmPriceBand& theBand, qint64 theRank) { return rankOf(theBand) < theRank; };
    const auto band = std::lower_bound(ofSource.begin(), ofSource.end(), rank, isBefore);
    return band != ofSource.end() && rankOf(*band) == rank ? band : nullptr;
}

VelTarmPriceValue* VelTarmPriceStore::valueAt(const VelOrderSource& theSource, VelDiscountModel theModel,
                                              int theLevel) const
{
    const VelTarmPriceBand* band = find(theSource, theModel, theLevel);
    return band ? &const_cast<VelTarmPriceBand*>(band)->value() : VelTarmPriceValue::invalidPrice();
}

int VelTarmPriceStore::lastCountOf(const VelOrderSource& theSource, VelDiscountModel theModel, int theLevel) const
{
    const VelTarmPriceBand* next = find(theSource, theModel, VelArithmetic::sum(theLevel, 1));
    return next ? VelArithmetic::difference(next->value().lowerLimit(), 1) : -1;
}

VelTransferModel VelTarmPriceStore::transferModel(const QDomElement& theEntry)
{
    if (!VelDiscountLimit::isTransferEntry(theEntry))
        return TRANSFER_MODEL_UNDEFINED;
    const QDomElement transfer = theEntry.parentNode().parentNode().toElement();
    const VelTransferModel model =
        EnumHelper::decodeTransferModel(VelXMLParser::attribute(transfer, STR_MODEL, QString()));
    return model == TRANSFER_MODEL_UNDEFINED ? TRANSFER_MODEL_1 : model;
}

// ---- reading

void VelTarmPriceStore::clear()
{
    myBands.clear();
    myBegins.fill(0);
    myModelBits = 0;
    myMaxDiscountLevel = 0;
    myTransferModel = TRANSFER_MODEL_UNDEFINED;
    myEntriesRead = 0;
}

void VelTarmPriceStore::readGroup(const QDomElement& theGroup)
{
    for (const QDomElement& entry : VelChildElements(theGroup))
        readEntry(entry);
}

void VelTarmPriceStore::readEntry(const QDomElement& theEntry)
{
    const int entry = myEntriesRead++;
    const VelTarmPriceValue value(theEntry);
    const VelDiscountModel model = value.discountModel();
    if (isIgnored(model)) // how a client that is older than its price list survives new models
        return;
    myModelBits |= 1U << static_cast<unsigned>(model);
    myTransferModel = transferModel(theEntry);
    myMaxDiscountLevel = qMax(myMaxDiscountLevel, value.discountLevel());
    const VelOrderSource written(theEntry);
    const QList<VelInputSource> inputs = inputSources(written.inputSource());
    const QList<VelDeliveryType> deliveries = deliveryTypes(written.deliveryType());
    for (const VelInputSource inputSource : inputs)
        for (const VelDeliveryType deliveryType : deliveries)
            myBands.emplace_back(numberOf({inputSource, deliveryType}), entry, value);
}

void VelTarmPriceStore::settle()
{
    keepLastOfEachKey();
    indexOrderSources();
    closeBands();
}

/// Of entries of one key the one that was read last holds.
void VelTarmPriceStore::keepLastOfEachKey()
{
    std::stable_sort(myBands.begin(), myBands.end(), isOrdered);
    const auto firstKept = std::unique(myBands.rbegin(), myBands.rend(), haveOneKey).base(); // backwards: the last stay
    myBands.erase(myBands.begin(), firstKept);
}

void VelTarmPriceStore::indexOrderSources()
{
    quint32 band = 0;
    for (int source = 0; source < ORDER_SOURCES + 2; ++source) {
        while (band < myBands.size() && myBands[band].sourceNumber() < source)
            ++band;
        myBegins[static_cast<std::size_t>(source)] = band;
    }
}

/// A band ends where the directly following level of its model begins; without one it stays open.
void VelTarmPriceStore::closeBands()
{
    for (VelTarmPriceBand& band : myBands)
        band.value().setUpperLimit(
            lastCountOf(orderSource(band.sourceNumber()), band.discountModel(), band.discountLevel()));
}
