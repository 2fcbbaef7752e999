#include "frame/VelTarmConfig.h"
#include "frame/VelTarmGlobalStatus.h"
#include "frame/VelTarmInitializer.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"
#include "sibling/VelProductCheckerRegistry.h"
#include "support/VelTestMain.h"

#include <QTemporaryDir>

/// The status as a value, the application's one instance, and the start of the module, which happens once in here:
/// with net mail order as the configured source and both kinds of order ways in the document.
class GlobalStatusTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void startWithoutOrderWays();
    void startValue_data();
    void startValue();
    void changeOfOrderSource_data();
    void changeOfOrderSource();
    void signalOncePerChange();
    void paymentsThatPermitAnotherAddress();
    void priceKeys();
    void setUp();
    void config();

private:
    void readOrderWays(const QByteArray& theOrderWays);

    QTemporaryDir myFolder;
};

void GlobalStatusTest::readOrderWays(const QByteArray& theOrderWays)
{
    QFile file(myFolder.filePath("orderingdetails.xml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<o><pay_methods><m id='0'/><m id='3'/><m id='2'/></pay_methods><order_sources>" + theOrderWays +
               "</order_sources></o>");
    file.close();
    VelOrderingDetails::instance()->update();
}

void GlobalStatusTest::initTestCase()
{
    QFile appearance(myFolder.filePath("appearance.xml"));
    QVERIFY(appearance.open(QIODevice::WriteOnly));
    appearance.write("<appearance><defaultOrderSource inputSource='1' deliveryType='1'/></appearance>");
    appearance.close();
    VelDirectoryConfig::instance()->setConfigurationDirectory(myFolder.path());
    VelKeyAccount::instance()->setOrderingDetailsXMLFileInfo(QFileInfo(myFolder.filePath("orderingdetails.xml")));
    VelKeyAccount::instance()->setPricelistXMLFileInfo(QFileInfo(myFolder.filePath("pricelist.xml")));
}

/// The module stands without any document: net mail order by default, and no payment for it.
void GlobalStatusTest::startWithoutOrderWays()
{
    const QRegularExpression missing(QStringLiteral("VelXMLLoader::loadDocumentElement\\(\\) -- .*"));
    QTest::ignoreMessage(QtWarningMsg, missing); // ordering details
    QTest::ignoreMessage(QtWarningMsg, "VelTarmGlobalStatus::initOrderSource() -- Wir haben keinen Bestellweg.");
    QTest::ignoreMessage(QtWarningMsg, missing); // price list
    VelTarmInitializer initializer;
    initializer.setupModule();
    initializer.teardownModule();
    QVERIFY(VelTarmGlobalStatus::instance()->orderSource() == VelOrderSource::onlineMailOrder());
    QCOMPARE(VelTarmGlobalStatus::instance()->payment(), PAYMENT_TYPE_UNKNOWN);
    QVERIFY(VelProductRegistry::instance()->productList().isEmpty());
    QCOMPARE(VelOrderingDetails::instance()->numberOfOrderWays(), 0);
}

void GlobalStatusTest::startValue_data()
{
    QTest::addColumn<QByteArray>("orderWays");
    QTest::addColumn<bool>("isReplaced");
    QTest::addColumn<int>("inputSource");
    QTest::addColumn<int>("deliveryType");
    const QByteArray netPos("<w input_source='0' delivery_type='0'/>");
    const QByteArray cdMail("<w input_source='1' delivery_type='1'/>");
    QTest::newRow("configured and enabled") << netPos + cdMail << false << 1 << 1;
    QTest::newRow("configured but not listed") << netPos << true << 0 << 0;
    QTest::newRow("listed without payments")
        << netPos + "<w input_source='1' delivery_type='1'><!-- none --></w>" << true << 0 << 0;
}

void GlobalStatusTest::startValue()
{
    QFETCH(QByteArray, orderWays);
    QFETCH(bool, isReplaced);
    readOrderWays(orderWays);
    if (isReplaced)
        QTest::ignoreMessage(QtWarningMsg,
                             "VelTarmGlobalStatus::initOrderSource() -- Konfiguriere auf den ersten verfügbaren "
                             "Bestellweg um. Default- UND konfigurierter Bestellweg sind nicht verfügbar.");
    VelTarmGlobalStatus* status = VelTarmGlobalStatus::instance();
    status->initOrderSource(VelTarmConfig::instance()->defaultOrderSource());
    QTEST(static_cast<int>(status->inputSource()), "inputSource");
    QTEST(static_cast<int>(status->deliveryType()), "deliveryType");
}

void GlobalStatusTest::changeOfOrderSource_data()
{
    QTest::addColumn<int>("inputSource");
    QTest::addColumn<int>("deliveryType");
    QTest::addColumn<int>("payment");
    QTest::newRow("input source alone keeps even a foreign payment") << 1 << 1 << 14;
    QTest::newRow("delivery type chooses a payment") << 0 << 0 << 0;
    QTest::newRow("both change") << 1 << 0 << 0;
    QTest::newRow("to a way without payments") << 4 << 2 << -1;
    QTest::newRow("the same source") << 0 << 1 << 14;
}

void GlobalStatusTest::changeOfOrderSource()
{
    QFETCH(int, inputSource);
    QFETCH(int, deliveryType);
    readOrderWays("<w input_source='0' delivery_type='0'/><w input_source='1' delivery_type='0'/>"
                  "<w input_source='0' delivery_type='1'/><w input_source='1' delivery_type='1'/>");
    VelTarmStatus status;
    status.setPayment(PAYMENT_TYPE_14);
    status.setOrderSource(
        VelOrderSource(static_cast<VelInputSource>(inputSource), static_cast<VelDeliveryType>(deliveryType)));
    QTEST(static_cast<int>(status.payment()), "payment");
}

void GlobalStatusTest::signalOncePerChange()
{
    VelTarmGlobalStatus* status = VelTarmGlobalStatus::instance();
    status->setOrderSource(VelOrderSource::onlineMailOrder());
    QSignalSpy changes(status, SIGNAL(orderSourceChanged()));
    status->setOrderSource(VelOrderSource::cdPointOfSale());
    status->setOrderSource(VelOrderSource::cdPointOfSale());
    QCOMPARE(changes.count(), 1);
    status->setPayment(PAYMENT_TYPE_2);
    status->setReasonableStartingPayment();
    QCOMPARE(changes.count(), 1);
    QVERIFY(
        QMetaObject::invokeMethod(status, "setOrderSource", Q_ARG(VelOrderSource, VelOrderSource::onlineMailOrder())));
    QCOMPARE(changes.count(), 2);
}

void GlobalStatusTest::paymentsThatPermitAnotherAddress()
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

void GlobalStatusTest::priceKeys()
{
    VelTarmStatus status;
    QCOMPARE(status.payment(), PAYMENT_TYPE_3);
    QVERIFY(status.priceKey() == VelTarmPriceKey(VelOrderSource::onlineMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED));
    status.setPriceKey(VelTarmPriceKey(VelOrderSource::cdMailOrder(), 3, DISCOUNT_MODEL_BULK));
    QVERIFY(status.priceKey() == VelTarmPriceKey(VelOrderSource::cdMailOrder(), -1, DISCOUNT_MODEL_UNDEFINED));
    QVERIFY(status.isCdMailOrder() && status.isMailOrder() && !status.isNetOrder());
}

void GlobalStatusTest::setUp()
{
    // The checker of the price list is registered: an unknown type is refused, and other types of checker are not
    // asked.
    QVERIFY(!VelProductCheckerRegistry::instance()->isValid(VelProductType(QStringLiteral("ALB8")),
                                                            VelProductChecker::CHECKER_TYPE_PRICE_LIST));
    QVERIFY(VelProductCheckerRegistry::instance()->isValid(VelProductType(QStringLiteral("ALB8")),
                                                           VelProductChecker::CHECKER_TYPE_APPLICATION));
}

void GlobalStatusTest::config()
{
    QCOMPARE(VelTarmConfig::instance()->supportedDiscountTypes(), QList<QString>({"B", "F", "I", "L", "P", "X", "Z"}));
    VelDirectoryConfig::instance()->setConfigurationDirectory(myFolder.filePath("nowhere"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("VelXMLLoader.*appearance.xml.*")));
    QVERIFY(VelTarmConfig().defaultOrderSource() == VelOrderSource(INPUT_SOURCE_ANY, DELIVERY_TYPE_ANY));
}

VEL_TEST_MAIN(GlobalStatusTest)
#include "tst_GlobalStatus.moc"
