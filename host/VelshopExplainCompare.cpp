#include "host/VelshopExplainCompare.h"

#include "host/VelshopExplainData.h"
#include "host/VelshopExplainText.h"
#include "host/VelshopTable.h"
#include "host/VelshopWords.h"

#include <QJsonArray>
#include <QTextStream>

#include <optional>

namespace {

using Amount = std::optional<qint64>;

/// A fee that isn't there costs nothing.
Amount amountOf(const VelExplainedTerm* theTerm)
{
    if (!theTerm)
        return 0;
    return theTerm->myHasPrice ? Amount(theTerm->myAmount) : std::nullopt;
}

Amount totalOf(const VelPriceExplanation& theExplanation)
{
    return theExplanation.hasPrice() ? Amount(theExplanation.total()) : std::nullopt;
}

bool isSame(const VelExplainedTerm& theLeft, const VelExplainedTerm& theRight)
{
    return theLeft.myKind == theRight.myKind && theLeft.myGroup == theRight.myGroup &&
           theLeft.myArticle == theRight.myArticle && theLeft.myName == theRight.myName;
}

const VelExplainedTerm* find(const VelPriceExplanation& theExplanation, const VelExplainedTerm& theTerm)
{
    for (const VelExplainedTerm& term : theExplanation.terms())
        if (isSame(term, theTerm))
            return &term;
    return nullptr;
}

QStringList row(const QString& theName, const Amount& theBefore, const Amount& theAfter)
{
    const bool bothKnown = theBefore && theAfter;
    const qint64 difference = bothKnown ? *theAfter - *theBefore : 0;
    QString text = bothKnown ? VelshopWords::money(static_cast<int>(difference)) : QStringLiteral("-");
    if (difference > 0)
        text.prepend(QLatin1Char('+'));
    return {theName, amountText(theBefore.has_value(), theBefore.value_or(0)),
            amountText(theAfter.has_value(), theAfter.value_or(0)), text};
}

/// Fees and coupons of several groups bear the same name.
QString nameOf(const VelExplainedTerm& theTerm)
{
    const QString name = termText(theTerm);
    return theTerm.myKind == VelExplainedTerm::ITEM ? name
                                                    : QStringLiteral("%1 (group %2)").arg(name).arg(theTerm.myGroup);
}

QJsonValue valueOf(const Amount& theAmount)
{
    return theAmount ? QJsonValue(*theAmount) : QJsonValue();
}

void insertAmounts(QJsonObject& theJson, const Amount& theBefore, const Amount& theAfter)
{
    theJson.insert(QStringLiteral("before"), valueOf(theBefore));
    theJson.insert(QStringLiteral("after"), valueOf(theAfter));
    theJson.insert(QStringLiteral("difference"),
                   valueOf(theBefore && theAfter ? Amount(*theAfter - *theBefore) : std::nullopt));
}

} // namespace

QList<VelshopTermPair> termPairs(const VelPriceExplanation& theBefore, const VelPriceExplanation& theAfter)
{
    QList<VelshopTermPair> pairs;
    for (const VelExplainedTerm& term : theAfter.terms())
        pairs.append(VelshopTermPair{find(theBefore, term), &term});
    for (const VelExplainedTerm& term : theBefore.terms())
        if (!find(theAfter, term))
            pairs.append(VelshopTermPair{&term, nullptr});
    return pairs;
}

void printComparison(const VelPriceExplanation& theBefore, const VelPriceExplanation& theAfter, QTextStream& theOutput)
{
    VelshopTable table(
        {QStringLiteral("TERM"), QStringLiteral("CART"), QStringLiteral("SO"), QStringLiteral("DIFFERENCE")});
    for (const VelshopTermPair& pair : termPairs(theBefore, theAfter)) {
        const Amount before = amountOf(pair.myBefore);
        const Amount after = amountOf(pair.myAfter);
        if (before != after)
            table.add(row(nameOf(pair.any()), before, after));
    }
    table.add(row(QStringLiteral("total"), totalOf(theBefore), totalOf(theAfter)));
    table.print(theOutput);
}

QJsonObject comparisonData(const VelPriceExplanation& theBefore, const VelPriceExplanation& theAfter)
{
    QJsonArray terms;
    for (const VelshopTermPair& pair : termPairs(theBefore, theAfter)) {
        const VelExplainedTerm& term = pair.any();
        QJsonObject json{{QStringLiteral("kind"), kindWord(term.myKind)},
                         {QStringLiteral("group"), term.myGroup},
                         {QStringLiteral("article"), articleData(term)},
                         {QStringLiteral("name"), term.myName}};
        insertAmounts(json, amountOf(pair.myBefore), amountOf(pair.myAfter));
        terms.append(json);
    }
    QJsonObject json{{QStringLiteral("terms"), terms}};
    insertAmounts(json, totalOf(theBefore), totalOf(theAfter));
    return json;
}
