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

    /// The product as it was given; may be null.
    VelProductAbstract* product() const { return myProduct; }
    /// The number of pages as it was given.
    int countPages() const { return myCountPages; }
    /// The number of areas with a map as it was given.
    int countLocrAreas() const { return myCountLocrAreas; }
    /// The number of areas with a video as it was given.
    int countVideoAreas() const { return myCountVideoAreas; }

    /// Another product, borrowed, may be null; counts from the next question on.
    void setMainProduct(VelProductAbstract* theProduct) { myProduct = theProduct; }
    /// Another number of pages; counts from the next question on.
    void setCountPages(int theCountPages) { myCountPages = theCountPages; }
    /// Another number of areas with a map; counts from the next question on.
    void setCountLocrAreas(int theCountLocrAreas) { myCountLocrAreas = theCountLocrAreas; }
    /// Another number of areas with a video; counts from the next question on.
    void setCountVideoAreas(int theCountVideoAreas) { myCountVideoAreas = theCountVideoAreas; }
    /// Other template uses by price class; they count from the next question on.
    void setAdditionalContent(const QMap<QString, int>& theContent) { myAdditionalContent = theContent; }

    /// The product must not be null.
    int articleID() const;

    /// "unknown product" without a product.
    QString productName() const;

    /// Whole packages of pages beyond the minimum; 0 or below for none, 0 for a product that can't grow.
    int countPagePackages() const;

    /// The charged template uses, all together: three in a class that begins with "1" count as one.
    int countAdditionalContents() const;
    /// The charged template uses by price class: three in a class that begins with "1" count as one.
    QMap<QString, int> correctedAdditionalContent() const;

    /// The uses as they were given.
    QMap<QString, int> boughtAdditionalContent() const { return myAdditionalContent; }

    /// The page packages that the pages cost; none, without a warning, when the price list lacks one.
    VelOrderStatistic boughtPagePackages() const;
    /// The add-ons that the maps cost. One that the price list lacks is left out, with a warning.
    VelOrderStatistic boughtLocrAreas() const;
    /// The add-ons that the videos cost. One that the price list lacks is left out, with a warning.
    VelOrderStatistic boughtVideoAreas() const;
    /// The add-ons that the templates cost. One that the price list lacks is left out, with a warning.
    VelOrderStatistic boughtTemplates() const;

    /// Cents for one piece of the product; 0 without one.
    int priceOfProduct(const VelTarmPriceKey& theKey) const;
    /// As the form with a key, under the global status.
    int priceOfProduct() const;
    /// Cents for all of boughtPagePackages().
    int priceOfPagePackages(const VelTarmPriceKey& theKey) const;
    /// As the form with a key, under the global status.
    int priceOfPagePackages() const;
    /// Cents for all of boughtLocrAreas().
    int priceOfLocrAreas(const VelTarmPriceKey& theKey) const;
    /// As the form with a key, under the global status.
    int priceOfLocrAreas() const;
    /// Cents for all of boughtVideoAreas().
    int priceOfVideoAreas(const VelTarmPriceKey& theKey) const;
    /// As the form with a key, under the global status.
    int priceOfVideoAreas() const;
    /// Cents for all of boughtTemplates().
    int priceOfContents(const VelTarmPriceKey& theKey) const;
    /// As the form with a key, under the global status.
    int priceOfContents() const;

    /// All parts together: the price of one finished piece, in cents.
    int unitPrice(const VelTarmPriceKey& theKey) const;
    /// As the form with a key, under the global status.
    int unitPrice() const;

    /// Whether the product and each of its add-ons has a price under the key. A missing add-on is no obstacle.
    bool isOrderable(const VelTarmPriceKey& theKey) const;
    /// As the form with a key, under the global status.
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
