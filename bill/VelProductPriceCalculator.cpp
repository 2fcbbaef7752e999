#include "bill/VelProductPriceCalculator.h"

#include "bill/VelTarmBill.h"
#include "frame/VelArithmetic.h"
#include "frame/VelTarmGlobalStatus.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductPrintFun.h"
#include "product/VelProductRegistry.h"

#include <QDebug>

namespace {

const QString STR_UNKNOWN_PRODUCT = QStringLiteral("unknown product");
const QString STR_CLASS_COUNTED_BY_THREE = QStringLiteral("1");

// "VelAreaLocrMapList" stands in both messages of the areas, on purpose.
const QString STR_NO_MAP =
    QStringLiteral("VelProductPriceCalculator::createPriceDescription(VelAreaLocrMapList) -- Locr Karten "
                   "Zuschlagsartikel nicht gefunden. %1");
const QString STR_NO_VIDEO =
    QStringLiteral("VelProductPriceCalculator::createPriceDescription(VelAreaLocrMapList) -- Video "
                   "Zuschlagsartikel nicht gefunden. %1");
const QString STR_NO_CONTENT =
    QStringLiteral("VelProductPriceCalculator::createPriceDescription(VelTemplateList) -- Content nicht spezifiziert, "
                   "obwohl er es sein sollte: %1, priceclass %2");

VelTarmPriceKey globalKey()
{
    return VelTarmGlobalStatus::instance()->priceKey();
}

} // namespace

VelProductPriceCalculator::VelProductPriceCalculator(VelProductAbstract* theProduct, int theCountPages)
    : myProduct(theProduct), myCountPages(theCountPages)
{
}

VelProductPriceCalculator::VelProductPriceCalculator(VelProductAbstract* theProduct, int theCountPages,
                                                     int theCountLocrAreas, int theCountVideoAreas,
                                                     const QMap<QString, int>& theAdditionalContent)
    : myProduct(theProduct)
    , myCountPages(theCountPages)
    , myCountLocrAreas(theCountLocrAreas)
    , myCountVideoAreas(theCountVideoAreas)
    , myAdditionalContent(theAdditionalContent)
{
}

// ---- queries

int VelProductPriceCalculator::articleID() const
{
    return myProduct->articleID();
}

QString VelProductPriceCalculator::productName() const
{
    return myProduct ? myProduct->name() : STR_UNKNOWN_PRODUCT;
}

int VelProductPriceCalculator::countPagePackages() const
{
    const auto* product = dynamic_cast<const VelProductPrintFun*>(myProduct);
    if (!product || product->minPages() == product->maxPages() || product->pageIncrement() < 1)
        return 0;
    return VelArithmetic::difference(myCountPages, product->minPages()) / product->pageIncrement();
}

QMap<QString, int> VelProductPriceCalculator::correctedAdditionalContent() const
{
    QMap<QString, int> corrected = myAdditionalContent;
    for (auto content = corrected.begin(); content != corrected.end(); ++content)
        if (content.key().startsWith(STR_CLASS_COUNTED_BY_THREE))
            content.value() /= 3;
    return corrected;
}

int VelProductPriceCalculator::countAdditionalContents() const
{
    int count = 0;
    for (const int uses : correctedAdditionalContent())
        count = VelArithmetic::sum(count, uses);
    return count;
}

VelOrderStatistic VelProductPriceCalculator::boughtPagePackages() const
{
    VelOrderStatistic bought;
    const int count = countPagePackages();
    VelProductAddOn* package = count < 1 ? nullptr : VelProductRegistry::instance()->findPagePackage(articleID());
    if (package)
        bought.insert(package, count);
    return bought;
}

VelOrderStatistic VelProductPriceCalculator::boughtLocrAreas() const
{
    return boughtSupplements(myCountLocrAreas, VelProductAddOn::locrMapName(), STR_NO_MAP);
}

VelOrderStatistic VelProductPriceCalculator::boughtVideoAreas() const
{
    return boughtSupplements(myCountVideoAreas, VelProductAddOn::videoName(), STR_NO_VIDEO);
}

VelOrderStatistic VelProductPriceCalculator::boughtSupplements(int theCount, const QString& theProductClass,
                                                               const QString& theWarning) const
{
    VelOrderStatistic bought;
    if (theCount <= 0 || !myProduct)
        return bought;
    VelProductAddOn* supplement = VelProductRegistry::instance()->supplement(articleID(), theProductClass);
    if (supplement)
        bought.insert(supplement, theCount);
    else
        qWarning().noquote() << theWarning.arg(productName());
    return bought;
}

VelOrderStatistic VelProductPriceCalculator::boughtTemplates() const
{
    VelOrderStatistic bought;
    if (!myProduct)
        return bought;
    const QMap<QString, int> contents = correctedAdditionalContent();
    for (auto content = contents.cbegin(); content != contents.cend(); ++content) {
        VelProductAddOn* addOn = VelProductRegistry::instance()->findContent(articleID(), content.key());
        if (addOn)
            bought.add(addOn, content.value());
        else
            qWarning().noquote() << STR_NO_CONTENT.arg(productName(), content.key());
    }
    return bought;
}

// ---- computing

int VelProductPriceCalculator::priceOfProduct(const VelTarmPriceKey& theKey) const
{
    return myProduct ? myProduct->price(theKey, 1, 1) : 0;
}

int VelProductPriceCalculator::priceOfProduct() const
{
    return priceOfProduct(globalKey());
}

int VelProductPriceCalculator::priceOfPagePackages(const VelTarmPriceKey& theKey) const
{
    return boughtPagePackages().totalPrice(theKey);
}

int VelProductPriceCalculator::priceOfPagePackages() const
{
    return priceOfPagePackages(globalKey());
}

int VelProductPriceCalculator::priceOfLocrAreas(const VelTarmPriceKey& theKey) const
{
    return boughtLocrAreas().totalPrice(theKey);
}

int VelProductPriceCalculator::priceOfLocrAreas() const
{
    return priceOfLocrAreas(globalKey());
}

int VelProductPriceCalculator::priceOfVideoAreas(const VelTarmPriceKey& theKey) const
{
    return boughtVideoAreas().totalPrice(theKey);
}

int VelProductPriceCalculator::priceOfVideoAreas() const
{
    return priceOfVideoAreas(globalKey());
}

int VelProductPriceCalculator::priceOfContents(const VelTarmPriceKey& theKey) const
{
    return boughtTemplates().totalPrice(theKey);
}

int VelProductPriceCalculator::priceOfContents() const
{
    return priceOfContents(globalKey());
}

int VelProductPriceCalculator::unitPrice(const VelTarmPriceKey& theKey) const
{
    int price = priceOfProduct(theKey);
    price = VelArithmetic::sum(price, priceOfPagePackages(theKey));
    price = VelArithmetic::sum(price, priceOfContents(theKey));
    price = VelArithmetic::sum(price, priceOfLocrAreas(theKey));
    return VelArithmetic::sum(price, priceOfVideoAreas(theKey));
}

int VelProductPriceCalculator::unitPrice() const
{
    return unitPrice(globalKey());
}

/// Asks a bill for one piece.
bool VelProductPriceCalculator::isOrderable(const VelTarmPriceKey& theKey) const
{
    if (!myProduct)
        return false;
    VelTarmStatus status;
    status.setPriceKey(theKey);
    VelOrderStatistic statistic;
    statistic.add(myProduct, 1);
    statistic.add(boughtLocrAreas(), 1);
    statistic.add(boughtPagePackages(), 1);
    statistic.add(boughtTemplates(), 1);
    statistic.add(boughtVideoAreas(), 1);
    return VelTarmBill(myProduct->shippingGroupId(), statistic, VelExpressType(ExpressableType_STANDARD), status)
        .isValid();
}

bool VelProductPriceCalculator::isOrderable() const
{
    return isOrderable(globalKey());
}
