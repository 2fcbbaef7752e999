#include "insight/VelShopFees.h"

#include "frame/VelExpressType.h"
#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

#include <algorithm>

namespace {

using VelShopFees::Fee;

const int HIGHEST_KNOWN_PAYMENT = PAYMENT_TYPE_15;

template <typename Number>
void sortOnce(QVector<Number>& theNumbers)
{
    std::sort(theNumbers.begin(), theNumbers.end());
    theNumbers.erase(std::unique(theNumbers.begin(), theNumbers.end()), theNumbers.end());
}

QVector<int> shippingGroups()
{
    QVector<int> groups;
    for (const VelProductAbstract* product : VelProductRegistry::instance()->productList())
        if (groups.isEmpty() || groups.last() != product->shippingGroupId())
            groups.append(product->shippingGroupId());
    for (const VelTarmShippingGroup* group : VelTarmShippingGroupManager::instance()->shippingGroups())
        groups.append(group->id());
    sortOnce(groups);
    return groups;
}

QVector<int> offeredPayments()
{
    QVector<int> payments;
    const VelOrderingDetails* details = VelOrderingDetails::instance();
    for (const VelOrderSource& source : details->availableOrderSources())
        for (const VelPaymentType payment : details->availablePayments(source))
            payments.append(payment);
    return payments;
}

QVector<Fee> transfers(const QVector<int>& theGroups)
{
    QVector<Fee> fees;
    for (const int group : theGroups)
        if (VelProductAbstract* product = VelProductRegistry::instance()->transferProduct(group))
            fees.append({VelShopFees::FEE_TRANSFER, product, group, PAYMENT_TYPE_UNKNOWN, ExpressableType_UNKNOWN});
    return fees;
}

QVector<Fee> paymentFees()
{
    const QVector<int> offered = offeredPayments();
    QVector<int> payments = offered;
    for (int payment = PAYMENT_TYPE_0; payment <= HIGHEST_KNOWN_PAYMENT; ++payment)
        payments.append(payment);
    sortOnce(payments);
    QVector<Fee> fees;
    for (const int number : payments) {
        const auto payment = static_cast<VelPaymentType>(number);
        VelProductAbstract* product = VelProductRegistry::instance()->paymentAgioProduct(payment);
        if (product || offered.contains(number))
            fees.append({VelShopFees::FEE_PAYMENT, product, -1, payment, ExpressableType_UNKNOWN});
    }
    return fees;
}

QVector<Fee> expressFees(const QVector<int>& theGroups)
{
    QVector<Fee> fees;
    for (const int group : theGroups)
        for (const VelExpressTypeEnum type :
             {ExpressableType_UNKNOWN, ExpressableType_STANDARD, ExpressableType_EXPRESS_1, ExpressableType_EXPRESS_2})
            if (VelProductAbstract* product = VelProductRegistry::instance()->expressAgioProduct(group, type))
                fees.append({VelShopFees::FEE_EXPRESS, product, group, PAYMENT_TYPE_UNKNOWN, type});
    return fees;
}

} // namespace

QVector<VelShopFees::Fee> VelShopFees::all()
{
    const QVector<int> groups = shippingGroups();
    return transfers(groups) + paymentFees() + expressFees(groups);
}

VelShopFees::Fee VelShopFees::find(int theArticle)
{
    for (const Fee& fee : all())
        if (fee.myProduct && fee.myProduct->articleID() == theArticle)
            return fee;
    return {FEE_TRANSFER, nullptr, -1, PAYMENT_TYPE_UNKNOWN, ExpressableType_UNKNOWN};
}

VelDiscountModel VelShopFees::keyModel(Kind theKind)
{
    return theKind == FEE_EXPRESS ? DISCOUNT_MODEL_EXPRESS_FEE : DISCOUNT_MODEL_UNDEFINED;
}
