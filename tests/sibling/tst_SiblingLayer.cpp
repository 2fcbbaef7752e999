#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccountFileTimeStampManager.h"
#include "sibling/VelProductCheckerRegistry.h"
#include "sibling/VelProductGroup.h"
#include "sibling/VelProductType.h"
#include "sibling/VelStringHelper.h"
#include "sibling/VelXMLConfig.h"
#include "support/VelTestAccount.h"

namespace {

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

void verifyAscending(const QStringList& theNames)
{
    for (int i = 0; i < theNames.size(); ++i)
        for (int j = 0; j < theNames.size(); ++j)
            QVERIFY2(VelStringHelper::numberAwareProductNameLessThan(theNames.at(i), theNames.at(j)) == (i < j),
                     qPrintable(theNames.at(i) + " / " + theNames.at(j)));
}

} // namespace

class TestSiblingLayer : public QObject
{
    Q_OBJECT

private slots:
    void keyAccountChanges()
    {
        VelKeyAccount* account = VelKeyAccount::instance();
        const auto* timeStamps = VelKeyAccountFileTimeStampManager::instance();
        QSignalSpy changes(account, &VelKeyAccount::applicationKeyAccountChanged);
        const TestAccount folder;
        folder.activate();
        QCOMPARE(account->orderingDetailsXMLFileInfo(false).filePath(), folder.path("orderingdetails.xml"));
        QVERIFY(!timeStamps->pricelistTimeStamp().isValid());
        const QFileInfo priceList = folder.write("pricelist.xml", "<pricelist/>");
        folder.activate();
        QCOMPARE(account->pricelistXMLFileInfo(false), priceList);
        QCOMPARE(timeStamps->pricelistTimeStamp(), priceList.lastModified());

        account->setPricelistXMLFileInfo(QFileInfo("other.xml"));
        account->setOrderingDetailsXMLFileInfo(QFileInfo("details.xml"));
        QCOMPARE(account->pricelistXMLFileInfo(false).fileName(), "other.xml");
        QCOMPARE(account->orderingDetailsXMLFileInfo(false).fileName(), "details.xml");
        QCOMPARE(changes.size(), 2);
    }

    void shippingGroupsAreEnabledFromZero()
    {
        VelKeyAccount* account = VelKeyAccount::instance();
        QVERIFY(account->shippingGroupEnabled(0) && !account->shippingGroupEnabled(-1));
        account->setShippingGroupEnabled(7, false);
        account->setShippingGroupEnabled(-1, true);
        QVERIFY(!account->shippingGroupEnabled(7) && account->shippingGroupEnabled(8));
        QVERIFY(account->shippingGroupEnabled(-1));
    }

    void configuration()
    {
        const TestAccount folder;
        VelDirectoryConfig::instance()->setConfigurationDirectory(folder.path());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("appearance\\.xml, line 0, column 0"));
        VelXMLConfig config("appearance.xml");
        QVERIFY(config.documentElement().isNull());
        QCOMPARE(config.getIntAttributeOfNode("order", "source", -1), -1);

        folder.write("appearance.xml", "<a source='1'><order source='4' bad='x'/><order source='5'/></a>");
        config.reload();
        QCOMPARE(config.documentElement().tagName(), "a");
        QCOMPARE(config.getIntAttributeOfNode("order", "source", -1), 4);
        QCOMPARE(config.getIntAttributeOfNode("order", "bad", -1), -1);
        QCOMPARE(config.getIntAttributeOfNode("other", "source", -1), -1);

        VelDirectoryConfig::instance()->setResourceDirectory("/resources");
        QCOMPARE(VelDirectoryConfig::instance()->resource("icons/names.xml", false), "/resources/icons/names.xml");
    }

    void nameOrder()
    {
        verifyAscending(QStringLiteral("|10x15|10x015 matt|10x15 Matt|10x15 matt glossy|13x18|100x15|"
                                       "18446744073709551616|18446744073709551617|Foto|Foto |foto 2|Foto 10|Foto-1|"
                                       "foto1|FotoA|fotoa|FOTOB|Größe 2|GRÖßE 10")
                            .split('|'));

        // All short texts over a nasty alphabet stand in one order, of which every pair agrees.
        QStringList texts = {QString()};
        for (int shorter = 0; texts.at(shorter).size() < 3; ++shorter)
            for (const QChar character : QStringLiteral("01-aA_"))
                texts.append(texts.at(shorter) + character);
        std::sort(texts.begin(), texts.end(), VelStringHelper::numberAwareProductNameLessThan);
        verifyAscending(texts);
    }

    void productTypes_data()
    {
        readTable(R"(
            text     | value | class
            ALB81    | 79    | 1
            CAL6     | 106   | 2
            _cal37_  | 128   | 2
            PSC101   | 402   | 8
            20x30AG  | 403   | 4
            50x150FSP | 412  | 4
                     | 0     | 0
            ALB5     | 0     | 0
        )");
    }

    void productTypes()
    {
        const QString text = cell("text").replace('_', ' ');
        const VelProductType type(text);
        QCOMPARE(int(type.type()), number("value"));
        QCOMPARE(int(type.productClass()), number("class"));
        QCOMPARE(type.isUnknown(), number("value") == 0);
        QCOMPARE(type.productName(), text);

        const VelProductType next(static_cast<VelProductTypeEnum>(number("value") + 1));
        QVERIFY(type < next && !(next < type) && !(type < VelProductType(type.type())));
        QCOMPARE(VelProductType(VelProductType(type.type()).productName()).type(), type.type());
    }

    void productGroupsMatchByBits()
    {
        const VelProductGroup books(PRODUCT_GROUP_BOOK);
        const VelProductGroup withoutBooks(static_cast<VelProductGroupEnum>(775));
        QVERIFY(books.matches(PRODUCT_GROUP_ALL) && books.matches(PRODUCT_GROUP_BOOK) && !books.matches(withoutBooks));
        QVERIFY(withoutBooks.matches(VelProductGroup(PRODUCT_GROUP_ZQNFOTO)));
        QVERIFY(!VelProductGroup(PRODUCT_GROUP_UNKNOWN).matches(VelProductGroup(PRODUCT_GROUP_UNKNOWN)));
        QCOMPARE(int(VelProductGroup(PRODUCT_GROUP_ALL).value()), 895);
    }

    void checkersOfTheTypeDecide()
    {
        VelProductCheckerRegistry* registry = VelProductCheckerRegistry::instance();
        const auto valid = [registry](VelProductTypeEnum theType, int theChecker) {
            return registry->isValid(VelProductType(theType), static_cast<VelProductChecker::Type>(theChecker));
        };
        registry->registerChecker(new Refusing(VelProductChecker::CHECKER_TYPE_PRICE_LIST, PRODUCT_TYPE_ALB6));
        registry->registerChecker(new Refusing(VelProductChecker::CHECKER_TYPE_PRICE_LIST, PRODUCT_TYPE_CAL6));
        QVERIFY(!valid(PRODUCT_TYPE_ALB6, 1) && !valid(PRODUCT_TYPE_CAL6, 1) && valid(PRODUCT_TYPE_ALB7, 1));
        QVERIFY(valid(PRODUCT_TYPE_ALB6, 0)); // there is no checker of that type
    }
};

VEL_TEST_MAIN(TestSiblingLayer)
#include "tst_SiblingLayer.moc"
