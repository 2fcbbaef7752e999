#ifndef VELPRICEGAPS_H
#define VELPRICEGAPS_H

#include "insight/VelInsightExport.h"
#include "insight/VelPriceCurve.h"
#include "insight/VelShopFees.h"

#include <QVector>

#include <utility>

/**
 * What the shop sells by which order source, and what it doesn't: every article, add-on and fee by every order source
 * that the ordering details list, and by every other valid one under which an article of the shop has a price.
 *
 *     const VelPriceGaps gaps;
 *     for (const VelPriceGaps::Row& row : gaps.articles())
 *         for (int way = 0; way < gaps.ways().size(); ++way)
 *             if (!row.myCells.at(way).isPriced())
 *                 qDebug() << row.myProduct->name() << gaps.ways().at(way).mySource;
 *
 * A value, but for the products, which stay the registry's. It shows the price list that was loaded when it was made.
 * The lists of one that nobody keeps come by value, so that a loop may run over them.
 */
class VELINSIGHT_EXPORT VelPriceGaps
{
public:
    /// Why there is no price.
    enum Why {
        WHY_PRICED,            ///< there is one
        WHY_NO_ENTRIES,        ///< the product has entries under no order source
        WHY_NO_ENTRY_HERE,     ///< it has none under this one
        WHY_NO_AMOUNT,         ///< no entry under this one has a price that can be read
        WHY_REFUSED,           ///< a price below 0, or a package of less than one piece: priced, but not sold
        WHY_BEYOND_RANGE,      ///< all entries begin beyond VelPriceCurve::HIGHEST_QUANTITY
        WHY_OUT_OF_REACH,      ///< no quantity in the range makes an entry apply
        WHY_TOO_LARGE,         ///< already the first amount leaves 32 bits
        WHY_WITH_MAIN_PRODUCT, ///< an add-on that is priced by the level of its main product alone
        WHY_NO_FEE,            ///< the price list has no such fee, or no price of a payment: nothing is charged
        WHY_NOT_PERMITTED      ///< the order source doesn't permit the payment, and it has no price for it
    };

    /// Neighbouring quantities without a price between priced ones.
    struct Hole
    {
        int myFrom; ///< the first quantity
        int myTo;   ///< the last one, included
    };

    /// One product by one order source.
    struct Cell
    {
        Why myWhy = WHY_PRICED; ///< why there is no price
        int myFrom = 0;         ///< the smallest priced quantity, 0 for none
        int myUpTo = 0;         ///< the largest one; 0 where all from myFrom on are priced, but for the holes
        bool myIsBySum =
            false; ///< whether the quantities are bill sums in cents: shipping that no count has a price for
        QVector<Hole> myHoles; ///< by rising quantity

        /// Whether any quantity has a price.
        bool isPriced() const { return myFrom > 0; }
        /// Whether each quantity has a price.
        bool isWhole() const { return myFrom == 1 && myUpTo == 0 && myHoles.isEmpty(); }
    };

    /// A column of the map.
    struct Way
    {
        VelOrderSource mySource; ///< by which is ordered
        bool myIsOffered;        ///< whether the ordering details list it
    };

    /// An article or add-on that is in the price list, with a cell for each way.
    struct Row
    {
        const VelProductAbstract* myProduct; ///< the registry's
        QVector<Cell> myCells;               ///< one for each way
    };

    /// A fee with a cell for each way. Without a product: the shipping of a group that has articles, a payment that an
    /// order source permits, or an express type that articles of a group can be had by, and for which there is no fee.
    struct FeeRow
    {
        VelShopFees::Fee myFee; ///< whose shipping, payment or express it is
        QVector<Cell> myCells;  ///< one for each way
    };

    /// Of the whole shop, for quantities from 1 to VelPriceCurve::HIGHEST_QUANTITY.
    explicit VelPriceGaps(VelPriceCurve::Reading theReading = VelPriceCurve::AS_PRICED);

    /// The columns: those that are listed by VelOrderSource::operator<, then the others.
    const QVector<Way>& ways() const& { return myWays; }
    QVector<Way> ways() && { return std::move(myWays); }

    /// In the order of the price list.
    const QVector<Row>& articles() const& { return myArticles; }
    QVector<Row> articles() && { return std::move(myArticles); }

    /// Transfers by group, payments by number, then express fees by group and type. A transfer counts as priced where
    /// some count at a bill sum of 1 cent is, or some sum at a count of 1; a payment where one is at a sum of 1 cent.
    const QVector<FeeRow>& fees() const& { return myFees; }
    QVector<FeeRow> fees() && { return std::move(myFees); }

private:
    QVector<Way> myWays;
    QVector<Row> myArticles;
    QVector<FeeRow> myFees;
};

Q_DECLARE_TYPEINFO(VelPriceGaps::Hole, Q_PRIMITIVE_TYPE);
Q_DECLARE_TYPEINFO(VelPriceGaps::Cell, Q_MOVABLE_TYPE);
Q_DECLARE_TYPEINFO(VelPriceGaps::Row, Q_MOVABLE_TYPE);

#endif
