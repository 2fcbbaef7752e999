#ifndef VELSHOPSNAPSHOT_H
#define VELSHOPSNAPSHOT_H

#include "insight/VelInsightExport.h"
#include "insight/VelPriceExplanation.h"
#include "insight/VelShopField.h"
#include "insight/VelShopTotals.h"

#include <QDataStream>
#include <QVector>

#include <utility>

/// An article, an add-on or a fee of a shop.
struct VELINSIGHT_EXPORT VelShopEntry
{
    /// What it is.
    enum Kind { ARTICLE, ADD_ON, TRANSFER, PAYMENT_FEE, EXPRESS_FEE };

    Kind myKind = ARTICLE;                           ///< what it is
    int myArticle = 0;                               ///< the article id
    int myGroup = VelShopPlace::NONE;                ///< the shipping group that a transfer or an express fee serves
    VelPaymentType myPayment = PAYMENT_TYPE_UNKNOWN; ///< of a payment fee
    VelExpressTypeEnum myExpress = ExpressableType_UNKNOWN; ///< of an express fee
    QString myName;                                         ///< as the document has it
    bool myIsByProducts = false;     ///< of a shipping that the products of an order are charged for: it has no totals
    QVector<VelShopField> myFields;  ///< all that was read, but prices
    QVector<VelShopTotals> myTotals; ///< by order source, each that may have a price

    /// Whether it is charged by a bill rather than bought.
    bool isFee() const { return myKind > ADD_ON; }
    /// Orders by what tells one from another: articles and add-ons by their id, fees by what they are charged for.
    bool isBefore(const VelShopEntry& theOther) const;
};

/// One amount of a bill, as VelPriceExplanation tells it.
struct VELINSIGHT_EXPORT VelShopTerm
{
    VelExplainedTerm::Kind myKind = VelExplainedTerm::ITEM; ///< what the amount is for
    int myGroup = VelShopPlace::NONE;                       ///< id of the shipping group
    int myArticle = 0;      ///< id of the article, also of a fee; 0 for coupon and floor
    QString myName;         ///< of the article; of a coupon its code
    int myCount = 0;        ///< pieces; of a fee those that it is reckoned for
    int myAmount = 0;       ///< cents, -1 where there is no price
    bool myHasPrice = true; ///< whether there is one
    QString myComputed;     ///< as "1 x 990 + 20 x 9", in cents
    QString myReason;       ///< why, in words

    /// Whether both are the amount of the same thing; a fee may be another article.
    bool isSameAs(const VelShopTerm& theOther) const;
};

/// What a cart comes to in the shop.
struct VelShopCart
{
    QString myName;               ///< as the caller gave it
    QString myReason;             ///< why it can't be ordered, empty if it can
    qint64 myTotal = 0;           ///< cents; of no meaning if it can't be ordered
    QVector<VelShopTerm> myTerms; ///< of all bills
};

/**
 * What a shop's documents came to when they were read: articles, add-ons and fees with every field and every total, and
 * the conditions of the shop. A value that owns everything, so that the shops of two processes can be compared: a
 * registry that reads a second price list keeps names and sizes of the first which that one doesn't mention.
 *
 *     QDataStream(&file) << VelShopSnapshot::taken();
 *
 * The lists of one that nobody keeps come by value, so that a loop may run over them.
 */
class VELINSIGHT_EXPORT VelShopSnapshot
{
public:
    VelShopSnapshot() = default;

    /// Of the registry and the ordering details, as they are now.
    static VelShopSnapshot taken();

    /// Adds what a cart comes to, as VelPriceExplainer explains its order. The name tells carts apart; the reason says
    /// why the order can't be placed, empty if it can.
    void addOrder(const QString& theName, const VelPriceExplanation& theOrder, const QString& theReason);
    /// Adds a cart of which no order can be made.
    void addRefusedCart(const QString& theName, const QString& theReason);

    /// Sorted by VelShopEntry::isBefore.
    const QVector<VelShopEntry>& entries() const& { return myEntries; }
    QVector<VelShopEntry> entries() && { return std::move(myEntries); }
    /// Order ways, payments, groups, currencies and the like.
    const QVector<VelShopField>& conditions() const& { return myConditions; }
    QVector<VelShopField> conditions() && { return std::move(myConditions); }
    const QVector<VelShopCart>& carts() const& { return myCarts; }
    QVector<VelShopCart> carts() && { return std::move(myCarts); }

private:
    friend VELINSIGHT_EXPORT QDataStream& operator<<(QDataStream& theStream, const VelShopSnapshot& theSnapshot);
    friend VELINSIGHT_EXPORT QDataStream& operator>>(QDataStream& theStream, VelShopSnapshot& theSnapshot);

    QVector<VelShopEntry> myEntries;
    QVector<VelShopField> myConditions;
    QVector<VelShopCart> myCarts;
};

VELINSIGHT_EXPORT QDataStream& operator<<(QDataStream& theStream, const VelShopSnapshot& theSnapshot);
/// Takes what the same version of the library wrote; anything else sets the stream's status to ReadCorruptData.
VELINSIGHT_EXPORT QDataStream& operator>>(QDataStream& theStream, VelShopSnapshot& theSnapshot);

#endif
