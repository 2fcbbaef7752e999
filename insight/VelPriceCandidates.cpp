#include "insight/VelPriceCandidates.h"

#include "insight/VelPriceWords.h"
#include "product/VelProductAbstract.h"
#include "sibling/VelXMLParser.h"

#include <algorithm>

namespace {

const QString STR_PRICE = QStringLiteral("price");
const QString STR_QUANTITY = QStringLiteral("quantity");
const QString STR_ARRANGEMENT = QStringLiteral("arrangement");
const QString STR_PRODUCT_CLASS = QStringLiteral("product_class");
const QString STR_MODEL = QStringLiteral("model");

/// What makes an entry the one it is.
const QStringList& entryAttributes()
{
    static const QStringList names{STR_PRICE,    QStringLiteral("type"),         QStringLiteral("level"),
                                   STR_QUANTITY, QStringLiteral("input_source"), QStringLiteral("delivery_type")};
    return names;
}

/// An entry without a price is one all the same if any of these is there.
const QStringList& attributesBesidePrice()
{
    static const QStringList names{QStringLiteral("transfer_base_price"), QStringLiteral("transfer_unit_price"),
                                   QStringLiteral("non_offer_price"), QStringLiteral("end_offer_date")};
    return names;
}

/// What says which kind of product an element makes; none for most fees.
QStringList kindAttributes(const QString& theTag)
{
    if (theTag == QLatin1String("article"))
        return {STR_ARRANGEMENT};
    if (theTag == QLatin1String("add_on"))
        return {STR_PRODUCT_CLASS};
    return theTag == QLatin1String("transfer") ? QStringList{STR_MODEL} : QStringList();
}

/// The band that was found: of a package with a rest that of the rest, null where there is none.
const VelTarmPriceBand* bandOf(const VelTarmPriceAnswer& theAnswer)
{
    if (theAnswer.myChargeCount == 0)
        return nullptr;
    const VelTarmPriceBand* band = theAnswer.myCharges[theAnswer.myChargeCount - 1].myBand;
    return band->entry() == VelTarmPriceBand::NO_ENTRY ? nullptr : band;
}

bool isPackageWithRest(const VelTarmPriceAnswer& theAnswer)
{
    return theAnswer.myChargeCount == 2;
}

/// Shipping by bill sum is under all its bands when it is charged by the entry of another model.
bool isUnderAllBands(const VelTarmPriceAnswer& theAnswer)
{
    return theAnswer.myChargeCount == 1 && theAnswer.myCharges[0].myModel != theAnswer.myModel;
}

QString namesOf(const QList<VelOrderSource>& theSources)
{
    QStringList names;
    for (const VelOrderSource& source : theSources)
        names.append(VelPriceWords::orderSource(source));
    return VelPriceWords::list(names);
}

} // namespace

QVector<VelExplainedPlace> without(const QVector<VelExplainedPlace>& thePlaces,
                                   const QVector<VelExplainedPlace>& theOthers)
{
    QVector<VelExplainedPlace> rest;
    std::copy_if(thePlaces.cbegin(), thePlaces.cend(), std::back_inserter(rest),
                 [&](const VelExplainedPlace& thePlace) { return !theOthers.contains(thePlace); });
    return rest;
}

VelPriceCandidates::VelPriceCandidates(const VelProductAbstract& theProduct, const VelPriceQuestion& theQuestion,
                                       const VelExplanationSources& theSources)
    : mySources(theSources)
    , myQuestion(theQuestion)
    , myView(theProduct, theQuestion.mySource)
    , myProduct(theProduct)
    , myElement(theSources.element(theProduct))
    , myEntries(VelExplanationSources::entries(myElement))
    , myTaken(theQuestion.answer(myView))
{
}

// ---- the candidates

QVector<VelExplainedCandidate> VelPriceCandidates::all() const
{
    QVector<VelExplainedCandidate> candidates;
    for (const VelDiscountModel model : myQuestion.models(myView))
        candidates.append(candidate(model));
    return candidates;
}

VelExplainedCandidate VelPriceCandidates::candidate(VelDiscountModel theModel) const
{
    const VelTarmPriceAnswer answer = myQuestion.inModel(myView, theModel);
    VelExplainedCandidate candidate;
    candidate.myModel = theModel;
    candidate.myAmount = answer.myPrice;
    candidate.myComputed = answer.myPrice == -1 ? QString() : VelPriceWords::charges(answer);
    candidate.myVerdict = verdict(theModel, answer);
    candidate.myIsTaken = isTaken(theModel);
    if (const VelTarmPriceBand* band = bandOf(answer)) {
        candidate.myLevel = band->discountLevel();
        candidate.myFrom = band->value().lowerLimit();
        candidate.myTo = band->value().upperLimit();
    }
    QVector<VelExplainedPlace> ofModel;
    for (const QDomElement& entry : myEntries)
        if (VelDiscountLimit(entry).discountModel() == theModel)
            citeEntry(ofModel, entry);
    if (candidate.myIsTaken)
        candidate.myPlaces.myDecides = deciding();
    candidate.myPlaces.myCompared = without(ofModel, candidate.myPlaces.myDecides);
    return candidate;
}

bool VelPriceCandidates::isTaken(VelDiscountModel theModel) const
{
    return myTaken.myPrice != -1 && myTaken.myModel == theModel;
}

// ---- what it stands on

void VelPriceCandidates::citeEntry(QVector<VelExplainedPlace>& thePlaces, const QDomElement& theEntry) const
{
    mySources.cite(thePlaces, theEntry, entryAttributes());
    if (VelXMLParser::intAttribute(theEntry, STR_PRICE, -1) == -1)
        mySources.cite(thePlaces, theEntry, attributesBesidePrice());
}

QVector<VelExplainedPlace> VelPriceCandidates::deciding() const
{
    QVector<VelExplainedPlace> places;
    if (myTaken.myPrice == -1)
        return places;
    for (const VelTarmPriceCharge& charge : myTaken)
        mySources.cite(places, myEntries.value(charge.myBand->entry()), entryAttributes());
    if (isPackageWithRest(myTaken))
        citeEndOfPackage(places);
    return places;
}

/// The rest begins where the level above the package does.
void VelPriceCandidates::citeEndOfPackage(QVector<VelExplainedPlace>& thePlaces) const
{
    const int level = myTaken.myCharges[0].myLevel;
    QVector<VelExplainedPlace> end;
    for (const VelTarmPriceBand& band : myView.bands(myTaken.myModel))
        if (band.discountLevel() == level + 1)
            mySources.cite(end, myEntries.value(band.entry()), {STR_QUANTITY});
    thePlaces += without(end, thePlaces);
}

VelExplainedPlaces VelPriceCandidates::places() const
{
    VelExplainedPlaces places{deciding(), {}};
    QVector<VelExplainedPlace> all;
    for (const QDomElement& entry : myEntries)
        citeEntry(all, entry);
    for (const QDomElement& element : mySources.elements(myProduct))
        mySources.cite(all, element, kindAttributes(element.tagName()));
    places.myCompared = without(all, places.myDecides);
    return places;
}

// ---- verdicts

QString VelPriceCandidates::verdict(VelDiscountModel theModel, const VelTarmPriceAnswer& theAnswer) const
{
    if (theAnswer.myPrice == -1)
        return whyNoPrice(theModel, theAnswer);
    return isTaken(theModel) ? QStringLiteral("taken: ") + whyTaken() : verdictOnLoser(theModel, theAnswer);
}

QString VelPriceCandidates::verdictOnLoser(VelDiscountModel theModel, const VelTarmPriceAnswer& theAnswer) const
{
    if (VelTarmPriceView::winsAtOnce(myTaken.myModel))
        return (theModel > myTaken.myModel ? QStringLiteral("not tried: %1 has won before")
                                           : QStringLiteral("passed over: %1 wins at once, whatever the others cost"))
            .arg(VelPriceWords::model(myTaken.myModel));
    if (theAnswer.myPrice == myTaken.myPrice)
        return QStringLiteral("same amount, but a higher model number than %1")
            .arg(VelPriceWords::model(myTaken.myModel));
    return QStringLiteral("dearer by %1").arg(static_cast<qint64>(theAnswer.myPrice) - myTaken.myPrice);
}

QString VelPriceCandidates::whyTaken() const
{
    if (myTaken.myChargeCount == 0)
        return whyNothingCharged();
    QString why;
    const QList<VelDiscountModel> models = myQuestion.models(myView);
    const auto hasPrice = [this](VelDiscountModel theModel) {
        return myQuestion.inModel(myView, theModel).myPrice != -1;
    };
    if (myQuestion.myIsExpress)
        why = QStringLiteral("the fee of an express is asked for by this model alone");
    else if (VelTarmPriceView::winsAtOnce(myTaken.myModel))
        why = QStringLiteral("it wins at once");
    else if (std::count_if(models.cbegin(), models.cend(), hasPrice) > 1)
        why = QStringLiteral("it is the cheapest");
    else
        why = QStringLiteral("it is the only one with a price");
    if (isUnderAllBands(myTaken))
        why += QStringLiteral("; under all its bands the entry at level 0 of %1 is charged")
                   .arg(VelPriceWords::model(myTaken.myCharges[0].myModel));
    if (isPackageWithRest(myTaken))
        why +=
            QStringLiteral("; a package of level %1 (%2) and the rest by the piece")
                .arg(QString::number(myTaken.myCharges[0].myLevel), VelPriceWords::band(*myTaken.myCharges[0].myBand));
    return why;
}

/// A quantity or a sum of 0 costs nothing, whatever the entries say.
QString VelPriceCandidates::whyNothingCharged() const
{
    if (myTaken.myModel == DISCOUNT_MODEL_BILLING_SUM_TRANSFER)
        return QStringLiteral("the articles come to nothing, so it costs nothing");
    return myTaken.myModel == DISCOUNT_MODEL_BULK_TRANSFER
               ? QStringLiteral("no piece counts, as add-ons and what has no price don't, so it costs nothing")
               : QStringLiteral("no piece counts, so it costs nothing");
}

/// The first condition that failed.
QString VelPriceCandidates::whyNoPrice(VelDiscountModel theModel, const VelTarmPriceAnswer& theAnswer) const
{
    const bool isFallback = isUnderAllBands(theAnswer);
    if (!hasEntries(theModel)) {
        const QString others = namesOf(sourcesOf(theModel));
        const QString none = QStringLiteral("no entry for ") + VelPriceWords::orderSource(myQuestion.mySource);
        return others.isEmpty() ? none : none + QStringLiteral(", only for ") + others;
    }
    if (const VelTarmPriceBand* band = bandOf(theAnswer))
        return band->price() == -1 ? QStringLiteral("entry of price -1 at level %1").arg(band->discountLevel())
                                   : QStringLiteral("it comes to -1 (%1), which stands for no price")
                                         .arg(VelPriceWords::charges(theAnswer));
    if (isFallback)
        return QStringLiteral("under all its bands, and %1 has no entry at level 0")
            .arg(VelPriceWords::model(DISCOUNT_MODEL_BULK_TRANSFER));
    return whyNothingReached(theModel);
}

QString VelPriceCandidates::whyNothingReached(VelDiscountModel theModel) const
{
    if (theModel == DISCOUNT_MODEL_INHERITED_DISCOUNT)
        return QStringLiteral("no entry at level %1 of a main product, or below it").arg(myQuestion.myInheritedLevel);
    const VelTarmPriceBand* first = nullptr;
    for (const VelTarmPriceBand& band : myView.bands(theModel))
        if (band.discountLevel() > 0 && (!first || band.value().lowerLimit() < first->value().lowerLimit()))
            first = &band;
    if (!first)
        return isPackageModel(theModel) ? QStringLiteral("its entries stand at level 0, where packages have none")
                                        : QStringLiteral("no entry at level 0");
    return QStringLiteral("below the first band, which begins with %1").arg(first->value().lowerLimit());
}

QString VelPriceCandidates::whyNoPriceAtAll() const
{
    const QString source = VelPriceWords::orderSource(myQuestion.mySource);
    const QList<VelOrderSource> priced = myView.pricedOrderSources();
    if (priced.isEmpty())
        return QStringLiteral("no price: it has no entry that counts");
    if (myView.bands().isEmpty())
        return QStringLiteral("no price: has entries for %1, none for %2").arg(namesOf(priced), source);
    QStringList reasons;
    for (const VelDiscountModel model : myQuestion.models(myView))
        reasons.append(VelPriceWords::model(model) + QStringLiteral(": ") +
                       whyNoPrice(model, myQuestion.inModel(myView, model)));
    return QStringLiteral("no price by %1: ").arg(source) + reasons.join(QStringLiteral("; "));
}

QList<VelOrderSource> VelPriceCandidates::sourcesOf(VelDiscountModel theModel) const
{
    QList<VelOrderSource> sources;
    for (const VelOrderSource& source : myView.pricedOrderSources())
        if (!VelTarmPriceView(myProduct, source).bands(theModel).isEmpty())
            sources.append(source);
    return sources;
}

bool VelPriceCandidates::hasEntries(VelDiscountModel theModel) const
{
    return !myView.bands(theModel).isEmpty();
}

// ---- the reason

QString VelPriceCandidates::reason() const
{
    if (myTaken.myPrice == -1)
        return whyNoPriceAtAll();
    QStringList parts{VelPriceWords::model(myTaken.myModel) + QStringLiteral(": ") + whyTaken()};
    for (const QString& part : {reached(), next()})
        if (!part.isEmpty())
            parts.append(part);
    return parts.join(QStringLiteral("; "));
}

QString VelPriceCandidates::reached() const
{
    const VelTarmPriceBand* band = bandOf(myTaken);
    if (!band || isUnderAllBands(myTaken))
        return QString();
    const QString level = QStringLiteral("level %1").arg(band->discountLevel());
    if (myTaken.myModel == DISCOUNT_MODEL_INHERITED_DISCOUNT) // whose quantities play no part
        return level;
    return level + QStringLiteral(", ") + VelPriceWords::band(*band);
}

/// The nearest higher level that more pieces, or more money, would reach.
QString VelPriceCandidates::next() const
{
    const bool isBySum = myTaken.myModel == DISCOUNT_MODEL_BILLING_SUM_TRANSFER;
    if (myTaken.myModel == DISCOUNT_MODEL_INHERITED_DISCOUNT)
        return QString();
    const int quantity = isBySum ? myQuestion.myBillingSum : myQuestion.myCount;
    const VelTarmPriceBand* reached = bandOf(myTaken);
    const int level = reached && !isUnderAllBands(myTaken) ? reached->discountLevel() : 0;
    const VelTarmPriceBand* next = nullptr;
    for (const VelTarmPriceBand& band : myView.bands(myTaken.myModel))
        if (band.discountLevel() > level && band.value().lowerLimit() > quantity &&
            (!next || band.value().lowerLimit() < next->value().lowerLimit()))
            next = &band;
    if (!next)
        return QString();
    return QStringLiteral("%1 more reach level %2 from %3")
        .arg(QString::number(static_cast<qint64>(next->value().lowerLimit()) - quantity) +
                 (isBySum ? QStringLiteral(" in sum") : QString()),
             QString::number(next->discountLevel()), QString::number(next->value().lowerLimit()));
}
