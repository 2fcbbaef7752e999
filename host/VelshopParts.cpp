#include "host/VelshopParts.h"

#include "product/VelPriceClass.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductPrintFun.h"
#include "product/VelProductRegistry.h"

namespace {

const QString STR_PAGES = QStringLiteral("pages");
const QString STR_MAPS = QStringLiteral("maps");
const QString STR_VIDEOS = QStringLiteral("videos");
const QString STR_TEMPLATES = QStringLiteral("templates");

const VelshopPartRefusal NOTHING_REFUSED;

int lowestPages(const VelProductAbstract* theProduct)
{
    const auto* product = dynamic_cast<const VelProductPrintFun*>(theProduct);
    return product ? product->minPages() : 0;
}

bool isComposed(const VelProductAbstract& theProduct)
{
    return theProduct.isProductClass(PRODUCT_CLASS_FOTO_BOOK) || theProduct.isProductClass(PRODUCT_CLASS_CALENDAR);
}

QString firstPart(const VelshopParts& theParts)
{
    if (theParts.myPages)
        return STR_PAGES;
    if (theParts.myMaps)
        return STR_MAPS;
    if (theParts.myVideos)
        return STR_VIDEOS;
    return theParts.myTemplates ? STR_TEMPLATES : QString();
}

VelshopPartRefusal refusalOfPages(int thePages, const VelProductAbstract* theProduct)
{
    const auto* product = dynamic_cast<const VelProductPrintFun*>(theProduct);
    if (!product || product->maxPages() < 1)
        return NOTHING_REFUSED;
    const int lowest = product->minPages();
    const int step = qMax(1, product->pageIncrement());
    if (thePages >= lowest && thePages <= product->maxPages() && (static_cast<qint64>(thePages) - lowest) % step == 0)
        return NOTHING_REFUSED;
    return {STR_PAGES, QStringLiteral("must be from %1 to %2 in steps of %3, not %4")
                           .arg(lowest)
                           .arg(product->maxPages())
                           .arg(step)
                           .arg(thePages)};
}

VelshopPartRefusal refusalOfCount(int theCount, const QString& thePart, bool theCanBeHad, const QString& theWhat)
{
    if (theCount < 0 || theCount > VelshopParts::HIGHEST_COUNT)
        return {thePart, QStringLiteral("must be a whole number from 0 to %1, not %2")
                             .arg(VelshopParts::HIGHEST_COUNT)
                             .arg(theCount)};
    if (theCount > 0 && !theCanBeHad)
        return {thePart, QStringLiteral("the price list has no %1 for this article").arg(theWhat)};
    return NOTHING_REFUSED;
}

VelshopPartRefusal refusalOfSupplement(int theCount, const QString& thePart, const VelProductAbstract& theProduct,
                                       const QString& theName)
{
    const bool canBeHad = VelProductRegistry::instance()->supplement(theProduct.articleID(), theName) != nullptr;
    return refusalOfCount(theCount, thePart, canBeHad, thePart);
}

VelshopPartRefusal refusalOfTemplates(const QMap<QString, int>& theTemplates, const VelProductAbstract& theProduct)
{
    for (auto uses = theTemplates.cbegin(); uses != theTemplates.cend(); ++uses) {
        const bool canBeHad = VelPriceClass(uses.key()).isFree() ||
                              VelProductRegistry::instance()->findContent(theProduct.articleID(), uses.key());
        const VelshopPartRefusal refusal = refusalOfCount(*uses, STR_TEMPLATES + QLatin1Char('.') + uses.key(),
                                                          canBeHad, QStringLiteral("templates of that price class"));
        if (!refusal.myPart.isEmpty())
            return refusal;
    }
    return NOTHING_REFUSED;
}

} // namespace

VelProductPriceCalculator VelshopParts::calculator(VelProductAbstract* theProduct) const
{
    return VelProductPriceCalculator(theProduct, myPages.value_or(lowestPages(theProduct)), myMaps.value_or(0),
                                     myVideos.value_or(0), myTemplates.value_or(QMap<QString, int>()));
}

VelshopPartRefusal refusalOf(const VelshopParts& theParts, VelProductAbstract* theProduct)
{
    if (!isComposed(*theProduct) && !firstPart(theParts).isEmpty())
        return {firstPart(theParts), QStringLiteral("belongs to books and calendars alone")};
    QList<VelshopPartRefusal> refusals;
    if (theParts.myPages)
        refusals.append(refusalOfPages(*theParts.myPages, theProduct));
    refusals.append(
        refusalOfSupplement(theParts.myMaps.value_or(0), STR_MAPS, *theProduct, VelProductAddOn::locrMapName()));
    refusals.append(
        refusalOfSupplement(theParts.myVideos.value_or(0), STR_VIDEOS, *theProduct, VelProductAddOn::videoName()));
    refusals.append(refusalOfTemplates(theParts.myTemplates.value_or(QMap<QString, int>()), *theProduct));
    for (const VelshopPartRefusal& refusal : refusals)
        if (!refusal.myPart.isEmpty())
            return refusal;
    return NOTHING_REFUSED;
}
