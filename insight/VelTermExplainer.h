#ifndef VELTERMEXPLAINER_H
#define VELTERMEXPLAINER_H

#include "insight/VelExplanationSources.h"
#include "insight/VelPriceExplanation.h"
#include "insight/VelPriceQuestion.h"

class VelOrderStatistic;
class VelProductAbstract;
class VelTarmBill;

/// The level that an add-on inherits, and the main product that it has it from.
struct VelInheritedLevel
{
    int myLevel = 0;
    const VelProductAbstract* myMainProduct = nullptr;
    bool myIsOfBill = false; ///< whether a bill was asked for it
};

/// What the add-on inherits in the bill; nothing for a product of another kind and without a bill. While a bill is
/// made, only the products in front of the add-on are there: those are meant with theIsInBill.
VelInheritedLevel inheritedLevel(const VelProductAbstract& theProduct, const VelTarmBill* theBill, bool theIsInBill);

/// Adds to the reason of an add-on where its level comes from.
void tellInheritance(VelExplainedTerm& theTerm, const VelInheritedLevel& theInherited);

/// Explains the price of one product, be it an article or a fee.
class VelTermExplainer
{
public:
    /// The sources stay alive meanwhile.
    explicit VelTermExplainer(const VelExplanationSources& theSources) : mySources(theSources) {}

    /// As the product answers for itself.
    VelExplainedTerm term(const VelProductAbstract& theProduct, const VelPriceQuestion& theQuestion,
                          const VelOrderStatistic* theStatistic) const;

private:
    void explainByModels(VelExplainedTerm& theTerm, const VelProductAbstract& theProduct,
                         const VelPriceQuestion& theQuestion) const;
    void explainByProducts(VelExplainedTerm& theTerm, const VelProductAbstract& theTransfer,
                           const VelOrderSource& theSource, const VelOrderStatistic* theStatistic) const;
    void citeBaseEntry(VelExplainedPlaces& thePlaces, const VelProductAbstract& theProduct,
                       const VelOrderSource& theSource, bool theLeads) const;

    const VelExplanationSources& mySources;
};

#endif
