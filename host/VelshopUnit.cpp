#include "host/VelshopUnit.h"

#include "bill/VelProductPriceCalculator.h"
#include "host/VelshopArguments.h"
#include "host/VelshopArticle.h"
#include "host/VelshopExitCode.h"
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
    theOutput << QJsonDocument(QJsonObject{{QStringLiteral("article"), theCalculator.articleID()},
                                           {QStringLiteral("name"), theCalculator.productName()},
                                           {QStringLiteral("pages"), theCalculator.countPages()},
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

} // namespace

int priceUnit(const VelshopArguments& theArguments, QTextStream& theOutput, QString& theError)
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
