#include "insight/VelBillExplainer.h"

#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "frame/VelArithmetic.h"
#include "frame/VelChildElements.h"
#include "insight/VelPriceCandidates.h"
#include "insight/VelPriceWords.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

namespace {

const QString STR_TYPE = QStringLiteral("type");
const QString STR_ARRANGEMENT = QStringLiteral("arrangement");
const VelProductGroupEnum ALL = PRODUCT_GROUP_ALL;

/// A fee that isn't charged: what it would stand on was looked at all the same.
void waive(VelExplainedTerm& theTerm, int theAmount, const QString& theReason)
{
    theTerm.myAmount = theAmount;
    theTerm.myCharged = theAmount;
    theTerm.myHasPrice = true;
    theTerm.myComputed.clear();
    theTerm.myReason = theReason;
    theTerm.myCandidates.clear();
    theTerm.myNeeds.clear();
    theTerm.myPlaces.myCompared = theTerm.myPlaces.myDecides + theTerm.myPlaces.myCompared;
    theTerm.myPlaces.myDecides.clear();
}

/// A fee without a price, or one that would give money back.
QString whyBelowNothing(const VelExplainedTerm& theTerm)
{
    return theTerm.myHasPrice ? QStringLiteral("%1 is below 0, and such a fee isn't charged").arg(theTerm.myAmount)
                              : theTerm.myReason;
}

} // namespace

VelBillExplainer::VelBillExplainer(const VelTarmBill& theBill, const VelExplanationSources& theSources)
    : myBill(theBill), mySources(theSources), myTerms(theSources)
{
    for (const VelTarmBillPositionAbstract* position : myBill.orderPositions()) {
        Charged& charged = myCharged[position->product()];
        charged.myIsSummed = position->product()->productGroup().matches(ALL);
        if (charged.myIsSummed)
            charged.myAmount = VelArithmetic::sum(charged.myAmount, position->positionPrice());
    }
}

QVector<VelExplainedTerm> VelBillExplainer::terms(const QVector<VelExplainedTerm>& theCoupons,
                                                  int theCouponAmount) const
{
    QVector<VelExplainedTerm> terms;
    const QMap<VelProductAbstract*, int> items = myBill.cart().items();
    for (auto product = items.cbegin(); product != items.cend(); ++product)
        terms.append(item(product.key(), product.value()));
    appendTransfer(terms);
    appendPayment(terms, theCouponAmount);
    terms += theCoupons;
    appendExpress(terms);
    appendFloor(terms, theCouponAmount);
    for (VelExplainedTerm& term : terms)
        term.myGroup = myBill.shippingGroup();
    return terms;
}

// ---- articles

VelExplainedTerm VelBillExplainer::item(VelProductAbstract* theProduct, int theCount) const
{
    const VelInheritedLevel inherited = inheritedLevel(*theProduct, &myBill, true);
    const VelPriceQuestion question{myBill.status().orderSource(), theCount, 0, inherited.myLevel, false};
    VelExplainedTerm term = myTerms.term(*theProduct, question, &myBill.cart());
    term.myKind = VelExplainedTerm::ITEM;
    tellInheritance(term, inherited);
    const Charged charged = myCharged.value(theProduct);
    if (!term.myComputed.isEmpty() && !myCharged.contains(theProduct))
        waive(term, 0, QStringLiteral("filtered out of this bill"));
    else if (term.myHasPrice && !charged.myIsSummed) {
        waive(term, 0, QStringLiteral("its arrangement gives no product group, so that no bill sums it up"));
        mySources.cite(term.myPlaces.myDecides, mySources.element(*theProduct), {STR_ARRANGEMENT});
        term.myPlaces.myCompared = without(term.myPlaces.myCompared, term.myPlaces.myDecides);
    } else if (term.myHasPrice)
        term.myAmount = charged.myAmount;
    term.myCharged = charged.myAmount;
    return term;
}

// ---- fees

void VelBillExplainer::appendTransfer(QVector<VelExplainedTerm>& theTerms) const
{
    const VelProductAbstract* product = myBill.transferProduct();
    if (!product)
        return;
    const VelPriceQuestion question{myBill.status().orderSource(), myBill.totalItemCount(ALL),
                                    myBill.totalItemCost(ALL), 0, false};
    VelExplainedTerm term = myTerms.term(*product, question, &myBill.cart());
    term.myKind = VelExplainedTerm::TRANSFER;
    if (myBill.transferState() == VelTarmBill::TRANSFER_STATE_FREE)
        makeFree(term);
    else if (myBill.transferState() == VelTarmBill::TRANSFER_STATE_FILTERED_OUT)
        waive(term, 0, QStringLiteral("filtered out: the shipping is not among the articles of the bill"));
    else if (myBill.transferState() == VelTarmBill::TRANSFER_STATE_STORED)
        waive(term, myBill.transferFee(), QStringLiteral("filtered: as reckoned for the whole bill"));
    theTerms.append(term);
}

/// A position of the package model makes shipping free, whatever of it is a package.
void VelBillExplainer::makeFree(VelExplainedTerm& theTerm) const
{
    const QVector<VelExplainedPlace> places = theTerm.myPlaces.myDecides + theTerm.myPlaces.myCompared;
    QStringList names;
    QVector<VelExplainedPlace> types;
    for (const VelTarmBillPositionAbstract* position : myBill.orderPositions()) {
        if (position->discountModel() != DISCOUNT_MODEL_PACKAGE)
            continue;
        const VelTarmPriceView view(*position->product(), myBill.status().orderSource());
        const QString name = VelPriceWords::product(*position->product());
        if (!names.contains(name))
            names.append(name);
        for (const VelTarmPriceBand& band : view.bands(DISCOUNT_MODEL_PACKAGE))
            if (band.discountLevel() == position->discountLevel())
                mySources.cite(
                    types, VelExplanationSources::entries(mySources.element(*position->product())).value(band.entry()),
                    {STR_TYPE});
    }
    waive(theTerm, 0, QStringLiteral("free by the package of ") + VelPriceWords::list(names));
    theTerm.myPlaces = {types, without(places, types)};
}

void VelBillExplainer::appendPayment(QVector<VelExplainedTerm>& theTerms, int theCouponAmount) const
{
    const VelProductAbstract* product = VelProductRegistry::instance()->paymentAgioProduct(myBill.status().payment());
    if (!product)
        return;
    const VelPriceQuestion question{myBill.status().orderSource(), 1, 1, 0, false};
    VelExplainedTerm term = myTerms.term(*product, question, nullptr);
    term.myKind = VelExplainedTerm::PAYMENT;
    const int amount = myBill.priceOfPaymentAgio(theCouponAmount);
    if (myBill.totalPriceIsVoid(theCouponAmount))
        waive(term, amount, QStringLiteral("articles, shipping and coupon come to nothing, so no payment is charged"));
    else if (term.myAmount < 0)
        waive(term, amount, QStringLiteral("costs nothing: ") + whyBelowNothing(term));
    else if (term.myAmount != amount)
        waive(term, amount, QStringLiteral("filtered out: the fee is not among the articles of the bill"));
    const QDomElement source = mySources.orderSource(myBill.status().orderSource());
    mySources.citeAll(term.myPlaces.myCompared, source);
    for (const QDomElement& permitted : VelChildElements(source))
        mySources.citeAll(term.myPlaces.myCompared, permitted);
    theTerms.append(term);
}

int VelBillExplainer::printFunCount() const
{
    int count = 0;
    for (const VelTarmBillPositionAbstract* position : myBill.orderPositions())
        if (position->product()->isPrintFunProduct())
            count = VelArithmetic::sum(count, position->countItems());
    return count;
}

void VelBillExplainer::appendExpress(QVector<VelExplainedTerm>& theTerms) const
{
    const VelProductAbstract* product =
        VelProductRegistry::instance()->expressAgioProduct(myBill.shippingGroup(), myBill.expressType());
    if (!product)
        return;
    const VelPriceQuestion question{myBill.status().orderSource(), printFunCount(), 1, 0, true};
    VelExplainedTerm term = myTerms.term(*product, question, nullptr);
    term.myKind = VelExplainedTerm::EXPRESS;
    if (term.myKind == VelExplainedTerm::EXPRESS && question.myCount == 0)
        waive(term, term.myAmount, QStringLiteral("the bill holds no book, calendar, card or gift"));
    theTerms.append(term);
}

/// Items, shipping, payment and coupons don't go below 0; express is paid behind that.
void VelBillExplainer::appendFloor(QVector<VelExplainedTerm>& theTerms, int theCouponAmount) const
{
    int sum = 0;
    for (const VelExplainedTerm& term : theTerms)
        sum = VelArithmetic::sum(sum, term.myCharged);
    const int given = VelArithmetic::difference(myBill.totalFinalCost(theCouponAmount), sum);
    if (given == 0)
        return;
    VelExplainedTerm floor;
    floor.myKind = VelExplainedTerm::FLOOR;
    floor.myName = QStringLiteral("stop at 0");
    floor.myAmount = given;
    floor.myCharged = given;
    floor.myReason = QStringLiteral("articles, shipping, payment and coupon would come to %1, but a bill stops at 0")
                         .arg(-static_cast<qint64>(given));
    theTerms.append(floor);
}
