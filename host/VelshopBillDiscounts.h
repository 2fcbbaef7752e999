#ifndef VELSHOPBILLDISCOUNTS_H
#define VELSHOPBILLDISCOUNTS_H

#include <QByteArray>

class VelTarmOrder;

/// What was sold, in groups of pieces of one product at one discount level, shipping and express fee included: an XML
/// document with an element `group` for each shipping group, `product` and `pieces` with the attributes of the bill's
/// description. The attributes are sorted by name, so that the same order gives the same bytes.
QByteArray discountDescription(const VelTarmOrder& theOrder);

#endif
