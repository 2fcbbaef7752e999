#include "insight/VelPriceCurveMaker.h"

#include <algorithm>
#include <limits>

namespace {

const qint64 HIGHEST = std::numeric_limits<int>::max();
const qint64 LOWEST = std::numeric_limits<int>::min();

bool hasPrice(const VelTarmPriceAnswer& theAnswer)
{
    return theAnswer.myPrice != -1;
}

/// An amount that stands on no entry, or on one that says nothing, is no price for any quantity of the stretch; an
/// amount of -1 may be one for the next quantity.
bool hasEntries(const VelTarmPriceAnswer& theAnswer)
{
    if (!theAnswer.myHasRule || (theAnswer.myChargeCount == 0 && !hasPrice(theAnswer)))
        return false;
    return std::all_of(theAnswer.begin(), theAnswer.end(),
                       [](const VelTarmPriceCharge& theCharge) { return theCharge.myBand->value().isValid(); });
}

qint64 trueAmount(const VelTarmPriceAnswer& theAnswer)
{
    qint64 amount = 0;
    for (const VelTarmPriceCharge& charge : theAnswer)
        amount += static_cast<qint64>(charge.myBand->price()) * charge.myUnits;
    return amount;
}

/// As the desk sells: no line of a price below 0, and no package of less than one piece.
bool isSellable(const VelTarmPriceAnswer& theAnswer)
{
    return std::all_of(theAnswer.begin(), theAnswer.end(), [](const VelTarmPriceCharge& theCharge) {
        return theCharge.myBand->price() >= 0 && theCharge.myPieces > 0;
    });
}

bool isFee(VelDiscountModel theModel)
{
    return theModel == DISCOUNT_MODEL_BULK_TRANSFER || theModel == DISCOUNT_MODEL_BILLING_SUM_TRANSFER ||
           theModel == DISCOUNT_MODEL_EXPRESS_FEE;
}

qint64 floorOf(qint64 theNumerator, qint64 theDenominator)
{
    const qint64 quotient = theNumerator / theDenominator;
    return theNumerator % theDenominator != 0 && (theNumerator < 0) != (theDenominator < 0) ? quotient - 1 : quotient;
}

/// Both sides of the quantity where a line meets a height, and that quantity alone where it does so exactly.
template <typename Quantities>
void addMeeting(qint64 theHeightAbove, qint64 theSlope, qint64 theOrigin, Quantities& theBegins)
{
    if (theSlope == 0)
        return;
    const qint64 meeting = theOrigin + floorOf(theHeightAbove, theSlope);
    theBegins.append(meeting);
    theBegins.append(meeting + 1);
}

template <typename Quantities>
void sortWithin(qint64 theFrom, qint64 theTo, Quantities& theBegins)
{
    const auto isOutside = [=](qint64 theQuantity) { return theQuantity < theFrom || theQuantity > theTo; };
    auto end = std::remove_if(theBegins.begin(), theBegins.end(), isOutside);
    std::sort(theBegins.begin(), end);
    end = std::unique(theBegins.begin(), end);
    theBegins.resize(static_cast<int>(end - theBegins.begin()));
}

} // namespace

VelPriceCurveMaker::VelPriceCurveMaker(const VelTarmPriceView& theView, const VelPriceCurve::Range& theRange,
                                       VelPriceCurve& theCurve)
    : myView(theView)
    , myRange(theRange)
    , myCurve(theCurve)
    , myEnd(theRange.myVariable == VelPriceCurve::BY_SUM ? theRange.myTo
                                                         : qMin(theRange.myTo, VelPriceCurve::HIGHEST_QUANTITY))
{
    if (isExpressFee())
        myModels.append(DISCOUNT_MODEL_EXPRESS_FEE);
    else
        for (const VelDiscountModel model : theView.models())
            myModels.append(model);
}

// ---- where something new may begin

/// A band begins at its lower limit. A package ends at its upper one; what goes beyond it is reckoned in 32 bits, and
/// so falls back to nothing where the distance leaves them.
void VelPriceCurveMaker::addLimits(Quantities& theBegins) const
{
    for (const VelTarmPriceBand& band : myView.bands()) {
        theBegins.append(band.value().lowerLimit());
        if (!isPackageModel(band.discountModel()))
            continue;
        theBegins.append(band.value().upperLimit() + Q_INT64_C(1));
        theBegins.append(band.value().upperLimit() + HIGHEST + 1);
    }
}

// ---- drawing

void VelPriceCurveMaker::make()
{
    const qint64 begin = qMax(1, myRange.myFrom);
    Quantities begins;
    begins.append(begin);
    addLimits(begins);
    sortWithin(begin, myEnd, begins);
    for (int index = 0; index < begins.size() && !myCurve.myEndsEarly; ++index)
        drawBetweenLimits(begins[index], index + 1 < begins.size() ? begins[index + 1] - 1 : myEnd);
}

void VelPriceCurveMaker::drawBetweenLimits(qint64 theFrom, qint64 theTo)
{
    const Lines lines = linesAt(theFrom);
    Quantities begins;
    begins.append(theFrom);
    for (int index = 0; index < lines.size(); ++index) {
        const Line& line = lines[index];
        for (const qint64 height : {Q_INT64_C(-1), LOWEST - 1, HIGHEST})
            addMeeting(height - line.myFirst, line.mySlope, theFrom, begins);
        for (int other = index + 1; other < lines.size(); ++other)
            addMeeting(lines[other].myFirst - line.myFirst, line.mySlope - lines[other].mySlope, theFrom, begins);
    }
    sortWithin(theFrom, theTo, begins);
    for (int index = 0; index < begins.size(); ++index)
        if (!drawStretch(begins[index], index + 1 < begins.size() ? begins[index + 1] - 1 : theTo, lines, theFrom))
            return;
}

VelPriceCurveMaker::Lines VelPriceCurveMaker::linesAt(qint64 theQuantity) const
{
    Lines lines;
    for (const VelDiscountModel model : myModels) {
        const VelTarmPriceAnswer answer = inModel(model, theQuantity);
        if (hasEntries(answer))
            lines.append({VelTarmPriceView::winsAtOnce(model), trueAmount(answer), slopeOf(answer)});
    }
    return lines;
}

bool VelPriceCurveMaker::drawStretch(qint64 theFrom, qint64 theTo, const Lines& theLines, qint64 theOrigin)
{
    if (!fits(theFrom, theLines, theOrigin)) {
        myCurve.myEndsEarly = true;
        myCurve.myEndsAt = static_cast<int>(theFrom - 1);
        return false;
    }
    const VelTarmPriceAnswer answer = best(theFrom);
    const bool isSold = myRange.myReading == VelPriceCurve::AS_PRICED || isSellable(answer);
    if (hasPrice(answer) && isSold)
        append({static_cast<int>(theFrom), static_cast<int>(theTo), answer.myPrice, slopeOf(answer), answer.myModel,
                answer.myChargeCount == 0 ? 0 : answer.myCharges[answer.myChargeCount - 1].myLevel});
    return true;
}

/// Whether all amounts that are compared fit: those of the models that compete, unless one wins at once, which makes
/// those of all others indifferent.
bool VelPriceCurveMaker::fits(qint64 theQuantity, const Lines& theLines, qint64 theOrigin) const
{
    bool othersFit = true;
    for (const Line& line : theLines) {
        const qint64 amount = line.myFirst + line.mySlope * (theQuantity - theOrigin);
        const bool itFits = amount >= LOWEST && amount <= HIGHEST;
        if (line.myWinsAtOnce && amount != -1)
            return itFits;
        othersFit = othersFit && itFits;
    }
    return othersFit;
}

void VelPriceCurveMaker::append(const VelPriceCurvePiece& thePiece)
{
    QVector<VelPriceCurvePiece>& pieces = myCurve.myPieces;
    if (!pieces.isEmpty() && pieces.last().isContinuedBy(thePiece))
        pieces.last().myTo = thePiece.myTo;
    else
        pieces.append(thePiece);
}

// ---- asking the rules

VelTarmPriceAnswer VelPriceCurveMaker::best(qint64 theQuantity) const
{
    if (isExpressFee())
        return inModel(DISCOUNT_MODEL_EXPRESS_FEE, theQuantity);
    const int quantity = static_cast<int>(theQuantity);
    return myRange.myVariable == VelPriceCurve::BY_SUM ? myView.best(1, quantity, myRange.myInheritedLevel)
                                                       : myView.best(quantity, 1, myRange.myInheritedLevel);
}

VelTarmPriceAnswer VelPriceCurveMaker::inModel(VelDiscountModel theModel, qint64 theQuantity) const
{
    const int quantity = static_cast<int>(theQuantity);
    return myRange.myVariable == VelPriceCurve::BY_SUM
               ? myView.inModel(theModel, 1, quantity, myRange.myInheritedLevel)
               : myView.inModel(theModel, quantity, 1, myRange.myInheritedLevel);
}

/// What one more piece costs: nothing in a package and for a fee, otherwise the price of the last line. A package that
/// is followed by no line holds the whole quantity, or more than it.
int VelPriceCurveMaker::slopeOf(const VelTarmPriceAnswer& theAnswer) const
{
    if (theAnswer.myChargeCount == 0 || myRange.myVariable == VelPriceCurve::BY_SUM || isFee(theAnswer.myModel))
        return 0;
    const VelTarmPriceCharge& last = theAnswer.myCharges[theAnswer.myChargeCount - 1];
    return isPackageModel(last.myModel) && last.myBand->value().isPackagePrice() ? 0 : last.myBand->price();
}
