#include "host/VelshopWhatIf.h"

#include "host/VelshopCart.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopOptions.h"
#include "host/VelshopWords.h"
#include "ordering/VelOrderingDetails.h"

using namespace VelshopOptions;

QStringList VelshopWhatIf::options()
{
    return {STR_SOURCE, STR_DELIVERY, STR_PAYMENT, STR_EXPRESS, STR_NO_COUPON};
}

bool VelshopWhatIf::read(const VelshopCommandLine& theLine, VelshopError& theError)
{
    int payment = 0;
    if (!mySource.read(theLine, theError) || !theLine.readNumberOption(STR_PAYMENT, 0, payment, theError))
        return false;
    if (theLine.isSet(STR_PAYMENT))
        myPayment = payment;
    myExpress = theLine.value(STR_EXPRESS);
    myIsWithoutCoupon = theLine.isSet(STR_NO_COUPON);
    if (theLine.isSet(STR_EXPRESS) && !VelExpressType(myExpress).isValid())
        theError = QStringLiteral("--express must be 0, 1 or 2, not \"%1\"").arg(myExpress);
    return theError.isEmpty();
}

bool VelshopWhatIf::isAny() const
{
    return mySource.isNamed() || isMoreThanSource();
}

bool VelshopWhatIf::isMoreThanSource() const
{
    return myPayment || !myExpress.isNull() || myIsWithoutCoupon;
}

bool VelshopWhatIf::applyTo(VelshopCart& theCart, QStringList& theNotes, VelshopError& theError) const
{
    if ((mySource.isNamed() && !applySource(theCart, theNotes, theError)) ||
        (myPayment && !applyPayment(theCart, theError)))
        return false;
    if (!myExpress.isNull())
        theCart.myExpress = VelExpressType(myExpress);
    if (myIsWithoutCoupon)
        theCart.myCouponFile.clear();
    return true;
}

bool VelshopWhatIf::applySource(VelshopCart& theCart, QStringList& theNotes, VelshopError& theError) const
{
    VelOrderSource source = theCart.myStatus.orderSource();
    if (!mySource.complete(source, theCart.myStatus.orderSource(), theError))
        return false;
    const VelOrderingDetails* details = VelOrderingDetails::instance();
    if (!details->availableOrderSources().contains(source)) {
        theError = QStringLiteral("the shop takes no orders by ") + VelshopWords::orderSource(source);
        return false;
    }
    const VelPaymentType kept = theCart.myStatus.payment();
    const VelPaymentType payment = details->reasonableStartingPayment(source, kept);
    theCart.myStatus.setOrderSource(source);
    theCart.myStatus.setPayment(payment);
    if (payment != kept && !myPayment)
        theNotes.append(QStringLiteral("payment %1 can't be chosen by %2; payment %3 is taken")
                            .arg(QString::number(kept), VelshopWords::orderSource(source), QString::number(payment)));
    return true;
}

bool VelshopWhatIf::applyPayment(VelshopCart& theCart, VelshopError& theError) const
{
    const VelOrderSource source = theCart.myStatus.orderSource();
    const auto payment = static_cast<VelPaymentType>(*myPayment);
    if (!VelOrderingDetails::instance()->availablePayments(source).contains(payment))
        theError = QStringLiteral("--payment: %1 can't be chosen by %2")
                       .arg(QString::number(payment), VelshopWords::orderSource(source));
    theCart.myStatus.setPayment(payment);
    return theError.isEmpty();
}
