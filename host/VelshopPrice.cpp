#include "host/VelshopPrice.h"

#include "bill/VelTarmBill.h"
#include "bill/VelTarmBillPosition.h"
#include "host/VelshopArguments.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopWords.h"
#include "price/VelDiscountLimit.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"

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

VelTarmStatus statusOf(const VelOrderSource& theSource)
{
    VelTarmStatus status;
    status.setOrderSource(theSource);
    return status;
}

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
    return sum > std::numeric_limits<int>::max();
}

QString bandText(const PricedLine& theLine)
{
    if (!theLine.myHasBand)
        return QString();
    const int lower = theLine.myBand.lowerLimit();
    const int upper = theLine.myBand.upperLimit();
    return upper == -1 ? QStringLiteral(", band from %1").arg(lower)
                       : QStringLiteral(", band %1 to %2").arg(lower).arg(upper);
}

QString lineText(const PricedLine& theLine)
{
    const VelTarmBillPositionAbstract& position = *theLine.myPosition;
    QString text = QStringLiteral("  %1 x %2 = %3")
                       .arg(position.unitCount())
                       .arg(VelshopWords::amount(position.unitPrice()), VelshopWords::amount(position.positionPrice()));
    if (position.isPackage())
        text += QStringLiteral(" for a package with %1 pieces").arg(position.countItems());
    text += QStringLiteral("; model %1, level %2%3")
                .arg(VelshopWords::discountModel(position.discountModel()))
                .arg(position.discountLevel())
                .arg(bandText(theLine));
    if (position.nonOfferPrice() != -1)
        text += QStringLiteral("; offer, formerly %1").arg(VelshopWords::amount(position.nonOfferPrice()));
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
    if (theLine.myHasBand) {
        json.insert(QStringLiteral("from"), theLine.myBand.lowerLimit());
        if (theLine.myBand.upperLimit() != -1)
            json.insert(QStringLiteral("to"), theLine.myBand.upperLimit());
    }
    return json;
}

QJsonObject toJson(const VelProductAbstract* theProduct, const VelshopArguments& theArguments, int theAmount,
                   const QList<PricedLine>& theLines)
{
    const bool hasPrice = theAmount != -1;
    QJsonArray lines;
    if (hasPrice)
        for (const PricedLine& line : theLines)
            lines.append(toJson(line));
    return {{QStringLiteral("article"), theProduct->articleID()},
            {QStringLiteral("name"), theProduct->name()},
            {QStringLiteral("count"), theArguments.myCount},
            {QStringLiteral("orderSource"), VelshopWords::orderSource(theArguments.mySource)},
            {QStringLiteral("amount"), hasPrice ? QJsonValue(theAmount) : QJsonValue()},
            {QStringLiteral("lines"), lines}};
}

void printText(const QString& theHead, int theAmount, const QList<PricedLine>& theLines, QTextStream& theOutput)
{
    theOutput << theHead << ": " << VelshopWords::amount(theAmount) << '\n';
    for (const PricedLine& line : theLines)
        theOutput << lineText(line) << '\n';
}

} // namespace

int priceArticle(const VelshopArguments& theArguments, QTextStream& theOutput, QString& theError)
{
    const VelProductAbstract* product = VelProductRegistry::instance()->productWithArticleID(theArguments.myArticle);
    if (!product) {
        theError = QStringLiteral("the price list has no article %1").arg(theArguments.myArticle);
        return EXIT_BAD_INPUT;
    }
    const VelTarmStatus status = statusOf(theArguments.mySource);
    VelTarmBill bill(product->shippingGroupId(), VelOrderStatistic(), VelExpressType(), status);
    const int amount = product->priceFor(status.priceKey(), theArguments.myCount, 0, &bill, nullptr);
    const QList<PricedLine> lines = pricedLines(bill, theArguments.mySource);
    const QString head =
        QStringLiteral("%1 %2, %3 pieces by %4")
            .arg(QString::number(product->articleID()), product->name(), QString::number(theArguments.myCount),
                 VelshopWords::orderSource(theArguments.mySource));
    if (isTooLarge(lines)) {
        theError = head + QStringLiteral(": the amount is beyond 2147483647 cents");
        return EXIT_BAD_INPUT;
    }
    if (theArguments.myIsJson)
        theOutput << QJsonDocument(toJson(product, theArguments, amount, lines)).toJson();
    else if (amount != -1)
        printText(head, amount, lines, theOutput);
    if (amount == -1)
        theError = head + QStringLiteral(": no price");
    return amount == -1 ? EXIT_NO_PRICE : EXIT_DONE;
}
