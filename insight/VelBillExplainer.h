#ifndef VELBILLEXPLAINER_H
#define VELBILLEXPLAINER_H

#include "insight/VelExplanationSources.h"
#include "insight/VelPriceExplanation.h"
#include "insight/VelTermExplainer.h"

#include <QHash>

class VelTarmBill;

/// Explains every amount of one bill.
class VelBillExplainer
{
public:
    /// Bill and sources stay alive meanwhile.
    VelBillExplainer(const VelTarmBill& theBill, const VelExplanationSources& theSources);

    /// The articles, the fees around the coupons' terms, and the floor. What the coupons add is an amount of the bill.
    QVector<VelExplainedTerm> terms(const QVector<VelExplainedTerm>& theCoupons, int theCouponAmount) const;

private:
    /// What the positions of a product come to.
    struct Charged
    {
        int myAmount = 0;       ///< cents that the bill sums up
        bool myIsSummed = true; ///< whether the product is of a group at all
    };

    VelExplainedTerm item(VelProductAbstract* theProduct, int theCount) const;
    void appendTransfer(QVector<VelExplainedTerm>& theTerms) const;
    void appendPayment(QVector<VelExplainedTerm>& theTerms, int theCouponAmount) const;
    void appendExpress(QVector<VelExplainedTerm>& theTerms) const;
    void appendFloor(QVector<VelExplainedTerm>& theTerms, int theCouponAmount) const;
    void makeFree(VelExplainedTerm& theTerm) const;
    int printFunCount() const;

    const VelTarmBill& myBill;
    const VelExplanationSources& mySources;
    const VelTermExplainer myTerms;
    QHash<const VelProductAbstract*, Charged> myCharged;
};

#endif
