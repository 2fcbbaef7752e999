#include "product/VelProduct.h"
#include "product/VelProductAddOn.h"
#include "product/VelProductFactory.h"
#include "product/VelProductGroupConverter.h"
#include "product/VelProductGroupManager.h"
#include "product/VelProductPrintFun.h"
#include "product/VelProductRegistry.h"
#include "support/VelTestMain.h"

namespace {

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

} // namespace

class TestProductFactory : public QObject
{
    Q_OBJECT

private slots:
    void build_data()
    {
        readTable(R"(
            row                     | element                                      | kind
            transfer                | <transfer arrangement='gift'/>               | plain 1024
            payment fee             | <paymethod_fee product_class='11'/>          | plain 1024
            express fee             | <express_fee/>                               | plain 1024
            add-on                  | <add_on product_class='x'/>                  | add-on 64
            add-on without class    | <add_on arrangement='gift'/>                 |
            add-on of empty class   | <add_on product_class=''/>                   |
            add-on 11               | <add_on product_class='11'/>                 |
            add-on 21               | <add_on product_class='21'/>                 |
            add-on 111              | <add_on product_class='111'/>                | add-on 64
            add-on 11 with a blank  | <add_on product_class=' 11'/>                | add-on 64
            other tag               | <bundle arrangement='gift' product_class='x'/> |
            tag in another case     | <Article arrangement='gift'/>                |
            trivial, any id         | <article arrangement='trivial' id='9181'/>   | foto 512
            card                    | <article arrangement='card'/>                | print-fun 8
            gift in any case        | <article arrangement=' GiFT '/>              | print-fun 4
            word twice, one unknown | <article arrangement='gift,x,gift'/>         | print-fun 4
            book                    | <article arrangement='photobook' id='9181'/> | print-fun 1
            calendar                | <article arrangement='calendar' id='8026'/>  | print-fun 2
        )");
    }

    void build()
    {
        const MessageCatcher messages;
        QCOMPARE(kindBuiltFrom(cell("element")), cell("kind"));
        QCOMPARE(messages.texts(), QStringList());
    }

    void refusal_data()
    {
        readTable(R"(
            attributes                           | message
            arrangement='Gift, card' name='N'    | arrangement: Gift, card; Produkt: N wird nicht unterstützt.
            name='N'                             | arrangement: ; Produkt: N wird nicht unterstützt.
            arrangement='%2' name='%1'           | arrangement: %2; Produkt: %1 wird nicht unterstützt.
            arrangement='CALENDAR' id='9181'     | article id: 9181; arrangement: CALENDAR; Produkt:  wird nicht unterstützt: Kalender ist nicht im Regulärenausdruck enthalten!
            arrangement='photobook' id=' 9181'   | article id:  9181; arrangement: photobook; Produkt:  wird nicht unterstützt: Fotobuch ist nicht im Regulärenausdruck enthalten!
            arrangement='photobook' id='09181'   | article id: 09181; arrangement: photobook; Produkt:  wird nicht unterstützt: Fotobuch ist nicht im Regulärenausdruck enthalten!
        )");
    }

    void refusal()
    {
        const MessageCatcher messages;
        QVERIFY(kindBuiltFrom(QStringLiteral("<article %1/>").arg(cell("attributes"))).isEmpty());
        const QString expected = "\"VelProductFactory::build() -- " + cell("message") + '"';
        QCOMPARE(messages.texts(), QStringList(expected));
    }

    void compiledInIds()
    {
        const MessageCatcher messages;
        QMap<QString, int> counts;
        for (int id = 0; id < 10000; ++id)
            for (const char* arrangement : {"photobook", "calendar"})
                ++counts[kindBuiltFrom(QStringLiteral("<article arrangement='%1' id='%2'/>").arg(arrangement).arg(id))];
        QCOMPARE(counts["print-fun 1"], 41);
        QCOMPARE(counts["print-fun 2"], 23);
        QCOMPARE(messages.texts().size(), 20000 - 41 - 23);
    }

    void group_data()
    {
        readTable(R"(
            row                          | isAddOn | arrangement | shippingGroup | salesline | group
            add-on before all            | yes     | 1           | 23            | 3         | 64
            foto before shipping group   | no      | 1           | 23            | 3         | 1
            premium before shipping group | no     | 1           | 24            | 4         | 2
            on site                      | no      | 1           | 23            |           | 256
            professional                 | no      | 1           | 24            | 5         | 512
            sales line is exact          | no      | 1           | -1            | 3~        | 4
            gift                         | no      | 4           | 23            | 3         | 32
            card                         | no      | 8           | 24            | 4         | 32
            book                         | no      | 16          | 23            | 3         | 8
            calendar                     | no      | 32          | 0             |           | 16
            unknown                      | no      | 0           | 23            | 3         | 0
            gift and card                | no      | 12          | 0             |           | 0
        )");
    }

    void group()
    {
        const auto arrangement = static_cast<VelProductArrangement>(number("arrangement"));
        const VelProductGroup group = VelProductGroupConverter::detectProductGroup(
            answer("isAddOn"), arrangement, number("shippingGroup"), cell("salesline").replace('~', ' '));
        QCOMPARE(int(group.value()), number("group"));
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
        const MessageCatcher messages; // there is no document at hand
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
