#include "insight/VelShopSnapshot.h"

#include "insight/VelShopFees.h"
#include "insight/VelShopReading.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

#include <algorithm>
#include <tuple>

namespace {

const quint32 MAGIC = 0x56534e50; // VSNP
const quint32 FORMAT = 1;

// ---- entries

VelShopEntry::Kind kindOf(VelShopFees::Kind theKind)
{
    switch (theKind) {
    case VelShopFees::FEE_TRANSFER:
        return VelShopEntry::TRANSFER;
    case VelShopFees::FEE_PAYMENT:
        return VelShopEntry::PAYMENT_FEE;
    default:
        return VelShopEntry::EXPRESS_FEE;
    }
}

VelShopEntry entryOf(const VelProductAbstract& theProduct, VelShopEntry::Kind theKind, VelDiscountModel theKeyModel)
{
    VelShopEntry entry;
    entry.myKind = theKind;
    entry.myArticle = theProduct.articleID();
    entry.myName = theProduct.name();
    entry.myIsByProducts = theProduct.transferModel() == TRANSFER_MODEL_2;
    entry.myFields = VelShopReading::fields(theProduct, theKind);
    entry.myTotals = VelShopReading::totals(theProduct, theKeyModel);
    return entry;
}

VelShopEntry productEntry(const VelProductAbstract& theProduct)
{
    return entryOf(theProduct, theProduct.isAddOn() ? VelShopEntry::ADD_ON : VelShopEntry::ARTICLE,
                   DISCOUNT_MODEL_UNDEFINED);
}

VelShopEntry feeEntry(const VelShopFees::Fee& theFee)
{
    VelShopEntry entry = entryOf(*theFee.myProduct, kindOf(theFee.myKind), VelShopFees::keyModel(theFee.myKind));
    entry.myGroup = theFee.myGroup;
    entry.myPayment = theFee.myPayment;
    entry.myExpress = theFee.myExpress;
    return entry;
}

// ---- carts

VelShopTerm termOf(const VelExplainedTerm& theTerm)
{
    return {theTerm.myKind,   theTerm.myGroup,    theTerm.myArticle,  theTerm.myName,  theTerm.myCount,
            theTerm.myAmount, theTerm.myHasPrice, theTerm.myComputed, theTerm.myReason};
}

// ---- streams

template <typename Enum>
void readEnum(QDataStream& theStream, Enum& theValue)
{
    qint32 number = 0;
    theStream >> number;
    theValue = static_cast<Enum>(number);
}

template <typename Number>
qint32 number(Number theNumber)
{
    return static_cast<qint32>(theNumber);
}

} // namespace

// Argument-dependent lookup has to find these where the vectors are streamed, so they stand outside.

static QDataStream& operator<<(QDataStream& theStream, const VelShopPlace& thePlace)
{
    const bool isSomewhere = !(thePlace == VelShopPlace());
    theStream << isSomewhere;
    if (isSomewhere)
        theStream << thePlace.myElement << number(thePlace.myId) << number(thePlace.myInputSource)
                  << number(thePlace.myDeliveryType) << number(thePlace.myExpressType)
                  << number(thePlace.myDiscountModel) << number(thePlace.myDiscountLevel);
    return theStream;
}

static QDataStream& operator>>(QDataStream& theStream, VelShopPlace& thePlace)
{
    bool isSomewhere = false;
    theStream >> isSomewhere;
    if (!isSomewhere)
        return theStream;
    theStream >> thePlace.myElement >> thePlace.myId;
    readEnum(theStream, thePlace.myInputSource);
    readEnum(theStream, thePlace.myDeliveryType);
    readEnum(theStream, thePlace.myExpressType);
    readEnum(theStream, thePlace.myDiscountModel);
    return theStream >> thePlace.myDiscountLevel;
}

static QDataStream& operator<<(QDataStream& theStream, const VelShopField& theField)
{
    return theStream << theField.myName << theField.myPlace << theField.myValue << theField.myIsOrder;
}

static QDataStream& operator>>(QDataStream& theStream, VelShopField& theField)
{
    return theStream >> theField.myName >> theField.myPlace >> theField.myValue >> theField.myIsOrder;
}

static QDataStream& operator<<(QDataStream& theStream, const VelTotalsRun& theRun)
{
    return theStream << theRun.myFrom << theRun.myTo << theRun.myFirst << theRun.myPerPiece;
}

static QDataStream& operator>>(QDataStream& theStream, VelTotalsRun& theRun)
{
    return theStream >> theRun.myFrom >> theRun.myTo >> theRun.myFirst >> theRun.myPerPiece;
}

static QDataStream& operator<<(QDataStream& theStream, const VelShopTotals& theTotals)
{
    return theStream << number(theTotals.mySource.inputSource()) << number(theTotals.mySource.deliveryType())
                     << number(theTotals.myVariable) << theTotals.myLevel << theTotals.myRuns;
}

static QDataStream& operator>>(QDataStream& theStream, VelShopTotals& theTotals)
{
    VelInputSource input = INPUT_SOURCE_UNKNOWN;
    VelDeliveryType delivery = DELIVERY_TYPE_UNKNOWN;
    readEnum(theStream, input);
    readEnum(theStream, delivery);
    theTotals.mySource = VelOrderSource(input, delivery);
    readEnum(theStream, theTotals.myVariable);
    return theStream >> theTotals.myLevel >> theTotals.myRuns;
}

static QDataStream& operator<<(QDataStream& theStream, const VelShopEntry& theEntry)
{
    return theStream << number(theEntry.myKind) << theEntry.myArticle << theEntry.myGroup << number(theEntry.myPayment)
                     << number(theEntry.myExpress) << theEntry.myName << theEntry.myIsByProducts << theEntry.myFields
                     << theEntry.myTotals;
}

static QDataStream& operator>>(QDataStream& theStream, VelShopEntry& theEntry)
{
    readEnum(theStream, theEntry.myKind);
    theStream >> theEntry.myArticle >> theEntry.myGroup;
    readEnum(theStream, theEntry.myPayment);
    readEnum(theStream, theEntry.myExpress);
    return theStream >> theEntry.myName >> theEntry.myIsByProducts >> theEntry.myFields >> theEntry.myTotals;
}

static QDataStream& operator<<(QDataStream& theStream, const VelShopTerm& theTerm)
{
    return theStream << number(theTerm.myKind) << theTerm.myGroup << theTerm.myArticle << theTerm.myName
                     << theTerm.myCount << theTerm.myAmount << theTerm.myHasPrice << theTerm.myComputed
                     << theTerm.myReason;
}

static QDataStream& operator>>(QDataStream& theStream, VelShopTerm& theTerm)
{
    readEnum(theStream, theTerm.myKind);
    return theStream >> theTerm.myGroup >> theTerm.myArticle >> theTerm.myName >> theTerm.myCount >> theTerm.myAmount >>
           theTerm.myHasPrice >> theTerm.myComputed >> theTerm.myReason;
}

static QDataStream& operator<<(QDataStream& theStream, const VelShopCart& theCart)
{
    return theStream << theCart.myName << theCart.myReason << theCart.myTotal << theCart.myTerms;
}

static QDataStream& operator>>(QDataStream& theStream, VelShopCart& theCart)
{
    return theStream >> theCart.myName >> theCart.myReason >> theCart.myTotal >> theCart.myTerms;
}

QDataStream& operator<<(QDataStream& theStream, const VelShopSnapshot& theSnapshot)
{
    return theStream << MAGIC << FORMAT << theSnapshot.myEntries << theSnapshot.myConditions << theSnapshot.myCarts;
}

QDataStream& operator>>(QDataStream& theStream, VelShopSnapshot& theSnapshot)
{
    quint32 magic = 0;
    quint32 format = 0;
    theStream >> magic >> format;
    theSnapshot = VelShopSnapshot();
    if (magic != MAGIC || format != FORMAT) {
        theStream.setStatus(QDataStream::ReadCorruptData);
        return theStream;
    }
    return theStream >> theSnapshot.myEntries >> theSnapshot.myConditions >> theSnapshot.myCarts;
}

bool VelShopEntry::isBefore(const VelShopEntry& theOther) const
{
    const auto key = [](const VelShopEntry& theEntry) {
        const int kind = theEntry.isFee() ? theEntry.myKind : ARTICLE; // articles and add-ons share their ids
        const int id = theEntry.isFee() ? 0 : theEntry.myArticle;
        return std::make_tuple(kind, id, theEntry.myGroup, theEntry.myPayment, theEntry.myExpress);
    };
    return key(*this) < key(theOther);
}

bool VelShopTerm::isSameAs(const VelShopTerm& theOther) const
{
    const bool isItem = myKind == VelExplainedTerm::ITEM;
    const bool isCoupon = myKind == VelExplainedTerm::COUPON;
    return myKind == theOther.myKind && myGroup == theOther.myGroup && (!isItem || myArticle == theOther.myArticle) &&
           (!isCoupon || myName == theOther.myName);
}

VelShopSnapshot VelShopSnapshot::taken()
{
    VelShopSnapshot snapshot;
    const VelProductList products = VelProductRegistry::instance()->productList();
    snapshot.myEntries.reserve(products.size());
    for (const VelProductAbstract* product : products)
        if (!product->isDeprecated())
            snapshot.myEntries.append(productEntry(*product));
    for (const VelShopFees::Fee& fee : VelShopFees::all())
        if (fee.myProduct)
            snapshot.myEntries.append(feeEntry(fee));
    std::sort(snapshot.myEntries.begin(), snapshot.myEntries.end(),
              [](const VelShopEntry& theLeft, const VelShopEntry& theRight) { return theLeft.isBefore(theRight); });
    snapshot.myConditions = VelShopReading::conditions();
    return snapshot;
}

void VelShopSnapshot::addOrder(const QString& theName, const VelPriceExplanation& theOrder, const QString& theReason)
{
    VelShopCart cart;
    cart.myName = theName;
    cart.myReason = theReason;
    cart.myTotal = theOrder.total();
    for (const VelExplainedTerm& term : theOrder.terms())
        cart.myTerms.append(termOf(term));
    myCarts.append(cart);
}

void VelShopSnapshot::addRefusedCart(const QString& theName, const QString& theReason)
{
    VelShopCart cart;
    cart.myName = theName;
    cart.myReason = theReason;
    myCarts.append(cart);
}
