#include "host/VelshopList.h"

#include "frame/VelTarmGlobalStatus.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
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

/// Of one piece under the shop's starting choice.
QString priceText(const VelProductAbstract* theProduct)
{
    const int price = theProduct->price();
    return price == -1 ? QStringLiteral("-") : VelshopWords::money(price);
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

QJsonObject toJson(const VelProductAbstract* theProduct)
{
    return {
        {QStringLiteral("id"), theProduct->articleID()},
        {QStringLiteral("name"), theProduct->name()},
        {QStringLiteral("editorName"), theProduct->editorName()},
        {QStringLiteral("group"), theProduct->shippingGroupId()},
        {QStringLiteral("groupName"), groupName(theProduct)},
        {QStringLiteral("type"), typeOf(theProduct)},
        {QStringLiteral("price"), theProduct->price() == -1 ? QJsonValue() : QJsonValue(theProduct->price())},
        {QStringLiteral("orderSource"), VelshopWords::orderSourceData(VelTarmGlobalStatus::instance()->orderSource())},
        {QStringLiteral("orderable"), theProduct->isOrderable()}};
}

QStringList toRow(const VelProductAbstract* theProduct)
{
    return {QString::number(theProduct->articleID()),
            theProduct->name(),
            QStringLiteral("%1 %2").arg(theProduct->shippingGroupId()).arg(groupName(theProduct)).trimmed(),
            typeOf(theProduct),
            priceText(theProduct),
            theProduct->isOrderable() ? QStringLiteral("yes") : QStringLiteral("no")};
}

void printJson(const VelProductList& theArticles, QTextStream& theOutput)
{
    QJsonArray rows;
    for (const VelProductAbstract* article : theArticles)
        rows.append(toJson(article));
    theOutput << QJsonDocument(rows).toJson();
}

void printText(const VelProductList& theArticles, QTextStream& theOutput)
{
    VelshopTable table({QStringLiteral("ID"), QStringLiteral("NAME"), QStringLiteral("GROUP"), QStringLiteral("TYPE"),
                        QStringLiteral("PRICE"), QStringLiteral("ORDERABLE")});
    for (const VelProductAbstract* article : theArticles)
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
