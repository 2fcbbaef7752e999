#include "host/VelshopExplainData.h"

#include "host/VelshopWords.h"

#include <QJsonArray>

namespace {

QJsonValue orNull(bool theIsThere, const QJsonValue& theValue)
{
    return theIsThere ? theValue : QJsonValue();
}

QJsonObject toJson(const VelExplainedPlace& thePlace)
{
    return {{QStringLiteral("file"), thePlace.myFile},
            {QStringLiteral("line"), thePlace.myPlace.myLine},
            {QStringLiteral("column"), thePlace.myPlace.myColumn},
            {QStringLiteral("element"), thePlace.myElement},
            {QStringLiteral("attribute"), orNull(!thePlace.myAttribute.isNull(), thePlace.myAttribute)},
            {QStringLiteral("value"), orNull(!thePlace.isDefault(), thePlace.myValue)}};
}

QJsonObject toJson(const VelExplainedNeed& theNeed)
{
    return {{QStringLiteral("orderSource"), VelshopWords::orderSourceData(theNeed.myOrderSource)},
            {QStringLiteral("from"), theNeed.myFrom},
            {QStringLiteral("level"), theNeed.myLevel}};
}

QJsonObject toJson(const VelExplainedCandidate& theCandidate);
QJsonObject toJson(const VelExplainedTerm& theTerm);

template <typename Part>
QJsonArray arrayOf(const QVector<Part>& theParts)
{
    QJsonArray array;
    for (const Part& part : theParts)
        array.append(toJson(part));
    return array;
}

void insertPlaces(QJsonObject& theJson, const VelExplainedPlaces& thePlaces)
{
    theJson.insert(QStringLiteral("decides"), arrayOf(thePlaces.myDecides));
    theJson.insert(QStringLiteral("compared"), arrayOf(thePlaces.myCompared));
}

QJsonObject toJson(const VelExplainedCandidate& theCandidate)
{
    const bool hasBand = theCandidate.myLevel != VelExplainedCandidate::NONE;
    QJsonObject json{
        {QStringLiteral("model"), VelshopWords::discountModel(theCandidate.myModel)},
        {QStringLiteral("level"), orNull(hasBand, theCandidate.myLevel)},
        {QStringLiteral("from"), orNull(hasBand, theCandidate.myFrom)},
        {QStringLiteral("to"), orNull(hasBand && theCandidate.myTo != VelExplainedCandidate::NONE, theCandidate.myTo)},
        {QStringLiteral("amount"), orNull(theCandidate.myAmount != -1, theCandidate.myAmount)},
        {QStringLiteral("computed"), theCandidate.myComputed},
        {QStringLiteral("verdict"), theCandidate.myVerdict}};
    insertPlaces(json, theCandidate.myPlaces);
    return json;
}

QJsonObject toJson(const VelExplainedTerm& theTerm)
{
    QJsonObject json{{QStringLiteral("kind"), kindWord(theTerm.myKind)},
                     {QStringLiteral("group"), theTerm.myGroup},
                     {QStringLiteral("article"), articleData(theTerm)},
                     {QStringLiteral("name"), theTerm.myName},
                     {QStringLiteral("count"), theTerm.myCount},
                     {QStringLiteral("amount"), orNull(theTerm.myHasPrice, theTerm.myAmount)},
                     {QStringLiteral("computed"), theTerm.myComputed},
                     {QStringLiteral("reason"), theTerm.myReason},
                     {QStringLiteral("candidates"), arrayOf(theTerm.myCandidates)}};
    insertPlaces(json, theTerm.myPlaces);
    if (!theTerm.myHasPrice)
        json.insert(QStringLiteral("needs"), arrayOf(theTerm.myNeeds));
    return json;
}

} // namespace

QJsonValue articleData(const VelExplainedTerm& theTerm)
{
    const bool hasArticle = theTerm.myKind != VelExplainedTerm::COUPON && theTerm.myKind != VelExplainedTerm::FLOOR;
    return orNull(hasArticle, theTerm.myArticle);
}

QString kindWord(VelExplainedTerm::Kind theKind)
{
    static const char* const words[] = {"item", "transfer", "payment", "coupon", "express", "floor"};
    return QLatin1String(words[theKind]);
}

QJsonObject explanationData(const VelPriceExplanation& theExplanation)
{
    return {{QStringLiteral("total"), orNull(theExplanation.hasPrice(), theExplanation.total())},
            {QStringLiteral("terms"), arrayOf(theExplanation.terms())}};
}
