#include "host/VelshopList.h"

#include "host/VelshopArguments.h"
#include "host/VelshopExitCode.h"
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

VelProductList articlesToList(const VelshopArguments& theArguments)
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
    return {{QStringLiteral("id"), theProduct->articleID()},
            {QStringLiteral("name"), theProduct->name()},
            {QStringLiteral("editorName"), theProduct->editorName()},
            {QStringLiteral("group"), theProduct->shippingGroupId()},
            {QStringLiteral("groupName"), groupName(theProduct)},
            {QStringLiteral("type"), typeOf(theProduct)},
            {QStringLiteral("orderable"), theProduct->isOrderable()}};
}

QStringList toRow(const VelProductAbstract* theProduct)
{
    return {QString::number(theProduct->articleID()), theProduct->name(),
            QStringLiteral("%1 %2").arg(theProduct->shippingGroupId()).arg(groupName(theProduct)).trimmed(),
            typeOf(theProduct), theProduct->isOrderable() ? QStringLiteral("yes") : QStringLiteral("no")};
}

void printTable(const QList<QStringList>& theRows, QTextStream& theOutput)
{
    QList<int> widths;
    for (int column = 0; column < theRows.first().size(); ++column) {
        int width = 0;
        for (const QStringList& row : theRows)
            width = qMax(width, row.at(column).length());
        widths.append(width);
    }
    for (const QStringList& row : theRows) {
        QString line;
        for (int column = 0; column < row.size(); ++column)
            line += row.at(column).leftJustified(widths.at(column) + 2);
        theOutput << line.trimmed() << '\n';
    }
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
    QList<QStringList> rows{{QStringLiteral("ID"), QStringLiteral("NAME"), QStringLiteral("GROUP"),
                             QStringLiteral("TYPE"), QStringLiteral("ORDERABLE")}};
    for (const VelProductAbstract* article : theArticles)
        rows.append(toRow(article));
    printTable(rows, theOutput);
}

} // namespace

int listArticles(const VelshopArguments& theArguments, QTextStream& theOutput, QString& theError)
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
