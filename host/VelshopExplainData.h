#ifndef VELSHOPEXPLAINDATA_H
#define VELSHOPEXPLAINDATA_H

#include "insight/VelPriceExplanation.h"

#include <QJsonObject>

/// An explanation as JSON: what has no price is null.
QJsonObject explanationData(const VelPriceExplanation& theExplanation);

/// The id of a term's article, null where it has none.
QJsonValue articleData(const VelExplainedTerm& theTerm);

/// The word of a kind: "item", "transfer", "payment", "coupon", "express" or "floor".
QString kindWord(VelExplainedTerm::Kind theKind);

#endif
