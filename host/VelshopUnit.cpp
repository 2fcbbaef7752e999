#include "host/VelshopUnit.h"

#include "bill/VelTarmOrder.h"
#include "frame/VelTarmGlobalStatus.h"
#include "host/VelshopArticle.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
#include "host/VelshopProblems.h"
#include "host/VelshopWords.h"
#include "insight/VelPriceWords.h"
#include "product/VelProductAbstract.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

struct Part
{
    QString myName;
    int myCount;
    int myPrice;
};

QList<Part> parts(const VelProductPriceCalculator& theCalculator)
{
    return {{QStringLiteral("product"), 1, theCalculator.priceOfProduct()},
            {QStringLiteral("page packages"), qMax(0, theCalculator.countPagePackages()),
             theCalculator.priceOfPagePackages()},
            {QStringLiteral("templates"), theCalculator.countAdditionalContents(), theCalculator.priceOfContents()},
            {QStringLiteral("maps"), theCalculator.countLocrAreas(), theCalculator.priceOfLocrAreas()},
            {QStringLiteral("videos"), theCalculator.countVideoAreas(), theCalculator.priceOfVideoAreas()}};
}

void printJson(const VelProductPriceCalculator& theCalculator, const QList<Part>& theParts, QTextStream& theOutput)
{
    QJsonObject prices;
    for (const Part& part : theParts)
        prices.insert(part.myName,
                      QJsonObject{{QStringLiteral("count"), part.myCount}, {QStringLiteral("price"), part.myPrice}});
    theOutput << QJsonDocument(
                     QJsonObject{{QStringLiteral("article"), theCalculator.articleID()},
                                 {QStringLiteral("name"), theCalculator.productName()},
                                 {QStringLiteral("pages"), theCalculator.countPages()},
                                 {QStringLiteral("orderSource"),
                                  VelshopWords::orderSourceData(VelTarmGlobalStatus::instance()->orderSource())},
                                 {QStringLiteral("parts"), prices},
                                 {QStringLiteral("unitPrice"), theCalculator.unitPrice()}})
                     .toJson();
}

void printText(const VelProductPriceCalculator& theCalculator, const QList<Part>& theParts, QTextStream& theOutput)
{
    theOutput << QStringLiteral("%1 %2, %3: %4")
                     .arg(QString::number(theCalculator.articleID()), theCalculator.productName(),
                          VelPriceWords::counted(theCalculator.countPages(), QStringLiteral("page")),
                          VelshopWords::money(theCalculator.unitPrice()))
              << '\n';
    for (const Part& part : theParts)
        if (part.myCount > 0)
            theOutput << "  " << part.myCount << " x " << part.myName << ": " << VelshopWords::money(part.myPrice)
                      << '\n';
}

bool readPart(const VelshopCommandLine& theLine, const QString& theOption, std::optional<int>& thePart,
              VelshopError& theError)
{
    int count = 0;
    if (!theLine.readNumberOption(theOption, 0, count, theError))
        return false;
    if (theLine.isSet(theOption))
        thePart = count;
    return true;
}

bool readTemplates(const VelshopCommandLine& theLine, std::optional<QMap<QString, int>>& theTemplates,
                   VelshopError& theError)
{
    QMap<QString, int> templates;
    for (const QString& text : theLine.values(VelshopOptions::STR_TEMPLATE)) {
        const int equals = text.lastIndexOf(QLatin1Char('='));
        int uses = 0;
        if (equals < 1) {
            theError = QStringLiteral("--template takes CLASS=N, not \"%1\"").arg(text);
            return false;
        }
        if (!VelshopCommandLine::readNumber(text.mid(equals + 1), QStringLiteral("--template CLASS="), 0, uses,
                                            theError))
            return false;
        templates[text.left(equals)] = uses;
    }
    if (!templates.isEmpty())
        theTemplates = templates;
    return true;
}

/// The rules of a cart; the option has the name that the part has there.
bool canBeMade(const VelshopParts& theParts, VelProductAbstract* theProduct, VelshopError& theError)
{
    const VelshopPartRefusal refusal = refusalOf(theParts, theProduct);
    if (!refusal.myPart.isEmpty())
        theError =
            QStringLiteral("%1 %2, %3: %4")
                .arg(QString::number(theProduct->articleID()), theProduct->name(), refusal.myPart, refusal.myReason);
    return refusal.myPart.isEmpty();
}

VelOrderStatistic onePieceOf(const VelProductPriceCalculator& theCalculator)
{
    VelOrderStatistic cart;
    cart.add(theCalculator.product(), 1);
    for (const VelOrderStatistic& bought : {theCalculator.boughtPagePackages(), theCalculator.boughtLocrAreas(),
                                            theCalculator.boughtVideoAreas(), theCalculator.boughtTemplates()})
        for (VelProductAbstract* product : bought.products())
            if (bought.value(product, 0) > 0)
                cart.add(product, bought.value(product, 0));
    return cart;
}

/// What stands against ordering a piece, and against each part at the price of one, which is what a unit is made of.
QStringList problemsOf(const VelOrderStatistic& thePiece)
{
    const VelTarmStatus status = VelTarmGlobalStatus::instance()->status();
    QStringList problems = VelshopProblems::ofProducts(VelTarmOrder(thePiece, status, VelExpressType()));
    for (VelProductAbstract* product : thePiece.products())
        problems += VelshopProblems::ofProducts(VelTarmOrder({{product, 1}}, status, VelExpressType()));
    problems.removeDuplicates();
    return problems;
}

bool fits(const VelOrderStatistic& thePiece)
{
    const VelTarmPriceKey key = VelTarmGlobalStatus::instance()->priceKey();
    qint64 sum = 0;
    for (VelProductAbstract* product : thePiece.products())
        sum += static_cast<qint64>(product->price(key, 1, 1)) * thePiece.value(product, 0);
    return VelTarmOrderAmounts::fits(sum);
}

} // namespace

bool readUnitArguments(const VelshopCommandLine& theLine, VelshopUnitArguments& theArguments, VelshopError& theError)
{
    VelshopParts& parts = theArguments.myParts;
    return VelshopCommandLine::readNumber(theLine.words().at(0), QStringLiteral("ARTICLE"),
                                          VelshopCommandLine::LOWEST_ID, theArguments.myArticle, theError) &&
           readPart(theLine, VelshopOptions::STR_PAGES, parts.myPages, theError) &&
           readPart(theLine, VelshopOptions::STR_MAPS, parts.myMaps, theError) &&
           readPart(theLine, VelshopOptions::STR_VIDEOS, parts.myVideos, theError) &&
           readTemplates(theLine, parts.myTemplates, theError);
}

int priceUnit(const VelshopUnitArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    VelProductAbstract* product = findArticle(theArguments.myArticle, theError);
    if (!product)
        return EXIT_BAD_INPUT;
    if (!canBeMade(theArguments.myParts, product, theError))
        return EXIT_BAD_INPUT;
    const VelProductPriceCalculator calculator = theArguments.myParts.calculator(product);
    const VelOrderStatistic piece = onePieceOf(calculator);
    const QStringList problems = problemsOf(piece);
    if (!problems.isEmpty()) {
        theError = problems.join(QStringLiteral("; "));
        return EXIT_NO_PRICE;
    }
    if (!fits(piece)) {
        theError = QStringLiteral("%1 %2: the amount is beyond what 32 bits of cents can hold")
                       .arg(QString::number(theArguments.myArticle), product->name());
        return EXIT_BAD_INPUT;
    }
    if (theArguments.myIsJson)
        printJson(calculator, parts(calculator), theOutput);
    else
        printText(calculator, parts(calculator), theOutput);
    return EXIT_DONE;
}
