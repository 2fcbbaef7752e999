#include "ordering/VelOrderingDetailItem.h"
#include "ordering/VelOrderingDetails.h"
#include "sibling/VelDirectoryConfig.h"
#include "support/VelTestAccount.h"

namespace {

const VelOrderSource MAIL = VelOrderSource::onlineMailOrder();

VelOrderingDetails* details()
{
    return VelOrderingDetails::instance();
}

QString text(const QList<VelPaymentType>& theTypes)
{
    QStringList numbers;
    for (const VelPaymentType type : theTypes)
        numbers.append(QString::number(type));
    return numbers.join(' ');
}

/// Id, payment type, name, brand, icon and "blockable" of the class's items; "~" for a null text.
QString text(VelPaymentClass thePayClass)
{
    const auto shown = [](const QString& theText) { return theText.isNull() ? "~" : theText; };
    QStringList lines;
    for (const VelOrderingDetailItem* item : *details()->detailsList(thePayClass))
        lines.append(QStringLiteral("%1 %2 %3 %4 [%5]%6")
                         .arg(item->id())
                         .arg(item->paymentType())
                         .arg(shown(item->name()), shown(item->brand()), item->iconFilename())
                         .arg(item->canBeBlockedForDefaultingUsers() ? " blockable" : ""));
    return lines.join("; ");
}

QString names(const QList<VelOrderingDetailItem*>& theItems)
{
    QStringList names;
    for (const VelOrderingDetailItem* item : theItems)
        names.append(item->name());
    return names.join(' ');
}

} // namespace

class TestPayments : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir(myAccount.path()).mkpath("icons/payment"));
        myAccount.write("icons/payment/filenames.xml", R"(<icons>
            <method name='Bill' icon='old.png'/><Method name='Cash' icon='tag.png'/>
            <sub><method name='Cash' icon='deep.png'/></sub><method name='Bill' icon='bill.png'/>
            <method icon='nameless.png'/></icons>)");
        myAccount.write("pricelist.xml", "<p/>");
        VelDirectoryConfig::instance()->setResourceDirectory(myAccount.path());
        load("");
    }

    void items()
    {
        load(R"(<pay_methods>
            <m id='5' name='five'/><m id='3' name='Bill' brand='B' blockable='true'/><x/><m id='16'/><m id='-1'/>
            <m id='4'/><m id='1x' name='' brand='' blockable='yes'/><m id='3' name='bill'/></pay_methods>
            <pay_methods><m id='2'/></pay_methods>
            <credit_cards><c id='5' name='Bill'/><c id='-7' name='Cash'/></credit_cards>
            <online_transfer_methods><t id='1' brand='T'/></online_transfer_methods>)");
        QCOMPARE(text(PAYMENT_CLASS_PAY_METHODS), "3 3 Bill B [bill.png] blockable; 0 0 ~ ~ [nameless.png]; "
                                                  "0 0   [nameless.png]; 3 3 bill ~ []");
        QCOMPARE(text(PAYMENT_CLASS_CREDIT_CARDS), "5 1 Bill ~ [bill.png]; -7 1 Cash ~ []");
        QCOMPARE(text(PAYMENT_CLASS_ONLINE_TRANSFER_METHODS), "1 9 ~ T [nameless.png]");
        QCOMPARE(text(details()->availableMailOrderPaymentTypes()), "3 3");

        const QList<VelOrderingDetailItem*>* list = details()->detailsList(PAYMENT_CLASS_PAY_METHODS);
        const QList<VelOrderingDetailItem*> former = *list;
        load("<credit_cards><c id='1'/></credit_cards>");
        QCOMPARE(details()->detailsList(PAYMENT_CLASS_PAY_METHODS), list); // the list stays, its items change
        QVERIFY(list->isEmpty());
        QCOMPARE(text(PAYMENT_CLASS_CREDIT_CARDS), "1 1 ~ ~ [nameless.png]");
        QCOMPARE(former.first()->name(), "Bill"); // an item handed out before stays usable
    }

    void outOfRange()
    {
        QList<int> supported;
        for (int type = -70; type < 70; ++type)
            if (details()->isSupportedETPaymentType(type))
                supported.append(type);
        QCOMPARE(supported, QList<int>({0, 1, 2, 3, 8, 9, 10, 12, 14, 15}));
        const auto unknown = static_cast<VelPaymentClass>(3);
        QVERIFY(!details()->detailsList(unknown));
        QCOMPARE(details()->nameOfOrderingDetail(unknown, -1000), "OrderingDetail 3, -1000");
    }

    void orderWays_data()
    {
        // The payments of POS, mail order, on site and any. The items count, although they stand behind.
        readTable(R"(
            content                                         | payments
                                                            | 0/3 1 9//
            <!-- 2 -->                                      | ///
            <x><permitted_pay_method id='2'/></x>           | ///
            <permitted_pay_method id='12'/><x/><permitted_pay_method id='-1'/><permitted_pay_method id='12'/> | 12 -1 12/12 -1 12/12 -1 12/12 -1 12
            <permitted_pay_method id='2,3'/><permitted_pay_method id='99999999999'/> | 0 0/0 0/0 0/0 0
        )");
    }

    void orderWays()
    {
        load(QString("<order_sources><w input_source='1' delivery_type='0'>%1</w><w input_source='1' "
                     "delivery_type='1'>%1</w><w input_source='4' delivery_type='2'>%1</w><w>%1</w></order_sources>"
                     "<pay_methods><m id='3'/><m id='0'/><m id='1'/><m id='5'/><m id='9'/></pay_methods>"
                     "<credit_cards><c id='2'/></credit_cards>")
                 .arg(cell("content"))
                 .toUtf8());
        QStringList texts;
        for (const VelOrderSource& source :
             {VelOrderSource::cdPointOfSale(), VelOrderSource::cdMailOrder(), VelOrderSource::kioskOnSite(),
              VelOrderSource(INPUT_SOURCE_ANY, DELIVERY_TYPE_ANY)})
            texts.append(text(details()->availablePayments(source)));
        QCOMPARE(texts.join('/'), cell("payments"));
        QVERIFY(details()->availablePayments(MAIL).isEmpty());
    }

    void startingPayment()
    {
        const auto start = [this](const QByteArray& thePayments, int thePreferred) {
            load("<pay_methods><m id='0'/><m id='14'/><m id='10'/></pay_methods><order_sources><way input_source='0' "
                 "delivery_type='1'>" +
                 thePayments + "</way></order_sources>");
            return int(details()->reasonableStartingPayment(MAIL, static_cast<VelPaymentType>(thePreferred)));
        };
        const QByteArray two("<permitted_pay_method id='2'/>");
        const QByteArray unknown("<permitted_pay_method id='-1'/>");
        QCOMPARE(start("<permitted_pay_method id='8'/>" + two, 2), 2);
        QCOMPARE(int(details()->reasonableStartingPayment(MAIL)), 8);
        QCOMPARE(int(details()->reasonableStartingPayment(VelOrderSource::cdMailOrder(), PAYMENT_TYPE_8)), -1);
        QCOMPARE(start(two + unknown, 3), 2);
        QCOMPARE(start(two + unknown, -1), 2); // nobody prefers the unknown, though it is listed
        QCOMPARE(start(unknown + two, 3), -1);
        QCOMPARE(start("<none/>", 0), -1);
        QCOMPARE(start("", 0), 14); // in document order, no ranking
    }

    void namesOfPayments()
    {
        load(R"(<pay_methods><m id='3' name='Bill'/><m id='9' name='Transfer'/><m id='1' name='Card'/>
            <m id='2' name='Debit' brand='D'/></pay_methods>
            <credit_cards><c name='Taler' brand='T'/><c id='9' name='Gold' brand='G'/>
            <c id='9' name='Later' brand='G'/></credit_cards>
            <online_transfer_methods><t name='Blitz'/></online_transfer_methods>
            <order_sources><w input_source='0' delivery_type='1'><permitted_pay_method id='1'/>
            <permitted_pay_method id='3'/></w></order_sources>)");
        QCOMPARE(names(details()->orderingDetails()), "Bill Blitz Taler Gold Later Debit");
        QCOMPARE(names(details()->orderingDetails(MAIL)), "Bill Taler Gold Later");
        QVERIFY(details()->orderingDetails(VelOrderSource::cdMailOrder()).isEmpty());
        // Cards are listed in place of their entry, transfer methods are not.
        QCOMPARE(details()->namesOfOrderingDetails().join(' '), "Bill Transfer Taler Gold Later Debit");

        QCOMPARE(details()->nameOfPaymentType(MAIL, PAYMENT_TYPE_1, "G"), "Gold");
        QCOMPARE(details()->nameOfPaymentType(MAIL, PAYMENT_TYPE_3, ""), "Bill"); // its brand is null
        QVERIFY(details()->nameOfPaymentType(MAIL, PAYMENT_TYPE_1, "g").isNull());
        QVERIFY(details()->nameOfPaymentType(MAIL, PAYMENT_TYPE_2, "D").isNull()); // this order way doesn't take it

        QCOMPARE(details()->nameOfOrderingDetail(PAYMENT_CLASS_CREDIT_CARDS, 9), "Gold");
        QCOMPARE(details()->nameOfOrderingDetail(PAYMENT_CLASS_PAY_METHODS, 9), "Transfer");
        QCOMPARE(details()->nameOfOrderingDetail(PAYMENT_CLASS_ONLINE_TRANSFER_METHODS, 99), "OrderingDetail 2, 99");
    }

    void iconFile_data()
    {
        QTest::addColumn<QByteArray>("prologue");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("expected");
        const QByteArray none;
        const auto nested = [](int theLevels) {
            return QByteArray("<a>").repeated(theLevels) + QByteArray("</a>").repeated(theLevels);
        };
        QTest::newRow("Latin-1") << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?>") << QByteArray("\xe4")
                                 << true;
        QTest::newRow("document type, prefix") << QByteArray("<!DOCTYPE r SYSTEM 'd'>") << QByteArray("<x:y/>") << true;
        QTest::newRow("declaring type") << QByteArray("<!DOCTYPE r [<!ELEMENT r (a)>]>") << none << false;
        QTest::newRow("cut off") << none << QByteArray("</r") << false;
        QTest::newRow("deepest nesting") << none << nested(255) << true;
        QTest::newRow("too deep") << none << nested(256) << false;
    }

    /// A file is refused without a message and leaves the icons as they were; another one adds to them.
    void iconFile()
    {
        QFETCH(QByteArray, prologue);
        QFETCH(QByteArray, content);
        myAccount.write("before.xml", "<r><method name='Probe' icon='before'/></r>");
        myAccount.write("probe.xml", prologue + "<r><method name='Probe' icon='probe'/>" + content + "</r>");
        const MessageCatcher messages;
        QVERIFY(details()->initIconNames(myAccount.path("before.xml")));
        const bool isRead = details()->initIconNames(myAccount.path("probe.xml"));
        QTEST(isRead, "expected");
        QVERIFY(!details()->initIconNames(QString()) && !details()->initIconNames(myAccount.path()));
        QCOMPARE(messages.texts(), QStringList());
        load("<pay_methods><m name='Probe'/><m name='Bill'/></pay_methods>");
        QCOMPARE(text(PAYMENT_CLASS_PAY_METHODS),
                 QStringLiteral("0 0 Probe ~ [%1]; 0 0 Bill ~ [bill.png]").arg(isRead ? "probe" : "before"));
    }

private:
    void load(const QByteArray& theSections) { myAccount.activateWithDetails("<o>" + theSections + "</o>"); }

    const TestAccount myAccount; ///< with the resources, too
};

VEL_TEST_MAIN(TestPayments)
#include "tst_Payments.moc"
