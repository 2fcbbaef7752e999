#include "host/VelshopBillSheet.h"

#include "bill/VelCoupon.h"
#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "host/VelshopBillMoney.h"
#include "host/VelshopCart.h"
#include "host/VelshopWords.h"
#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelXMLLoader.h"

#include <memory>

namespace {

QString daysText(const VelTarmShippingTime& theTime)
{
    if (!theTime.isValid() || theTime.minDays() < 0)
        return QString();
    return theTime.varies() ? QStringLiteral("%1-%2").arg(theTime.minDays()).arg(theTime.maxDays())
                            : QString::number(theTime.minDays());
}

/// An article that can't go by express goes at the standard pace.
QString daysOf(const VelProductAbstract& theProduct, const VelshopCart& theCart)
{
    const VelDeliveryType delivery = theCart.myStatus.deliveryType();
    const bool isExpress = theProduct.isExpressable(delivery, theCart.myExpress);
    return daysText(
        theProduct.shippingTime(delivery, isExpress ? theCart.myExpress : VelExpressType(ExpressableType_STANDARD)));
}

VelshopBillLine lineOf(const VelTarmBillPositionAbstract& thePosition, const VelshopCart& theCart)
{
    const VelProductAbstract& product = *thePosition.product();
    return {product.articleID(),     thePosition.productName(),   thePosition.countItems(),
            thePosition.unitPrice(), thePosition.nonOfferPrice(), thePosition.positionPrice(),
            thePosition.isPackage(), thePosition.discountModel(), thePosition.discountLevel(),
            daysOf(product, theCart)};
}

/// The sum of the positions without wrapping around.
qint64 itemsOf(const VelTarmBill& theBill)
{
    qint64 sum = 0;
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions())
        sum += static_cast<qint64>(position->unitPrice()) * position->unitCount();
    return sum;
}

/// The most that a coupon can take off for one free piece.
qint64 highestUnitPrice(const VelTarmBill& theBill)
{
    int highest = 0;
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions())
        highest = qMax(highest, position->unitPrice());
    return highest;
}

/// Makes the bills one after the other: the coupon counts on the first on which it takes anything off.
class SheetMaker
{
public:
    SheetMaker(const VelshopCart& theCart, VelshopBillSheet& theSheet) : myCart(theCart), mySheet(theSheet) {}

    bool make(VelshopError& theError)
    {
        if (!readCoupon(theError))
            return false;
        mySheet.myHead = head();
        for (auto group = myCart.myGroups.cbegin(); group != myCart.myGroups.cend(); ++group)
            if (!addGroup(group.key(), group.value(), theError))
                return false;
        if (!mySheet.mySums.fit())
            theError = tooLarge(QStringLiteral("the order"));
        mySheet.myCoupon = couponText();
        return theError.isEmpty();
    }

private:
    VelshopError tooLarge(const QString& theWhat) const
    {
        return {myCart.myFile, 0, 0,
                QStringLiteral("items: an amount of %1 is beyond what 32 bits of cents can hold").arg(theWhat)};
    }

    QString head() const
    {
        const VelPaymentType payment = myCart.myStatus.payment();
        QString text = VelshopWords::orderSource(myCart.myStatus.orderSource());
        text += QStringLiteral("; payment %1 (%2)")
                    .arg(QString::number(payment),
                         VelOrderingDetails::instance()->nameOfOrderingDetail(PAYMENT_CLASS_PAY_METHODS, payment));
        if (myCart.myExpress == VelExpressType(ExpressableType_STANDARD))
            return text + QStringLiteral("; ") + myCart.myExpress.humanReadableName();
        return text + QStringLiteral("; express %1").arg(myCart.myExpress.value() - ExpressableType_STANDARD);
    }

    bool readCoupon(VelshopError& theError)
    {
        if (myCart.myCouponFile.isEmpty())
            return true;
        const QFileInfo file(myCart.myCouponFile);
        const QDomElement document = VelXMLLoader::loadDocumentElement(file);
        if (document.isNull()) {
            theError = {myCart.myFile, 0, 0, QStringLiteral("coupon: ") + VelTarmLoadResult(file, document).problem()};
            return false;
        }
        myCoupon = std::make_unique<VelCoupon>(myCart.myCouponId, document);
        return true;
    }

    bool addGroup(int theId, const VelOrderStatistic& theStatistic, VelshopError& theError)
    {
        const VelTarmBill bill(theId, theStatistic, myCart.myExpress, myCart.myStatus);
        VelshopBillGroup group{theId, VelTarmShippingGroupManager::instance()->shippingGroupName(theId), {}, {}, {}};
        for (const VelTarmBillPositionAbstract* position : bill.orderPositions())
            if (qobject_cast<const VelTarmBillPosition*>(position))
                group.myLines.append(lineOf(*position, myCart));
        group.myProblems = problemsOf(bill, theStatistic);
        mySheet.myProblems += group.myProblems;
        group.mySums.myItems = itemsOf(bill);
        bool fits = group.mySums.fit();
        if (fits && group.myProblems.isEmpty())
            fits = addSums(bill, group.mySums);
        mySheet.myGroups.append(group);
        if (!fits)
            theError = tooLarge(QStringLiteral("shipping group %1").arg(theId));
        return fits;
    }

    /// The order's sum is that of its bills: each shipping group travels in a parcel of its own and is charged on its
    /// own, so the payment fee is due once for each bill that comes to anything.
    bool addSums(const VelTarmBill& theBill, VelshopBillSums& theSums)
    {
        if (!couponFits(theBill))
            return false;
        const int coupon = couponFor(theBill);
        theSums.myShipping = theBill.transferFee();
        theSums.myPayment = theBill.priceOfPaymentAgio(coupon);
        theSums.myCoupon = coupon;
        theSums.myExpress = theBill.priceOfExpressAgio(nullptr);
        theSums.myTotal = theBill.totalFinalCost(coupon);
        mySheet.mySums.add(theSums);
        return theSums.fit();
    }

    bool canCount() const { return myCoupon && myCoupon->isValid() && myCouponGroup.isNull(); }

    /// Whether an int holds what the coupon reckons with on its way.
    bool couponFits(const VelTarmBill& theBill) const
    {
        if (!canCount())
            return true;
        const qint64 value = myCoupon->totalValueOfOrder(theBill);
        const qint64 free = myCoupon->freeQuantity() * highestUnitPrice(theBill) + theBill.transferFee();
        return VelshopBillMoney::fits(value * myCoupon->discountPercentage()) &&
               VelshopBillMoney::fits(value + myCoupon->maximumDiscountValue()) &&
               (myCoupon->type() != COUPON_TYPE_QUANTITY || VelshopBillMoney::fits(free));
    }

    int couponFor(const VelTarmBill& theBill)
    {
        const int discount = canCount() ? myCoupon->discountForOrder(theBill, 0) : 0;
        if (discount != 0)
            myCouponGroup = VelTarmShippingGroupManager::instance()->shippingGroupName(theBill.shippingGroup()) +
                            QStringLiteral(" (%1)").arg(theBill.shippingGroup());
        return discount;
    }

    QString couponText() const
    {
        if (!myCoupon)
            return QString();
        QString text = myCoupon->id() + QStringLiteral(": ");
        if (!myCoupon->isValid())
            return text + QStringLiteral("not valid, it lacks a campaign or a known type");
        text += QStringLiteral("valid, campaign %1, ").arg(myCoupon->campaign());
        return text + (myCouponGroup.isNull() ? QStringLiteral("takes nothing off this order")
                                              : QStringLiteral("counts on ") + myCouponGroup);
    }

    QStringList problemsOf(const VelTarmBill& theBill, const VelOrderStatistic& theStatistic) const
    {
        QStringList problems;
        for (const VelProductAbstract* product : theStatistic.products()) {
            if (!product->isOrderable())
                problems.append(nameOf(product) + QStringLiteral(": the shop doesn't sell its shipping group"));
            else if (!theBill.billPosition(product))
                problems.append(noPrice(product));
        }
        // A fee without a price would lower the total by one cent.
        if (theBill.transferFee() == -1)
            problems.append(noPrice(theBill.transferProduct()));
        if (theBill.priceOfExpressAgio(nullptr) == -1)
            problems.append(
                noPrice(VelProductRegistry::instance()->expressAgioProduct(theBill.shippingGroup(), myCart.myExpress)));
        return problems;
    }

    QString nameOf(const VelProductAbstract* theProduct) const
    {
        return QString::number(theProduct->articleID()) + QLatin1Char(' ') + theProduct->name();
    }

    QString noPrice(const VelProductAbstract* theProduct) const
    {
        return nameOf(theProduct) + QStringLiteral(": no price by ") +
               VelshopWords::orderSource(myCart.myStatus.orderSource());
    }

    const VelshopCart& myCart;
    VelshopBillSheet& mySheet;
    std::unique_ptr<VelCoupon> myCoupon;
    QString myCouponGroup; ///< where the coupon counted, null as long as it did not
};

} // namespace

QString VelshopBillLine::discount() const
{
    if (myLevel == 0)
        return QStringLiteral("-");
    const QString level = QStringLiteral("level %1").arg(myLevel);
    if (myIsPackage)
        return QStringLiteral("package, ") + level;
    return myModel == DISCOUNT_MODEL_INHERITED_DISCOUNT ? QStringLiteral("inherited ") + level : level;
}

QList<VelshopBillSums::Row> VelshopBillSums::rows() const
{
    return {{QStringLiteral("items"), static_cast<int>(myItems)},
            {QStringLiteral("shipping"), static_cast<int>(myShipping)},
            {QStringLiteral("payment"), static_cast<int>(myPayment)},
            {QStringLiteral("coupon"), static_cast<int>(myCoupon)},
            {QStringLiteral("express"), static_cast<int>(myExpress)},
            {QStringLiteral("total"), static_cast<int>(myTotal)}};
}

void VelshopBillSums::add(const VelshopBillSums& theOther)
{
    myItems += theOther.myItems;
    myShipping += theOther.myShipping;
    myPayment += theOther.myPayment;
    myCoupon += theOther.myCoupon;
    myExpress += theOther.myExpress;
    myTotal += theOther.myTotal;
}

bool VelshopBillSums::fit() const
{
    const qint64 charges = myItems + myShipping + myPayment + myExpress;
    for (const qint64 amount :
         {myItems, myShipping, myPayment, myCoupon, myExpress, myTotal, charges, charges + myCoupon})
        if (!VelshopBillMoney::fits(amount))
            return false;
    return true;
}

bool makeBillSheet(const VelshopCart& theCart, VelshopBillSheet& theSheet, VelshopError& theError)
{
    return SheetMaker(theCart, theSheet).make(theError);
}
