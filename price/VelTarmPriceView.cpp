#include "price/VelTarmPriceView.h"

#include "bill/VelTarmArticle.h"
#include "price/VelPriceRules.h"
#include "product/VelProductAbstract.h"

#include <algorithm>

VelTarmPriceView::VelTarmPriceView(const VelProductAbstract& theProduct, const VelOrderSource& theSource)
    : myStore(&theProduct.tarmArticle()->priceStore()), mySource(theSource)
{
}

QList<VelOrderSource> VelTarmPriceView::pricedOrderSources() const
{
    QList<VelOrderSource> sources;
    for (int number = 0; number < VelTarmPriceStore::ORDER_SOURCES; ++number) {
        const VelOrderSource source = VelTarmPriceStore::orderSource(number);
        if (!myStore->bands(source).isEmpty())
            sources.append(source);
    }
    return sources;
}

QList<VelDiscountModel> VelTarmPriceView::models() const
{
    QList<VelDiscountModel> models;
    for (int model = 0; model < VelTarmPriceStore::MODEL_BOUND; ++model)
        if (myStore->modelBits() & (1U << static_cast<unsigned>(model)))
            models.append(static_cast<VelDiscountModel>(model));
    return models;
}

bool VelTarmPriceView::winsAtOnce(VelDiscountModel theModel)
{
    return VelPriceRules::winsAtOnce(theModel);
}

int VelTarmPriceView::maxDiscountLevel() const
{
    return myStore->maxDiscountLevel();
}

VelTransferModel VelTarmPriceView::transferModel() const
{
    return myStore->transferModel();
}

VelTarmPriceBands VelTarmPriceView::bands() const
{
    return myStore->bands(mySource);
}

VelTarmPriceBands VelTarmPriceView::bands(VelDiscountModel theModel) const
{
    return myStore->bands(mySource, theModel);
}

bool VelTarmPriceView::hasSameBands(const VelTarmPriceView& theOther) const
{
    const VelTarmPriceBands mine = bands();
    const VelTarmPriceBands others = theOther.bands();
    return myStore == theOther.myStore &&
           std::equal(mine.begin(), mine.end(), others.begin(), others.end(),
                      [](const VelTarmPriceBand& theLeft, const VelTarmPriceBand& theRight) {
                          return theLeft.entry() == theRight.entry();
                      });
}

const VelTarmPriceBand* VelTarmPriceView::reached(VelDiscountModel theModel, int theCount, bool thePackagesOnly) const
{
    return VelPriceRules(*myStore, mySource)
        .reached(theModel, theCount, thePackagesOnly ? VelPriceRules::PACKAGES_ONLY : VelPriceRules::ALL_BANDS);
}

VelTarmPriceAnswer VelTarmPriceView::best(int theCount, int theBillingSum, int theInheritedLevel) const
{
    return VelPriceRules(*myStore, mySource).best(theCount, theBillingSum, theInheritedLevel);
}

VelTarmPriceAnswer VelTarmPriceView::inModel(VelDiscountModel theModel, int theCount, int theBillingSum,
                                             int theInheritedLevel) const
{
    return VelPriceRules(*myStore, mySource).inModel(theModel, theInheritedLevel, theCount, theBillingSum);
}
