#include "insight/VelAuditShopChecks.h"

#include "insight/VelAuditPhrases.h"
#include "insight/VelAuditPrices.h"
#include "insight/VelAuditReport.h"
#include "sibling/VelXMLParser.h"

#include <QSet>

#include <utility>

using VelAuditPhrases::cents;
using VelAuditPhrases::line;
using VelAuditPhrases::orderWay;
using VelAuditPhrases::pieces;

namespace {

const QString STR_LEVEL = QStringLiteral("level");
const QString STR_QUANTITY = QStringLiteral("quantity");
const QString STR_TYPE = QStringLiteral("type");
const QString STR_PRICE = QStringLiteral("price");

/// So much dearer than the plain price, or than a piece in the package beside it, is no price for a piece.
const int SURELY_DEARER = 3;

/// Models whose level 0 is never asked for.
bool isWithoutLevelZero(VelDiscountModel theModel)
{
    return isPackageModel(theModel) || theModel == DISCOUNT_MODEL_BILLING_SUM_TRANSFER;
}

/// Pieces, or the cents of a bill.
QString amount(const VelTarmPriceBand& theBand)
{
    const int limit = theBand.value().lowerLimit();
    return theBand.discountModel() == DISCOUNT_MODEL_BILLING_SUM_TRANSFER ? cents(limit) : pieces(limit);
}

/// What it comes to, by the kind of entry.
QString costOfNoPrice(const VelAuditCatalog::Entry& theEntry)
{
    switch (theEntry.myKind) {
    case VelAuditCatalog::Entry::PAYMENT_FEE:
        return QStringLiteral("the payment costs nothing");
    case VelAuditCatalog::Entry::TRANSFER:
        return QStringLiteral("shipping is charged with -1 cents");
    case VelAuditCatalog::Entry::EXPRESS_FEE:
        return QStringLiteral("the express class isn't offered");
    default:
        return QStringLiteral("it can't be ordered");
    }
}

/// The ladders of one entry. What several order ways share is told once.
class Ladders
{
public:
    Ladders(const VelAuditDocument& theDocument, const VelAuditPrices& thePrices, VelAuditReport& theReport)
        : myDocument(theDocument), myPrices(thePrices), myReport(theReport)
    {
    }

    void check(const VelOrderSource& theSource)
    {
        const VelTarmPriceView view = myPrices.view(theSource);
        for (const VelDiscountModel model : view.models())
            checkModel(view.bands(model), view);
        checkFirstPiece(view);
    }

private:
    using Band = VelTarmPriceBand;

    /// Null where the rule has been told of that entry.
    VelAuditFinding* tell(const char* theRule, const Band& theBand, const QString& theAttribute,
                          const QString& theMessage)
    {
        const std::pair<QByteArray, int> told(theRule, theBand.entry());
        if (myTold.contains(told))
            return nullptr;
        myTold.insert(told);
        return &myReport.atValue(theRule, myDocument, myPrices.element(theBand), theAttribute, theMessage);
    }

    QString lineOf(const Band& theBand) const { return line(myDocument, myPrices.element(theBand)); }

    void checkModel(const VelTarmPriceBands& theBands, const VelTarmPriceView& theView)
    {
        const Band* below = nullptr;
        for (const Band& band : theBands) {
            if (band.discountLevel() == 0 && isWithoutLevelZero(band.discountModel())) {
                tellLevelZero(band);
                continue;
            }
            checkQuantity(band);
            if (below) {
                checkRise(*below, band, theView);
                checkGap(*below, band);
            }
            below = &band;
        }
        if (!isPackageModel(theBands.isEmpty() ? DISCOUNT_MODEL_NONE : theBands.begin()->discountModel()))
            return;
        checkCaseOfLetters(theBands, theView);
        checkLastPackage(*(theBands.end() - 1));
    }

    void tellLevelZero(const Band& theBand)
    {
        tell("level-never-asked", theBand, STR_LEVEL,
             QStringLiteral("level 0 of this model is never asked for, so this price never holds; the model's levels "
                            "begin with 1"));
    }

    void checkQuantity(const Band& theBand)
    {
        const bool isAsked =
            theBand.discountLevel() > 0 && theBand.discountModel() != DISCOUNT_MODEL_INHERITED_DISCOUNT;
        if (isAsked && !myPrices.element(theBand).hasAttribute(STR_QUANTITY))
            tell("level-without-quantity", theBand, STR_QUANTITY,
                 QStringLiteral("level %1 has no quantity; it counts as 0, so the level holds from the first piece")
                     .arg(theBand.discountLevel()));
    }

    /// The quantities of inherited levels play no part. The plain shipping holds below the bill sums as well.
    void checkRise(const Band& theBelow, const Band& theBand, const VelTarmPriceView& theView)
    {
        const VelDiscountModel model = theBand.discountModel();
        const bool isFromPlain = theBelow.discountLevel() == 0;
        if (model == DISCOUNT_MODEL_INHERITED_DISCOUNT ||
            (isFromPlain && !theView.bands(DISCOUNT_MODEL_BILLING_SUM_TRANSFER).isEmpty()))
            return;
        const int first = isFromPlain ? 1 : theBelow.value().lowerLimit();
        if (theBand.value().lowerLimit() > first)
            return;
        const QString never = isFromPlain ? QStringLiteral("the plain price of level 0 (%1)").arg(lineOf(theBelow))
                                          : QStringLiteral("level %1 from %2 (%3)")
                                                .arg(theBelow.discountLevel())
                                                .arg(amount(theBelow), lineOf(theBelow));
        const QString message = QStringLiteral("level %1 holds from %2 on, so %3 never holds");
        VelAuditFinding* finding = tell("levels-not-rising", theBand, STR_QUANTITY,
                                        message.arg(theBand.discountLevel()).arg(amount(theBand), never));
        if (finding)
            VelAuditPhrases::beside(*finding, myDocument, myPrices.element(theBelow), STR_QUANTITY,
                                    QStringLiteral("what never holds"));
    }

    /// A package ends where the next level begins; one that no level follows directly ends nowhere.
    void checkGap(const Band& theBelow, const Band& theBand)
    {
        const int missing = theBelow.discountLevel() + 1;
        if (theBand.discountLevel() == missing)
            return;
        const bool isPackage = isPackageModel(theBand.discountModel()) && theBelow.value().isPackagePrice();
        const QString cost =
            isPackage && !theBand.value().isPackagePrice()
                ? QStringLiteral("the package of level %1 (%2) has -1 pieces, and from %3 on all pieces and one more "
                                 "are charged on top of it")
                : QStringLiteral("level %1 (%2) has no end in tables, and what lies before %3 costs its price");
        VelAuditFinding* finding = tell("level-skipped", theBand, STR_LEVEL,
                                        QStringLiteral("level %1 is missing: ").arg(missing) +
                                            cost.arg(theBelow.discountLevel()).arg(lineOf(theBelow), amount(theBand)));
        if (!finding)
            return;
        finding->as(isPackage ? SEVERITY_ERROR : SEVERITY_WARNING);
        VelAuditPhrases::beside(*finding, myDocument, myPrices.element(theBelow), STR_LEVEL,
                                QStringLiteral("the level before it"));
    }

    void checkLastPackage(const Band& theLast)
    {
        if (theLast.discountLevel() > 0 && theLast.value().isPackagePrice())
            tell("package-without-end", theLast, STR_TYPE,
                 QStringLiteral("no level follows this package, so any number of pieces from %1 on costs %2 in "
                                "all; a lower-case letter is the price of each piece")
                     .arg(theLast.value().lowerLimit())
                     .arg(cents(theLast.price())));
    }

    /// A price for each piece that is far dearer than the plain one, or than a piece in a package beside it. A little
    /// dearer it may be meant: packages may come free of shipping.
    void checkCaseOfLetters(const VelTarmPriceBands& theBands, const VelTarmPriceView& theView)
    {
        for (const Band* band = theBands.begin(); band != theBands.end(); ++band) {
            if (band->value().isPackagePrice() || band->discountLevel() == 0)
                continue;
            const Band* below = band == theBands.begin() ? nullptr : band - 1;
            const Band* above = band + 1 == theBands.end() ? nullptr : band + 1;
            if (isDearerThanPlain(*band, theView) || isDearerThanIn(below, *band) || isDearerThanIn(above, *band))
                tellCase(*band);
        }
    }

    void tellCase(const Band& theBand)
    {
        tell("lower-case-package", theBand, STR_TYPE,
             QStringLiteral("the lower-case letter makes %1 the price of each piece, which is dearer than a piece "
                            "costs elsewhere here; an upper-case one makes it the price of a whole package")
                 .arg(cents(theBand.price())));
    }

    static bool isDearerThanPlain(const Band& theBand, const VelTarmPriceView& theView)
    {
        const VelTarmPriceBands plain = theView.bands(DISCOUNT_MODEL_BULK);
        return !plain.isEmpty() && plain.begin()->discountLevel() == 0 && plain.begin()->price() > 0 &&
               theBand.price() > SURELY_DEARER * qint64(plain.begin()->price());
    }

    /// A package of an unknown end counts with as many pieces as it begins with.
    static bool isDearerThanIn(const Band* thePackage, const Band& theBand)
    {
        if (!thePackage || !thePackage->value().isPackagePrice() || thePackage->discountLevel() == 0)
            return false;
        const bool isAbove = thePackage->discountLevel() > theBand.discountLevel();
        const qint64 held = isAbove ? thePackage->value().lowerLimit() : thePackage->value().upperLimit();
        return qMax<qint64>(1, held) * theBand.price() > SURELY_DEARER * qint64(thePackage->price()) && held > 1;
    }

    // ---- without level 0

    void checkFirstPiece(const VelTarmPriceView& theView)
    {
        const VelTarmPriceBands bands = theView.bands();
        if (bands.isEmpty() || firstAnswer(theView).myPrice != -1)
            return;
        const Band* lowest = nullptr;
        bool hasOnlyPackages = true;
        for (const Band& band : bands) {
            if (band.discountLevel() <= 0 && !isWithoutLevelZero(band.discountModel()))
                return tellPlainPrice(band);
            hasOnlyPackages = hasOnlyPackages && isPackageModel(band.discountModel());
            if (band.discountLevel() > 0 && (!lowest || band.value().lowerLimit() < lowest->value().lowerLimit()))
                lowest = &band;
        }
        if (lowest)
            tellFirstPiece(*lowest, hasOnlyPackages, theView.orderSource());
    }

    /// An attribute that is missing is told of by itself, and one that is no number, too.
    void tellPlainPrice(const Band& theBand)
    {
        if (VelXMLParser::intAttribute(myPrices.element(theBand), STR_PRICE, 0) == theBand.price())
            tell("no-plain-price", theBand, STR_PRICE,
                 QStringLiteral("-1 is no price: below the first level %1").arg(costOfNoPrice(myPrices.entry())));
    }

    /// As a bill asks: for one piece, and of an express fee for exactly its model.
    VelTarmPriceAnswer firstAnswer(const VelTarmPriceView& theView) const
    {
        return myPrices.entry().myKind == VelAuditCatalog::Entry::EXPRESS_FEE
                   ? theView.inModel(DISCOUNT_MODEL_EXPRESS_FEE, 1)
                   : theView.best(1, 1);
    }

    void tellFirstPiece(const Band& theLowest, bool theHasOnlyPackages, const VelOrderSource& theSource)
    {
        const QString least = amount(theLowest);
        if (theHasOnlyPackages)
            tell("least-quantity", theLowest, STR_QUANTITY,
                 QStringLiteral("less than %1 can't be ordered by %2: packages have no price below their first level")
                     .arg(least, orderWay(theSource)));
        else
            tell("no-plain-price", theLowest, STR_LEVEL,
                 QStringLiteral("there is no level 0, so less than %1 by %2 has no price: %3")
                     .arg(least, orderWay(theSource), costOfNoPrice(myPrices.entry())));
    }

    const VelAuditDocument& myDocument;
    const VelAuditPrices& myPrices;
    VelAuditReport& myReport;
    QSet<std::pair<QByteArray, int>> myTold;
};

bool hasSomePrice(const VelAuditPrices& thePrices)
{
    for (const VelOrderSource& source : thePrices.sources())
        for (const VelTarmPriceBand& band : thePrices.view(source).bands())
            if (band.price() != -1)
                return true;
    return false;
}

} // namespace

void VelAuditShopChecks::checkLadders(const VelAuditCatalog& theCatalog, const VelAuditPrices& thePrices,
                                      VelAuditReport& theReport)
{
    const VelAuditDocument& document = *theCatalog.priceList();
    if (thePrices.isShippingByProducts())
        return; // its prices play no part
    if (!hasSomePrice(thePrices)) {
        theReport.atElement("no-price", document, thePrices.entry().myElement,
                            QStringLiteral("%1 has no price: %2")
                                .arg(VelAuditPhrases::entry(thePrices.entry()), costOfNoPrice(thePrices.entry())));
        return;
    }
    Ladders ladders(document, thePrices, theReport);
    for (const VelOrderSource& source : thePrices.differing(theCatalog.sources()))
        ladders.check(source);
}
