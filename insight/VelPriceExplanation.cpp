#include "insight/VelPriceExplanation.h"

#include <algorithm>

VelPriceExplanation::VelPriceExplanation(const QVector<VelExplainedTerm>& theTerms, qint64 theTotal)
    : myTerms(theTerms), myTotal(theTotal)
{
}

bool VelPriceExplanation::hasPrice() const
{
    return std::all_of(myTerms.cbegin(), myTerms.cend(),
                       [](const VelExplainedTerm& theTerm) { return theTerm.myHasPrice; });
}
