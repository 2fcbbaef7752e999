#include "frame/VelTarmConfig.h"
#include "frame/VelTarmGlobalStatus.h"
#include "frame/VelTarmInitializer.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelProductCheckerRegistry.h"
#include "support/VelTestAccount.h"

/// The status as a value, the application's one instance, and the start of the module, which happens once in here:
/// with CD mail order as the configured source.
class GlobalStatusTest : public QObject
{
    Q_OBJECT

private slots:
    /// The module stands without any document: net mail order by default, and no payment for it.
    void initTestCase()
    {
        myAccount.write("appearance.xml", "<a><defaultOrderSource inputSource='1' deliveryType='1'/></a>");
        VelDirectoryConfig::instance()->setConfigurationDirectory(myAccount.path());
        myAccount.activate();
        const MessageCatcher messages;
        VelTarmInitializer().setupModule();
        QCOMPARE(messages.texts().size(), 3); // the missing documents are the others
        QCOMPARE(messages.texts().at(1), "VelTarmGlobalStatus::initOrderSource() -- Wir haben keinen Bestellweg.");
        QVERIFY(VelTarmGlobalStatus::instance()->orderSource() == VelOrderSource::onlineMailOrder());
        QCOMPARE(VelTarmGlobalStatus::instance()->payment(), PAYMENT_TYPE_UNKNOWN);

        // The checker of the price list is registered, and refuses what is not listed; there is none of the other type.
        const VelProductCheckerRegistry* checkers = VelProductCheckerRegistry::instance();
        QVERIFY(!checkers->isValid(PRODUCT_TYPE_ALB8, VelProductChecker::CHECKER_TYPE_PRICE_LIST));
        QVERIFY(checkers->isValid(PRODUCT_TYPE_ALB8, VelProductChecker::CHECKER_TYPE_APPLICATION));
        myAccount.write("pricelist.xml", "<p/>");
    }

    void startValue()
    {
        VelTarmGlobalStatus* status = VelTarmGlobalStatus::instance();
        QSignalSpy changes(status, &VelTarmGlobalStatus::orderSourceChanged);
        readOrderWays("<w input_source='0' delivery_type='0'/><w input_source='1' delivery_type='1'/>");
        status->initOrderSource(VelTarmConfig::instance()->defaultOrderSource());
        status->setOrderSource(VelOrderSource::cdMailOrder());
        status->setPayment(PAYMENT_TYPE_2);
        QCOMPARE(status->orderSource().toSquishString(), "1_1");
        QCOMPARE(changes.count(), 1);

        // Listed, but without payments.
        readOrderWays("<w input_source='0' delivery_type='0'/><w input_source='0' delivery_type='1'/>"
                      "<w input_source='1' delivery_type='1'><!-- none --></w>");
        QTest::ignoreMessage(QtWarningMsg, "VelTarmGlobalStatus::initOrderSource() -- Konfiguriere auf den ersten "
                                           "verfügbaren Bestellweg um. Default- UND konfigurierter Bestellweg sind "
                                           "nicht verfügbar.");
        status->initOrderSource(VelTarmConfig::instance()->defaultOrderSource());
        QCOMPARE(status->orderSource().toSquishString(), "0_0");
    }

    /// A change of the delivery type chooses a payment; that of the input source alone keeps even a foreign one.
    void changeOfOrderSource()
    {
        readOrderWays("<w input_source='1' delivery_type='0'/><w input_source='1' delivery_type='1'/>");
        VelTarmStatus status;
        status.setPayment(PAYMENT_TYPE_14);
        status.setPriceKey(VelTarmPriceKey(VelOrderSource::cdMailOrder(), 3, DISCOUNT_MODEL_BULK));
        QCOMPARE(status.payment(), PAYMENT_TYPE_14);
        QVERIFY(status.priceKey() == VelTarmPriceKey(VelOrderSource::cdMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED));
        status.setOrderSource(VelOrderSource::cdPointOfSale());
        QCOMPARE(status.payment(), PAYMENT_TYPE_0);
        status.setOrderSource(VelOrderSource::kioskOnSite());
        QCOMPARE(status.payment(), PAYMENT_TYPE_UNKNOWN);
    }

    void paymentsThatPermitAnotherAddress()
    {
        VelTarmStatus atHome;
        VelTarmStatus inShop;
        inShop.setOrderSource(VelOrderSource::onlinePointOfSale());
        for (int payment = -1; payment <= 16; ++payment) {
            atHome.setPayment(static_cast<VelPaymentType>(payment));
            inShop.setPayment(static_cast<VelPaymentType>(payment));
            QCOMPARE(atHome.differentShippingAddressPossible(), QList<int>({1, 2, 9, 10, 12, 14}).contains(payment));
            QVERIFY(!inShop.differentShippingAddressPossible());
        }
    }

    void config()
    {
        QCOMPARE(VelTarmConfig::instance()->supportedDiscountTypes().join(' '), "B F I L P X Z");
        VelDirectoryConfig::instance()->setConfigurationDirectory(myAccount.path("nowhere"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("VelXMLLoader.*appearance.xml.*"));
        QVERIFY(VelTarmConfig().defaultOrderSource() == VelOrderSource(INPUT_SOURCE_ANY, DELIVERY_TYPE_ANY));
    }

private:
    void readOrderWays(const QByteArray& theOrderWays)
    {
        myAccount.activateWithDetails("<o><pay_methods><m id='0'/><m id='3'/><m id='2'/></pay_methods><order_sources>" +
                                      theOrderWays + "</order_sources></o>");
    }

    const TestAccount myAccount;
};

VEL_TEST_MAIN(GlobalStatusTest)
#include "tst_GlobalStatus.moc"
