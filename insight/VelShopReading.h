#ifndef VELSHOPREADING_H
#define VELSHOPREADING_H

#include "insight/VelShopSnapshot.h"
#include "insight/VelVocabulary.h"

class VelProductAbstract;

/// What VelShopSnapshot is taken from.
namespace VelShopReading {

/// The five ways that an order can go.
const QList<VelOrderSource>& orderSources();

/// The word of the document for a value, those of its bits with commas between; empty for none.
QString word(const VelVocabulary& theVocabulary, int theValue);

/// All fields of an article or an add-on, of a fee those that have an effect.
QVector<VelShopField> fields(const VelProductAbstract& theProduct, VelShopEntry::Kind theKind);

/// The totals of a product by each order source, as the order desk sells it.
QVector<VelShopTotals> totals(const VelProductAbstract& theProduct, VelDiscountModel theKeyModel);

/// The conditions of the shop.
QVector<VelShopField> conditions();

} // namespace VelShopReading

#endif
