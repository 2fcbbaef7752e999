#include "host/VelshopPrice.h"

#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "host/VelshopAdvice.h"
#include "host/VelshopArticle.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopProblems.h"
#include "host/VelshopWords.h"
#include "price/VelDiscountLimit.h"
#include "product/VelProductAbstract.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <limits>

namespace {

/// One line of the answer: a bill position and the band of the price entry behind it.
struct PricedLine
{
    const VelTarmBillPositionAbstract* myPosition;
    bool myHasBand;
    VelDiscountLimit myBand;
};

PricedLine pricedLine(const VelTarmBillPositionAbstract* thePosition, const VelOrderSource& theSource)
{
    const VelTarmPriceKey key(theSource, thePosition->discountLevel(), thePosition->discountModel());
    const QSet<VelDiscountLimit> limits = thePosition->product()->discountLimits(key);
    if (limits.isEmpty())
        return {thePosition, false, VelDiscountLimit()};
    return {thePosition, true, *limits.begin()};
}

QList<PricedLine> pricedLines(const VelTarmBill& theBill, const VelOrderSource& theSource)
{
    QList<PricedLine> lines;
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions())
        lines.append(pricedLine(position, theSource));
    return lines;
}

/// The library's amounts wrap around; at a desk an amount that no int can hold is not to be believed.
bool isTooLarge(const QList<PricedLine>& theLines)
{
    qint64 sum = 0;
    for (const PricedLine& line : theLines)
        sum += static_cast<qint64>(line.myPosition->unitPrice()) * line.myPosition->unitCount();
    return sum > std::numeric_limits<int>::max() || sum < std::numeric_limits<int>::min();
}

QString bandText(const PricedLine& theLine)
{
    return theLine.myHasBand ? QStringLiteral(", band ") + VelshopWords::band(theLine.myBand) : QString();
}

QString lineText(const PricedLine& theLine)
{
    const VelTarmBillPositionAbstract& position = *theLine.myPosition;
    QString text = QStringLiteral("  %1 x %2 = %3")
                       .arg(position.unitCount())
                       .arg(VelshopWords::money(position.unitPrice()), VelshopWords::money(position.positionPrice()));
    if (position.isPackage() || position.unitCount() != position.countItems())
        text += QStringLiteral(" for a package with %1 pieces").arg(position.countItems());
    text += QStringLiteral("; model %1, level %2%3")
                .arg(VelshopWords::discountModel(position.discountModel()))
                .arg(position.discountLevel())
                .arg(bandText(theLine));
    if (position.nonOfferPrice() != -1)
        text += QStringLiteral("; offer, formerly %1").arg(VelshopWords::money(position.nonOfferPrice()));
    return text;
}

QJsonObject toJson(const PricedLine& theLine)
{
    const VelTarmBillPositionAbstract& position = *theLine.myPosition;
    QJsonObject json{{QStringLiteral("pieces"), position.countItems()},
                     {QStringLiteral("units"), position.unitCount()},
                     {QStringLiteral("unitPrice"), position.unitPrice()},
                     {QStringLiteral("amount"), position.positionPrice()},
                     {QStringLiteral("package"), position.isPackage()},
                     {QStringLiteral("model"), VelshopWords::discountModel(position.discountModel())},
                     {QStringLiteral("level"), position.discountLevel()}};
    if (position.nonOfferPrice() != -1)
        json.insert(QStringLiteral("nonOfferPrice"), position.nonOfferPrice());
    if (theLine.myHasBand)
        VelshopWords::insertBand(json, theLine.myBand);
    return json;
}

/// What so many pieces of a product cost by one order way, as a bill of their own shows it.
struct PricedArticle
{
    const VelProductAbstract* myProduct;
    int myCount;
    VelOrderSource mySource;
    int myAmount;
    bool myHasPrice;
    QList<PricedLine> myLines;
};

QJsonObject toJson(const PricedArticle& theArticle)
{
    const bool hasPrice = theArticle.myHasPrice;
    QJsonArray lines;
    if (hasPrice)
        for (const PricedLine& line : theArticle.myLines)
            lines.append(toJson(line));
    return {{QStringLiteral("article"), theArticle.myProduct->articleID()},
            {QStringLiteral("name"), theArticle.myProduct->name()},
            {QStringLiteral("count"), theArticle.myCount},
            {QStringLiteral("orderSource"), VelshopWords::orderSourceData(theArticle.mySource)},
            {QStringLiteral("amount"), hasPrice ? QJsonValue(theArticle.myAmount) : QJsonValue()},
            {QStringLiteral("text"), hasPrice ? QJsonValue(VelshopWords::money(theArticle.myAmount)) : QJsonValue()},
            {QStringLiteral("lines"), lines}};
}

QString headText(const PricedArticle& theArticle)
{
    return QStringLiteral("%1 %2, %3 pieces by %4")
        .arg(QString::number(theArticle.myProduct->articleID()), theArticle.myProduct->name(),
             QString::number(theArticle.myCount), VelshopWords::orderSource(theArticle.mySource));
}

void print(const PricedArticle& theArticle, bool theIsJson, QTextStream& theOutput)
{
    if (theIsJson) {
        theOutput << QJsonDocument(toJson(theArticle)).toJson();
    } else if (theArticle.myHasPrice) {
        theOutput << headText(theArticle) << ": " << VelshopWords::money(theArticle.myAmount) << '\n';
        for (const PricedLine& line : theArticle.myLines)
            theOutput << lineText(line) << '\n';
        const VelshopAdvice advice = adviceFor(theArticle.myProduct, theArticle.myCount, theArticle.mySource, 0);
        if (advice.isGiven())
            theOutput << "  " << advice.text() << '\n';
    }
}

} // namespace

bool readPriceArguments(const VelshopCommandLine& theLine, VelshopPriceArguments& theArguments, VelshopError& theError)
{
    return VelshopCommandLine::readNumber(theLine.words().at(0), QStringLiteral("ARTICLE"),
                                          VelshopCommandLine::LOWEST_ID, theArguments.myArticle, theError) &&
           VelshopCommandLine::readNumber(theLine.words().at(1), QStringLiteral("COUNT"), 1, theArguments.myCount,
                                          theError) &&
           theArguments.mySource.read(theLine, theError);
}

int priceArticle(const VelshopPriceArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    VelProductAbstract* product = findArticle(theArguments.myArticle, theError);
    if (!product)
        return EXIT_BAD_INPUT;
    VelOrderSource source = VelOrderSource::onlineMailOrder();
    if (!theArguments.mySource.complete(source, theError))
        return EXIT_BAD_INPUT;
    VelTarmStatus status;
    status.setOrderSource(source);
    VelTarmBill bill(product->shippingGroupId(), VelOrderStatistic(), VelExpressType(), status);
    const int amount = product->priceFor(status.priceKey(), theArguments.myCount, 0, &bill, nullptr);
    const bool hasPrice = VelshopProblems::hasPrice(product, theArguments.myCount, source);
    const PricedArticle article{product, theArguments.myCount, source, amount, hasPrice, pricedLines(bill, source)};
    if (isTooLarge(article.myLines)) {
        theError = headText(article) + QStringLiteral(": the amount is beyond what 32 bits of cents can hold");
        return EXIT_BAD_INPUT;
    }
    print(article, theArguments.myIsJson, theOutput);
    if (hasPrice)
        return EXIT_DONE;
    theError = headText(article) + QStringLiteral(": no price");
    return EXIT_NO_PRICE;
}
