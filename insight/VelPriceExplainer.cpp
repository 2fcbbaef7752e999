#include "insight/VelPriceExplainer.h"

#include "insight/VelExplanationSources.h"
#include "insight/VelPriceWords.h"
#include "insight/VelTermExplainer.h"
#include "product/VelProductAbstract.h"

namespace {

void tellInheritance(VelExplainedTerm& theTerm, const VelInheritedLevel& theInherited)
{
    if (theInherited.myMainProduct)
        theTerm.myReason +=
            QStringLiteral("; inherits level %1 of %2")
                .arg(QString::number(theInherited.myLevel), VelPriceWords::product(*theInherited.myMainProduct));
}

} // namespace

VelPriceExplainer::VelPriceExplainer(const QStringList& theCouponFiles) : mySources(new VelExplanationSources)
{
    for (const QString& file : theCouponFiles)
        mySources->addCoupon(file);
}

VelPriceExplainer::~VelPriceExplainer() = default;

VelPriceExplanation VelPriceExplainer::price(const VelProductAbstract& theProduct, const VelTarmPriceKey& theKey,
                                             int theCount, const VelTarmBill* theBill,
                                             const VelOrderStatistic* theStatistic, int theBillingSum,
                                             int theInheritedLevel) const
{
    VelInheritedLevel inherited = inheritedLevel(theProduct, theBill, false);
    if (theInheritedLevel != LEVEL_OF_BILL)
        inherited = {theInheritedLevel, nullptr};
    const VelPriceQuestion question{theKey.orderSource(), theCount, theBillingSum, inherited.myLevel,
                                    theKey.discountModel() == DISCOUNT_MODEL_EXPRESS_FEE};
    VelExplainedTerm term = VelTermExplainer(*mySources).term(theProduct, question, theStatistic);
    tellInheritance(term, inherited);
    return {{term}, term.myAmount};
}
