#include "host/VelshopList.h"

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
#include <optional>

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

/// Of one piece.
std::optional<int> priceOf(VelProductAbstract* theProduct, const VelOrderSource& theSource)
{
    if (!VelshopProblems::hasPrice(theProduct, 1, theSource))
        return std::nullopt;
    return theProduct->price(VelTarmPriceKey(theSource, -1, DISCOUNT_MODEL_UNDEFINED), 1, 0);
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

QJsonObject toJson(VelProductAbstract* theProduct, const VelOrderSource& theSource)
{
    const std::optional<int> price = priceOf(theProduct, theSource);
    return {{QStringLiteral("id"), theProduct->articleID()},
            {QStringLiteral("name"), theProduct->name()},
            {QStringLiteral("editorName"), theProduct->editorName()},
            {QStringLiteral("group"), theProduct->shippingGroupId()},
            {QStringLiteral("groupName"), groupName(theProduct)},
            {QStringLiteral("type"), typeOf(theProduct)},
            {QStringLiteral("price"), price ? QJsonValue(*price) : QJsonValue()},
            {QStringLiteral("orderSource"), VelshopWords::orderSourceData(theSource)},
            {QStringLiteral("orderable"), theProduct->isOrderable()},
            {QStringLiteral("orderableHere"), VelshopProblems::isOrderable(theProduct, theSource)}};
}

QStringList toRow(VelProductAbstract* theProduct, const VelOrderSource& theSource)
{
    const std::optional<int> price = priceOf(theProduct, theSource);
    return {QString::number(theProduct->articleID()),
            theProduct->name(),
            QStringLiteral("%1 %2").arg(theProduct->shippingGroupId()).arg(groupName(theProduct)).trimmed(),
            typeOf(theProduct),
            price ? VelshopWords::money(*price) : QStringLiteral("-"),
            answerText(theProduct->isOrderable()),
            answerText(VelshopProblems::isOrderable(theProduct, theSource))};
}

void printJson(const VelProductList& theArticles, const VelOrderSource& theSource, QTextStream& theOutput)
{
    QJsonArray rows;
    for (VelProductAbstract* article : theArticles)
        rows.append(toJson(article, theSource));
    theOutput << QJsonDocument(rows).toJson();
}

void printText(const VelProductList& theArticles, const VelOrderSource& theSource, QTextStream& theOutput)
{
    VelshopTable table({QStringLiteral("ID"), QStringLiteral("NAME"), QStringLiteral("GROUP"), QStringLiteral("TYPE"),
                        QStringLiteral("PRICE"), QStringLiteral("ORDERABLE"),
                        QStringLiteral("BY ") + VelshopWords::orderSource(theSource)});
    for (VelProductAbstract* article : theArticles)
        table.add(toRow(article, theSource));
    table.print(theOutput);
}

} // namespace

bool readListArguments(const VelshopCommandLine& theLine, VelshopListArguments& theArguments, VelshopError& theError)
{
    theArguments.myHasGroup = theLine.isSet(VelshopOptions::STR_GROUP);
    return theLine.readNumberOption(VelshopOptions::STR_GROUP, VelshopCommandLine::LOWEST_ID, theArguments.myGroup,
                                    theError) &&
           theArguments.mySource.read(theLine, theError);
}

int listArticles(const VelshopListArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    const VelProductList articles = articlesToList(theArguments);
    if (theArguments.myHasGroup && articles.isEmpty()) {
        theError = QStringLiteral("no article is in the shipping group %1").arg(theArguments.myGroup);
        return EXIT_BAD_INPUT;
    }
    VelOrderSource source = VelOrderSource::onlineMailOrder();
    if (!theArguments.mySource.completeNamed(source, theError))
        return EXIT_BAD_INPUT;
    if (theArguments.myIsJson)
        printJson(articles, source, theOutput);
    else
        printText(articles, source, theOutput);
    return EXIT_DONE;
}
