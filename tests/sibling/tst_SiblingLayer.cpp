#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"
#include "sibling/VelKeyAccountFileTimeStampManager.h"
#include "sibling/VelPageCountOrganization.h"
#include "sibling/VelProductCheckerRegistry.h"
#include "sibling/VelProductGroup.h"
#include "sibling/VelProductType.h"
#include "sibling/VelStringHelper.h"
#include "sibling/VelXMLConfig.h"
#include "support/VelTestMain.h"

#include <QSignalSpy>
#include <QTemporaryDir>

class TestSiblingLayer : public QObject
{
    Q_OBJECT

private slots:
    void keyAccountChanges();
    void shippingGroupsAreEnabledFromZero();
    void configurationIsReadAndReloaded();
    void resourcesHaveAPath();
    void namesInOrder();
    void nameOrderIsStrict();
    void productTypes_data();
    void productTypes();
    void productGroupsMatchByBits();
    void checkersOfTheTypeDecide();
    void pageCounts();
};

namespace {

void write(const QString& theFile, const QByteArray& theBytes)
{
    QFile file(theFile);
    if (!file.open(QIODevice::WriteOnly) || file.write(theBytes) != theBytes.size())
        qFatal("The test can't write its own file.");
}

/// Refuses one product type.
class Refusing : public VelProductChecker
{
public:
    Refusing(Type theType, VelProductTypeEnum theRefused) : myType(theType), myRefused(theRefused) {}
    bool isValid(const VelProductType& theType) const override { return theType.type() != myRefused; }
    Type type() const override { return myType; }

private:
    Type myType;
    VelProductTypeEnum myRefused;
};

} // namespace

void TestSiblingLayer::keyAccountChanges()
{
    VelKeyAccount* account = VelKeyAccount::instance();
    const auto* timeStamps = VelKeyAccountFileTimeStampManager::instance();
    QSignalSpy changes(account, SIGNAL(applicationKeyAccountChanged()));
    QTemporaryDir folder;

    account->activate(QDir(folder.path()));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(account->pricelistXMLFileInfo(false).filePath(), folder.filePath(QStringLiteral("pricelist.xml")));
    QCOMPARE(account->orderingDetailsXMLFileInfo(false).filePath(),
             folder.filePath(QStringLiteral("orderingdetails.xml")));
    QVERIFY(!account->pricelistXMLFileInfo(false).exists());
    QVERIFY(!timeStamps->pricelistTimeStamp().isValid());

    write(folder.filePath(QStringLiteral("pricelist.xml")), "<pricelist/>");
    QVERIFY(account->pricelistXMLFileInfo(false).exists());
    account->activate(QDir(folder.path()));
    QCOMPARE(timeStamps->pricelistTimeStamp(), account->pricelistXMLFileInfo(false).lastModified());
    QVERIFY(timeStamps->pricelistTimeStamp().isValid());

    account->setPricelistXMLFileInfo(QFileInfo(QStringLiteral("other.xml")));
    account->setOrderingDetailsXMLFileInfo(QFileInfo(QStringLiteral("details.xml")));
    QCOMPARE(account->pricelistXMLFileInfo(false).fileName(), QStringLiteral("other.xml"));
    QCOMPARE(account->orderingDetailsXMLFileInfo(false).fileName(), QStringLiteral("details.xml"));
    QCOMPARE(changes.size(), 2);
}

void TestSiblingLayer::shippingGroupsAreEnabledFromZero()
{
    VelKeyAccount* account = VelKeyAccount::instance();
    QVERIFY(account->shippingGroupEnabled(0));
    QVERIFY(account->shippingGroupEnabled(999));
    QVERIFY(!account->shippingGroupEnabled(-1));
    account->setShippingGroupEnabled(7, false);
    account->setShippingGroupEnabled(-1, true);
    QVERIFY(!account->shippingGroupEnabled(7));
    QVERIFY(account->shippingGroupEnabled(8));
    QVERIFY(account->shippingGroupEnabled(-1));
}

void TestSiblingLayer::configurationIsReadAndReloaded()
{
    QTemporaryDir folder;
    const QString fileName = QStringLiteral("appearance.xml");
    const QString node = QStringLiteral("order");
    const QString attribute = QStringLiteral("source");
    VelDirectoryConfig::instance()->setConfigurationDirectory(folder.path());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("appearance\\.xml, line 0, column 0")));
    VelXMLConfig config(fileName);
    QVERIFY(config.documentElement().isNull());
    QCOMPARE(config.getIntAttributeOfNode(node, attribute, -1), -1);

    write(folder.filePath(fileName),
          "<appearance source='1'><order source='4' bad='x'/><order source='5'/></appearance>");
    config.reload();
    QCOMPARE(config.documentElement().tagName(), QStringLiteral("appearance"));
    QCOMPARE(config.getIntAttributeOfNode(node, attribute, -1), 4);
    QCOMPARE(config.getIntAttributeOfNode(node, QStringLiteral("bad"), -1), -1);
    QCOMPARE(config.getIntAttributeOfNode(QStringLiteral("other"), attribute, -1), -1);
}

void TestSiblingLayer::resourcesHaveAPath()
{
    VelDirectoryConfig::instance()->setResourceDirectory(QStringLiteral("/somewhere/resources"));
    QCOMPARE(VelDirectoryConfig::instance()->resource(QStringLiteral("icons/payment/filenames.xml"), false),
             QStringLiteral("/somewhere/resources/icons/payment/filenames.xml"));
}

namespace {

/// Names that stand in ascending order.
QStringList ascendingNames()
{
    return {QString(),
            QStringLiteral("10x15"),
            QStringLiteral("10x015 matt"),
            QStringLiteral("10x15 Matt"),
            QStringLiteral("10x15 matt glossy"),
            QStringLiteral("13x18"),
            QStringLiteral("100x15"),
            QStringLiteral("18446744073709551616"),
            QStringLiteral("18446744073709551617"),
            QStringLiteral("Foto"),
            QStringLiteral("Foto "),
            QStringLiteral("foto 2"),
            QStringLiteral("Foto 10"),
            QStringLiteral("Foto-1"),
            QStringLiteral("foto1"),
            QStringLiteral("FotoA"),
            QStringLiteral("fotoa"),
            QStringLiteral("FOTOB"),
            QString::fromUtf8("Größe 2"),
            QString::fromUtf8("GRÖßE 10")};
}

} // namespace

void TestSiblingLayer::namesInOrder()
{
    const QStringList names = ascendingNames();
    for (int i = 0; i < names.size(); ++i) {
        for (int j = 0; j < names.size(); ++j)
            QVERIFY2(VelStringHelper::numberAwareProductNameLessThan(names.at(i), names.at(j)) == (i < j),
                     qPrintable(names.at(i) + QStringLiteral(" / ") + names.at(j)));
    }
}

/// Every pair of different short texts over a nasty alphabet stands in one order, and all orders agree.
void TestSiblingLayer::nameOrderIsStrict()
{
    const QString alphabet = QStringLiteral("01-aA_");
    QStringList texts = {QString()};
    for (int begin = 0, length = 0; length < 3; ++length) {
        const int end = texts.size();
        for (; begin < end; ++begin) {
            for (const QChar character : alphabet)
                texts.append(texts.at(begin) + character);
        }
    }
    std::sort(texts.begin(), texts.end(), VelStringHelper::numberAwareProductNameLessThan);
    for (int i = 0; i < texts.size(); ++i) {
        for (int j = 0; j < texts.size(); ++j)
            QVERIFY(VelStringHelper::numberAwareProductNameLessThan(texts.at(i), texts.at(j)) == (i < j));
    }
}

void TestSiblingLayer::productTypes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("productClass");
    const auto row = [](const char* theText, int theValue, int theClass) {
        QTest::newRow(*theText ? theText : "empty") << QString::fromLatin1(theText) << theValue << theClass;
    };
    row("ALB6", 6, PRODUCT_CLASS_FOTO_BOOK);
    row("ALB81", 79, PRODUCT_CLASS_FOTO_BOOK);
    row("CAL6", 106, PRODUCT_CLASS_CALENDAR);
    row(" cal37 ", 128, PRODUCT_CLASS_CALENDAR);
    row("PSC101", 402, PRODUCT_CLASS_CARD);
    row("20x30AG", 403, PRODUCT_CLASS_GIFT);
    row("50x150FSP", 412, PRODUCT_CLASS_GIFT);
    row("", 0, PRODUCT_CLASS_NONE);
    row("ALB5", 0, PRODUCT_CLASS_NONE);
}

void TestSiblingLayer::productTypes()
{
    QFETCH(QString, text);
    QFETCH(int, value);
    const VelProductType type(text);
    QCOMPARE(int(type.type()), value);
    QTEST(int(type.productClass()), "productClass");
    QCOMPARE(type.isUnknown(), value == 0);
    QCOMPARE(type.productName(), text);

    const VelProductType next(static_cast<VelProductTypeEnum>(value + 1));
    QVERIFY(type < next && !(next < type) && !(type < VelProductType(type.type())));
    QCOMPARE(VelProductType(VelProductType(type.type()).productName()).type(), type.type());
}

void TestSiblingLayer::productGroupsMatchByBits()
{
    const VelProductGroup books(PRODUCT_GROUP_BOOK);
    QVERIFY(books.matches(PRODUCT_GROUP_ALL));
    QVERIFY(books.matches(PRODUCT_GROUP_BOOK));
    QVERIFY(!books.matches(static_cast<VelProductGroupEnum>(775)));
    QVERIFY(VelProductGroup(static_cast<VelProductGroupEnum>(775)).matches(VelProductGroup(PRODUCT_GROUP_ZQNFOTO)));
    QVERIFY(!VelProductGroup(PRODUCT_GROUP_UNKNOWN).matches(VelProductGroup(PRODUCT_GROUP_UNKNOWN)));
    QCOMPARE(int(VelProductGroup(PRODUCT_GROUP_ALL).value()), 895);
}

void TestSiblingLayer::checkersOfTheTypeDecide()
{
    VelProductCheckerRegistry* registry = VelProductCheckerRegistry::instance();
    const VelProductType album(PRODUCT_TYPE_ALB6);
    const VelProductType calendar(PRODUCT_TYPE_CAL6);
    QVERIFY(registry->isValid(album, VelProductChecker::CHECKER_TYPE_APPLICATION));

    registry->registerChecker(new Refusing(VelProductChecker::CHECKER_TYPE_PRICE_LIST, PRODUCT_TYPE_ALB6));
    registry->registerChecker(new Refusing(VelProductChecker::CHECKER_TYPE_PRICE_LIST, PRODUCT_TYPE_CAL6));
    QVERIFY(!registry->isValid(album, static_cast<VelProductChecker::Type>(1)));
    QVERIFY(!registry->isValid(calendar, static_cast<VelProductChecker::Type>(1)));
    QVERIFY(registry->isValid(VelProductType(PRODUCT_TYPE_ALB7), static_cast<VelProductChecker::Type>(1)));
    QVERIFY(registry->isValid(album, static_cast<VelProductChecker::Type>(0)));
}

void TestSiblingLayer::pageCounts()
{
    const VelPageCountOrganization pages(24, 96, 2);
    QVERIFY(pages.lowest() == 24 && pages.highest() == 96 && pages.step() == 2);
    const VelPageCountOrganization none;
    QVERIFY(none.lowest() == 0 && none.highest() == 0 && none.step() == 0);
}

VEL_TEST_MAIN(TestSiblingLayer)
#include "tst_SiblingLayer.moc"
