#include "insight/VelShopReading.h"

#include "frame/VelTarmGlobalStatus.h"
#include "insight/VelVocabularies.h"
#include "ordering/VelClientStrategyException.h"
#include "ordering/VelCurrency.h"
#include "ordering/VelCurrencyConfig.h"
#include "ordering/VelOrderingDetailItem.h"
#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"

#include <QtNumeric>

#include <algorithm>

namespace {

const QString STR_ID = QStringLiteral("id");
const QString STR_NAME = QStringLiteral("name");
const QString STR_GROUP = QStringLiteral("group");
const QString STR_GROUPS = QStringLiteral("groups");
const QString STR_CURRENCY = QStringLiteral("currency");
const QString STR_SECONDARY_CURRENCY = QStringLiteral("secondary currency");
const QString STR_DEFAULT_ORDER_SOURCE = QStringLiteral("defaultOrderSource");
const QString STR_STRATEGY = QStringLiteral("client_strategy_exception");

const int FACTOR_DIGITS = 12; // the factor is kept as its reciprocal

class ConditionReader
{
public:
    QVector<VelShopField> read()
    {
        addFlags();
        addStart();
        for (const VelOrderSource& source : myDetails->availableOrderSources())
            addOrderWay(source);
        for (const VelPaymentClass payClass : myDetails->payClasses())
            addPayments(payClass);
        addCurrencies();
        addGroups();
        addWordings();
        addStrategy();
        return myFields;
    }

private:
    void add(const QString& theName, const QVariant& theValue, const VelShopPlace& thePlace = VelShopPlace())
    {
        myFields.append({theName, thePlace, theValue});
    }
    void addOrder(const QString& theName, const QVariantList& theIds)
    {
        add(theName, theIds);
        myFields.last().myIsOrder = true;
    }

    void addFlags()
    {
        add(QStringLiteral("doi"), myDetails->requiresDOI());
        add(QStringLiteral("address_check"), myDetails->requiresAddressCheck());
        add(QStringLiteral("sales_tax"), myDetails->requiresSalesTaxCheck());
        static const VelVocabulary exports = VelVocabularies::imageExports();
        QVariantList words;
        for (const VelVocabulary::Word& word : exports.myWords)
            if (myDetails->supportsImageExport(static_cast<VelImageExportTypeEnum>(word.myValue)))
                words.append(word.myText);
        add(QStringLiteral("image_export"), words);
    }

    /// The choice that an order starts with, as numbers as in its document.
    void addStart()
    {
        const VelOrderSource start = VelTarmGlobalStatus::instance()->orderSource();
        add(QStringLiteral("inputSource"), start.inputSource(), VelShopPlace::of(STR_DEFAULT_ORDER_SOURCE));
        add(QStringLiteral("deliveryType"), start.deliveryType(), VelShopPlace::of(STR_DEFAULT_ORDER_SOURCE));
    }

    /// The first payment is the one that an order starts with, and customers see them in their order.
    void addOrderWay(const VelOrderSource& theSource)
    {
        QVariantList payments;
        for (const VelPaymentType payment : myDetails->availablePayments(theSource))
            payments.append(static_cast<int>(payment));
        add(QStringLiteral("permitted_pay_method"), payments, VelShopPlace::of(theSource));
    }

    void addPayments(VelPaymentClass theClass)
    {
        static const QStringList tags{QStringLiteral("pay_methods"), QStringLiteral("credit_cards"),
                                      QStringLiteral("online_transfer_methods")};
        const QString tag = tags.value(theClass);
        QVariantList ids;
        for (const VelOrderingDetailItem* item : *myDetails->detailsList(theClass)) {
            const VelShopPlace place = VelShopPlace::of(tag, item->id());
            add(STR_NAME, item->name(), place);
            add(QStringLiteral("brand"), item->brand(), place);
            add(QStringLiteral("blockable"), item->canBeBlockedForDefaultingUsers(), place);
            add(QStringLiteral("icon"), item->iconFilename(), place);
            ids.append(item->id());
        }
        addOrder(tag, ids);
    }

    void addCurrencies()
    {
        add(STR_ID, myDetails->currency(), VelShopPlace::of(STR_CURRENCY));
        addCurrency(VelCurrencyConfig::instance()->currency(false), VelShopPlace::of(STR_CURRENCY));
        if (!myDetails->hasSecondaryCurrency())
            return;
        const VelShopPlace place = VelShopPlace::of(STR_SECONDARY_CURRENCY);
        const double factor = myDetails->secondaryCurrencyFactor();
        const double written = qIsFinite(factor) && factor != 0.0 ? 1.0 / factor : 0.0;
        add(STR_ID, myDetails->secondaryCurrency(), place);
        add(QStringLiteral("factor"), QString::number(written, 'g', FACTOR_DIGITS).toDouble(), place);
        addCurrency(VelCurrencyConfig::instance()->currency(true), place);
    }

    /// None for a currency that currencies.xml doesn't define.
    void addCurrency(const VelCurrency* theCurrency, const VelShopPlace& thePlace)
    {
        if (!theCurrency)
            return;
        add(STR_NAME, theCurrency->genericName(), thePlace);
        add(QStringLiteral("symbol"), theCurrency->symbol(), thePlace);
        add(QStringLiteral("symbolHTML"), theCurrency->symbolHTML(), thePlace);
        add(QStringLiteral("decimalsep"), theCurrency->decimalSep(), thePlace);
        add(QStringLiteral("symbolinfront"), theCurrency->symbolInFront(), thePlace);
        add(QStringLiteral("decimalplaces"), theCurrency->decimalPlaces(), thePlace);
    }

    void addGroups()
    {
        QList<const VelTarmShippingGroup*> groups = VelTarmShippingGroupManager::instance()->shippingGroups();
        std::sort(groups.begin(), groups.end(), lessThanPriceListTabPosition);
        QVariantList ids;
        for (const VelTarmShippingGroup* group : qAsConst(groups)) {
            const VelShopPlace place = VelShopPlace::of(STR_GROUP, group->id());
            add(STR_NAME, group->name(), place);
            add(QStringLiteral("transfer_model"), static_cast<int>(group->transferModel()), place);
            add(QStringLiteral("max_order_items"), group->maxOrderItems(), place);
            add(QStringLiteral("last_change"), group->lastChange().toLocalTime().toString(Qt::ISODate), place);
            ids.append(group->id());
        }
        addOrder(STR_GROUPS, ids);
    }

    void addWordings()
    {
        for (int model = DISCOUNT_MODEL_BULK; model <= DISCOUNT_MODEL_FUTURE_EXTENSION; ++model) {
            VelShopPlace place;
            place.myDiscountModel = static_cast<VelDiscountModel>(model);
            add(QStringLiteral("single_description"), myDetails->billPositionDescriptionEach(place.myDiscountModel),
                place);
            add(QStringLiteral("group_description"), myDetails->billPositionDescriptionPackage(place.myDiscountModel),
                place);
        }
    }

    void addStrategy()
    {
        static const VelVocabulary strategies = VelVocabularies::strategies();
        static const VelVocabulary connectStrategies = VelVocabularies::connectStrategies();
        const VelClientStrategyException strategy = myDetails->clientStrategyException();
        const VelShopPlace place = VelShopPlace::of(STR_STRATEGY);
        add(QStringLiteral("userinsert_strategy"), exactWord(strategies, strategy.userInsertStrategy()), place);
        add(QStringLiteral("userinsert_target"), strategy.userInsertTarget(), place);
        add(QStringLiteral("password_strategy"), exactWord(strategies, strategy.passwordStrategy()), place);
        add(QStringLiteral("password_target"), strategy.passwordTarget(), place);
        add(QStringLiteral("connect_strategy"), exactWord(connectStrategies, strategy.connectStrategy()), place);
        add(QStringLiteral("logindata_editing"), strategy.loginDataEditingEnabled(), place);
        add(QStringLiteral("dns_mail_suffix"), strategy.dnsMailSuffix(), place);
        add(QStringLiteral("show_agb_checkbox"), strategy.showAGBCheckbox(), place);
    }

    /// The words of these are no bits; what several words in one attribute make is told as its number.
    static QVariant exactWord(const VelVocabulary& theVocabulary, int theValue)
    {
        for (const VelVocabulary::Word& word : theVocabulary.myWords)
            if (word.myValue == theValue)
                return word.myText;
        return theValue;
    }

    const VelOrderingDetails* const myDetails = VelOrderingDetails::instance();
    QVector<VelShopField> myFields;
};

} // namespace

QVector<VelShopField> VelShopReading::conditions()
{
    return ConditionReader().read();
}
