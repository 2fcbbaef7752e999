#include "host/VelshopGapsSheet.h"

#include "host/VelshopWords.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductAbstract.h"

#include <QStringList>

#include <algorithm>

namespace {

using Cell = VelPriceGaps::Cell;
using Row = VelPriceGaps::Row;

struct WhyWords
{
    VelPriceGaps::Why myWhy;
    const char* myMark;
    const char* myReason;
};

const WhyWords WORDS[] = {
    {VelPriceGaps::WHY_NO_ENTRIES, "none", "no price by any order way"},
    {VelPriceGaps::WHY_NO_ENTRY_HERE, "-", "no price by this order way"},
    {VelPriceGaps::WHY_NO_AMOUNT, "no amount", "no price that can be read"},
    {VelPriceGaps::WHY_REFUSED, "refused", "a price below 0, or a package of less than one piece"},
    {VelPriceGaps::WHY_BEYOND_RANGE, "too many", "no price up to 100000 pieces"},
    {VelPriceGaps::WHY_OUT_OF_REACH, "never", "no quantity makes its prices apply"},
    {VelPriceGaps::WHY_TOO_LARGE, "too large", "an amount beyond what 32 bits of cents can hold"},
    {VelPriceGaps::WHY_WITH_MAIN_PRODUCT, "with main", "with its main product"},
    {VelPriceGaps::WHY_NO_FEE, "free", "no such fee by this order way, nothing is charged"},
    {VelPriceGaps::WHY_NOT_PERMITTED, "", "a payment that this order way doesn't permit"},
};

const WhyWords* wordsOf(VelPriceGaps::Why theWhy)
{
    const auto found = std::find_if(std::begin(WORDS), std::end(WORDS),
                                    [=](const WhyWords& theWords) { return theWords.myWhy == theWhy; });
    return found == std::end(WORDS) ? nullptr : found;
}

QString quantity(int theQuantity, const Cell& theCell)
{
    return theCell.myIsBySum ? VelshopWords::money(theQuantity) : QString::number(theQuantity);
}

QString pricedMark(const Cell& theCell)
{
    if (theCell.myIsBySum)
        return theCell.isWhole() ? QStringLiteral("yes") : QStringLiteral("by sum");
    const QString from = QString::number(theCell.myFrom);
    if (theCell.myUpTo > 0)
        return QStringLiteral("%1 to %2").arg(from).arg(theCell.myUpTo);
    return theCell.myFrom > 1 ? QStringLiteral("from ") + from : QStringLiteral("yes");
}

QStringList unpricedQuantities(const Cell& theCell)
{
    QStringList texts;
    if (theCell.myFrom > 1)
        texts.append(QStringLiteral("below ") + quantity(theCell.myFrom, theCell));
    for (const VelPriceGaps::Hole& hole : theCell.myHoles)
        texts.append(
            hole.myFrom == hole.myTo
                ? QStringLiteral("for ") + quantity(hole.myFrom, theCell)
                : QStringLiteral("from %1 to %2").arg(quantity(hole.myFrom, theCell), quantity(hole.myTo, theCell)));
    if (theCell.myUpTo > 0)
        texts.append(QStringLiteral("above ") + quantity(theCell.myUpTo, theCell));
    return texts;
}

bool isOf(const VelPriceGaps::FeeRow& theRow, std::optional<int> theGroup)
{
    return !theGroup || theRow.myFee.myKind == VelShopFees::FEE_PAYMENT || theRow.myFee.myGroup == *theGroup;
}

} // namespace

VelshopGapsSheet makeGapsSheet(std::optional<int> theGroup)
{
    const VelPriceGaps gaps(VelPriceCurve::AS_SOLD);
    VelshopGapsSheet sheet{gaps.ways(), {}, {}};
    for (const Row& row : gaps.articles())
        if (!theGroup || row.myProduct->shippingGroupId() == *theGroup)
            sheet.myArticles.append(row);
    std::stable_sort(sheet.myArticles.begin(), sheet.myArticles.end(), [](const Row& theLeft, const Row& theRight) {
        return theLeft.myProduct->shippingGroupId() < theRight.myProduct->shippingGroupId();
    });
    for (const VelPriceGaps::FeeRow& row : gaps.fees())
        if (isOf(row, theGroup))
            sheet.myFees.append(row);
    return sheet;
}

QString VelshopGapsWords::way(const VelOrderSource& theSource)
{
    const QJsonObject words = VelshopWords::orderSourceData(theSource);
    const QString source = words.value(QStringLiteral("source")).toString();
    return theSource.isKioskOnSite() ? source
                                     : source + QLatin1Char('/') + words.value(QStringLiteral("delivery")).toString();
}

QString VelshopGapsWords::group(int theGroup)
{
    const VelTarmShippingGroup* group = VelTarmShippingGroupManager::instance()->shippingGroup(theGroup);
    const QString name = VelTarmShippingGroupManager::instance()->shippingGroupName(theGroup);
    return QStringLiteral("%1 %2").arg(theGroup).arg(group ? name : QStringLiteral("(not sold by the shop)")).trimmed();
}

QString VelshopGapsWords::mark(const Cell& theCell)
{
    const WhyWords* words = wordsOf(theCell.myWhy);
    if (!theCell.isPriced())
        return words ? QLatin1String(words->myMark) : QString();
    return theCell.myHoles.isEmpty() || theCell.myIsBySum ? pricedMark(theCell)
                                                          : pricedMark(theCell) + QStringLiteral(", holes");
}

QString VelshopGapsWords::whyUnpriced(VelPriceGaps::Why theWhy)
{
    const WhyWords* words = wordsOf(theWhy);
    return words ? QLatin1String(words->myReason) : QString();
}

QString VelshopGapsWords::explanation(const Cell& theCell)
{
    if (!theCell.isPriced())
        return whyUnpriced(theCell.myWhy);
    const QStringList unpriced = unpricedQuantities(theCell);
    if (unpriced.isEmpty())
        return QString();
    return (theCell.myIsBySum ? QStringLiteral("no price for a bill sum ") : QStringLiteral("no price ")) +
           unpriced.join(QStringLiteral(", "));
}
