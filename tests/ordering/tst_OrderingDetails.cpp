#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelKeyAccountFileTimeStampManager.h"
#include "support/VelTestAccount.h"

namespace {

VelOrderingDetails* details()
{
    return VelOrderingDetails::instance();
}

/// Primary, factor and, if there is one, secondary.
QString currencyText()
{
    return details()->currency() + '/' + QString::number(details()->secondaryCurrencyFactor()) +
           (details()->hasSecondaryCurrency() ? '/' + details()->secondaryCurrency() : "");
}

/// Those of the types 0 to 7 that are supported.
QString exportText()
{
    QString types;
    for (int type = 0; type <= 7; ++type)
        types += details()->supportsImageExport(VelImageExportTypeEnum(type)) ? QString::number(type) : QString();
    return types;
}

/// The questions about order ways that are answered by yes.
QString orderWayText()
{
    QStringList answers;
    const auto ask = [&](const char* theName, bool theAnswer) {
        answers += QStringList(theName).mid(theAnswer ? 0 : 1);
    };
    ask("permitsPOS", details()->keyAccountPermitsPOS());
    ask("netPOS", details()->canOnlinePointOfSale());
    ask("netMail", details()->canOnlineMailOrder());
    ask("cdPOS", details()->canCdPointOfSale());
    ask("cdMail", details()->canCdMailOrder());
    ask("kiosk", details()->canKioskOnSite());
    ask("net", details()->canAnyOnlineOrder());
    ask("POS", details()->canPointOfSale());
    ask("mail", details()->canMailOrder());
    ask("onlyCdPOS", details()->canOnlyCdPointOfSale());
    return answers.join(' ');
}

QString wordingText(int theModel)
{
    const auto model = static_cast<VelDiscountModel>(theModel);
    return details()->billPositionDescriptionEach(model) + "+" + details()->billPositionDescriptionPackage(model);
}

/// All that a reading replaces, and then what may survive it.
QString state()
{
    return details()->namesOfOrderingDetails().join(' ') +
           QString::asprintf("; %d%d%d; ", details()->requiresDOI(), details()->requiresAddressCheck(),
                             details()->requiresSalesTaxCheck()) +
           orderWayText() + "; " + VelTarmShippingGroupManager::instance()->shippingGroupName(1) + "; export " +
           exportText() + "; " + currencyText() + "; " + wordingText(DISCOUNT_MODEL_BULK);
}

const QByteArray ALPHA = R"(<o><pay_methods><m id='3' name='Bill'/></pay_methods><doi>true</doi><sales_tax>1</sales_tax>
    <order_sources><w input_source='0' delivery_type='1'/></order_sources>
    <discount_types><d id='B' single_description='a %1' group_description='ag %1 %2'/></discount_types>
    <currencies><c id='USD'/><c id='CHF' factor='2.0'/></currencies><groups><group id='1' name='Alpha'/></groups>
    <client_strategy_exceptions><client_strategy_exception connect_strategy='t-online-sam'/>
    </client_strategy_exceptions><image_exports><image_export type='toi,gallery,x'/></image_exports></o>)";
const QByteArray BETA = R"(<o><pay_methods><m id='0' name='Cash'/></pay_methods><address_check>true</address_check>
    <sales_tax>1</sales_tax><order_sources><w input_source='1' delivery_type='0'/></order_sources>
    <discount_types><d id='P'/></discount_types><groups><group id='1' name='Beta'/></groups><image_exports>
    <image_export/><image_export type='Gallery'/><other type='locr'/></image_exports></o>)";

const char* const WRONG_TAG = "VelTarmShippingGroup::parseShippingGroup(const QDomElement &), Tag name is not group";

} // namespace

/// The store lives as long as the program, and some of its content survives a reading: the tests stand in order.
class OrderingDetailsTest : public QObject
{
    Q_OBJECT

private slots:
    void changeOfKeyAccount()
    {
        myAccount.write("pricelist.xml", "<p/>");
        load("<o/>");
        QCOMPARE(state(), "; 000; ; ; export ; EUR/1; +%1-Stück-Paket %2");
        QSignalSpy changed(details(), &VelOrderingDetails::changed);
        load(ALPHA); // the list is an export of its own, and the connection implies another one
        QCOMPARE(state(), "Bill; 101; netMail net mail; Alpha; export 26; USD/0.5/CHF; a %1+ag %1 %2");
        load(BETA); // the currencies and the wording are Alpha's
        QCOMPARE(state(), "Cash; 011; permitsPOS cdPOS POS onlyCdPOS; Beta; export 4; USD/0.5/CHF; a %1+ag %1 %2");
        load("<deeper>" + ALPHA + "</deeper>");
        QCOMPARE(state(), "; 000; ; ; export ; USD/0.5/CHF; a %1+ag %1 %2");
        details()->update(); // with nothing changed
        QCOMPARE(changed.count(), 4);
    }

    void wordings()
    {
        load(R"(<o><discount_types><any id='l' single_description='s' group_description=''/>
            <any id='Q' group_description='unknown'/><any id='Z,L' group_description='5 OR 2'/></discount_types></o>)");
        QCOMPARE(wordingText(2), "s+");
        QCOMPARE(wordingText(9), "%1 Stück+unknown");
        QCOMPARE(wordingText(7), "%1 Stück+5 OR 2");
        load("<o><discount_types><any id='L'/></discount_types></o>");
        QCOMPARE(wordingText(2), "%1 Stück+%1-Stück-Paket %2");
    }

    void currencies_data()
    {
        // Read after USD and CHF at 2.0.
        readTable(R"(
            entries                                    | expected    | warning
            <!-- none -->                              | USD/0.5/CHF |
            <c id='NOK' factor='4'/><c id='SEK'/>      | SEK/1       |
            <c id='A'/><c id='B'/><c id='C' factor='4'/><c id='D' factor='5'/> | B/0.2/D |
            <c/><c factor='4'/>                        | EUR/0.25    |
            <c id=''/><c id='' factor='4'/>            | /0.25/      |
            <c id='N' factor='0,5%s'/>                 | USD/inf/N   | bad:0,5%s
            <c id='N' factor=''/>                      | USD/inf/N   | bad:
        )");
    }

    void currencies()
    {
        load("<o><currencies><c id='USD'/><c id='CHF' factor='2.0'/></currencies></o>");
        const MessageCatcher messages;
        load("<o><currencies>" + cell("entries").toUtf8() + "</currencies></o>");
        QCOMPARE(currencyText(), cell("expected"));
        const QString warning = "VelOrderingDetails::updateAvailabeCurrencies: Fehlerhafter Umrechnungsfaktor ";
        QCOMPARE(messages.texts().join('\n').replace(warning, "bad:"), cell("warning"));
    }

    void groups_data()
    {
        // Position in the document, id, transfer model, limit, name and last change.
        readTable(R"(
            groups                                                          | expected
            <group/>                                                        | 0: -1 -1 -1  1970-05-26T09:30:00
            <group id='4' name='n' transfer_model='2' max_order_items='50' last_change='0'/> | 0: 4 2 50 n
            <group id='four' transfer_model='1,2' max_order_items='1,5' last_change='1.3.2024'/> | 0: -1 3 -1
            <Group id='4' name='of another tag' max_order_items='5'/>       | 0: -1 -1 -1
            <group id='-5'/><group id='7' last_change='0'/>                 | 1: 7 -1 -1
            <group id='7'/><group id='9' last_change='0'/><group id='7' last_change='0'/> | 1: 9 -1 -1  ;2: 7 -1 -1
        )");
    }

    void groups()
    {
        VelKeyAccount::instance()->setShippingGroupEnabled(-1, true);
        const VelTarmShippingGroupManager* manager = VelTarmShippingGroupManager::instance();
        const MessageCatcher messages;
        load("<o><groups>" + cell("groups").toUtf8() + "</groups></o>");
        QStringList texts;
        for (const VelTarmShippingGroup* group : manager->shippingGroups())
            texts.append(QString::asprintf("%d: %d %d %d ", group->priceListTabPosition(), group->id(),
                                           manager->transferModel(group->id()), manager->maxOrderItems(group->id())) +
                         group->name() + ' ' + group->lastChange().toString(Qt::ISODate));
        QCOMPARE(texts.join(";").trimmed(), cell("expected"));
        QCOMPARE(messages.texts().join('\n'), cell("groups").startsWith("<G") ? WRONG_TAG : "");
        QCOMPARE(int(manager->transferModel(99)) + manager->maxOrderItems(99), -2);
        const VelTarmShippingGroup* former = manager->shippingGroups().first();
        load("<o/>");
        QVERIFY(cell("expected").startsWith(QString::number(former->priceListTabPosition()))); // stays usable
    }

    void priceListAge()
    {
        const auto needsUpdate = [](const char* theStamp) {
            const QDateTime stamp = QDateTime::fromString(theStamp, Qt::ISODate);
            VelKeyAccountFileTimeStampManager::instance()->setPricelistTimeStamp(stamp);
            return details()->priceListNeedsToBeUpdated();
        };
        load(R"(<o><groups><group id='1'/><group id='2' last_change='2024-03-01T08:00:00'/>
            <group id='-9' last_change='2025-01-01T08:00:00'/><group id='4' last_change='bad'/></groups></o>)");
        QVERIFY(needsUpdate("2024-03-01T07:59:59"));
        QVERIFY(!needsUpdate("2024-03-01T08:00:00"));
        load("<o/>");
        QVERIFY(!needsUpdate("2000-01-01T00:00:00"));
        QVERIFY(needsUpdate("no time"));
    }

    /// The record through a row of readings, each of which starts from the one before.
    void strategies()
    {
        const auto recordAfter = [this](const QByteArray& theContent) {
            load("<o><client_strategy_exceptions>" + theContent + "</client_strategy_exceptions></o>");
            return details()->clientStrategyException();
        };
        const QByteArray first = "<client_strategy_exception userinsert_strategy=' SingleUse ' userinsert_target='a' "
                                 "password_strategy='3,contact_email' password_target='b' connect_strategy='BOL' "
                                 "logindata_editing='false' dns_mail_suffix='c' show_agb_checkbox='0'/>";
        const VelClientStrategyException all(FORGOTTEN_PASSWORD_SINGLEUSE, "a", FORGOTTEN_PASSWORD_CONTACT_EMAIL, "b",
                                             CONNECT_STRATEGY_BOL, false, "c", false);
        QVERIFY(recordAfter(first + "<client_strategy_exception/>") == all);
        QVERIFY(recordAfter("<other/>") == all);
        const VelClientStrategyException none = recordAfter("<client_strategy_exception password_strategy='x'/>");
        QVERIFY(VelClientStrategyException() == none && none.dnsMailSuffix().isNull()); // null texts equal empty ones
        for (const char* attribute :
             {"userinsert_strategy='none'", "userinsert_target='t'", "password_strategy='none'", "password_target='t'",
              "connect_strategy='bol'", "logindata_editing='0'", "dns_mail_suffix='t'", "show_agb_checkbox='0'"})
            QVERIFY2(recordAfter(QByteArray("<client_strategy_exception ") + attribute + "/>") != none, attribute);
        load("<o>" + first + "</o>"); // not within its section
        QVERIFY(details()->clientStrategyException() == none);
    }

    void orderWays_data()
    {
        // An order way marked by "!" has no payments.
        readTable(R"(
            ways                              | number | can
            CD-POS                            | 1      | permitsPOS cdPOS POS onlyCdPOS
            CD-POS NET-POS                    | 2      | permitsPOS netPOS cdPOS net POS
            NET-MAIL CD-POS                   | 2      | permitsPOS netMail cdPOS net POS mail
            NET-POS! CD-MAIL!                 | 2      | permitsPOS
            NET-MAIL NET-MAIL!                | 1      |
            KIOSK-MAIL NET-ONSITE FAX-MAIL KIOSK-ONSITE | 1 |
        )");
    }

    void orderWays()
    {
        const QMap<QString, int> numbers{{"NET", 0}, {"CD", 1},   {"KIOSK", 4}, {"FAX", 7},
                                         {"POS", 0}, {"MAIL", 1}, {"ONSITE", 2}};
        QString section;
        for (const QString& way : cell("ways").split(' '))
            section += QStringLiteral("<w input_source='%1' delivery_type='%2'>%3</w>")
                           .arg(meaning(way.section('-', 0, 0), numbers))
                           .arg(meaning(way.section('-', 1).remove('!'), numbers))
                           .arg(way.endsWith('!') ? "x" : "<permitted_pay_method/>");
        load("<o><order_sources>" + section.toUtf8() + "</order_sources></o>");
        QCOMPARE(details()->numberOfOrderWays(), number("number"));
        QCOMPARE(orderWayText(), cell("can"));
        const VelOrderSource anyOfCd(INPUT_SOURCE_CD, DELIVERY_TYPE_UNKNOWN);
        QCOMPARE(details()->orderSourceEnabled(anyOfCd), details()->canCdMailOrder() || details()->canCdPointOfSale());
    }

    /// Enabled by the products of shipping group 23, without an order way and with any input source.
    void onSite()
    {
        VelProductRegistry::instance()->readProducts(
            parsedElement("<articles><article id='3' arrangement='trivial' group='23'/></articles>"));
        QVERIFY(details()->orderSourceEnabled(VelOrderSource(INPUT_SOURCE_UNKNOWN, DELIVERY_TYPE_ON_SITE)));
    }

private:
    void load(const QByteArray& theDocument) { myAccount.activateWithDetails(theDocument); }

    const TestAccount myAccount;
};

VEL_TEST_MAIN(OrderingDetailsTest)
#include "tst_OrderingDetails.moc"
