#include "host/VelshopTypes.h"

#include "host/VelshopArguments.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopTable.h"
#include "host/VelshopWords.h"
#include "product/VelPageOrganizationCalculatorTarm.h"
#include "product/VelProductPrintFun.h"
#include "product/VelProductRegistry.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

/// The order-text types of the print-fun products, in order of first appearance.
QStringList typeNames()
{
    QStringList names;
    for (const VelProductAbstract* product : VelProductRegistry::instance()->productList())
        if (product->isPrintFunProduct() && !names.contains(product->orderTxtType()))
            names.append(product->orderTxtType());
    return names;
}

VelProductList productsOf(const VelProductType& theType)
{
    return VelProductRegistry::instance()->findProductListWithOrderTxtType(theType.productName());
}

/// The pages of the type's book; all 0 when it has no book of its own, or more than one.
VelPageCountOrganization pagesOf(const VelProductType& theType)
{
    return VelPageOrganizationCalculatorTarm().createPageOrganization(theType);
}

QString pagesText(const VelPageCountOrganization& thePages)
{
    if (thePages.highest() == 0)
        return QString();
    if (thePages.lowest() == thePages.highest())
        return QString::number(thePages.lowest());
    return QStringLiteral("%1 to %2, step %3").arg(thePages.lowest()).arg(thePages.highest()).arg(thePages.step());
}

QJsonObject toJson(const VelProductType& theType)
{
    QJsonArray products;
    for (const VelProductAbstract* product : productsOf(theType))
        products.append(QJsonObject{{QStringLiteral("id"), product->articleID()},
                                    {QStringLiteral("name"), product->name()},
                                    {QStringLiteral("scale"), product->orderTxtScale()}});
    const VelPageCountOrganization pages = pagesOf(theType);
    QJsonObject json{{QStringLiteral("type"), theType.productName()},
                     {QStringLiteral("kind"), VelshopWords::productClass(theType.productClass())},
                     {QStringLiteral("products"), products}};
    if (pages.highest() > 0)
        json.insert(QStringLiteral("pages"), QJsonObject{{QStringLiteral("lowest"), static_cast<int>(pages.lowest())},
                                                         {QStringLiteral("highest"), static_cast<int>(pages.highest())},
                                                         {QStringLiteral("step"), static_cast<int>(pages.step())}});
    return json;
}

void addRows(const VelProductType& theType, VelshopTable& theTable)
{
    const QString pages = pagesText(pagesOf(theType));
    for (const VelProductAbstract* product : productsOf(theType))
        theTable.add({theType.productName(), VelshopWords::productClass(theType.productClass()),
                      product->orderTxtScale(), QString::number(product->articleID()), product->name(), pages});
}

} // namespace

int listTypes(const VelshopArguments& theArguments, QTextStream& theOutput, VelshopError&)
{
    QJsonArray json;
    VelshopTable table({QStringLiteral("TYPE"), QStringLiteral("KIND"), QStringLiteral("SCALE"), QStringLiteral("ID"),
                        QStringLiteral("NAME"), QStringLiteral("PAGES")});
    for (const QString& name : typeNames()) {
        const VelProductType type(name);
        if (theArguments.myIsJson)
            json.append(toJson(type));
        else
            addRows(type, table);
    }
    if (theArguments.myIsJson)
        theOutput << QJsonDocument(json).toJson();
    else
        table.print(theOutput);
    return EXIT_DONE;
}
