#include "host/VelshopDiffWords.h"

#include "host/VelshopExplainData.h"
#include "host/VelshopWords.h"
#include "insight/VelPriceWords.h"

#include <QDomDocument>

#include <algorithm>
#include <limits>

namespace {

const QString STR_CURRENCY = QStringLiteral("currency");
const QString STR_ID = QStringLiteral("id");
const QString STR_ISO_CODE = QStringLiteral("isocode");
const QString STR_NO_VALUE = QStringLiteral("none");
const QString STR_NO_PRICE = QStringLiteral("no price");

/// The currency of a shop that another process has read.
VelCurrency currencyOf(const VelShopSnapshot& theShop)
{
    QDomDocument document;
    QDomElement currency = document.createElement(STR_CURRENCY);
    for (const VelShopField& field : theShop.conditions())
        if (field.myPlace.myElement == STR_CURRENCY && field.myName == STR_ID)
            currency.setAttribute(STR_ISO_CODE, field.myValue.toString());
        else if (field.myPlace.myElement == STR_CURRENCY)
            currency.appendChild(document.createElement(field.myName))
                .appendChild(document.createTextNode(field.myValue.toString()));
    return VelCurrency(currency);
}

QString money(qint64 theAmount, const VelCurrency& theCurrency)
{
    return theCurrency.format(static_cast<int>(theAmount), false, true);
}

bool isMoney(const QString& theName)
{
    return theName == QLatin1String("non_offer_price") || theName == QLatin1String("transfer_base_price") ||
           theName == QLatin1String("transfer_unit_price");
}

// ---- where a field stands

bool hasSource(const VelShopPlace& thePlace)
{
    return thePlace.myInputSource != INPUT_SOURCE_UNKNOWN;
}

QString sourceText(const VelShopPlace& thePlace)
{
    return VelshopWords::orderSource(VelOrderSource(thePlace.myInputSource, thePlace.myDeliveryType));
}

QString deliveryText(VelDeliveryType theDelivery)
{
    return VelshopWords::orderSourceData(VelOrderSource(INPUT_SOURCE_NET, theDelivery))
        .value(QStringLiteral("delivery"))
        .toString();
}

/// All but the order source.
QString placeText(const VelShopPlace& thePlace)
{
    QStringList parts;
    if (!thePlace.myElement.isNull())
        parts.append(thePlace.myElement);
    if (thePlace.myId != VelShopPlace::NONE)
        parts.append(QString::number(thePlace.myId));
    if (!hasSource(thePlace) && thePlace.myDeliveryType != DELIVERY_TYPE_UNKNOWN)
        parts.append(deliveryText(thePlace.myDeliveryType));
    if (thePlace.myExpressType != ExpressableType_UNKNOWN)
        parts.append(QStringLiteral("express ") + VelshopDiffWords::expressKey(thePlace.myExpressType));
    if (thePlace.myDiscountModel != DISCOUNT_MODEL_UNDEFINED)
        parts.append(VelshopWords::discountModel(thePlace.myDiscountModel));
    if (thePlace.myDiscountLevel > 0)
        parts.append(QStringLiteral("level %1").arg(thePlace.myDiscountLevel));
    return parts.join(QLatin1Char(' '));
}

bool areAlike(const VelShopFieldChange& theLeft, VelShopFieldChange theRight)
{
    theRight.myPlace.myInputSource = theLeft.myPlace.myInputSource;
    theRight.myPlace.myDeliveryType = theLeft.myPlace.myDeliveryType;
    return hasSource(theLeft.myPlace) && theLeft.myName == theRight.myName && theLeft.myPlace == theRight.myPlace &&
           theLeft.myOld == theRight.myOld && theLeft.myNew == theRight.myNew;
}

// ---- totals

bool areAlike(const VelTotalsInterval::Line& theLeft, const VelTotalsInterval::Line& theRight)
{
    return theLeft.myHasPrice == theRight.myHasPrice && theLeft.myFirst == theRight.myFirst &&
           theLeft.myPerPiece == theRight.myPerPiece;
}

bool areAlike(const VelTotalsChange& theLeft, const VelTotalsChange& theRight)
{
    return theLeft.myVariable == theRight.myVariable && theLeft.myLevel == theRight.myLevel &&
           std::equal(theLeft.myIntervals.cbegin(), theLeft.myIntervals.cend(), theRight.myIntervals.cbegin(),
                      theRight.myIntervals.cend(),
                      [](const VelTotalsInterval& theOne, const VelTotalsInterval& theOther) {
                          return theOne.myFrom == theOther.myFrom && theOne.myTo == theOther.myTo &&
                                 areAlike(theOne.myOld, theOther.myOld) && areAlike(theOne.myNew, theOther.myNew);
                      });
}

/// What changed alike by several order sources stands together, where the first of it stood.
template <typename Change>
QVector<QVector<Change>> gathered(const QVector<Change>& theChanges)
{
    QVector<QVector<Change>> groups;
    for (const Change& change : theChanges) {
        const auto group = std::find_if(groups.begin(), groups.end(), [&](const QVector<Change>& theGroup) {
            return areAlike(theGroup.first(), change);
        });
        if (group == groups.end())
            groups.append(QVector<Change>{change});
        else
            group->append(change);
    }
    return groups;
}

/// As "0,10 € each", "9,90 € in all", or "9,99 €, each further 0,09 €".
QString lineText(const VelTotalsInterval& theInterval, const VelTotalsInterval::Line& theLine,
                 const VelCurrency& theCurrency)
{
    if (!theLine.myHasPrice)
        return STR_NO_PRICE;
    const QString first = money(theLine.myFirst, theCurrency);
    if (theInterval.myFrom == theInterval.myTo)
        return first;
    if (theLine.myPerPiece == 0)
        return first + QStringLiteral(" in all");
    const QString each = money(theLine.myPerPiece, theCurrency);
    if (static_cast<qint64>(theLine.myPerPiece) * theInterval.myFrom == theLine.myFirst)
        return each + QStringLiteral(" each");
    return QStringLiteral("%1, each further %2").arg(first, each);
}

QString totalsTitle(const VelTotalsChange& theChange, const QStringList& theSources)
{
    QString title = QStringLiteral("By ") + theSources.join(QStringLiteral("; "));
    if (theChange.myLevel > 0)
        title += QStringLiteral(", beside a main product of level %1").arg(theChange.myLevel);
    if (theChange.myVariable == VelPriceCurve::BY_SUM)
        title += QStringLiteral(", by the sum of the bill");
    return title;
}

QString termTitle(const VelShopTerm& theTerm)
{
    if (theTerm.myKind == VelExplainedTerm::ITEM)
        return QStringLiteral("%1 %2").arg(theTerm.myArticle).arg(theTerm.myName);
    return QStringLiteral("%1 of group %2").arg(kindWord(theTerm.myKind)).arg(theTerm.myGroup);
}

QString count(int theCount, const char* theWhat)
{
    return QStringLiteral("%1 %2").arg(theCount).arg(QLatin1String(theWhat));
}

} // namespace

VelshopDiffWords::VelshopDiffWords(const VelShopSnapshot& theOld, const VelShopSnapshot& theNew)
    : myOldCurrency(currencyOf(theOld)), myNewCurrency(currencyOf(theNew))
{
}

QString VelshopDiffWords::kind(VelShopEntry::Kind theKind)
{
    static const char* const words[] = {"article", "add-on", "transfer", "payment fee", "express fee"};
    return QLatin1String(words[theKind]);
}

QString VelshopDiffWords::expressKey(VelExpressTypeEnum theExpress)
{
    return theExpress == ExpressableType_UNKNOWN ? QString() : QString::number(theExpress - ExpressableType_STANDARD);
}

QString VelshopDiffWords::title(const VelShopEntry& theEntry)
{
    const QString article = QStringLiteral("%1 %2").arg(theEntry.myArticle).arg(theEntry.myName).trimmed();
    switch (theEntry.myKind) {
    case VelShopEntry::TRANSFER:
        return QStringLiteral("transfer of group %1: %2").arg(theEntry.myGroup).arg(article);
    case VelShopEntry::PAYMENT_FEE:
        return QStringLiteral("fee of payment %1: %2").arg(theEntry.myPayment).arg(article);
    case VelShopEntry::EXPRESS_FEE:
        return QStringLiteral("fee of express %1 in group %2: %3")
            .arg(expressKey(theEntry.myExpress), QString::number(theEntry.myGroup), article);
    default:
        return article;
    }
}

QString VelshopDiffWords::summary(const VelShopDifference& theDifference)
{
    QStringList parts;
    if (!theDifference.added().isEmpty())
        parts.append(count(theDifference.added().size(), "added"));
    if (!theDifference.removed().isEmpty())
        parts.append(count(theDifference.removed().size(), "removed"));
    if (!theDifference.changed().isEmpty())
        parts.append(count(theDifference.changed().size(), "changed"));
    if (!theDifference.conditions().isEmpty())
        parts.append(count(theDifference.conditions().size(), "of the shop as a whole"));
    int carts = 0;
    for (const VelShopCartChange& cart : theDifference.carts())
        carts += cart.isEmpty() ? 0 : 1;
    if (carts > 0)
        parts.append(VelPriceWords::counted(carts, QStringLiteral("cart")));
    return parts.isEmpty() ? QStringLiteral("no difference") : parts.join(QStringLiteral(", "));
}

QString VelshopDiffWords::value(const QString& theName, const QVariant& theValue, const VelCurrency& theCurrency) const
{
    if (!theValue.isValid())
        return STR_NO_VALUE;
    if (theValue.userType() == QMetaType::QVariantList) {
        QStringList texts;
        for (const QVariant& part : theValue.toList())
            texts.append(part.toString());
        return texts.isEmpty() ? STR_NO_VALUE : texts.join(QStringLiteral(", "));
    }
    if (theValue.userType() == QMetaType::QString)
        return QStringLiteral("\"%1\"").arg(theValue.toString());
    return isMoney(theName) ? money(theValue.toInt(), theCurrency) : theValue.toString();
}

QVector<VelshopDiffWords::Row> VelshopDiffWords::rows(const QVector<VelShopFieldChange>& theChanges) const
{
    QVector<Row> rows;
    for (const QVector<VelShopFieldChange>& alike : gathered(theChanges)) {
        const VelShopFieldChange& change = alike.first();
        QStringList name{placeText(change.myPlace), change.myName};
        name.removeAll(QString());
        if (hasSource(change.myPlace)) {
            QStringList sources;
            for (const VelShopFieldChange& each : alike)
                sources.append(sourceText(each.myPlace));
            name.append(QStringLiteral("by ") + sources.join(QStringLiteral("; ")));
        }
        rows.append({name.join(QLatin1Char(' ')), value(change.myName, change.myOld, myOldCurrency),
                     value(change.myName, change.myNew, myNewCurrency)});
    }
    return rows;
}

VelshopDiffWords::Row VelshopDiffWords::row(const VelTotalsInterval& theInterval, bool theIsBySum) const
{
    const bool isOpen = theInterval.myTo == (theIsBySum ? std::numeric_limits<int>::max()
                                                        : static_cast<int>(VelPriceCurve::HIGHEST_QUANTITY));
    const auto text = [&](int theQuantity) {
        return theIsBySum ? money(theQuantity, myNewCurrency) : QString::number(theQuantity);
    };
    QString name = text(theInterval.myFrom);
    if (isOpen)
        name = QStringLiteral("from ") + name;
    else if (theInterval.myTo != theInterval.myFrom)
        name += QStringLiteral(" to ") + text(theInterval.myTo);
    return {name, lineText(theInterval, theInterval.myOld, myOldCurrency),
            lineText(theInterval, theInterval.myNew, myNewCurrency)};
}

QVector<VelshopDiffWords::Totals> VelshopDiffWords::totals(const QVector<VelTotalsChange>& theChanges) const
{
    QVector<Totals> totals;
    for (const QVector<VelTotalsChange>& alike : gathered(theChanges)) {
        const VelTotalsChange& change = alike.first();
        QStringList sources;
        for (const VelTotalsChange& each : alike)
            sources.append(VelshopWords::orderSource(each.mySource));
        totals.append({totalsTitle(change, sources), {}});
        for (const VelTotalsInterval& interval : change.myIntervals)
            totals.last().myRows.append(row(interval, change.myVariable == VelPriceCurve::BY_SUM));
    }
    return totals;
}

VelshopDiffWords::Row VelshopDiffWords::total(const VelShopCartChange& theCart) const
{
    const auto text = [](const VelShopCart& theSide, const VelCurrency& theCurrency) {
        return theSide.myReason.isEmpty() ? money(theSide.myTotal, theCurrency)
                                          : QStringLiteral("can't be ordered: ") + theSide.myReason;
    };
    return {theCart.myNew.myName, text(theCart.myOld, myOldCurrency), text(theCart.myNew, myNewCurrency)};
}

QVector<VelshopDiffWords::Row> VelshopDiffWords::terms(const VelShopCartChange& theCart) const
{
    const auto text = [](bool theIsThere, const VelShopTerm& theTerm, const VelCurrency& theCurrency) {
        if (!theIsThere)
            return STR_NO_VALUE;
        return theTerm.myHasPrice ? money(theTerm.myAmount, theCurrency) : STR_NO_PRICE;
    };
    QVector<Row> rows;
    for (const VelShopCartChange::Term& term : theCart.myTerms)
        rows.append({termTitle(term.myIsInNew ? term.myNew : term.myOld),
                     text(term.myIsInOld, term.myOld, myOldCurrency), text(term.myIsInNew, term.myNew, myNewCurrency)});
    return rows;
}
