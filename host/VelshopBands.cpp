#include "host/VelshopBands.h"

#include "frame/VelTarmGlobalStatus.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
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

/// The products of the group that have exactly this band, with their prices in it.
QList<PriceInBand> pricesIn(const VelDiscountLimit& theBand, int theGroup, const VelTarmPriceKey& theKey)
{
    QList<PriceInBand> prices;
    for (const VelProductAbstract* product : VelProductRegistry::instance()->productsForShippingGroup(theGroup, true))
        if (product->discountLimits(theKey).contains(theBand))
            prices.append({product, product->priceAtBound(theKey, theBand)});
    return prices;
}

QJsonObject toJson(const VelDiscountLimit& theBand, const QList<PriceInBand>& thePrices)
{
    QJsonArray prices;
    for (const PriceInBand& price : thePrices)
        prices.append(QJsonObject{{QStringLiteral("article"), price.myProduct->articleID()},
                                  {QStringLiteral("name"), price.myProduct->name()},
                                  {QStringLiteral("price"), orNull(price)}});
    QJsonObject json{
        {QStringLiteral("model"), VelshopWords::discountModel(theBand.discountModel())},
        {QStringLiteral("level"), theBand.level()},
        {QStringLiteral("orderSource"), VelshopWords::orderSourceData(VelTarmGlobalStatus::instance()->orderSource())},
        {QStringLiteral("package"), theBand.isPackage()},
        {QStringLiteral("prices"), prices}};
    VelshopWords::insertBand(json, theBand);
    return json;
}

void addRows(const VelDiscountLimit& theBand, const QList<PriceInBand>& thePrices, VelshopTable& theTable)
{
    for (const PriceInBand& price : thePrices)
        theTable.add({VelshopWords::discountModel(theBand.discountModel()), QString::number(theBand.level()),
                      VelshopWords::band(theBand), QString::number(price.myProduct->articleID()),
                      price.myProduct->name(),
                      price.hasPrice() ? VelshopWords::money(price.myPrice) : QStringLiteral("-")});
}

} // namespace

bool readBandsArguments(const VelshopCommandLine& theLine, VelshopBandsArguments& theArguments, VelshopError& theError)
{
    return VelshopCommandLine::readNumber(theLine.words().at(0), QStringLiteral("GROUP"), VelshopCommandLine::LOWEST_ID,
                                          theArguments.myGroup, theError);
}

int showBands(const VelshopBandsArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    if (!VelTarmShippingGroupManager::instance()->shippingGroup(theArguments.myGroup)) {
        theError = QStringLiteral("the shop has no shipping group %1").arg(theArguments.myGroup);
        return EXIT_BAD_INPUT;
    }
    const VelTarmPriceKey key = VelTarmGlobalStatus::instance()->priceKey();
    QJsonArray json;
    VelshopTable table({QStringLiteral("MODEL"), QStringLiteral("LEVEL"), QStringLiteral("BAND"), QStringLiteral("ID"),
                        QStringLiteral("NAME"), QStringLiteral("PRICE")});
    for (const VelDiscountLimit& band : VelDiscountLimitCache::instance()->discountLimit(theArguments.myGroup, key)) {
        const QList<PriceInBand> prices = pricesIn(band, theArguments.myGroup, key);
        json.append(toJson(band, prices));
        addRows(band, prices, table);
    }
    if (theArguments.myIsJson)
        theOutput << QJsonDocument(json).toJson();
    else
        table.print(theOutput);
    return EXIT_DONE;
}
