#ifndef VELSHOPEXPLAINCOMPARE_H
#define VELSHOPEXPLAINCOMPARE_H

#include "insight/VelPriceExplanation.h"

#include <QJsonObject>
#include <QList>

class QTextStream;

/// A term as it was and as it would be; one that isn't there before or after is null.
struct VelshopTermPair
{
    const VelExplainedTerm* myBefore;
    const VelExplainedTerm* myAfter;

    const VelExplainedTerm& any() const { return myAfter ? *myAfter : *myBefore; }
};

/// The terms of both, those of one article, fee or coupon side by side. They stay the explanations'.
QList<VelshopTermPair> termPairs(const VelPriceExplanation& theBefore, const VelPriceExplanation& theAfter);

/// Prints the terms that differ, and both totals.
void printComparison(const VelPriceExplanation& theBefore, const VelPriceExplanation& theAfter, QTextStream& theOutput);

/// The same as JSON, with all terms.
QJsonObject comparisonData(const VelPriceExplanation& theBefore, const VelPriceExplanation& theAfter);

#endif
