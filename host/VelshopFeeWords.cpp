#include "host/VelshopFeeWords.h"

#include "host/VelshopWords.h"

QString VelshopFeeWords::kind(VelShopFees::Kind theKind)
{
    switch (theKind) {
    case VelShopFees::FEE_TRANSFER:
        return QStringLiteral("transfer");
    case VelShopFees::FEE_PAYMENT:
        return QStringLiteral("payment");
    case VelShopFees::FEE_EXPRESS:
        break;
    }
    return QStringLiteral("express");
}

QString VelshopFeeWords::name(const VelShopFees::Fee& theFee)
{
    switch (theFee.myKind) {
    case VelShopFees::FEE_TRANSFER:
        return QStringLiteral("shipping");
    case VelShopFees::FEE_PAYMENT:
        return QStringLiteral("payment %1").arg(theFee.myPayment);
    case VelShopFees::FEE_EXPRESS:
        break;
    }
    return VelshopWords::express(VelExpressType(theFee.myExpress));
}

QJsonValue VelshopFeeWords::expressData(const VelShopFees::Fee& theFee)
{
    const VelExpressType type(theFee.myExpress);
    return type.isValid() ? QJsonValue(QString::number(type.value() - ExpressableType_STANDARD)) : QJsonValue();
}
