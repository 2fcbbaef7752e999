#include "insight/VelPriceExplainer.h"

#include "bill/VelTarmOrder.h"
#include "frame/VelArithmetic.h"
#include "insight/VelBillExplainer.h"
#include "insight/VelCouponExplainer.h"
#include "insight/VelExplanationSources.h"
#include "insight/VelTermExplainer.h"
#include "product/VelProductAbstract.h"

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

VelPriceExplanation VelPriceExplainer::bill(const VelTarmBill& theBill, const VelCoupon* theCoupon) const
{
    QVector<VelExplainedTerm> coupons;
    const int share = theCoupon && theCoupon->isValid() ? theCoupon->discountForOrder(theBill, 0) : 0;
    if (theCoupon)
        coupons.append(VelCouponExplainer(theBill, *mySources).term(*theCoupon, {0, share, 0, true}));
    return {VelBillExplainer(theBill, *mySources).terms(coupons, share), theBill.totalFinalCost(share)};
}

VelPriceExplanation VelPriceExplainer::order(const VelTarmOrder& theOrder) const
{
    QVector<VelExplainedTerm> terms;
    QVector<int> taken(theOrder.coupons().size(), 0);
    for (const VelTarmOrderBill& bill : theOrder.bills()) {
        QVector<VelExplainedTerm> coupons;
        for (int number = 0; number < taken.size(); ++number) {
            const int share = bill.couponShares().at(number);
            coupons.append(VelCouponExplainer(bill.bill(), *mySources)
                               .term(theOrder.coupons().at(number).coupon(),
                                     {number, share, taken.at(number), bill.objections().isEmpty()}));
            taken[number] = VelArithmetic::sum(taken.at(number), share);
        }
        terms += VelBillExplainer(bill.bill(), *mySources).terms(coupons, bill.couponAmount());
    }
    return {terms, theOrder.amounts().myTotal};
}
