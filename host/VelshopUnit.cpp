#include "host/VelshopUnit.h"

#include "bill/VelProductPriceCalculator.h"
#include "frame/VelTarmGlobalStatus.h"
#include "host/VelshopArticle.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
#include "host/VelshopWords.h"
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
    theOutput << QStringLiteral("%1 %2, %3 pages: %4")
                     .arg(QString::number(theCalculator.articleID()), theCalculator.productName(),
                          QString::number(theCalculator.countPages()), VelshopWords::money(theCalculator.unitPrice()))
              << '\n';
    for (const Part& part : theParts)
        if (part.myCount > 0)
            theOutput << "  " << part.myCount << " x " << part.myName << ": " << VelshopWords::money(part.myPrice)
                      << '\n';
}

bool readTemplates(const VelshopCommandLine& theLine, QMap<QString, int>& theTemplates, VelshopError& theError)
{
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
        theTemplates[text.left(equals)] = uses;
    }
    return true;
}

} // namespace

bool readUnitArguments(const VelshopCommandLine& theLine, VelshopUnitArguments& theArguments, VelshopError& theError)
{
    return VelshopCommandLine::readNumber(theLine.words().at(0), QStringLiteral("ARTICLE"),
                                          VelshopCommandLine::LOWEST_ID, theArguments.myArticle, theError) &&
           theLine.readNumberOption(VelshopOptions::STR_PAGES, 0, theArguments.myPages, theError) &&
           theLine.readNumberOption(VelshopOptions::STR_MAPS, 0, theArguments.myMaps, theError) &&
           theLine.readNumberOption(VelshopOptions::STR_VIDEOS, 0, theArguments.myVideos, theError) &&
           readTemplates(theLine, theArguments.myTemplates, theError);
}

int priceUnit(const VelshopUnitArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    VelProductAbstract* product = findArticle(theArguments.myArticle, theError);
    if (!product)
        return EXIT_BAD_INPUT;
    const VelProductPriceCalculator calculator(product, theArguments.myPages, theArguments.myMaps,
                                               theArguments.myVideos, theArguments.myTemplates);
    if (!calculator.isOrderable()) {
        theError = QStringLiteral("%1 %2: a part has no price").arg(theArguments.myArticle).arg(product->name());
        return EXIT_NO_PRICE;
    }
    if (theArguments.myIsJson)
        printJson(calculator, parts(calculator), theOutput);
    else
        printText(calculator, parts(calculator), theOutput);
    return EXIT_DONE;
}
