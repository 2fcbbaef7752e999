#ifndef VELPRICENEEDS_H
#define VELPRICENEEDS_H

#include "insight/VelPriceExplanation.h"
#include "insight/VelPriceQuestion.h"

/// The ways to a price of a product that has none as it was asked for: by each order source that has one the smallest
/// quantity; for an add-on also smaller ones that a higher level of a main product opens. Empty where there is none.
QVector<VelExplainedNeed> needsOf(const VelProductAbstract& theProduct, const VelPriceQuestion& theQuestion);

#endif
