#include "frame/VelTarmConfig.h"
#include "frame/VelTarmGlobalStatus.h"
#include "frame/VelTarmInitializer.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductRegistry.h"
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
        const QRegularExpression missing("VelXMLLoader::loadDocumentElement\\(\\) -- .*");
        QTest::ignoreMessage(QtWarningMsg, missing); // ordering details
        QTest::ignoreMessage(QtWarningMsg, "VelTarmGlobalStatus::initOrderSource() -- Wir haben keinen Bestellweg.");
        QTest::ignoreMessage(QtWarningMsg, missing); // price list
        VelTarmInitializer initializer;
        initializer.setupModule();
        initializer.teardownModule();
        QVERIFY(VelTarmGlobalStatus::instance()->orderSource() == VelOrderSource::onlineMailOrder());
        QCOMPARE(VelTarmGlobalStatus::instance()->payment(), PAYMENT_TYPE_UNKNOWN);
        QVERIFY(VelProductRegistry::instance()->productList().isEmpty());

        // The checker of the price list is registered: it refuses an unknown type, and no other type of checker does.
        const VelProductType unknown(QStringLiteral("ALB8"));
        const VelProductCheckerRegistry* checkers = VelProductCheckerRegistry::instance();
        QVERIFY(!checkers->isValid(unknown, VelProductChecker::CHECKER_TYPE_PRICE_LIST));
        QVERIFY(checkers->isValid(unknown, VelProductChecker::CHECKER_TYPE_APPLICATION));
        myAccount.write("pricelist.xml", "<p/>");
    }

    void startValue_data()
    {
        readTable(R"(
            row                       | ofCdMail                                               | source
            configured and enabled    | <w input_source='1' delivery_type='1'/>                | 1_1
            configured but not listed |                                                        | 0_0
            listed without payments   | <w input_source='1' delivery_type='1'><!-- none --></w> | 0_0
        )");
    }

    void startValue()
    {
        readOrderWays("<w input_source='0' delivery_type='0'/>" + cell("ofCdMail").toUtf8());
        const MessageCatcher messages;
        VelTarmGlobalStatus::instance()->initOrderSource(VelTarmConfig::instance()->defaultOrderSource());
        QCOMPARE(VelTarmGlobalStatus::instance()->orderSource().toSquishString(), cell("source"));
        QCOMPARE(messages.texts().join('\n'),
                 cell("source") == "1_1" ? ""
                                         : "VelTarmGlobalStatus::initOrderSource() -- Konfiguriere auf den ersten "
                                           "verfügbaren Bestellweg um. Default- UND konfigurierter Bestellweg sind "
                                           "nicht verfügbar.");
    }

    void changeOfOrderSource_data()
    {
        readTable(R"(
            row                                              | input | delivery | payment
            input source alone keeps even a foreign payment  | 1     | 1        | 14
            delivery type chooses a payment                  | 0     | 0        | 0
            to a way without payments                        | 4     | 2        | -1
            the same source                                  | 0     | 1        | 14
        )");
    }

    void changeOfOrderSource()
    {
        readOrderWays("<w input_source='0' delivery_type='0'/><w input_source='1' delivery_type='0'/>"
                      "<w input_source='0' delivery_type='1'/><w input_source='1' delivery_type='1'/>");
        VelTarmStatus status;
        QCOMPARE(status.payment(), PAYMENT_TYPE_3);
        status.setPayment(PAYMENT_TYPE_14);
        status.setOrderSource(VelOrderSource(static_cast<VelInputSource>(number("input")),
                                             static_cast<VelDeliveryType>(number("delivery"))));
        QCOMPARE(int(status.payment()), number("payment"));
    }

    void signalOncePerChange()
    {
        VelTarmGlobalStatus* status = VelTarmGlobalStatus::instance();
        status->setOrderSource(VelOrderSource::onlineMailOrder());
        QSignalSpy changes(status, &VelTarmGlobalStatus::orderSourceChanged);
        status->setOrderSource(VelOrderSource::cdPointOfSale());
        status->setOrderSource(VelOrderSource::cdPointOfSale());
        status->setPayment(PAYMENT_TYPE_2);
        status->setReasonableStartingPayment();
        QCOMPARE(changes.count(), 1);
        QVERIFY(QMetaObject::invokeMethod(status, "setOrderSource",
                                          Q_ARG(VelOrderSource, VelOrderSource::onlineMailOrder())));
        QCOMPARE(changes.count(), 2);
    }

    void paymentsThatPermitAnotherAddress()
    {
        const QList<int> permitting{1, 2, 9, 10, 12, 14};
        for (int payment = -1; payment <= 16; ++payment)
            QCOMPARE(VelTarmStatus::paymentTypePermitsDifferentShippingAddress(static_cast<VelPaymentType>(payment)),
                     permitting.contains(payment));
        VelTarmStatus status;
        status.setPayment(PAYMENT_TYPE_2);
        QVERIFY(status.differentShippingAddressPossible());
        status.setOrderSource(VelOrderSource::onlinePointOfSale());
        status.setPayment(PAYMENT_TYPE_2);
        QVERIFY(!status.differentShippingAddressPossible());
    }

    void priceKeys()
    {
        VelTarmStatus status;
        QVERIFY(status.priceKey() == VelTarmPriceKey(VelOrderSource::onlineMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED));
        status.setPriceKey(VelTarmPriceKey(VelOrderSource::cdMailOrder(), 3, DISCOUNT_MODEL_BULK));
        QVERIFY(status.priceKey() == VelTarmPriceKey(VelOrderSource::cdMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED));
        QVERIFY(status.isCdMailOrder() && status.isMailOrder() && !status.isNetOrder());
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
