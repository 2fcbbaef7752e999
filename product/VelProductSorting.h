#ifndef VELPRODUCTSORTING_H
#define VELPRODUCTSORTING_H

#include "frame/VelQuickSort.h"
#include "frame/VelTarmExport.h"
#include "product/VelProductList.h"

#include <QString>

/**
 * Whether a name sorts before another: names that begin with a number by that number, then by length; if one of the
 * two doesn't, by length, then caseless. A number that no int holds counts 0.
 *
 * This is not a strict weak order: its rules can form a cycle. Sort with quickSort, which bears that, and never
 * with std::sort.
 */
VELTARM_EXPORT bool sortByNumber(const QString& theLeft, const QString& theRight);

/// sortByNumber of the products' names.
VELTARM_EXPORT bool sortProductByNumber(VelProductAbstract* theLeft, VelProductAbstract* theRight);

/// What quickSort with sortProductByNumber makes of the list, with each name read once.
VELTARM_EXPORT void sortProductsByNumber(VelProductList& theProducts);

#endif
