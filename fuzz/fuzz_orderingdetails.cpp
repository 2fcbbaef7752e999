#include "frame/VelChildElements.h"
#include "frame/VelTarmGlobalStatus.h"
#include "fuzz/FuzzAudit.h"
#include "fuzz/FuzzShop.h"
#include "ordering/VelCurrency.h"
#include "ordering/VelCurrencyConfig.h"
#include "ordering/VelOrderingDetailItem.h"
#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "sibling/VelKeyAccount.h"

#include <limits>

namespace {

const int AMOUNTS[] = {0, 5, -1234, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};

void askOrderWays(VelOrderingDetails& theDetails)
{
    const QList<VelOrderSource> sources = theDetails.availableOrderSources();
    FUZZ_REQUIRE(sources.size() == theDetails.numberOfOrderWays());
    for (const VelOrderSource& source : sources) {
        FUZZ_REQUIRE(source.isValid());
        const QList<VelPaymentType> payments = theDetails.availablePayments(source);
        const VelPaymentType start = theDetails.reasonableStartingPayment(source, PAYMENT_TYPE_8);
        FUZZ_REQUIRE(payments.isEmpty() ? start == PAYMENT_TYPE_UNKNOWN : payments.contains(start));
        theDetails.orderSourceEnabled(source);
        for (const VelOrderingDetailItem* item : theDetails.orderingDetails(source))
            theDetails.nameOfPaymentType(source, item->paymentType(), item->brand());
        VelTarmGlobalStatus::instance()->setOrderSource(source);
        source.toSquishString();
    }
    theDetails.keyAccountPermitsPOS();
    theDetails.canOnlyCdPointOfSale();
    theDetails.orderSourceEnabled(VelOrderSource(INPUT_SOURCE_NET, DELIVERY_TYPE_UNKNOWN));
}

void askPayments(VelOrderingDetails& theDetails)
{
    for (const VelPaymentClass payClass : theDetails.payClasses()) {
        const QList<VelOrderingDetailItem*>& items = *theDetails.detailsList(payClass);
        FUZZ_REQUIRE(theDetails.namesOfOrderingDetails(payClass).size() == items.size());
        for (const VelOrderingDetailItem* item : items) {
            FUZZ_REQUIRE(item->payClass() == payClass);
            theDetails.nameOfOrderingDetail(payClass, item->id());
            item->iconFilename();
        }
    }
    theDetails.orderingDetails();
    theDetails.namesOfOrderingDetails();
    theDetails.availableMailOrderPaymentTypes();
}

void askGroups()
{
    const VelTarmShippingGroupManager* manager = VelTarmShippingGroupManager::instance();
    for (const VelTarmShippingGroup* group : manager->shippingGroups()) {
        FUZZ_REQUIRE(manager->shippingGroup(group->id()) == group);
        FUZZ_REQUIRE(manager->shippingGroupName(group->id()) == group->name());
        manager->transferModel(group->id());
        manager->maxOrderItems(group->id());
    }
}

/// Money in the currencies of the shop, at the document's factor.
void askMoney(const VelOrderingDetails& theDetails)
{
    FUZZ_REQUIRE(!theDetails.currency().isNull());
    for (const int amount : AMOUNTS)
        for (const bool isSecondary : {false, true}) {
            VelCurrencyConfig::instance()->fullText(amount, true, true, isSecondary);
            VelCurrencyConfig::instance()->text(amount, isSecondary);
        }
}

void askRest(VelOrderingDetails& theDetails)
{
    for (int model = DISCOUNT_MODEL_NONE; model <= DISCOUNT_MODEL_UNDEFINED; ++model) {
        theDetails.billPositionDescriptionEach(static_cast<VelDiscountModel>(model));
        theDetails.billPositionDescriptionPackage(static_cast<VelDiscountModel>(model));
    }
    FUZZ_REQUIRE(theDetails.clientStrategyException() == theDetails.clientStrategyException());
    theDetails.supportsImageExport(IMAGE_EXPORT_TOI);
    theDetails.lastChangeInPriceList();
    theDetails.priceListNeedsToBeUpdated();
}

/// The elements of currencies.xml may stand in an input, too.
void askCurrencies(const QDomElement& theRoot)
{
    for (const QDomElement& element : VelChildElements(theRoot)) {
        const VelCurrency currency(element);
        for (const int amount : AMOUNTS)
            currency.format(amount, amount < 0, true);
    }
}

/// What a reload would keep alive for those who hold it; here nobody does.
void releaseItems(VelOrderingDetails& theDetails)
{
    for (const VelPaymentClass payClass : theDetails.payClasses()) {
        qDeleteAll(*theDetails.detailsList(payClass));
        theDetails.detailsList(payClass)->clear();
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzShop::open();
    return 0;
}

/// Ordering details one after the other.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    VelOrderingDetails& details = *VelOrderingDetails::instance();
    for (const QByteArray& document : FuzzShop::documents(theData, theSize)) {
        const QString file = FuzzShop::write(QStringLiteral("orderingdetails.xml"), document);
        releaseItems(details);
        const QList<const VelTarmShippingGroup*> formerGroups =
            VelTarmShippingGroupManager::instance()->shippingGroups();
        VelKeyAccount::instance()->setOrderingDetailsXMLFileInfo(QFileInfo(file));
        details.update();
        qDeleteAll(formerGroups);
        askOrderWays(details);
        askPayments(details);
        askGroups();
        askMoney(details);
        askRest(details);
        askCurrencies(FuzzShop::load(document));
        auditDocument(QStringLiteral("orderingdetails.xml"), document);
        auditDocument(QStringLiteral("currencies.xml"), document);
    }
    return 0;
}
