#ifndef VELPRODUCTREGISTRYFOTOBOOKCACHE_H
#define VELPRODUCTREGISTRYFOTOBOOKCACHE_H

#include "frame/VelTarmExport.h"
#include "sibling/VelProductType.h"

#include <QMap>
#include <QPair>

class VelProductPrintFun;

/// From a product type and a page count to a photo book, for users of the library; emptied by every load. The
/// products are borrowed.
class VELTARM_EXPORT VelProductRegistryFotoBookCache
{
public:
    /// The two as one key; types are equal by value, whatever their texts.
    QPair<VelProductType, int> makeKey(const VelProductType& theType, int thePages) const;

    /// Null when nothing is stored.
    VelProductPrintFun* find(const VelProductType& theType, int thePages) const;

    /// Replaces what was stored for the two; null is stored as well.
    void insert(const VelProductType& theType, int thePages, VelProductPrintFun* theProduct);

    /// Forgets everything.
    void clear() { myCache.clear(); }

private:
    QMap<QPair<VelProductType, int>, VelProductPrintFun*> myCache;
};

#endif
