#ifndef VELPRODUCTLIST_H
#define VELPRODUCTLIST_H

#include <QList>

class VelProductAbstract;

/// A list of products that does not own them.
using VelProductList = QList<VelProductAbstract*>;

#endif
