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
    QPair<VelProductType, int> makeKey(const VelProductType& theType, int thePages) const;

    /// Null when nothing is stored.
    VelProductPrintFun* find(const VelProductType& theType, int thePages) const;
    void insert(const VelProductType& theType, int thePages, VelProductPrintFun* theProduct);
    void clear() { myCache.clear(); }

private:
    QMap<QPair<VelProductType, int>, VelProductPrintFun*> myCache;
};

#endif
