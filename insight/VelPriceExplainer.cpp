#include "insight/VelPriceExplainer.h"

#include "bill/VelTarmOrder.h"
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
        inherited = {theInheritedLevel, nullptr, false};
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
    if (theCoupon) {
        VelTarmOrderCoupon used(*theCoupon);
        VelCouponUse use{0, share, 0, used.left(), 0, true};
        used.spendOn(theBill, 0);
        use.myLeft = used.left();
        coupons.append(VelCouponExplainer(theBill, *mySources).term(*theCoupon, use));
    }
    return {VelBillExplainer(theBill, *mySources).terms(coupons, share), theBill.totalFinalCost(share)};
}

VelPriceExplanation VelPriceExplainer::order(const VelTarmOrder& theOrder) const
{
    QVector<VelExplainedTerm> terms;
    QVector<VelCouponUse> uses;
    for (const VelTarmOrderCoupon& coupon : theOrder.coupons())
        uses.append({static_cast<int>(uses.size()), 0, 0, 0, VelTarmOrderCoupon(coupon.coupon()).left(), true});
    for (const VelTarmOrderBill& bill : theOrder.bills()) {
        QVector<VelExplainedTerm> coupons;
        for (VelCouponUse& use : uses) {
            use.goOn(bill.couponShares().at(use.myNumber), bill.couponRests().at(use.myNumber));
            use.myIsPlaceable = bill.objections().isEmpty();
            coupons.append(
                VelCouponExplainer(bill.bill(), *mySources).term(theOrder.coupons().at(use.myNumber).coupon(), use));
        }
        terms += VelBillExplainer(bill.bill(), *mySources).terms(coupons, bill.couponAmount());
    }
    return {terms, theOrder.amounts().myTotal};
}
