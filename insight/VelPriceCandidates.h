#ifndef VELPRICECANDIDATES_H
#define VELPRICECANDIDATES_H

#include "insight/VelExplanationSources.h"
#include "insight/VelPriceExplanation.h"
#include "insight/VelPriceQuestion.h"

#include <QDomElement>

/// The discount models that compete for a price: what each answers, and why one of them is taken.
class VelPriceCandidates
{
public:
    /// The sources stay alive meanwhile.
    VelPriceCandidates(const VelProductAbstract& theProduct, const VelPriceQuestion& theQuestion,
                       const VelExplanationSources& theSources);

    /// What is charged, and what it stands on.
    const VelTarmPriceAnswer& taken() const { return myTaken; }
    VelExplainedPlaces places() const;

    /// In the order in which they are tried.
    QVector<VelExplainedCandidate> all() const;

    /// Why it is the model that it is, which band it has reached and how far the next one is; or why there is no price.
    QString reason() const;

private:
    VelExplainedCandidate candidate(VelDiscountModel theModel) const;
    bool isTaken(VelDiscountModel theModel) const;
    QString verdict(VelDiscountModel theModel, const VelTarmPriceAnswer& theAnswer) const;
    QString verdictOnLoser(VelDiscountModel theModel, const VelTarmPriceAnswer& theAnswer) const;
    QString whyTaken() const;
    QString whyNothingCharged() const;
    QString whyNoPrice(VelDiscountModel theModel, const VelTarmPriceAnswer& theAnswer) const;
    QString whyNothingReached(VelDiscountModel theModel) const;
    QString whyNoPriceAtAll() const;
    QString reached() const;
    QString next() const;
    QList<VelOrderSource> sourcesOf(VelDiscountModel theModel) const;
    bool hasEntries(VelDiscountModel theModel) const;
    QVector<VelExplainedPlace> deciding() const;
    void citeEndOfPackage(QVector<VelExplainedPlace>& thePlaces) const;
    void citeEntry(QVector<VelExplainedPlace>& thePlaces, const QDomElement& theEntry) const;

    const VelExplanationSources& mySources;
    const VelPriceQuestion myQuestion;
    const VelTarmPriceView myView;
    const VelProductAbstract& myProduct;
    const QDomElement myElement;
    const QVector<QDomElement> myEntries;
    const VelTarmPriceAnswer myTaken;
};

/// The places that are not among the others.
QVector<VelExplainedPlace> without(const QVector<VelExplainedPlace>& thePlaces,
                                   const QVector<VelExplainedPlace>& theOthers);

#endif
