#ifndef VELTARMPRICEVIEW_H
#define VELTARMPRICEVIEW_H

#include "frame/VelOrderSource.h"
#include "frame/VelTarmExport.h"
#include "price/VelTarmPriceAnswer.h"

#include <QList>

class VelProductAbstract;
class VelTarmPriceStore;

/**
 * The prices of one product by one order source, laid open: the bands as they are stored, and what each discount model
 * answers for a quantity. For whoever explains a price, or draws the totals over many quantities. It asks the rules
 * that price; it changes nothing, and costs nothing while nobody asks.
 *
 * A view is three words to copy. It borrows the product's prices: like the bands that it gives out it is valid until
 * the next load of the price list.
 *
 *     const VelTarmPriceView view(*product, VelOrderSource::onlineMailOrder());
 *     for (const VelDiscountModel model : view.models())
 *         for (const VelTarmPriceBand& band : view.bands(model))
 *             qDebug() << model << band.value().lowerLimit() << band.price() << band.entry();
 *     const VelTarmPriceAnswer answer = view.best(25);
 *
 * VelProductAbstract::priceFor answers otherwise in two cases: a shipping of TRANSFER_MODEL_2 is charged by the
 * products of the order (VelTransferByProducts), and a key of DISCOUNT_MODEL_EXPRESS_FEE asks for exactly that model.
 */
class VELTARM_EXPORT VelTarmPriceView
{
public:
    /// An order source that isn't one concrete way has no bands.
    VelTarmPriceView(const VelProductAbstract& theProduct, const VelOrderSource& theSource);

    /// As the constructor was given it.
    const VelOrderSource& orderSource() const { return mySource; }

    // ---- of the product, whatever the order source

    /// The order sources that prices stand under, by input source, then delivery type.
    QList<VelOrderSource> pricedOrderSources() const;

    /// The models that occur in entries, in the order in which they are tried: by their numbers. A model may have no
    /// band by this order source, and none by any where its entries name an unknown one.
    QList<VelDiscountModel> models() const;

    /// Whether the first such model that has a price is taken, whatever the others cost. All others compete: the
    /// cheapest is taken, and of equal ones that of the lower number.
    static bool winsAtOnce(VelDiscountModel theModel);

    /// The highest level in the document, 0 for none.
    int maxDiscountLevel() const;

    /// How a shipping computes, as the entry last read says it; TRANSFER_MODEL_UNDEFINED for all other products.
    VelTransferModel transferModel() const;

    // ---- by the order source

    /// All bands, by model and level, levels below 0 included; and those of a model from level 0 up, as its rule sees
    /// them.
    VelTarmPriceBands bands() const;
    VelTarmPriceBands bands(VelDiscountModel theModel) const;

    /// Whether both views show the same bands of one product, read from the same entries, as entries that name no order
    /// source are spread. Then they answer alike for all quantities. It compares the numbers of the entries alone.
    bool hasSameBands(const VelTarmPriceView& theOther) const;

    /// The highest level from 1 up whose lower limit the count reaches, of all bands or the packages alone; null for
    /// none, where the models that are not packages take their level 0.
    const VelTarmPriceBand* reached(VelDiscountModel theModel, int theCount, bool thePackagesOnly) const;

    /// What the model that is taken answers. The billing sum, in cents, counts for DISCOUNT_MODEL_BILLING_SUM_TRANSFER
    /// alone, and the level that an add-on inherits for DISCOUNT_MODEL_INHERITED_DISCOUNT.
    VelTarmPriceAnswer best(int theCount, int theBillingSum = 0, int theInheritedLevel = 0) const;

    /// What exactly that model answers, with or without entries.
    VelTarmPriceAnswer inModel(VelDiscountModel theModel, int theCount, int theBillingSum = 0,
                               int theInheritedLevel = 0) const;

private:
    const VelTarmPriceStore* myStore;
    VelOrderSource mySource;
};

#endif
