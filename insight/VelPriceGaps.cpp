#include "insight/VelPriceGaps.h"

#include "insight/VelFeeGaps.h"
#include "insight/VelGapFinder.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

#include <algorithm>

namespace {

/// A product that left the price list is sold by no way.
QVector<const VelProductAbstract*> productsOfPriceList()
{
    QVector<const VelProductAbstract*> products;
    for (const VelProductAbstract* product : VelProductRegistry::instance()->productList())
        if (!product->isDeprecated())
            products.append(product);
    return products;
}

QList<VelOrderSource> concreteOrderSources()
{
    return {VelOrderSource::onlinePointOfSale(), VelOrderSource::onlineMailOrder(), VelOrderSource::cdPointOfSale(),
            VelOrderSource::cdMailOrder(), VelOrderSource::kioskOnSite()};
}

/// The price beside a main product is one, too.
bool isPricedFor(const VelGapFinder& theFinder, const QVector<const VelProductAbstract*>& theProducts)
{
    return std::any_of(theProducts.cbegin(), theProducts.cend(), [&](const VelProductAbstract* theProduct) {
        const VelPriceGaps::Cell cell = theFinder.cellsOf(*theProduct).constFirst();
        return cell.isPriced() || cell.myWhy == VelPriceGaps::WHY_WITH_MAIN_PRODUCT;
    });
}

} // namespace

VelPriceGaps::VelPriceGaps(VelPriceCurve::Reading theReading)
{
    const QVector<const VelProductAbstract*> products = productsOfPriceList();
    QList<VelOrderSource> sources = VelOrderingDetails::instance()->availableOrderSources();
    for (const VelOrderSource& source : sources)
        myWays.append({source, true});
    for (const VelOrderSource& source : concreteOrderSources()) {
        if (sources.contains(source) || !isPricedFor(VelGapFinder({source}, theReading), products))
            continue;
        sources.append(source);
        myWays.append({source, false});
    }
    const VelGapFinder finder(sources, theReading);
    myArticles.reserve(products.size());
    for (const VelProductAbstract* product : products)
        myArticles.append({product, finder.cellsOf(*product)});
    for (const VelShopFees::Fee& fee : VelFeeGaps::fees(products))
        myFees.append({fee, VelFeeGaps::cellsOf(fee, finder)});
}
