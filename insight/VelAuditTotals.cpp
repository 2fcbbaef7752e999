#include "insight/VelAuditShopChecks.h"

#include "frame/VelArithmetic.h"
#include "insight/VelAuditPhrases.h"
#include "insight/VelAuditPrices.h"
#include "insight/VelAuditReport.h"
#include "insight/VelPriceCurve.h"

#include <QSet>

using VelAuditPhrases::cents;
using VelAuditPhrases::line;
using VelAuditPhrases::orderWay;
using VelAuditPhrases::pieces;
using VelAuditPhrases::piecesCost;

namespace {

const QString STR_PRICE = QStringLiteral("price");

/// What is told of one article, each rule once: by the first order way that it is true of.
class Totals
{
public:
    Totals(const VelAuditDocument& theDocument, const VelAuditPrices& thePrices, VelAuditReport& theReport)
        : myDocument(theDocument), myPrices(thePrices), myReport(theReport)
    {
    }

    void check(const VelOrderSource& theSource)
    {
        const VelTarmPriceView view = myPrices.view(theSource);
        checkUnitPrices(view);
        VelPriceCurve::Range range;
        range.myReading = VelPriceCurve::AS_SOLD;
        const VelPriceCurve curve(myPrices.product(), theSource, range);
        checkDips(curve, view);
        checkPackages(curve, view);
        if (curve.endsEarly())
            tellOverflow(curve, view);
    }

private:
    using Band = VelTarmPriceBand;

    /// Null where the rule has been told.
    VelAuditFinding* tell(const char* theRule, const Band* theBand, const QString& theMessage)
    {
        if (!theBand || theBand->entry() == Band::NO_ENTRY || myTold.contains(theRule))
            return nullptr;
        myTold.insert(theRule);
        return &myReport.atValue(theRule, myDocument, myPrices.element(*theBand), STR_PRICE, theMessage);
    }

    // ---- unit prices

    /// Packages by the price of a piece where they are full; of one without an end there is none.
    static bool isPackage(const Band& theBand)
    {
        return theBand.discountModel() != DISCOUNT_MODEL_BULK && theBand.value().isPackagePrice() &&
               theBand.discountModel() != DISCOUNT_MODEL_INHERITED_DISCOUNT;
    }

    static qint64 piecesIn(const Band& theBand) { return isPackage(theBand) ? theBand.value().upperLimit() : 1; }

    void checkUnitPrices(const VelTarmPriceView& theView)
    {
        for (const VelDiscountModel model : theView.models()) {
            const Band* below = nullptr;
            for (const Band& band : theView.bands(model)) {
                if (below && band.price() >= 0 && below->price() >= 0)
                    compareUnits(*below, band, theView.orderSource());
                below = &band;
            }
        }
    }

    void compareUnits(const Band& theBelow, const Band& theBand, const VelOrderSource& theSource)
    {
        const qint64 below = piecesIn(theBelow);
        const qint64 above = piecesIn(theBand);
        if (below < 1 || above < 1 || theBand.price() * below <= theBelow.price() * above)
            return;
        const QString message = QStringLiteral("a piece is dearer at level %1 than at level %2 (%3) by %4: more costs "
                                               "more for each");
        VelAuditFinding* finding = tell("unit-price-rises", &theBand,
                                        message.arg(theBand.discountLevel())
                                            .arg(theBelow.discountLevel())
                                            .arg(line(myDocument, myPrices.element(theBelow)), orderWay(theSource)));
        if (finding)
            VelAuditPhrases::beside(*finding, myDocument, myPrices.element(theBelow), STR_PRICE,
                                    QStringLiteral("the price below"));
    }

    // ---- totals

    /// Of the totals that fall with one piece more, the one that falls deepest.
    void checkDips(const VelPriceCurve& theCurve, const VelTarmPriceView& theView)
    {
        const VelPriceDip* deepest = nullptr;
        const QVector<VelPriceDip> dips = theCurve.dips();
        for (const VelPriceDip& dip : dips)
            if (!deepest || dip.mySaves > deepest->mySaves)
                deepest = &dip;
        if (!deepest)
            return;
        const QString which = deepest->myFrom == deepest->myTo
                                  ? piecesCost(deepest->myTo)
                                  : QStringLiteral("%1 to %2").arg(deepest->myFrom).arg(piecesCost(deepest->myTo));
        tell("total-falls", bandOf(theCurve, theView, deepest->myBetter),
             QStringLiteral("%1 more than %2 (up to %3, by %4)")
                 .arg(which)
                 .arg(deepest->myBetter)
                 .arg(cents(deepest->mySaves))
                 .arg(orderWay(theView.orderSource())));
    }

    /// The band that prices the last pieces of a quantity.
    static const Band* bandOf(const VelPriceCurve& theCurve, const VelTarmPriceView& theView, int theQuantity)
    {
        const VelPriceCurvePiece* piece = theCurve.pieceOf(theQuantity);
        if (piece)
            for (const Band& band : theView.bands(piece->myModel))
                if (band.discountLevel() == piece->myLevel)
                    return &band;
        return nullptr;
    }

    // ---- models

    /// Between the limits of all bands the totals of both models are straight: what holds at both ends holds between.
    void checkPackages(const VelPriceCurve& theCurve, const VelTarmPriceView& theView)
    {
        if (!hasBoth(theView))
            return;
        for (const VelPriceCurvePiece& piece : theCurve.pieces())
            if (VelTarmPriceView::winsAtOnce(piece.myModel))
                for (const int quantity : tellingQuantities(piece, theView))
                    comparePackage(theCurve, theView, quantity);
    }

    static bool hasBoth(const VelTarmPriceView& theView)
    {
        bool hasWinner = false;
        for (const Band& band : theView.bands())
            hasWinner = hasWinner || VelTarmPriceView::winsAtOnce(band.discountModel());
        return hasWinner && !theView.bands(DISCOUNT_MODEL_BULK).isEmpty();
    }

    static QVector<int> tellingQuantities(const VelPriceCurvePiece& thePiece, const VelTarmPriceView& theView)
    {
        QVector<int> quantities{thePiece.myFrom, thePiece.myTo};
        for (const Band& band : theView.bands())
            for (const int quantity :
                 {band.value().lowerLimit(), VelArithmetic::difference(band.value().lowerLimit(), 1)})
                if (quantity > thePiece.myFrom && quantity < thePiece.myTo)
                    quantities.append(quantity);
        return quantities;
    }

    void comparePackage(const VelPriceCurve& theCurve, const VelTarmPriceView& theView, int theQuantity)
    {
        const VelTarmPriceAnswer plain = theView.inModel(DISCOUNT_MODEL_BULK, theQuantity);
        const int taken = theCurve.total(theQuantity);
        const bool itFits =
            plain.myChargeCount == 1 && plain.myPrice == qint64(theQuantity) * plain.begin()->myBand->price();
        if (plain.myPrice < 0 || !itFits || plain.myPrice >= taken)
            return;
        tell("dearer-model-wins", bandOf(theCurve, theView, theQuantity),
             QStringLiteral("%1 %2 by this model, which is taken wherever it has a price; the plain price would come "
                            "to %3 (by %4)")
                 .arg(piecesCost(theQuantity), cents(taken))
                 .arg(plain.myPrice)
                 .arg(orderWay(theView.orderSource())));
    }

    void tellOverflow(const VelPriceCurve& theCurve, const VelTarmPriceView& theView)
    {
        const Band* band = bandOf(theCurve, theView, theCurve.endsAt());
        tell("amount-too-large", band ? band : theView.bands().begin(),
             QStringLiteral("the amount for %1 no longer fits into 32 bits: what is charged then is another one")
                 .arg(pieces(theCurve.endsAt() + 1)));
    }

    const VelAuditDocument& myDocument;
    const VelAuditPrices& myPrices;
    VelAuditReport& myReport;
    QSet<QByteArray> myTold;
};

} // namespace

void VelAuditShopChecks::checkTotals(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices,
                                     VelAuditReport& theReport)
{
    if (!thePrices.entry().isSold())
        return;
    Totals totals(*theCatalog.priceList(), thePrices, theReport);
    for (const VelOrderSource& source : thePrices.differing(theCatalog.sources()))
        totals.check(source);
}
