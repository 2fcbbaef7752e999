#ifndef VELAUDITROUTES_H
#define VELAUDITROUTES_H

#include "frame/VelOrderSource.h"

#include <QList>
#include <QMap>
#include <QSet>

class VelAuditPrices;

/// By which order ways the articles of each shipping group are priced, and by which their shipping is.
class VelAuditRoutes
{
public:
    /// Takes note of an article or transfer. Of two transfers of one group the later counts, as for the library.
    void add(const VelAuditPrices& thePrices);

    /// Whether some article of any group is priced by that way, and some of one group.
    bool isSold(const VelOrderSource& theSource) const { return mySold.contains(theSource); }
    bool isSold(int theGroup, const VelOrderSource& theSource) const;
    /// Whether the group has a transfer with any price.
    bool hasShipping(int theGroup) const { return !myShipped.value(theGroup).isEmpty(); }
    /// Whether the group has a transfer that is priced by that way, or by the products of an order.
    bool isShipped(int theGroup, const VelOrderSource& theSource) const;

private:
    QMap<VelOrderSource, QSet<int>> mySold; ///< the groups
    QMap<int, QList<VelOrderSource>> myShipped;
    QSet<int> myShippedByProducts;
};

#endif
