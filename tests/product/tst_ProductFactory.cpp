#include "frame/VelEnumFlags.h"
#include "product/VelProduct.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductFactory.h"
#include "product/VelProductGroupConverter.h"
#include "product/VelProductGroupManager.h"
#include "product/VelProductPrintFun.h"
#include "product/VelProductRegistry.h"
#include "support/VelTestMain.h"

namespace {

QStringList messages; // all that were written since init()

void keepMessage(QtMsgType, const QMessageLogContext&, const QString& theText)
{
    messages.append(theText);
}

/// The C++ class that a product was built as, with the bits of its product class.
QString kindOf(const VelProductAbstract* theProduct)
{
    if (!theProduct)
        return QString();
    int productClass = 0;
    for (int bit = 1; bit <= PRODUCT_CLASS_FEE; bit *= 2)
        productClass += theProduct->isProductClass(static_cast<VelProductClass>(bit)) ? bit : 0;
    const bool isFoto = dynamic_cast<const VelProduct*>(theProduct);
    const bool isAddOn = dynamic_cast<const VelProductAddOn*>(theProduct);
    const bool isPrintFun = dynamic_cast<const VelProductPrintFun*>(theProduct);
    const char* name = isFoto ? "foto" : isAddOn ? "add-on" : isPrintFun ? "print-fun" : "plain";
    return QString::asprintf("%s %d", name, productClass);
}

QScopedPointer<VelProductAbstract> built; // the last one

QString kindBuiltFrom(const QString& theElement)
{
    built.reset(VelProductFactory::instance()->build(parsedElement(theElement)));
    return kindOf(built.data());
}

/// A row of the table of the test that is being set up.
template <typename... Cell>
void row(const char* theName, const Cell&... theCells)
{
    (QTest::newRow(theName) << ... << theCells);
}

} // namespace

class TestProductFactory : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        messages.clear();
        qInstallMessageHandler(keepMessage);
    }

    void cleanup() { qInstallMessageHandler(nullptr); }

    void build_data()
    {
        QTest::addColumn<QString>("element");
        QTest::addColumn<QString>("kind");
        row("transfer", "<transfer arrangement='gift'/>", "plain 1024");
        row("payment fee", "<paymethod_fee product_class='11'/>", "plain 1024");
        row("express fee", "<express_fee/>", "plain 1024");
        row("add-on", "<add_on product_class='x'/>", "add-on 64");
        row("add-on without class", "<add_on arrangement='gift'/>", "");
        row("add-on of empty class", "<add_on product_class=''/>", "");
        row("add-on 11", "<add_on product_class='11'/>", "");
        row("add-on 21", "<add_on product_class='21'/>", "");
        row("add-on 111", "<add_on product_class='111'/>", "add-on 64");
        row("add-on 11 with a blank", "<add_on product_class=' 11'/>", "add-on 64");
        row("other tag", "<bundle arrangement='gift' product_class='x'/>", "");
        row("tag in another case", "<Article arrangement='gift'/>", "");
        row("trivial, any id", "<article arrangement='trivial' id='9181'/>", "foto 512");
        row("card", "<article arrangement='card'/>", "print-fun 8");
        row("gift in any case, with blanks", "<article arrangement=' GiFT '/>", "print-fun 4");
        row("one word twice, one unknown", "<article arrangement='gift,x,gift'/>", "print-fun 4");
        row("book", "<article arrangement='photobook' id='9181'/>", "print-fun 1");
        row("calendar", "<article arrangement='calendar' id='8026'/>", "print-fun 2");
    }

    void build()
    {
        QFETCH(QString, element);
        QTEST(kindBuiltFrom(element), "kind");
        QCOMPARE(messages, QStringList());
    }

    void refusal_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QString>("message"); // between the function's name and the end
        row("two words", "arrangement='Gift, card' name='N'",
            "arrangement: Gift, card; Produkt: N wird nicht unterstützt.");
        row("none", "name='N'", "arrangement: ; Produkt: N wird nicht unterstützt.");
        row("placeholders in the values", "arrangement='%2' name='%1'",
            "arrangement: %2; Produkt: %1 wird nicht unterstützt.");
        const auto unlisted = [](const char* theId, const char* theArrangement, const char* theKind) {
            row(theId,
                QStringLiteral("arrangement='%1' id='%2' name='N'")
                    .arg(QLatin1String(theArrangement), QLatin1String(theId)),
                QStringLiteral("article id: %1; arrangement: %2; Produkt: N wird nicht "
                               "unterstützt: %3 ist nicht im Regulärenausdruck enthalten!")
                    .arg(QLatin1String(theId), QLatin1String(theArrangement), QLatin1String(theKind)));
        };
        for (const char* id : {"8026", " 9181", "09181", "918", "9181|9210", ""})
            unlisted(id, "photobook", "Fotobuch");
        unlisted("9181", "CALENDAR", "Kalender");
    }

    void refusal()
    {
        QFETCH(QString, attributes);
        QFETCH(QString, message);
        QVERIFY(kindBuiltFrom(QStringLiteral("<article %1/>").arg(attributes)).isEmpty());
        QCOMPARE(messages,
                 QStringList(QStringLiteral("\"VelProductFactory::build() -- ") + message + QLatin1Char('"')));
    }

    void compiledInIds()
    {
        QMap<QString, int> counts;
        for (int id = 0; id < 10000; ++id)
            for (const char* arrangement : {"photobook", "calendar"})
                ++counts[kindBuiltFrom(QStringLiteral("<article arrangement='%1' id='%2'/>")
                                           .arg(QLatin1String(arrangement), QString::number(id)))];
        QCOMPARE(counts[QStringLiteral("print-fun 1")], 41);
        QCOMPARE(counts[QStringLiteral("print-fun 2")], 23);
        QCOMPARE(messages.size(), 20000 - 41 - 23);
    }

    void group_data()
    {
        QTest::addColumn<bool>("isAddOn");
        QTest::addColumn<int>("arrangement");
        QTest::addColumn<int>("shippingGroup");
        QTest::addColumn<QString>("salesline");
        QTest::addColumn<int>("expected");
        row("add-on before all", true, 1, 23, "3", 64);
        row("foto before shipping group", false, 1, 23, "3", 1);
        row("premium before shipping group", false, 1, 24, "4", 2);
        row("on site", false, 1, 23, "", 256);
        row("professional", false, 1, 24, "5", 512);
        row("poster", false, 1, 3, "", 4);
        row("sales line is exact", false, 1, -1, "3 ", 4);
        row("gift", false, 4, 23, "3", 32);
        row("card", false, 8, 24, "4", 32);
        row("book", false, 16, 23, "3", 8);
        row("calendar", false, 32, 0, "", 16);
        row("unknown", false, 0, 23, "3", 0);
        row("gift and card", false, 12, 0, "", 0);
    }

    void group()
    {
        QFETCH(bool, isAddOn);
        QFETCH(int, arrangement);
        QFETCH(int, shippingGroup);
        QFETCH(QString, salesline);
        const VelProductGroup group = VelProductGroupConverter::detectProductGroup(
            isAddOn, static_cast<VelProductArrangement>(arrangement), shippingGroup, salesline);
        QTEST(int(group.value()), "expected");
    }

    void bits()
    {
        QCOMPARE(splitEnumType(895), (QList<int>{1, 2, 4, 8, 16, 32, 64, 256, 512}));
        QCOMPARE(splitEnumType((1 << 30) + 2), (QList<int>{2, 1 << 30}));
        QCOMPARE(splitEnumType(0) + splitEnumType(-1), QList<int>());
    }

    void activeGroups()
    {
        const auto activeAfter = [](const char* theDocument) {
            VelProductRegistry::instance()->updateProducts(parsedElement(QString::fromUtf8(theDocument)));
            QList<int> values;
            for (const VelProductGroup& group : VelProductGroupManager::instance()->activeProductGroups())
                values.append(group.value());
            return values;
        };
        QCOMPARE(activeAfter("<p/>"), QList<int>());
        QCOMPARE(activeAfter("<p><articles><article id='1' arrangement='trivial'/>"
                             "<article id='2' arrangement='trivial' group='24'/></articles></p>"),
                 (QList<int>{4, 512}));
        QCOMPARE(activeAfter("<p/>"), (QList<int>{4, 512})); // deprecated products count
        QCOMPARE(activeAfter("<p><add_ons><add_on id='3' product_class='x'/></add_ons></p>"),
                 (QList<int>{1, 2, 4, 8, 16, 32, 64, 256, 512})); // one add-on makes all of them active
        QVERIFY(VelProductGroupManager::instance()->isActive(PRODUCT_GROUP_UNKNOWN));
    }
};

VEL_TEST_MAIN(TestProductFactory)
#include "tst_ProductFactory.moc"
