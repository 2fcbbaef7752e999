#include "host/VelshopShop.h"

#include "frame/VelTarmGlobalStatus.h"
#include "host/VelshopArguments.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopTable.h"
#include "host/VelshopWords.h"
#include "ordering/VelCurrency.h"
#include "ordering/VelCurrencyConfig.h"
#include "ordering/VelOrderingDetailItem.h"
#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductGroupManager.h"
#include "product/VelProductRegistry.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>
#include <QtNumeric>

namespace {

const QString STR_ORDER_WAYS = QStringLiteral("orderWays");
const QString STR_START = QStringLiteral("start");
const QString STR_CURRENCIES = QStringLiteral("currencies");
const QString STR_SHIPPING_GROUPS = QStringLiteral("shippingGroups");
const QString STR_PRODUCT_GROUPS = QStringLiteral("productGroups");
const QString STR_IMAGE_EXPORTS = QStringLiteral("imageExports");
const QString STR_FLAGS = QStringLiteral("flags");
const QString STR_OUTDATED = QStringLiteral("priceListOutdated");
const QString STR_NAME = QStringLiteral("name");
const QString STR_ORDER_SOURCE = QStringLiteral("orderSource");
const QString STR_ENABLED = QStringLiteral("enabled");
const QString STR_PAYMENTS = QStringLiteral("payments");
const QString STR_PAYMENT = QStringLiteral("payment");
const QString STR_TYPE = QStringLiteral("type");
const QString STR_ICON = QStringLiteral("icon");
const QString STR_ISO_CODE = QStringLiteral("isoCode");
const QString STR_SAMPLE = QStringLiteral("sample");
const QString STR_ID = QStringLiteral("id");
const QString STR_TRANSFER_MODEL = QStringLiteral("transferModel");
const QString STR_MAX_ORDER_ITEMS = QStringLiteral("maxOrderItems");
const QString STR_LAST_CHANGE = QStringLiteral("lastChange");

const int SAMPLE_AMOUNT = 123456;

QJsonObject payment(const VelOrderingDetailItem* theItem)
{
    return {{STR_TYPE, theItem->paymentType()},
            {STR_NAME, theItem->name()},
            {QStringLiteral("brand"), theItem->brand()},
            {STR_ICON, theItem->iconFilename()},
            {QStringLiteral("blockable"), theItem->canBeBlockedForDefaultingUsers()}};
}

/// All items of a payment type that the order way permits; a type without an item stands for itself.
QJsonArray paymentsOfType(const VelOrderSource& theSource, VelPaymentType thePayment)
{
    QJsonArray payments;
    for (const VelOrderingDetailItem* item : VelOrderingDetails::instance()->orderingDetails(theSource))
        if (item->paymentType() == thePayment)
            payments.append(payment(item));
    if (payments.isEmpty())
        payments.append(QJsonObject{{STR_TYPE, thePayment}, {STR_NAME, QStringLiteral("payment %1").arg(thePayment)}});
    return payments;
}

QJsonArray orderWays()
{
    const VelOrderingDetails* details = VelOrderingDetails::instance();
    QJsonArray ways;
    for (const VelOrderSource& source : details->availableOrderSources()) {
        QJsonArray payments;
        for (const VelPaymentType type : details->availablePayments(source))
            for (const QJsonValue& payment : paymentsOfType(source, type))
                payments.append(payment);
        ways.append(QJsonObject{{STR_ORDER_SOURCE, VelshopWords::orderSourceData(source)},
                                {STR_ENABLED, details->orderSourceEnabled(source)},
                                {STR_PAYMENTS, payments}});
    }
    return ways;
}

/// Without any order way there is no payment to start with.
QJsonObject start()
{
    const VelTarmGlobalStatus* status = VelTarmGlobalStatus::instance();
    const QJsonValue payment =
        status->payment() == PAYMENT_TYPE_UNKNOWN
            ? QJsonValue()
            : paymentsOfType(status->orderSource(), status->payment()).first().toObject().value(STR_NAME);
    return {{STR_ORDER_SOURCE, VelshopWords::orderSourceData(status->orderSource())},
            {STR_TYPE, status->payment()},
            {STR_PAYMENT, payment}};
}

QJsonObject currency(bool theSecondary)
{
    const VelCurrencyConfig* config = VelCurrencyConfig::instance();
    return {{STR_ISO_CODE, config->currency(theSecondary)->isoCode()},
            {STR_NAME, config->currency(theSecondary)->genericName()},
            {STR_SAMPLE, config->fullText(SAMPLE_AMOUNT, true, false, theSecondary)}};
}

/// The library prints a secondary currency that the file doesn't define as the primary one; that is not shown as if it
/// were right, nor is a factor that is no number.
QJsonObject secondaryCurrency()
{
    const VelOrderingDetails* details = VelOrderingDetails::instance();
    const bool isDefined = VelCurrencyConfig::instance()->currency(true)->isoCode() == details->secondaryCurrency();
    if (isDefined && qIsFinite(details->secondaryCurrencyFactor()))
        return currency(true);
    return {{STR_ISO_CODE, details->secondaryCurrency()},
            {STR_NAME, QString()},
            {STR_SAMPLE,
             isDefined ? QStringLiteral("has no usable factor") : QStringLiteral("is not defined in currencies.xml")}};
}

QJsonArray currencies()
{
    QJsonArray array{currency(false)};
    if (VelOrderingDetails::instance()->hasSecondaryCurrency())
        array.append(secondaryCurrency());
    return array;
}

QJsonArray shippingGroups()
{
    QJsonArray groups;
    for (const VelTarmShippingGroup* group : VelTarmShippingGroupManager::instance()->shippingGroups())
        groups.append(QJsonObject{{STR_ID, group->id()},
                                  {STR_NAME, group->name()},
                                  {STR_TRANSFER_MODEL, group->transferModel()},
                                  {STR_MAX_ORDER_ITEMS, group->maxOrderItems()},
                                  {STR_LAST_CHANGE, group->lastChange().toString(Qt::ISODate)}});
    return groups;
}

/// The active groups that hold a product of their own: any add-on makes every group active.
QJsonArray productGroups()
{
    QJsonArray groups;
    for (const VelProductGroup& group : VelProductGroupManager::instance()->activeProductGroups())
        if (VelProductRegistry::instance()->containsProductGroup(group))
            groups.append(VelshopWords::productGroup(group.value()));
    return groups;
}

QJsonArray imageExports()
{
    QJsonArray exports;
    for (const VelImageExportTypeEnum type : {IMAGE_EXPORT_LOCR, IMAGE_EXPORT_TOI, IMAGE_EXPORT_GALLERY})
        if (VelOrderingDetails::instance()->supportsImageExport(type))
            exports.append(VelshopWords::imageExport(type));
    return exports;
}

QJsonObject flags()
{
    const VelOrderingDetails* details = VelOrderingDetails::instance();
    return {{QStringLiteral("doi"), details->requiresDOI()},
            {QStringLiteral("addressCheck"), details->requiresAddressCheck()},
            {QStringLiteral("salesTaxCheck"), details->requiresSalesTaxCheck()}};
}

QString joined(const QJsonArray& theTexts)
{
    QStringList texts;
    for (const QJsonValue& text : theTexts)
        texts.append(text.toString());
    return texts.isEmpty() ? QStringLiteral("none") : texts.join(QStringLiteral(", "));
}

QString paymentText(const QJsonObject& thePayment)
{
    const QString icon = thePayment.value(STR_ICON).toString();
    return thePayment.value(STR_NAME).toString() + (icon.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(icon));
}

QString orderSourceText(const QJsonObject& theWay)
{
    const QJsonObject source = theWay.value(STR_ORDER_SOURCE).toObject();
    return source.value(QStringLiteral("source")).toString() + QStringLiteral(", ") +
           source.value(QStringLiteral("delivery")).toString();
}

void printOrderWays(const QJsonObject& theConditions, QTextStream& theOutput)
{
    theOutput << "Order ways\n";
    for (const QJsonValue& value : theConditions.value(STR_ORDER_WAYS).toArray()) {
        const QJsonObject way = value.toObject();
        QStringList payments;
        for (const QJsonValue& payment : way.value(STR_PAYMENTS).toArray())
            payments.append(paymentText(payment.toObject()));
        theOutput << "  " << orderSourceText(way) << ": " << payments.join(QStringLiteral(", "))
                  << (way.value(STR_ENABLED).toBool() ? "" : " (not enabled)") << '\n';
    }
    const QJsonObject start = theConditions.value(STR_START).toObject();
    theOutput << "  Starts with " << orderSourceText(start) << ", "
              << start.value(STR_PAYMENT).toString(QStringLiteral("no payment")) << "\n\n";
}

void printCurrencies(const QJsonObject& theConditions, QTextStream& theOutput)
{
    theOutput << "Currencies\n";
    for (const QJsonValue& value : theConditions.value(STR_CURRENCIES).toArray()) {
        const QJsonObject currency = value.toObject();
        theOutput << "  "
                  << QStringLiteral("%1 %2")
                         .arg(currency.value(STR_ISO_CODE).toString(), currency.value(STR_NAME).toString())
                         .trimmed()
                  << ": " << currency.value(STR_SAMPLE).toString() << '\n';
    }
    theOutput << '\n';
}

void printShippingGroups(const QJsonObject& theConditions, QTextStream& theOutput)
{
    VelshopTable table({QStringLiteral("ID"), QStringLiteral("NAME"), QStringLiteral("TRANSFER MODEL"),
                        QStringLiteral("MOST ITEMS"), QStringLiteral("LAST CHANGE")});
    for (const QJsonValue& value : theConditions.value(STR_SHIPPING_GROUPS).toArray()) {
        const QJsonObject group = value.toObject();
        table.add({QString::number(group.value(STR_ID).toInt()), group.value(STR_NAME).toString(),
                   VelshopWords::limit(group.value(STR_TRANSFER_MODEL).toInt()),
                   VelshopWords::limit(group.value(STR_MAX_ORDER_ITEMS).toInt()),
                   group.value(STR_LAST_CHANGE).toString()});
    }
    theOutput << "Shipping groups\n";
    table.print(theOutput, QStringLiteral("  "));
    theOutput << '\n';
}

void printFlags(const QJsonObject& theConditions, QTextStream& theOutput)
{
    const QJsonObject flags = theConditions.value(STR_FLAGS).toObject();
    QJsonArray wanted;
    for (const QString& name : flags.keys())
        if (flags.value(name).toBool())
            wanted.append(name);
    theOutput << "Product groups: " << joined(theConditions.value(STR_PRODUCT_GROUPS).toArray()) << '\n'
              << "Image exports: " << joined(theConditions.value(STR_IMAGE_EXPORTS).toArray()) << '\n'
              << "Requires: " << joined(wanted) << '\n'
              << "Price list: " << (theConditions.value(STR_OUTDATED).toBool() ? "older than its groups" : "up to date")
              << '\n';
}

} // namespace

QJsonObject shopConditions()
{
    return {{STR_ORDER_WAYS, orderWays()},
            {STR_START, start()},
            {STR_CURRENCIES, currencies()},
            {STR_SHIPPING_GROUPS, shippingGroups()},
            {STR_PRODUCT_GROUPS, productGroups()},
            {STR_IMAGE_EXPORTS, imageExports()},
            {STR_FLAGS, flags()},
            {STR_OUTDATED, VelOrderingDetails::instance()->priceListNeedsToBeUpdated()}};
}

int showShop(const VelshopArguments& theArguments, QTextStream& theOutput, VelshopError&)
{
    const QJsonObject shop = shopConditions();
    if (theArguments.myIsJson) {
        theOutput << QJsonDocument(shop).toJson();
        return EXIT_DONE;
    }
    printOrderWays(shop, theOutput);
    printCurrencies(shop, theOutput);
    printShippingGroups(shop, theOutput);
    printFlags(shop, theOutput);
    return EXIT_DONE;
}
