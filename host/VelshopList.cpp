#include "host/VelshopList.h"

#include "frame/VelTarmGlobalStatus.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
#include "host/VelshopProblems.h"
#include "host/VelshopTable.h"
#include "host/VelshopWords.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductRegistry.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <algorithm>

namespace {

QString groupName(const VelProductAbstract* theProduct)
{
    return VelTarmShippingGroupManager::instance()->shippingGroupName(theProduct->shippingGroupId());
}

/// The order-text type; the kind of an add-on, which has none.
QString typeOf(const VelProductAbstract* theProduct)
{
    const auto* addOn = dynamic_cast<const VelProductAddOn*>(theProduct);
    return addOn ? QStringLiteral("add-on %1").arg(addOn->productClass()) : theProduct->orderTxtType();
}

/// The shop's starting choice.
VelOrderSource chosenSource()
{
    return VelTarmGlobalStatus::instance()->orderSource();
}

bool isOrderableHere(VelProductAbstract* theProduct)
{
    return VelshopProblems::isOrderable(theProduct, chosenSource());
}

/// Of one piece.
QString priceText(VelProductAbstract* theProduct)
{
    const bool hasPrice = VelshopProblems::hasPrice(theProduct, 1, chosenSource());
    return hasPrice ? VelshopWords::money(theProduct->price()) : QStringLiteral("-");
}

QString answerText(bool theAnswer)
{
    return theAnswer ? QStringLiteral("yes") : QStringLiteral("no");
}

VelProductList articlesToList(const VelshopListArguments& theArguments)
{
    VelProductList articles;
    for (VelProductAbstract* product : VelProductRegistry::instance()->productList())
        if (!theArguments.myHasGroup || product->shippingGroupId() == theArguments.myGroup)
            articles.append(product);
    std::stable_sort(articles.begin(), articles.end(),
                     [](const VelProductAbstract* theLeft, const VelProductAbstract* theRight) {
                         return theLeft->shippingGroupId() < theRight->shippingGroupId();
                     });
    return articles;
}

QJsonObject toJson(VelProductAbstract* theProduct)
{
    const bool hasPrice = VelshopProblems::hasPrice(theProduct, 1, chosenSource());
    return {{QStringLiteral("id"), theProduct->articleID()},
            {QStringLiteral("name"), theProduct->name()},
            {QStringLiteral("editorName"), theProduct->editorName()},
            {QStringLiteral("group"), theProduct->shippingGroupId()},
            {QStringLiteral("groupName"), groupName(theProduct)},
            {QStringLiteral("type"), typeOf(theProduct)},
            {QStringLiteral("price"), hasPrice ? QJsonValue(theProduct->price()) : QJsonValue()},
            {QStringLiteral("orderSource"), VelshopWords::orderSourceData(chosenSource())},
            {QStringLiteral("orderable"), theProduct->isOrderable()},
            {QStringLiteral("orderableHere"), isOrderableHere(theProduct)}};
}

QStringList toRow(VelProductAbstract* theProduct)
{
    return {QString::number(theProduct->articleID()),
            theProduct->name(),
            QStringLiteral("%1 %2").arg(theProduct->shippingGroupId()).arg(groupName(theProduct)).trimmed(),
            typeOf(theProduct),
            priceText(theProduct),
            answerText(theProduct->isOrderable()),
            answerText(isOrderableHere(theProduct))};
}

void printJson(const VelProductList& theArticles, QTextStream& theOutput)
{
    QJsonArray rows;
    for (VelProductAbstract* article : theArticles)
        rows.append(toJson(article));
    theOutput << QJsonDocument(rows).toJson();
}

void printText(const VelProductList& theArticles, QTextStream& theOutput)
{
    VelshopTable table({QStringLiteral("ID"), QStringLiteral("NAME"), QStringLiteral("GROUP"), QStringLiteral("TYPE"),
                        QStringLiteral("PRICE"), QStringLiteral("ORDERABLE"),
                        QStringLiteral("BY ") + VelshopWords::orderSource(chosenSource())});
    for (VelProductAbstract* article : theArticles)
        table.add(toRow(article));
    table.print(theOutput);
}

} // namespace

bool readListArguments(const VelshopCommandLine& theLine, VelshopListArguments& theArguments, VelshopError& theError)
{
    theArguments.myHasGroup = theLine.isSet(VelshopOptions::STR_GROUP);
    return theLine.readNumberOption(VelshopOptions::STR_GROUP, VelshopCommandLine::LOWEST_ID, theArguments.myGroup,
                                    theError);
}

int listArticles(const VelshopListArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    const VelProductList articles = articlesToList(theArguments);
    if (theArguments.myHasGroup && articles.isEmpty()) {
        theError = QStringLiteral("no article is in the shipping group %1").arg(theArguments.myGroup);
        return EXIT_BAD_INPUT;
    }
    if (theArguments.myIsJson)
        printJson(articles, theOutput);
    else
        printText(articles, theOutput);
    return EXIT_DONE;
}
