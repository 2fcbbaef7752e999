#include "insight/VelTermExplainer.h"

#include "bill/VelOrderStatistic.h"
#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "insight/VelPriceCandidates.h"
#include "insight/VelPriceNeeds.h"
#include "insight/VelPriceWords.h"
#include "price/VelTransferByProducts.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductRegistry.h"

#include <algorithm>
#include <functional>

namespace {

const QString STR_TRANSFER_BASE_PRICE = QStringLiteral("transfer_base_price");
const QString STR_TRANSFER_UNIT_PRICE = QStringLiteral("transfer_unit_price");
const QString STR_MODEL = QStringLiteral("model");
const QString STR_TRANSFER = QStringLiteral("transfer");
const QString STR_PAYMETHOD_FEE = QStringLiteral("paymethod_fee");

VelExplainedTerm::Kind kindOf(const QString& theTag, const VelPriceQuestion& theQuestion)
{
    if (theQuestion.myIsExpress)
        return VelExplainedTerm::EXPRESS;
    if (theTag == STR_TRANSFER)
        return VelExplainedTerm::TRANSFER;
    return theTag == STR_PAYMETHOD_FEE ? VelExplainedTerm::PAYMENT : VelExplainedTerm::ITEM;
}

/// The entry of the plain price, null for none.
const VelTarmPriceBand* baseBand(const VelTarmPriceView& theView)
{
    const VelTarmPriceBands bands = theView.bands(DISCOUNT_MODEL_BULK);
    return !bands.isEmpty() && bands.begin()->discountLevel() == 0 ? bands.begin() : nullptr;
}

} // namespace

VelInheritedLevel inheritedLevel(const VelProductAbstract& theProduct, const VelTarmBill* theBill, bool theIsInBill)
{
    VelInheritedLevel inherited;
    const auto* addOn = dynamic_cast<const VelProductAddOn*>(&theProduct);
    if (!addOn || !theBill)
        return inherited;
    inherited.myIsOfBill = true;
    for (const int id : addOn->articleIDs()) {
        const VelProductAbstract* main = VelProductRegistry::instance()->productWithArticleID(id);
        if (!main || (theIsInBill && !std::less<const VelProductAbstract*>()(main, &theProduct)))
            continue;
        const VelTarmBillPosition* position = theBill->billPosition(main);
        const int level = position ? position->discountLevel() : -1;
        if (level > inherited.myLevel || (level == inherited.myLevel && !inherited.myMainProduct))
            inherited = {level, main, true};
    }
    return inherited;
}

void tellInheritance(VelExplainedTerm& theTerm, const VelInheritedLevel& theInherited)
{
    const auto inherits = [&](const VelExplainedCandidate& theCandidate) {
        return theCandidate.myModel == DISCOUNT_MODEL_INHERITED_DISCOUNT &&
               (theCandidate.myIsTaken || !theTerm.myHasPrice);
    };
    if (!theInherited.myIsOfBill || std::none_of(theTerm.myCandidates.cbegin(), theTerm.myCandidates.cend(), inherits))
        return;
    const VelProductAbstract* main = theInherited.myMainProduct;
    theTerm.myReason += main ? QStringLiteral("; inherits level %1 of %2")
                                   .arg(QString::number(theInherited.myLevel), VelPriceWords::product(*main))
                             : QStringLiteral("; no main product on the bill gives it a level");
}

VelExplainedTerm VelTermExplainer::term(const VelProductAbstract& theProduct, const VelPriceQuestion& theQuestion,
                                        const VelOrderStatistic* theStatistic) const
{
    const VelTarmPriceView view(theProduct, theQuestion.mySource);
    VelExplainedTerm term;
    term.myKind = kindOf(mySources.element(theProduct).tagName(), theQuestion);
    term.myGroup = theProduct.shippingGroupId();
    term.myArticle = theProduct.articleID();
    term.myName = theProduct.name();
    term.myCount = theQuestion.myCount;
    if (view.transferModel() == TRANSFER_MODEL_2)
        explainByProducts(term, theProduct, theQuestion.mySource, theStatistic);
    else
        explainByModels(term, theProduct, theQuestion);
    term.myCharged = term.myAmount;
    return term;
}

void VelTermExplainer::explainByModels(VelExplainedTerm& theTerm, const VelProductAbstract& theProduct,
                                       const VelPriceQuestion& theQuestion) const
{
    const VelPriceCandidates candidates(theProduct, theQuestion, mySources);
    theTerm.myAmount = candidates.taken().myPrice;
    theTerm.myHasPrice = theTerm.myAmount != -1;
    theTerm.myReason = candidates.reason();
    theTerm.myPlaces = candidates.places();
    theTerm.myCandidates = candidates.all();
    if (theTerm.myHasPrice)
        theTerm.myComputed = VelPriceWords::charges(candidates.taken());
    else
        theTerm.myNeeds = needsOf(theProduct, theQuestion);
}

/// The price entries of the shipping play no part here: the products of the order say it.
void VelTermExplainer::explainByProducts(VelExplainedTerm& theTerm, const VelProductAbstract& theTransfer,
                                         const VelOrderSource& theSource, const VelOrderStatistic* theStatistic) const
{
    const VelTarmPriceKey key(theSource, 0, DISCOUNT_MODEL_BULK);
    const VelTransferByProducts transfer(key, theStatistic);
    QStringList units;
    const QMap<VelProductAbstract*, int> items =
        theStatistic ? theStatistic->items() : QMap<VelProductAbstract*, int>();
    for (auto item = items.cbegin(); item != items.cend(); ++item) {
        units.append(QStringLiteral("%1 x %2").arg(item.value()).arg(item.key()->unitTransferPrice(key)));
        citeBaseEntry(theTerm.myPlaces, *item.key(), theSource, item.key() == transfer.leader());
    }
    const QDomElement element = mySources.element(theTransfer);
    mySources.cite(theTerm.myPlaces.myDecides, element, {STR_MODEL});
    for (const QDomElement& entry : VelExplanationSources::entries(element))
        mySources.cite(theTerm.myPlaces.myCompared, entry, {QStringLiteral("type")});
    theTerm.myAmount = transfer.total();
    theTerm.myReason = theStatistic ? QStringLiteral("shipping by products: nothing is shipped")
                                    : QStringLiteral("shipping by products: only the products of an order say it");
    if (!transfer.leader())
        return;
    const int free = transfer.leader()->unitTransferPrice(key);
    theTerm.myComputed = QStringLiteral("%1 + %2 - 1 x %3")
                             .arg(QString::number(transfer.base()), units.join(QStringLiteral(" + ")))
                             .arg(free);
    theTerm.myReason =
        QStringLiteral("shipping by products: %1 leads with the base charge %2; all pieces but one of it "
                       "pay their unit charge: %3 - 1 x %4")
            .arg(VelPriceWords::product(*transfer.leader()))
            .arg(transfer.leader()->baseTransferPrice(key))
            .arg(units.join(QStringLiteral(" + ")))
            .arg(free);
}

/// Each unit charge is part of the sum, and of the base charges that of the leader.
void VelTermExplainer::citeBaseEntry(VelExplainedPlaces& thePlaces, const VelProductAbstract& theProduct,
                                     const VelOrderSource& theSource, bool theLeads) const
{
    const QVector<QDomElement> entries = VelExplanationSources::entries(mySources.element(theProduct));
    const VelTarmPriceBand* base = baseBand(VelTarmPriceView(theProduct, theSource));
    const QDomElement entry = base ? entries.value(base->entry()) : QDomElement();
    mySources.cite(thePlaces.myDecides, entry, {STR_TRANSFER_UNIT_PRICE});
    if (theLeads)
        mySources.cite(thePlaces.myDecides, entry, {STR_TRANSFER_BASE_PRICE});
    QVector<VelExplainedPlace> all;
    for (const QDomElement& other : entries)
        mySources.cite(all, other, {STR_TRANSFER_BASE_PRICE, STR_TRANSFER_UNIT_PRICE});
    thePlaces.myCompared += without(all, thePlaces.myDecides);
}
