// A host in its shortest form: bills 120 pieces of a package of 100 from the installed sample shop.
#include "bill/VelOrderStatistic.h"
#include "bill/VelTarmBill.h"
#include "frame/VelTarmGlobalStatus.h"
#include "frame/VelTarmInitializer.h"
#include "frame/VelTarmTranslation.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QString shop = application.arguments().at(1);
    VelDirectoryConfig::instance()->setConfigurationDirectory(shop);
    VelDirectoryConfig::instance()->setResourceDirectory(shop);
    VelKeyAccount::instance()->activate(QDir(shop));
    VelTarmTranslation::install(QStringLiteral("en"));
    VelTarmInitializer().setupModule();

    VelProductAbstract* product = VelProductRegistry::instance()->productWithArticleID(131);
    if (!product)
        qFatal("the sample shop doesn't sell article 131");
    VelOrderStatistic cart;
    cart.add(product, 120);
    const VelTarmBill bill(product->shippingGroupId(), cart, VelExpressType(ExpressableType_STANDARD),
                           VelTarmGlobalStatus::instance()->status());
    const int cost = bill.totalItemCost(VelProductGroup(PRODUCT_GROUP_ALL));
    qInfo() << cost;
    const QString express = VelExpressType(ExpressableType_STANDARD).humanReadableName();
    return cost == 990 + 20 * 9 && express.startsWith(QLatin1String("Standard production")) ? 0 : 1;
}
