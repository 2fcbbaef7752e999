#ifndef VELGAPFINDER_H
#define VELGAPFINDER_H

#include "insight/VelPriceGaps.h"

#include <QList>

class VelProductAddOn;

/// Looks for the prices of single products, on the curves of their totals.
class VelGapFinder
{
public:
    VelGapFinder(const QList<VelOrderSource>& theSources, VelPriceCurve::Reading theReading)
        : mySources(theSources), myReading(theReading)
    {
    }

    const QList<VelOrderSource>& sources() const { return mySources; }

    /// An article or add-on by each order source.
    QVector<VelPriceGaps::Cell> cellsOf(const VelProductAbstract& theProduct) const;

    /// A product by one order source over a range, whatever the range's reading.
    VelPriceGaps::Cell cellOf(const VelProductAbstract& theProduct, const VelOrderSource& theSource,
                              VelPriceCurve::Range theRange) const;

private:
    VelPriceGaps::Cell cellOf(const VelPriceCurve& theCurve, const VelProductAbstract& theProduct,
                              const VelOrderSource& theSource, const VelPriceCurve::Range& theRange) const;
    VelPriceGaps::Why whyUnpriced(const VelPriceCurve& theCurve, const VelProductAbstract& theProduct,
                                  const VelOrderSource& theSource, VelPriceCurve::Range theRange) const;
    bool isPricedWithMainProduct(const VelProductAbstract& theProduct, const VelOrderSource& theSource,
                                 VelPriceCurve::Range theRange) const;
    void addLevels(const VelProductAbstract& theMainProduct, const VelOrderSource& theSource,
                   QVector<int>& theLevels) const;
    VelPriceCurve::Range wholeRange() const;

    QList<VelOrderSource> mySources;
    VelPriceCurve::Reading myReading;
};

#endif
