#ifndef VELPRICEEXPLAINER_H
#define VELPRICEEXPLAINER_H

#include "insight/VelInsightExport.h"
#include "insight/VelPriceExplanation.h"
#include "price/VelTarmPriceKey.h"

#include <QString>
#include <QStringList>

#include <memory>

class VelCoupon;
class VelExplanationSources;
class VelOrderStatistic;
class VelProductAbstract;
class VelTarmBill;
class VelTarmOrder;

/**
 * Tells why a price, a bill or an order comes to what it does, down to the attributes of the documents. It asks the
 * rules that price, and changes nothing.
 *
 *     const VelPriceExplainer explainer;
 *     for (const VelExplainedTerm& term : explainer.price(*product, status.priceKey(), 25).terms())
 *         qDebug() << term.myAmount << term.myComputed << term.myReason;
 *
 * It reads the documents of the last loads once more for their places, so one explainer serves many explanations. Make
 * a new one when the price list or the ordering details were read again.
 */
class VELINSIGHT_EXPORT VelPriceExplainer
{
    Q_DISABLE_COPY(VelPriceExplainer)

public:
    /// In place of a level that an add-on inherits: the bill says it.
    static constexpr int LEVEL_OF_BILL = -1;

    /// The files of the coupons that orders hold, in their order, for their places.
    explicit VelPriceExplainer(const QStringList& theCouponFiles = QStringList());
    ~VelPriceExplainer();

    /// What VelProductAbstract::priceFor answers, as one term. The bill, which may be null, stands for the main
    /// products of an add-on, unless a level is given for them, and the statistic for what a shipping by products
    /// ships; without one it comes to 0.
    VelPriceExplanation price(const VelProductAbstract& theProduct, const VelTarmPriceKey& theKey, int theCount,
                              const VelTarmBill* theBill = nullptr, const VelOrderStatistic* theStatistic = nullptr,
                              int theBillingSum = 0, int theInheritedLevel = LEVEL_OF_BILL) const;

    /// Every amount of a bill. What the terms charge adds up to VelTarmBill::totalFinalCost() with the coupon, which
    /// may be null and takes off what VelCoupon::discountForOrder says; one that isn't valid takes nothing.
    VelPriceExplanation bill(const VelTarmBill& theBill, const VelCoupon* theCoupon = nullptr) const;

    /// Every amount of an order, bill after bill, with its coupons.
    VelPriceExplanation order(const VelTarmOrder& theOrder) const;

private:
    std::unique_ptr<VelExplanationSources> mySources;
};

#endif
