#include "host/VelshopBands.h"

#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopFeeWords.h"
#include "host/VelshopTable.h"
#include "host/VelshopWords.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "price/VelDiscountLimitCache.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <algorithm>

namespace {

struct PriceInBand
{
    const VelProductAbstract* myProduct;
    int myPrice;

    /// What can't be read is -1, which isn't sold.
    bool hasPrice() const { return myPrice >= 0; }
};

QJsonValue orNull(const PriceInBand& thePrice)
{
    return thePrice.hasPrice() ? QJsonValue(thePrice.myPrice) : QJsonValue();
}

QString priceText(const PriceInBand& thePrice)
{
    return thePrice.hasPrice() ? VelshopWords::money(thePrice.myPrice) : QStringLiteral("-");
}

/// The products of the group that have exactly this band, with their prices in it.
QList<PriceInBand> pricesIn(const VelDiscountLimit& theBand, int theGroup, const VelTarmPriceKey& theKey)
{
    QList<PriceInBand> prices;
    for (const VelProductAbstract* product : VelProductRegistry::instance()->productsForShippingGroup(theGroup, true))
        if (product->discountLimits(theKey).contains(theBand))
            prices.append({product, product->priceAtBound(theKey, theBand)});
    return prices;
}

QJsonArray pricesData(const QList<PriceInBand>& thePrices)
{
    QJsonArray prices;
    for (const PriceInBand& price : thePrices)
        prices.append(QJsonObject{{QStringLiteral("article"), price.myProduct->articleID()},
                                  {QStringLiteral("name"), price.myProduct->name()},
                                  {QStringLiteral("price"), orNull(price)}});
    return prices;
}

QJsonObject toJson(const VelDiscountLimit& theBand, const QList<PriceInBand>& thePrices,
                   const VelOrderSource& theSource)
{
    QJsonObject json{{QStringLiteral("model"), VelshopWords::discountModel(theBand.discountModel())},
                     {QStringLiteral("level"), theBand.level()},
                     {QStringLiteral("orderSource"), VelshopWords::orderSourceData(theSource)},
                     {QStringLiteral("package"), theBand.isPackage()},
                     {QStringLiteral("prices"), pricesData(thePrices)}};
    VelshopWords::insertBand(json, theBand);
    return json;
}

void addRows(const VelDiscountLimit& theBand, const QList<PriceInBand>& thePrices, VelshopTable& theTable)
{
    for (const PriceInBand& price : thePrices)
        theTable.add({VelshopWords::discountModel(theBand.discountModel()), QString::number(theBand.level()),
                      VelshopWords::band(theBand), QString::number(price.myProduct->articleID()),
                      price.myProduct->name(), priceText(price)});
}

// ---- fees

/// That a bill of the group may be charged: its own, and every payment.
QVector<VelShopFees::Fee> feesOf(int theGroup)
{
    QVector<VelShopFees::Fee> fees;
    for (const VelShopFees::Fee& fee : VelShopFees::all())
        if (fee.myProduct && (fee.myKind == VelShopFees::FEE_PAYMENT || fee.myGroup == theGroup))
            fees.append(fee);
    return fees;
}

QList<VelDiscountLimit> sortedBands(const VelProductAbstract& theProduct, const VelTarmPriceKey& theKey)
{
    QList<VelDiscountLimit> bands = theProduct.discountLimits(theKey).values();
    std::sort(bands.begin(), bands.end(), VelDiscountLimitCache::compareDiscountLimit);
    return bands;
}

bool isByProducts(const VelShopFees::Fee& theFee)
{
    return theFee.myProduct->transferModel() == TRANSFER_MODEL_2;
}

/// Shipping that the products are charged for has no bands: no entry of its own counts.
void addByProducts(const VelShopFees::Fee& theFee, const VelOrderSource& theSource, QJsonArray& theJson)
{
    const QJsonObject price{{QStringLiteral("article"), theFee.myProduct->articleID()},
                            {QStringLiteral("name"), theFee.myProduct->name()},
                            {QStringLiteral("price"), QJsonValue()}};
    theJson.append(QJsonObject{{QStringLiteral("fee"), VelshopFeeWords::kind(theFee.myKind)},
                               {QStringLiteral("model"), VelshopWords::discountModel(DISCOUNT_MODEL_TRANSFER_2)},
                               {QStringLiteral("level"), 0},
                               {QStringLiteral("orderSource"), VelshopWords::orderSourceData(theSource)},
                               {QStringLiteral("package"), false},
                               {QStringLiteral("prices"), QJsonArray{price}}});
}

void addFees(int theGroup, const VelTarmPriceKey& theKey, QJsonArray& theJson)
{
    for (const VelShopFees::Fee& fee : feesOf(theGroup)) {
        if (isByProducts(fee)) {
            addByProducts(fee, theKey.orderSource(), theJson);
            continue;
        }
        for (const VelDiscountLimit& band : sortedBands(*fee.myProduct, theKey)) {
            QJsonObject json =
                toJson(band, {{fee.myProduct, fee.myProduct->priceAtBound(theKey, band)}}, theKey.orderSource());
            json.insert(QStringLiteral("fee"), VelshopFeeWords::kind(fee.myKind));
            theJson.append(json);
        }
    }
}

/// Bands of a bill sum are money.
QString feeBandText(const VelDiscountLimit& theBand)
{
    if (theBand.discountModel() != DISCOUNT_MODEL_BILLING_SUM_TRANSFER)
        return VelshopWords::band(theBand);
    const QString from = VelshopWords::money(theBand.lowerLimit());
    return theBand.upperLimit() == -1
               ? QStringLiteral("bill from ") + from
               : QStringLiteral("bill %1 to %2").arg(from, VelshopWords::money(theBand.upperLimit()));
}

void addRow(const VelShopFees::Fee& theFee, const QString& theLevel, const QString& theBand, const QString& thePrice,
            VelshopTable& theTable)
{
    theTable.add({VelshopFeeWords::name(theFee), theLevel, theBand, QString::number(theFee.myProduct->articleID()),
                  theFee.myProduct->name(), thePrice});
}

void printFees(int theGroup, const VelTarmPriceKey& theKey, QTextStream& theOutput)
{
    VelshopTable table({QStringLiteral("FEE"), QStringLiteral("LEVEL"), QStringLiteral("BAND"), QStringLiteral("ID"),
                        QStringLiteral("NAME"), QStringLiteral("PRICE")});
    for (const VelShopFees::Fee& fee : feesOf(theGroup)) {
        if (isByProducts(fee))
            addRow(fee, QStringLiteral("-"), QStringLiteral("-"), QStringLiteral("by the products"), table);
        else
            for (const VelDiscountLimit& band : sortedBands(*fee.myProduct, theKey))
                addRow(fee, QString::number(band.level()), feeBandText(band),
                       priceText({fee.myProduct, fee.myProduct->priceAtBound(theKey, band)}), table);
    }
    if (table.isEmpty())
        return;
    theOutput << '\n';
    table.print(theOutput);
}

// ---- the answer

void printJson(int theGroup, const VelTarmPriceKey& theKey, QTextStream& theOutput)
{
    QJsonArray json;
    for (const VelDiscountLimit& band : VelDiscountLimitCache::instance()->discountLimit(theGroup, theKey))
        json.append(toJson(band, pricesIn(band, theGroup, theKey), theKey.orderSource()));
    addFees(theGroup, theKey, json);
    theOutput << QJsonDocument(json).toJson();
}

void printText(int theGroup, const VelTarmPriceKey& theKey, QTextStream& theOutput)
{
    VelshopTable table({QStringLiteral("MODEL"), QStringLiteral("LEVEL"), QStringLiteral("BAND"), QStringLiteral("ID"),
                        QStringLiteral("NAME"), QStringLiteral("PRICE")});
    for (const VelDiscountLimit& band : VelDiscountLimitCache::instance()->discountLimit(theGroup, theKey))
        addRows(band, pricesIn(band, theGroup, theKey), table);
    table.print(theOutput);
    printFees(theGroup, theKey, theOutput);
}

} // namespace

bool readBandsArguments(const VelshopCommandLine& theLine, VelshopBandsArguments& theArguments, VelshopError& theError)
{
    return VelshopCommandLine::readNumber(theLine.words().at(0), QStringLiteral("GROUP"), VelshopCommandLine::LOWEST_ID,
                                          theArguments.myGroup, theError) &&
           theArguments.mySource.read(theLine, theError);
}

int showBands(const VelshopBandsArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    const int group = theArguments.myGroup;
    if (!VelTarmShippingGroupManager::instance()->shippingGroup(group))
        theError = QStringLiteral("the shop has no shipping group %1").arg(group);
    VelOrderSource source = VelOrderSource::onlineMailOrder();
    if (!theError.isEmpty() || !theArguments.mySource.completeNamed(source, theError))
        return EXIT_BAD_INPUT;
    const VelTarmPriceKey key(source, -1, DISCOUNT_MODEL_UNDEFINED);
    if (theArguments.myIsJson)
        printJson(group, key, theOutput);
    else
        printText(group, key, theOutput);
    return EXIT_DONE;
}
