#ifndef VELAUDITPRICES_H
#define VELAUDITPRICES_H

#include "frame/VelOrderSource.h"
#include "insight/VelAuditCatalog.h"
#include "price/VelTarmPriceView.h"
#include "product/VelProductAbstract.h"

#include <QVector>

#include <memory>

/// The prices of one entry of the price list, read by the class that prices.
class VelAuditPrices
{
    Q_DISABLE_COPY(VelAuditPrices)

public:
    /// The entry is borrowed.
    explicit VelAuditPrices(const VelAuditCatalog::Entry& theEntry);

    const VelAuditCatalog::Entry& entry() const { return *myEntry; }
    /// A product with the entry's prices and texts. It is in no registry, and of no class that matters.
    const VelProductAbstract& product() const { return *myProduct; }
    VelTarmPriceView view(const VelOrderSource& theSource) const { return VelTarmPriceView(*myProduct, theSource); }
    /// Whether it is a transfer whose own prices play no part.
    bool isShippingByProducts() const;
    /// All order sources that prices stand under, those that nobody can take as well.
    const QList<VelOrderSource>& sources() const { return mySources; }
    /// Of some order sources those that have bands, of several with the same bands the first.
    QList<VelOrderSource> differing(const QList<VelOrderSource>& theSources) const;

    /// The elements of the price entries, and that of a band.
    const QVector<QDomElement>& elements() const { return myElements; }
    const QDomElement& element(const VelTarmPriceBand& theBand) const { return myElements[theBand.entry()]; }

private:
    const VelAuditCatalog::Entry* myEntry;
    QVector<QDomElement> myElements;
    std::unique_ptr<const VelProductAbstract> myProduct;
    QList<VelOrderSource> mySources;
};

#endif
