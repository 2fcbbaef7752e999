#ifndef VELPRODUCTPRICECALCULATOR_H
#define VELPRODUCTPRICECALCULATOR_H

#include "bill/VelOrderStatistic.h"
#include "frame/VelTarmExport.h"
#include "price/VelTarmPriceKey.h"

#include <QMap>
#include <QString>

/**
 * The price of one finished book or calendar, part by part: pages beyond the minimum, areas with a map or a video, and
 * templates of a charged price class each cost an add-on of the price list. Nothing is cached.
 *
 * Amounts are whole cents. A part without a price enters with -1 times its count; isOrderable() tells. The forms
 * without a key ask under the global status.
 */
class VELTARM_EXPORT VelProductPriceCalculator
{
public:
    /// The product is borrowed and may be null. Counts of areas are 0, no templates are charged.
    VelProductPriceCalculator(VelProductAbstract* theProduct, int theCountPages);

    /// The additional content says for each price class how many template uses there are.
    VelProductPriceCalculator(VelProductAbstract* theProduct, int theCountPages, int theCountLocrAreas,
                              int theCountVideoAreas, const QMap<QString, int>& theAdditionalContent);
    VelProductPriceCalculator(const VelProductPriceCalculator&) = default;
    VelProductPriceCalculator& operator=(const VelProductPriceCalculator&) = default;
    virtual ~VelProductPriceCalculator() = default;

    /// What the constructor was given; the product may be null.
    VelProductAbstract* product() const { return myProduct; }
    int countPages() const { return myCountPages; }
    int countLocrAreas() const { return myCountLocrAreas; }
    int countVideoAreas() const { return myCountVideoAreas; }

    /// These count from the next question on.
    void setMainProduct(VelProductAbstract* theProduct) { myProduct = theProduct; }
    void setCountPages(int theCountPages) { myCountPages = theCountPages; }
    void setCountLocrAreas(int theCountLocrAreas) { myCountLocrAreas = theCountLocrAreas; }
    void setCountVideoAreas(int theCountVideoAreas) { myCountVideoAreas = theCountVideoAreas; }
    void setAdditionalContent(const QMap<QString, int>& theContent) { myAdditionalContent = theContent; }

    /// The product must not be null.
    int articleID() const;

    /// "unknown product" without a product.
    QString productName() const;

    /// Whole packages of pages beyond the minimum; 0 or below for none, 0 for a product that can't grow.
    int countPagePackages() const;

    /// The charged template uses, all together and by price class: three in a class that begins with "1" count as one.
    int countAdditionalContents() const;
    QMap<QString, int> correctedAdditionalContent() const;

    /// The uses as they were given.
    QMap<QString, int> boughtAdditionalContent() const { return myAdditionalContent; }

    /// The add-ons that the parts cost. One that the price list lacks is left out, with a warning but for page
    /// packages.
    VelOrderStatistic boughtPagePackages() const;
    VelOrderStatistic boughtLocrAreas() const;
    VelOrderStatistic boughtVideoAreas() const;
    VelOrderStatistic boughtTemplates() const;

    /// The parts in cents: one piece of the product, 0 without one, and all of what was bought of each add-on.
    int priceOfProduct(const VelTarmPriceKey& theKey) const;
    int priceOfProduct() const;
    int priceOfPagePackages(const VelTarmPriceKey& theKey) const;
    int priceOfPagePackages() const;
    int priceOfLocrAreas(const VelTarmPriceKey& theKey) const;
    int priceOfLocrAreas() const;
    int priceOfVideoAreas(const VelTarmPriceKey& theKey) const;
    int priceOfVideoAreas() const;
    int priceOfContents(const VelTarmPriceKey& theKey) const;
    int priceOfContents() const;

    /// All parts together: the price of one finished piece.
    int unitPrice(const VelTarmPriceKey& theKey) const;
    int unitPrice() const;

    /// Whether the product and each of its add-ons has a price under the key. A missing add-on is no obstacle.
    bool isOrderable(const VelTarmPriceKey& theKey) const;
    bool isOrderable() const;

private:
    VelOrderStatistic boughtSupplements(int theCount, const QString& theProductClass, const QString& theWarning) const;

    VelProductAbstract* myProduct;
    int myCountPages;
    int myCountLocrAreas = 0;
    int myCountVideoAreas = 0;
    QMap<QString, int> myAdditionalContent;
};

#endif
