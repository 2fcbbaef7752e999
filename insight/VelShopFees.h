#ifndef VELSHOPFEES_H
#define VELSHOPFEES_H

#include "frame/VelEnumerations.h"
#include "insight/VelInsightExport.h"

#include <QVector>

class VelProductAbstract;

/// The fees that the bills of a shop can be charged.
namespace VelShopFees {

/// What a fee is for.
enum Kind { FEE_TRANSFER, FEE_PAYMENT, FEE_EXPRESS };

/// A fee as the registry has it.
struct Fee
{
    Kind myKind;                   ///< what it is for
    VelProductAbstract* myProduct; ///< the registry's; null where a payment that is offered has no fee
    int myGroup;                   ///< the shipping group of a transfer or an express; of no meaning for a payment
    VelPaymentType myPayment;      ///< of a payment fee, PAYMENT_TYPE_UNKNOWN for all others
    VelExpressTypeEnum myExpress;  ///< of an express fee, ExpressableType_UNKNOWN for all others
};

/// All fees: transfers, then payments, then express fees. The shipping groups are those of the products and those that
/// the key account may sell; the payments are the known ones and those that an order way offers.
VELINSIGHT_EXPORT QVector<Fee> all();

/// The fee of an article id; one without a product when there is none.
VELINSIGHT_EXPORT Fee find(int theArticle);

/// The model of the price key that a bill asks for a fee of that kind with.
VELINSIGHT_EXPORT VelDiscountModel keyModel(Kind theKind);

} // namespace VelShopFees

#endif
