#include "host/VelshopProblems.h"

#include "bill/VelTarmOrder.h"
#include "host/VelshopWords.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductAbstract.h"

#include <QJsonObject>
#include <QMap>

#include <algorithm>

namespace {

using Objection = VelTarmOrderObjection;

QString nameOf(const Objection& theObjection)
{
    const VelProductAbstract* product = theObjection.myProduct;
    return product ? QStringLiteral("%1 %2: ").arg(QString::number(product->articleID()), product->name()) : QString();
}

QString limitText(const Objection& theObjection)
{
    const QString name = VelTarmShippingGroupManager::instance()->shippingGroupName(theObjection.myGroup);
    return QStringLiteral("shipping group %1: %2, but at most %3 can be ordered")
        .arg(QStringLiteral("%1 %2").arg(theObjection.myGroup).arg(name).trimmed(),
             VelshopWords::pieces(theObjection.myNumber), QString::number(theObjection.myLimit));
}

QString amountText(const Objection& theObjection)
{
    const QString what = theObjection.myGroup == Objection::NO_GROUP
                             ? QStringLiteral("the order")
                             : QStringLiteral("shipping group %1").arg(theObjection.myGroup);
    return QStringLiteral("an amount of %1 is beyond what 32 bits of cents can hold").arg(what);
}

QString reason(const Objection& theObjection, const VelTarmOrder& theOrder)
{
    const QString source = VelshopWords::orderSource(theOrder.status().orderSource());
    switch (theObjection.myKind) {
    case Objection::OBJECTION_ORDER_SOURCE:
        return QStringLiteral("the shop takes no orders by ") + source;
    case Objection::OBJECTION_PAYMENT:
        return QStringLiteral("payment %1 can't be chosen by %2").arg(QString::number(theObjection.myNumber), source);
    case Objection::OBJECTION_NO_PRODUCT:
        return QStringLiteral("the cart holds an article that the price list doesn't know");
    case Objection::OBJECTION_COUNT:
        return VelshopWords::pieces(theObjection.myNumber) + QStringLiteral(" can't be ordered");
    case Objection::OBJECTION_DEPRECATED:
        return QStringLiteral("it is no longer in the price list");
    case Objection::OBJECTION_NOT_ORDERABLE:
        return QStringLiteral("the shop doesn't sell its shipping group");
    case Objection::OBJECTION_NO_PRICE:
        return QStringLiteral("no price by ") + source;
    case Objection::OBJECTION_PACKAGE_PIECES:
        return QStringLiteral("no price by %1, a package would have %2")
            .arg(source, VelshopWords::pieces(theObjection.myNumber));
    case Objection::OBJECTION_NO_EXPRESS:
        return QStringLiteral("it can't be had by %1 as %2").arg(source, VelshopWords::express(theOrder.expressType()));
    case Objection::OBJECTION_LIMIT:
        return limitText(theObjection);
    case Objection::OBJECTION_AMOUNT:
        return amountText(theObjection);
    }
    return QString();
}

/// The kind in one word of data.
QString kindOf(const Objection& theObjection)
{
    static const QMap<int, QString> kinds{{Objection::OBJECTION_ORDER_SOURCE, QStringLiteral("orderSource")},
                                          {Objection::OBJECTION_PAYMENT, QStringLiteral("payment")},
                                          {Objection::OBJECTION_NO_PRODUCT, QStringLiteral("unknownArticle")},
                                          {Objection::OBJECTION_COUNT, QStringLiteral("count")},
                                          {Objection::OBJECTION_DEPRECATED, QStringLiteral("deprecated")},
                                          {Objection::OBJECTION_NOT_ORDERABLE, QStringLiteral("notSold")},
                                          {Objection::OBJECTION_NO_PRICE, QStringLiteral("noPrice")},
                                          {Objection::OBJECTION_PACKAGE_PIECES, QStringLiteral("noPackage")},
                                          {Objection::OBJECTION_NO_EXPRESS, QStringLiteral("noExpress")},
                                          {Objection::OBJECTION_LIMIT, QStringLiteral("limit")},
                                          {Objection::OBJECTION_AMOUNT, QStringLiteral("amount")}};
    return kinds.value(theObjection.myKind);
}

/// What the number of the objection is, empty for a kind that has none to tell.
QString keyOfNumber(const Objection& theObjection)
{
    switch (theObjection.myKind) {
    case Objection::OBJECTION_PAYMENT:
        return QStringLiteral("payment");
    case Objection::OBJECTION_NO_PRODUCT:
    case Objection::OBJECTION_COUNT:
    case Objection::OBJECTION_PACKAGE_PIECES:
    case Objection::OBJECTION_LIMIT:
        return QStringLiteral("count");
    default:
        return QString();
    }
}

QString feeOf(const Objection& theObjection)
{
    switch (theObjection.myFee) {
    case Objection::FEE_TRANSFER:
        return QStringLiteral("shipping");
    case Objection::FEE_PAYMENT:
        return QStringLiteral("payment");
    case Objection::FEE_EXPRESS:
        return QStringLiteral("express");
    case Objection::FEE_NONE:
        break;
    }
    return QString();
}

QJsonObject toJson(const Objection& theObjection)
{
    QJsonObject json{{QStringLiteral("kind"), kindOf(theObjection)}};
    if (theObjection.myProduct)
        json.insert(QStringLiteral("article"), theObjection.myProduct->articleID());
    if (theObjection.myFee != Objection::FEE_NONE)
        json.insert(QStringLiteral("fee"), feeOf(theObjection));
    if (!keyOfNumber(theObjection).isEmpty())
        json.insert(keyOfNumber(theObjection), theObjection.myNumber);
    if (theObjection.myKind == Objection::OBJECTION_LIMIT)
        json.insert(QStringLiteral("limit"), theObjection.myLimit);
    return json;
}

bool isOfProduct(const Objection& theObjection)
{
    return theObjection.myProduct && theObjection.myFee == Objection::FEE_NONE;
}

bool isOfPrice(const Objection& theObjection)
{
    return isOfProduct(theObjection) && (theObjection.myKind == Objection::OBJECTION_NO_PRICE ||
                                         theObjection.myKind == Objection::OBJECTION_PACKAGE_PIECES);
}

/// An order of nothing else; a payment that isn't permitted doesn't matter here.
VelTarmOrder orderOf(VelProductAbstract* theProduct, int theCount, const VelOrderSource& theSource)
{
    VelTarmStatus status;
    status.setOrderSource(theSource);
    return VelTarmOrder({{theProduct, theCount}}, status, VelExpressType());
}

/// One piece, and as many as each band begins with: a package may have no price for a single piece.
QList<int> countsWorthAsking(const VelProductAbstract& theProduct, const VelOrderSource& theSource)
{
    QList<int> counts = {1};
    for (const VelDiscountLimit& limit :
         theProduct.discountLimits(VelTarmPriceKey(theSource, -1, DISCOUNT_MODEL_UNDEFINED)))
        if (limit.lowerLimit() > 1)
            counts.append(limit.lowerLimit());
    return counts;
}

} // namespace

QString VelshopProblems::text(const Objection& theObjection, const VelTarmOrder& theOrder)
{
    return nameOf(theObjection) + reason(theObjection, theOrder);
}

QStringList VelshopProblems::texts(const QList<Objection>& theObjections, const VelTarmOrder& theOrder)
{
    QStringList texts;
    for (const Objection& objection : theObjections)
        texts.append(text(objection, theOrder));
    return texts;
}

QJsonArray VelshopProblems::data(const QList<Objection>& theObjections)
{
    QJsonArray data;
    for (const Objection& objection : theObjections)
        data.append(toJson(objection));
    return data;
}

QList<Objection> VelshopProblems::ofOrder(const VelTarmOrder& theOrder)
{
    QList<Objection> objections;
    for (const Objection& objection : theOrder.objections())
        if (objection.myGroup == Objection::NO_GROUP)
            objections.append(objection);
    return objections;
}

QStringList VelshopProblems::ofProducts(const VelTarmOrder& theOrder)
{
    QStringList texts;
    for (const Objection& objection : theOrder.objections())
        if (isOfProduct(objection))
            texts.append(text(objection, theOrder));
    return texts;
}

QStringList VelshopProblems::ofPrice(VelProductAbstract* theProduct, int theCount, const VelOrderSource& theSource)
{
    const VelTarmOrder order = orderOf(theProduct, theCount, theSource);
    QStringList texts;
    for (const Objection& objection : order.objections())
        if (isOfPrice(objection))
            texts.append(text(objection, order));
    return texts;
}

bool VelshopProblems::hasPrice(const VelProductAbstract* theProduct, const VelTarmOrder& theOrder)
{
    const QList<Objection>& objections = theOrder.objections();
    return std::none_of(objections.cbegin(), objections.cend(), [&](const Objection& theObjection) {
        return theObjection.myProduct == theProduct && isOfPrice(theObjection);
    });
}

bool VelshopProblems::hasPrice(VelProductAbstract* theProduct, int theCount, const VelOrderSource& theSource)
{
    return ofPrice(theProduct, theCount, theSource).isEmpty();
}

bool VelshopProblems::isOrderable(VelProductAbstract* theProduct, const VelOrderSource& theSource)
{
    const QList<int> counts = countsWorthAsking(*theProduct, theSource);
    return std::any_of(counts.cbegin(), counts.cend(),
                       [&](int theCount) { return ofProducts(orderOf(theProduct, theCount, theSource)).isEmpty(); });
}
