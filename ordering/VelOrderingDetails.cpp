#include "ordering/VelOrderingDetails.h"

#include "frame/EnumHelper.h"
#include "frame/VelChildElements.h"
#include "frame/VelGuardedInstance.h"
#include "ordering/VelOrderingDetailItem.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelGuardedDocument.h"
#include "sibling/VelKeyAccount.h"
#include "sibling/VelKeyAccountFileTimeStampManager.h"
#include "sibling/VelXMLLoader.h"
#include "sibling/VelXMLParser.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const QString STR_DOI = QStringLiteral("doi");
const QString STR_ADDRESS_CHECK = QStringLiteral("address_check");
const QString STR_SALES_TAX = QStringLiteral("sales_tax");
const QString STR_ORDER_SOURCES = QStringLiteral("order_sources");
const QString STR_PERMITTED_PAY_METHOD = QStringLiteral("permitted_pay_method");
const QString STR_DISCOUNT_TYPES = QStringLiteral("discount_types");
const QString STR_SINGLE_DESCRIPTION = QStringLiteral("single_description");
const QString STR_GROUP_DESCRIPTION = QStringLiteral("group_description");
const QString STR_CURRENCIES = QStringLiteral("currencies");
const QString STR_FACTOR = QStringLiteral("factor");
const QString STR_GROUPS = QStringLiteral("groups");
const QString STR_CLIENT_STRATEGY_EXCEPTIONS = QStringLiteral("client_strategy_exceptions");
const QString STR_CLIENT_STRATEGY_EXCEPTION = QStringLiteral("client_strategy_exception");
const QString STR_IMAGE_EXPORTS = QStringLiteral("image_exports");
const QString STR_IMAGE_EXPORT = QStringLiteral("image_export");
const QString STR_TYPE = QStringLiteral("type");
const QString STR_METHOD = QStringLiteral("method");
const QString STR_NAME = QStringLiteral("name");
const QString STR_ICON = QStringLiteral("icon");
const QString STR_ID = QStringLiteral("id");
const QString STR_ICON_FILE = QStringLiteral("icons/payment/filenames.xml");
const QString STR_DEFAULT_CURRENCY = QStringLiteral("EUR");

const int ID_CREDIT_CARDS = 1;
const int ID_ONLINE_TRANSFER_METHODS = 9;
const int ID_ONLINE_TRANSFER_METHODS_IN_NAMES = 4;
const int SHIPPING_GROUP_ON_SITE = 23;

QString generalPackageDescription()
{
    return VelOrderingDetails::tr("%1-Stück-Paket %2");
}

/// The quotient of IEEE arithmetic, written out where C++ leaves it undefined.
double reciprocal(double theDivisor)
{
    return theDivisor == 0 ? std::copysign(std::numeric_limits<double>::infinity(), theDivisor) : 1.0 / theDivisor;
}

} // namespace

VelOrderingDetails* VelOrderingDetails::instance()
{
    static QMutex myInstanceMutex;
    static QAtomicPointer<VelOrderingDetails> myInstance;
    return guardedInstance(myInstance, myInstanceMutex, [] { return new VelOrderingDetails; });
}

VelOrderingDetails::VelOrderingDetails()
{
    initPaymentTypes();
    initIconNames(VelDirectoryConfig::instance()->resource(STR_ICON_FILE, false)); // without the file: no icons
    update();
    connect(VelKeyAccount::instance(), SIGNAL(applicationKeyAccountChanged()), SLOT(update()));
}

void VelOrderingDetails::initPaymentTypes()
{
    for (const VelPaymentClass payClass : payClasses())
        myDetails.insert(payClass, new QList<VelOrderingDetailItem*>);
}

bool VelOrderingDetails::initIconNames(const QString& theFileName)
{
    VelGuardedDocument::Refusal refusal; // not told: a missing or broken icon file goes without a message
    const QDomElement root = VelGuardedDocument::load(QFileInfo(theFileName), refusal);
    if (root.isNull())
        return false;
    for (const QDomElement& method : VelChildElements(root, STR_METHOD))
        myIconNames[VelXMLParser::attribute(method, STR_NAME, QString())] =
            VelXMLParser::attribute(method, STR_ICON, QString());
    return true;
}

bool VelOrderingDetails::keyAccountPermitsPOS() const
{
    const QList<VelOrderSource> sources = availableOrderSources();
    return std::any_of(sources.begin(), sources.end(),
                       [](const VelOrderSource& theSource) { return theSource.deliveryType() == DELIVERY_TYPE_POS; });
}

bool VelOrderingDetails::supportsImageExport(VelImageExportTypeEnum theType) const
{
    return myImageExports.contains(theType) ||
           (theType == IMAGE_EXPORT_TOI &&
            myClientStrategyException.connectStrategy() == CONNECT_STRATEGY_T_ONLINE_SAM);
}

QString VelOrderingDetails::billPositionDescriptionEach(VelDiscountModel theModel) const
{
    return mySingleDescriptions.value(
        theModel, QStringLiteral("")); // meant so: a model without a wording has no general one here
}

QString VelOrderingDetails::billPositionDescriptionPackage(VelDiscountModel theModel) const
{
    return myGroupDescriptions.value(theModel, generalPackageDescription());
}

QDateTime VelOrderingDetails::lastChangeInPriceList() const
{
    QDateTime last;
    for (const VelTarmShippingGroup* group : VelTarmShippingGroupManager::instance()->myShippingGroups)
        if (last < group->lastChange())
            last = group->lastChange();
    return last;
}

bool VelOrderingDetails::priceListNeedsToBeUpdated() const
{
    const QDateTime stamp = VelKeyAccountFileTimeStampManager::instance()->pricelistTimeStamp();
    return !stamp.isValid() || stamp < lastChangeInPriceList();
}

bool VelOrderingDetails::orderSourceEnabled(const VelOrderSource& theSource) const
{
    switch (theSource.deliveryType()) {
    case DELIVERY_TYPE_UNKNOWN:
        return !availablePayments(VelOrderSource(theSource.inputSource(), DELIVERY_TYPE_MAILORDER)).isEmpty() ||
               !availablePayments(VelOrderSource(theSource.inputSource(), DELIVERY_TYPE_POS)).isEmpty();
    case DELIVERY_TYPE_ON_SITE: // meant so: the document's order ways play no part
        return !VelProductRegistry::instance()->productsForShippingGroup(SHIPPING_GROUP_ON_SITE, false).isEmpty();
    default:
        return !availablePayments(theSource).isEmpty();
    }
}

QList<VelPaymentClass> VelOrderingDetails::payClasses() const
{
    return {PAYMENT_CLASS_PAY_METHODS, PAYMENT_CLASS_CREDIT_CARDS, PAYMENT_CLASS_ONLINE_TRANSFER_METHODS};
}

QList<VelOrderingDetailItem*>* VelOrderingDetails::detailsList(VelPaymentClass thePayClass) const
{
    return myDetails.value(thePayClass, nullptr);
}

/// Empty for a value that is no class.
QList<VelOrderingDetailItem*> VelOrderingDetails::itemsOf(VelPaymentClass thePayClass) const
{
    const QList<VelOrderingDetailItem*>* list = detailsList(thePayClass);
    return list ? *list : QList<VelOrderingDetailItem*>();
}

bool VelOrderingDetails::isSupportedETPaymentType(int theType) const
{
    switch (theType) {
    case PAYMENT_TYPE_0:
    case PAYMENT_TYPE_1:
    case PAYMENT_TYPE_2:
    case PAYMENT_TYPE_3:
    case PAYMENT_TYPE_8:
    case PAYMENT_TYPE_9:
    case PAYMENT_TYPE_10:
    case PAYMENT_TYPE_12:
    case PAYMENT_TYPE_14:
    case PAYMENT_TYPE_15:
        return true;
    default: // PAYMENT_TYPE_5, too
        return false;
    }
}

QList<VelPaymentType> VelOrderingDetails::availableMailOrderPaymentTypes() const
{
    QList<VelPaymentType> types;
    for (const VelOrderingDetailItem* item : itemsOf(PAYMENT_CLASS_PAY_METHODS))
        if (item->paymentType() != PAYMENT_TYPE_0)
            types.append(item->paymentType());
    return types;
}

QList<VelPaymentType> VelOrderingDetails::availablePayments(const VelOrderSource& theSource) const
{
    return myOrderSources.value(theSource);
}

VelPaymentType VelOrderingDetails::reasonableStartingPayment(const VelOrderSource& theSource) const
{
    return reasonableStartingPayment(theSource, PAYMENT_TYPE_UNKNOWN);
}

VelPaymentType VelOrderingDetails::reasonableStartingPayment(const VelOrderSource& theSource,
                                                             VelPaymentType thePreferred) const
{
    const QList<VelPaymentType> payments = availablePayments(theSource);
    if (payments.isEmpty())
        return PAYMENT_TYPE_UNKNOWN;
    // The list may hold the unknown type; nobody can prefer it.
    return thePreferred != PAYMENT_TYPE_UNKNOWN && payments.contains(thePreferred) ? thePreferred : payments.first();
}

QList<VelOrderingDetailItem*> VelOrderingDetails::orderingDetails() const
{
    QList<VelOrderingDetailItem*> result;
    for (VelOrderingDetailItem* item : itemsOf(PAYMENT_CLASS_PAY_METHODS)) {
        if (item->id() == ID_CREDIT_CARDS)
            result.append(itemsOf(PAYMENT_CLASS_CREDIT_CARDS));
        else if (item->id() == ID_ONLINE_TRANSFER_METHODS)
            result.append(itemsOf(PAYMENT_CLASS_ONLINE_TRANSFER_METHODS));
        else
            result.append(item);
    }
    return result;
}

QList<VelOrderingDetailItem*> VelOrderingDetails::orderingDetails(const VelOrderSource& theSource) const
{
    const QList<VelPaymentType> payments = availablePayments(theSource);
    QList<VelOrderingDetailItem*> result;
    for (VelOrderingDetailItem* item : orderingDetails())
        if (payments.contains(item->paymentType()))
            result.append(item);
    return result;
}

QString VelOrderingDetails::nameOfPaymentType(const VelOrderSource& theSource, VelPaymentType theType,
                                              const QString& theBrand) const
{
    for (const VelOrderingDetailItem* item : orderingDetails(theSource))
        if (item->paymentType() == theType && item->brand() == theBrand)
            return item->name();
    return QString();
}

QString VelOrderingDetails::nameOfOrderingDetail(VelPaymentClass thePayClass, int theId)
{
    for (const VelOrderingDetailItem* item : itemsOf(thePayClass))
        if (item->id() == theId)
            return item->name();
    return QStringLiteral("OrderingDetail %1, %2").arg(thePayClass).arg(theId);
}

QStringList VelOrderingDetails::namesOfOrderingDetails(VelPaymentClass thePayClass)
{
    QStringList names;
    for (const VelOrderingDetailItem* item : itemsOf(thePayClass))
        names.append(item->name());
    return names;
}

QStringList VelOrderingDetails::namesOfOrderingDetails()
{
    QStringList names;
    for (const VelOrderingDetailItem* item : itemsOf(PAYMENT_CLASS_PAY_METHODS)) {
        if (item->id() == ID_CREDIT_CARDS)
            names.append(namesOfOrderingDetails(PAYMENT_CLASS_CREDIT_CARDS));
        else if (item->id() == ID_ONLINE_TRANSFER_METHODS_IN_NAMES) // meant so: not the id of orderingDetails()
            names.append(namesOfOrderingDetails(PAYMENT_CLASS_ONLINE_TRANSFER_METHODS));
        else
            names.append(item->name());
    }
    return names;
}

void VelOrderingDetails::update()
{
    const QFileInfo file = VelKeyAccount::instance()->orderingDetailsXMLFileInfo(false);
    const QDomElement root = VelXMLLoader::loadDocumentElement(file);
    myLastLoad = VelTarmLoadResult(file, root);
    for (const VelPaymentClass payClass : payClasses())
        updateDetails(payClass, root.firstChildElement(EnumHelper::encodePaymentClass(payClass)));
    myRequiresDOI = VelXMLParser::boolText(root, STR_DOI, false);
    myRequiresAddressCheck = VelXMLParser::boolText(root, STR_ADDRESS_CHECK, false);
    myRequiresSalesTaxCheck = VelXMLParser::boolText(root, STR_SALES_TAX, false);
    updateAvailablePaymentMethods(root.firstChildElement(STR_ORDER_SOURCES)); // needs the items read above
    updateDiscountLevelDescriptions(root.firstChildElement(STR_DISCOUNT_TYPES));
    updateAvailableCurrencies(root.firstChildElement(STR_CURRENCIES));
    updateAvailableShippingGroups(root.firstChildElement(STR_GROUPS));
    updateClientStrategyExceptions(root.firstChildElement(STR_CLIENT_STRATEGY_EXCEPTIONS));
    updateImageExports(root.firstChildElement(STR_IMAGE_EXPORTS));
    emit changed();
}

void VelOrderingDetails::updateDetails(VelPaymentClass thePayClass, const QDomElement& theSection)
{
    QList<VelOrderingDetailItem*>& items = *detailsList(thePayClass);
    items.clear(); // meant so: the former items stay alive for those who hold them
    for (const QDomElement& element : VelChildElements(theSection)) {
        auto* item = new VelOrderingDetailItem(thePayClass, element);
        if (thePayClass == PAYMENT_CLASS_PAY_METHODS && !isSupportedETPaymentType(item->paymentType())) {
            delete item;
            continue;
        }
        item->setIconFilename(myIconNames[item->name()]); // meant so: a name without an icon gets an empty entry
        items.append(item);
    }
}

QList<VelPaymentType> VelOrderingDetails::parseAvailablePayments(const QDomElement& theElement)
{
    QList<VelPaymentType> payments;
    for (const QDomElement& method : VelChildElements(theElement, STR_PERMITTED_PAY_METHOD)) {
        const int id = VelXMLParser::attribute(method, STR_ID, QString()).toInt(); // meant so: 0 for what is no number
        payments.append(static_cast<VelPaymentType>(id));
    }
    return payments;
}

void VelOrderingDetails::updateAvailablePaymentMethods(const QDomElement& theSection)
{
    myOrderSources.clear();
    for (const QDomElement& element : VelChildElements(theSection)) {
        const VelOrderSource source(element);
        if (!source.isValid())
            continue;
        QList<VelPaymentType> payments;
        if (element.hasChildNodes()) // meant so: any node, a comment too, forbids the default payments
            payments = parseAvailablePayments(element);
        else if (source.deliveryType() == DELIVERY_TYPE_POS)
            payments.append(PAYMENT_TYPE_0);
        else if (source.deliveryType() == DELIVERY_TYPE_MAILORDER)
            payments = availableMailOrderPaymentTypes();
        myOrderSources.insert(source, payments);
    }
}

void VelOrderingDetails::updateDiscountLevelDescriptions(const QDomElement& theSection)
{
    // Meant so: the maps are not emptied, and wordings of another key account may survive.
    for (const QDomElement& element : VelChildElements(theSection)) {
        const VelDiscountModel model =
            EnumHelper::decodeDiscountModel(VelXMLParser::attribute(element, STR_ID, QString()));
        mySingleDescriptions[model] = VelXMLParser::attribute(element, STR_SINGLE_DESCRIPTION, tr("%1 Stück"));
        myGroupDescriptions[model] =
            VelXMLParser::attribute(element, STR_GROUP_DESCRIPTION, generalPackageDescription());
    }
}

void VelOrderingDetails::updateAvailableCurrencies(const QDomElement& theSection)
{
    for (const QDomElement& element : VelChildElements(theSection)) {
        const QString id = VelXMLParser::attribute(element, STR_ID, QString());
        const QString factor = VelXMLParser::attribute(element, STR_FACTOR, QString());
        if (factor.isNull()) {
            myCurrency = id;
            mySecondaryCurrency = QString(); // meant so: the primary currency must come first
            mySecondaryFactor = 1.0;
            continue;
        }
        bool isNumber = false;
        mySecondaryCurrency = id;
        mySecondaryFactor = reciprocal(factor.toDouble(&isNumber)); // meant so: kept, even when infinite
        if (!isNumber)
            qWarning("VelOrderingDetails::updateAvailabeCurrencies: Fehlerhafter Umrechnungsfaktor %s",
                     qUtf8Printable(factor));
    }
    if (myCurrency.isNull())
        myCurrency = STR_DEFAULT_CURRENCY;
}

void VelOrderingDetails::updateAvailableShippingGroups(const QDomElement& theSection)
{
    QMap<int, const VelTarmShippingGroup*>& groups = VelTarmShippingGroupManager::instance()->myShippingGroups;
    groups.clear();
    int position = 0; // counts the document's elements and not the groups kept
    for (const QDomElement& element : VelChildElements(theSection)) {
        const auto* group = new VelTarmShippingGroup(element, position++);
        if (VelKeyAccount::instance()->shippingGroupEnabled(group->id()))
            groups.insert(group->id(), group);
        else
            delete group;
    }
}

void VelOrderingDetails::updateClientStrategyExceptions(const QDomElement& theSection)
{
    if (theSection.tagName() != STR_CLIENT_STRATEGY_EXCEPTIONS)
        myClientStrategyException.reset();
    else // meant so: an empty section leaves the record of the former key account in place
        myClientStrategyException.setValues(theSection.firstChildElement(STR_CLIENT_STRATEGY_EXCEPTION));
}

void VelOrderingDetails::updateImageExports(const QDomElement& theSection)
{
    myImageExports.clear();
    for (const QDomElement& element : VelChildElements(theSection, STR_IMAGE_EXPORT)) {
        const VelImageExportTypeEnum type =
            EnumHelper::decodeImageExportTypeEnum(VelXMLParser::attribute(element, STR_TYPE, QString()));
        if (type != IMAGE_EXPORT_UNKOWN)
            myImageExports.append(type);
    }
}
