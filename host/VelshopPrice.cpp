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

#include <algorithm>
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
        text += QStringLiteral(" for a package with ") + VelshopWords::pieces(position.countItems());
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

/// So many pieces of a product by one order way.
struct Asked
{
    VelProductAbstract* myProduct;
    int myCount;
    VelOrderSource mySource;
    VelDiscountModel myKeyModel; ///< of the price key that it is asked for with
    bool myIsFee;
};

/// What they cost, as a bill of their own shows it.
struct PricedArticle
{
    Asked myAsked;
    int myAmount;
    bool myHasPrice;
    QList<PricedLine> myLines;
};

/// A fee can't be ordered, so there is no order to ask.
bool isFeePriced(const VelTarmBill& theBill)
{
    const VelTarmBillPositionList& positions = theBill.orderPositions();
    return std::all_of(positions.begin(), positions.end(), [](const VelTarmBillPositionAbstract* thePosition) {
        return qobject_cast<const VelTarmBillPosition*>(thePosition) && thePosition->unitPrice() >= 0 &&
               thePosition->countItems() > 0;
    });
}

PricedArticle pricedArticle(const Asked& theAsked, VelTarmBill& theBill)
{
    const VelTarmPriceKey key(theAsked.mySource, -1, theAsked.myKeyModel);
    const int amount =
        theAsked.myProduct->priceFor(key, theAsked.myCount, billSumFor(theAsked.myProduct), &theBill, nullptr);
    const bool hasPrice = theAsked.myIsFee
                              ? isFeePriced(theBill)
                              : VelshopProblems::hasPrice(theAsked.myProduct, theAsked.myCount, theAsked.mySource);
    return {theAsked, amount, hasPrice, pricedLines(theBill, theAsked.mySource)};
}

QJsonObject toJson(const PricedArticle& theArticle)
{
    const bool hasPrice = theArticle.myHasPrice;
    QJsonArray lines;
    if (hasPrice)
        for (const PricedLine& line : theArticle.myLines)
            lines.append(toJson(line));
    return {{QStringLiteral("article"), theArticle.myAsked.myProduct->articleID()},
            {QStringLiteral("name"), theArticle.myAsked.myProduct->name()},
            {QStringLiteral("count"), theArticle.myAsked.myCount},
            {QStringLiteral("orderSource"), VelshopWords::orderSourceData(theArticle.myAsked.mySource)},
            {QStringLiteral("amount"), hasPrice ? QJsonValue(theArticle.myAmount) : QJsonValue()},
            {QStringLiteral("text"), hasPrice ? QJsonValue(VelshopWords::money(theArticle.myAmount)) : QJsonValue()},
            {QStringLiteral("lines"), lines}};
}

QString headText(const Asked& theAsked)
{
    return QStringLiteral("%1 %2, %3 by %4")
        .arg(QString::number(theAsked.myProduct->articleID()), theAsked.myProduct->name(),
             VelshopWords::pieces(theAsked.myCount), VelshopWords::orderSource(theAsked.mySource));
}

void print(const PricedArticle& theArticle, bool theIsJson, QTextStream& theOutput)
{
    if (theIsJson) {
        theOutput << QJsonDocument(toJson(theArticle)).toJson();
    } else if (theArticle.myHasPrice) {
        theOutput << headText(theArticle.myAsked) << ": " << VelshopWords::money(theArticle.myAmount) << '\n';
        for (const PricedLine& line : theArticle.myLines)
            theOutput << lineText(line) << '\n';
        const Asked& asked = theArticle.myAsked;
        const VelshopAdvice advice = adviceFor(asked.myProduct, asked.myCount, asked.mySource, 0);
        if (!asked.myIsFee && advice.isGiven())
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
    Asked asked{nullptr, theArguments.myCount, VelOrderSource::onlineMailOrder(), DISCOUNT_MODEL_UNDEFINED, false};
    asked.myProduct = findArticleOrFee(theArguments.myArticle, asked.myKeyModel, theError);
    if (!asked.myProduct || !theArguments.mySource.complete(asked.mySource, theError))
        return EXIT_BAD_INPUT;
    asked.myIsFee = isFee(asked.myProduct);
    if (asked.myIsFee && asked.myProduct->transferModel() == TRANSFER_MODEL_2) {
        theError = headText(asked) + QStringLiteral(": it is charged by the products of an order");
        return EXIT_NO_PRICE;
    }
    VelTarmStatus status;
    status.setOrderSource(asked.mySource);
    VelTarmBill bill(asked.myProduct->shippingGroupId(), VelOrderStatistic(), VelExpressType(), status);
    const PricedArticle article = pricedArticle(asked, bill);
    if (isTooLarge(article.myLines)) {
        theError = headText(asked) + QStringLiteral(": the amount is beyond what 32 bits of cents can hold");
        return EXIT_BAD_INPUT;
    }
    print(article, theArguments.myIsJson, theOutput);
    if (article.myHasPrice)
        return EXIT_DONE;
    theError = headText(asked) + QStringLiteral(": no price");
    return EXIT_NO_PRICE;
}
