#ifndef VELPRICEEXPLANATION_H
#define VELPRICEEXPLANATION_H

#include "frame/VelEnumerations.h"
#include "frame/VelOrderSource.h"
#include "insight/VelExplainedPlace.h"
#include "insight/VelInsightExport.h"

#include <QString>
#include <QVector>

#include <utility>

/// A discount model of the article, and what became of it.
struct VelExplainedCandidate
{
    /// In place of a level or a bound: there is none.
    static constexpr int NONE = -1;

    /// The model.
    VelDiscountModel myModel = DISCOUNT_MODEL_UNDEFINED;
    int myLevel = NONE;     ///< that was found
    int myFrom = NONE;      ///< where the band of the level begins: pieces, or cents for shipping by bill sum
    int myTo = NONE;        ///< where it ends, NONE for an open one
    int myAmount = -1;      ///< cents, -1 for no price
    QString myComputed;     ///< as "1 x 990 + 20 x 9", in cents; empty where nothing is charged
    QString myVerdict;      ///< why it was taken or not
    bool myIsTaken = false; ///< whether the amount is its
    /// Of the entries behind it.
    VelExplainedPlaces myPlaces;
};

/// A way to a price where there is none.
struct VelExplainedNeed
{
    VelOrderSource myOrderSource; ///< by which to order
    int myFrom = 1;               ///< the smallest quantity from 1 up that has a price that way
    int myLevel = 0;              ///< the discount level that a main product has to have; 0 for any
};

/// One amount of a bill: all pieces of an article, or a fee.
struct VelExplainedTerm
{
    /// What the amount is for.
    enum Kind {
        ITEM,     ///< an article or add-on; package and rest are one term
        TRANSFER, ///< shipping
        PAYMENT,  ///< the fee of the payment
        COUPON,   ///< what a coupon adds, so it is 0 or negative
        EXPRESS,  ///< the fee of an express type
        FLOOR     ///< what is given back because the rest of the bill would come out below 0
    };

    /// What it is for.
    Kind myKind = ITEM;
    int myGroup = -1;   ///< id of the shipping group
    int myArticle = 0;  ///< id of the article, also of a fee; 0 for coupon and floor
    QString myName;     ///< of the article; of a coupon its code
    int myCount = 0;    ///< pieces; of a fee those that it is reckoned for; 0 where nothing is counted
    int myAmount = 0;   ///< cents, -1 where there is no price
    int myCharged = 0;  ///< what it adds to the bill's total: the amount, and without a price what the bill reckons
    QString myComputed; ///< as "1 x 990 + 20 x 9", in cents; empty where nothing is charged
    QString myReason;   ///< why, in words; amounts in cents
    /// False where there is no price.
    bool myHasPrice = true;
    /// Of the entries behind it.
    VelExplainedPlaces myPlaces;
    QVector<VelExplainedCandidate> myCandidates; ///< in the order in which they are tried
    QVector<VelExplainedNeed> myNeeds;           ///< of a term without a price: each a way to one
};

/**
 * Why an amount is what it is: a tree of values, which owns nothing of the price list and stays as it is when that is
 * read again. All amounts are cents. Made by VelPriceExplainer.
 */
class VELINSIGHT_EXPORT VelPriceExplanation
{
public:
    VelPriceExplanation() = default;

    /// Of these terms, which come to that total.
    VelPriceExplanation(const QVector<VelExplainedTerm>& theTerms, qint64 theTotal);

    /// Of a bill the articles first, then shipping, payment, coupons, express and floor. What each charges adds up to
    /// the bill's total.
    const QVector<VelExplainedTerm>& terms() const& { return myTerms; }
    /// The same of an explanation that nobody keeps, so that a loop may run over them.
    QVector<VelExplainedTerm> terms() && { return std::move(myTerms); }

    /// -1 where any term has no price.
    qint64 total() const { return hasPrice() ? myTotal : -1; }

    /// Whether every term has a price.
    bool hasPrice() const;

private:
    QVector<VelExplainedTerm> myTerms;
    qint64 myTotal = 0;
};

#endif
