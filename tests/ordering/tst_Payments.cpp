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

/// Name, id, payment type, brand, icon and "!" for blockable of each item.
QString text(const QList<VelOrderingDetailItem*>& theItems)
{
    QStringList texts;
    for (const VelOrderingDetailItem* item : theItems)
        texts.append(item->name() + QString::asprintf(" %d/%d", item->id(), int(item->paymentType())) + item->brand() +
                     item->iconFilename() + (item->canBeBlockedForDefaultingUsers() ? "!" : ""));
    return texts.join("; ");
}

} // namespace

class PaymentsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir(myAccount.path()).mkpath("icons/payment"));
        myAccount.write("icons/payment/filenames.xml", R"(<icons>
            <method name='Bill' icon='old.png'/><Method name='Cash' icon='tag.png'/>
            <method name='Bill' icon='.png'/><method icon='nameless.png'/></icons>)");
        VelDirectoryConfig::instance()->setResourceDirectory(myAccount.path());
        load("");
        const MessageCatcher messages; // a bad file of icons is none, and goes without a message
        myAccount.write("cut.xml", "<r><method name='Bill' icon='cut'/></");
        QVERIFY(!details()->initIconNames(myAccount.path("cut.xml")) && !details()->initIconNames(QString()));
        QCOMPARE(messages.texts(), QStringList());
    }

    void items()
    {
        load(R"(<pay_methods><m id='5' name='five'/><m id='3' name='Bill' brand='B' blockable='true'/><x/>
            <m id='16'/><m id='-1'/><m id='1x' blockable='yes'/><m id='3' name='bill'/></pay_methods>
            <pay_methods><m id='2'/></pay_methods>
            <credit_cards><c id='5' name='Bill'/><c id='-7' name='Cash'/></credit_cards>
            <online_transfer_methods><t id='1' brand='T'/></online_transfer_methods>)");
        const QList<VelOrderingDetailItem*> items = *details()->detailsList(PAYMENT_CLASS_PAY_METHODS);
        const QString itemsText = "Bill 3/3B.png!;  0/0nameless.png;  0/0nameless.png; bill 3/3";
        QCOMPARE(text(items), itemsText);
        QCOMPARE(text(*details()->detailsList(PAYMENT_CLASS_CREDIT_CARDS)), "Bill 5/1.png; Cash -7/1");
        QCOMPARE(text(*details()->detailsList(PAYMENT_CLASS_ONLINE_TRANSFER_METHODS)), " 1/9Tnameless.png");
        load("");
        QVERIFY(details()->detailsList(PAYMENT_CLASS_PAY_METHODS)->isEmpty());
        QCOMPARE(text(items), itemsText); // items handed out before stay usable
    }

    void orderWays_data()
    {
        // The items count, although they stand behind.
        readTable(R"(
            content                                                                   | pos     | mail                   | onSite  | any
                                                                                      | 0       | 3 15 14 12 10 9 8 2 1  |         |
            <!-- any node forbids the default -->                                     |         |                        |         |
            <permitted_pay_method id='12'/><x id='2'/><permitted_pay_method id='-1'/> | 12 -1   | 12 -1                  | 12 -1   | 12 -1
            <permitted_pay_method id='2,3'/><permitted_pay_method id='0'/>            | 0 0     | 0 0                    | 0 0     | 0 0
        )");
    }

    void orderWays()
    {
        QByteArray items = "<m id='3'/>";
        for (int id = 64; id > -64; --id)
            items += "<m id='" + QByteArray::number(id == 3 ? 4 : id) + "'/>";
        const QString section =
            QString("<order_sources><w input_source='1' delivery_type='0'>%1</w><w input_source='1' delivery_type='1'>"
                    "%1</w><w input_source='4' delivery_type='2'>%1</w><w>%1</w></order_sources>")
                .arg(cell("content"));
        load(section.toUtf8() + "<pay_methods>" + items + "</pay_methods>");
        const auto payments = [](const VelOrderSource& theSource) {
            QStringList types;
            for (const VelPaymentType type : details()->availablePayments(theSource))
                types.append(QString::number(type));
            return types.join(' ');
        };
        QCOMPARE(payments(VelOrderSource::cdPointOfSale()), cell("pos"));
        QCOMPARE(payments(VelOrderSource::cdMailOrder()), cell("mail"));
        QCOMPARE(payments(VelOrderSource::kioskOnSite()), cell("onSite"));
        QCOMPARE(payments(VelOrderSource(INPUT_SOURCE_ANY, DELIVERY_TYPE_ANY)), cell("any"));
    }

    void startingPayment()
    {
        load("<order_sources><w input_source='0' delivery_type='1'><permitted_pay_method id='8'/>"
             "<permitted_pay_method id='2'/><permitted_pay_method id='-1'/></w></order_sources>");
        QCOMPARE(int(details()->reasonableStartingPayment(MAIL)), 8); // in document order, no ranking
        QCOMPARE(int(details()->reasonableStartingPayment(MAIL, PAYMENT_TYPE_2)), 2);
        QCOMPARE(int(details()->reasonableStartingPayment(MAIL, PAYMENT_TYPE_3)), 8);
        QCOMPARE(int(details()->reasonableStartingPayment(MAIL, PAYMENT_TYPE_UNKNOWN)), 8); // listed, but not preferred
        QCOMPARE(int(details()->reasonableStartingPayment(VelOrderSource::cdMailOrder(), PAYMENT_TYPE_2)), -1);
    }

    void namesOfPayments()
    {
        load(R"(<pay_methods><m id='3' name='Voucher'/><m id='9' name='Transfer'/><m id='1' name='Card'/>
            <m id='2' name='Debit' brand='D'/></pay_methods><online_transfer_methods><t name='Blitz'/>
            </online_transfer_methods><credit_cards><c name='Taler' brand='T'/><c id='9' name='Gold' brand='G'/>
            <c id='9' name='Later' brand='G'/></credit_cards><order_sources><w input_source='0' delivery_type='1'>
            <permitted_pay_method id='1'/><permitted_pay_method id='3'/></w></order_sources>)");
        QCOMPARE(text(details()->orderingDetails()),
                 "Voucher 3/3; Blitz 0/9; Taler 0/1T; Gold 9/1G; Later 9/1G; Debit 2/2D");
        QCOMPARE(text(details()->orderingDetails(MAIL)), "Voucher 3/3; Taler 0/1T; Gold 9/1G; Later 9/1G");
        // Cards are listed in place of their entry, transfer methods are not.
        QCOMPARE(details()->namesOfOrderingDetails().join(' '), "Voucher Transfer Taler Gold Later Debit");
        QCOMPARE(details()->nameOfPaymentType(MAIL, PAYMENT_TYPE_1, "G"), "Gold");
        QCOMPARE(details()->nameOfPaymentType(MAIL, PAYMENT_TYPE_3, ""), "Voucher"); // its brand is null
        QVERIFY(details()->nameOfPaymentType(MAIL, PAYMENT_TYPE_1, "g").isNull());
        QVERIFY(details()->nameOfPaymentType(MAIL, PAYMENT_TYPE_2, "D").isNull()); // this order way doesn't take it
        QCOMPARE(details()->nameOfOrderingDetail(PAYMENT_CLASS_CREDIT_CARDS, 9), "Gold");
        QCOMPARE(details()->nameOfOrderingDetail(PAYMENT_CLASS_ONLINE_TRANSFER_METHODS, 99), "OrderingDetail 2, 99");
    }

private:
    void load(const QByteArray& theSections) { myAccount.activateWithDetails("<o>" + theSections + "</o>"); }

    const TestAccount myAccount; ///< with the resources, too
};

VEL_TEST_MAIN(PaymentsTest)
#include "tst_Payments.moc"
