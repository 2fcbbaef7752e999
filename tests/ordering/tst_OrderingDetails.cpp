#include "ordering/VelOrderingDetailItem.h"
#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelKeyAccountFileTimeStampManager.h"
#include "support/VelTestAccount.h"

namespace {

VelOrderingDetails* details()
{
    return VelOrderingDetails::instance();
}

/// Primary, secondary, factor; "~" for a null code.
QString currencyText()
{
    const auto code = [](const QString& theCode) { return theCode.isNull() ? "~" : theCode; };
    return QStringLiteral("%1 %2 %3")
        .arg(code(details()->currency()), code(details()->secondaryCurrency()))
        .arg(details()->secondaryCurrencyFactor());
}

/// Those of the types 1 to 7 that are supported.
QString exportText()
{
    QString types;
    for (int type = 1; type <= 7; ++type)
        if (details()->supportsImageExport(static_cast<VelImageExportTypeEnum>(type)))
            types += QString::number(type);
    return types;
}

/// The number of order ways, and the questions about them, counted from 0, that are answered by yes.
QString orderWayText()
{
    const bool answers[] = {details()->keyAccountPermitsPOS(), details()->canOnlinePointOfSale(),
                            details()->canOnlineMailOrder(),   details()->canCdPointOfSale(),
                            details()->canCdMailOrder(),       details()->canKioskOnSite(),
                            details()->canAnyOnlineOrder(),    details()->canPointOfSale(),
                            details()->canMailOrder(),         details()->canOnlyCdPointOfSale()};
    QString text = QString::number(details()->numberOfOrderWays()) + ":";
    for (int question = 0; question < 10; ++question)
        text += answers[question] ? QString::number(question) : QString();
    return text;
}

QString wordingText(VelDiscountModel theModel)
{
    return details()->billPositionDescriptionEach(theModel) + "|" + details()->billPositionDescriptionPackage(theModel);
}

/// All that a reading replaces, and then what may survive it.
QString state()
{
    return QStringLiteral("%1; %2%3%4; ")
               .arg(details()->namesOfOrderingDetails().join(' '))
               .arg(details()->requiresDOI())
               .arg(details()->requiresAddressCheck())
               .arg(details()->requiresSalesTaxCheck()) +
           QStringLiteral("%1; group %2; export %3; strategy %4; %5; %6")
               .arg(orderWayText(), VelTarmShippingGroupManager::instance()->shippingGroupName(1), exportText())
               .arg(details()->clientStrategyException().connectStrategy())
               .arg(currencyText(), wordingText(DISCOUNT_MODEL_BULK));
}

const QByteArray ALPHA = R"(<o><pay_methods><m id='3' name='Bill'/></pay_methods><doi>true</doi><sales_tax>1</sales_tax>
    <order_sources><w input_source='0' delivery_type='1'/></order_sources>
    <discount_types><d id='B' single_description='a %1' group_description='ag %1 %2'/></discount_types>
    <currencies><c id='USD'/><c id='CHF' factor='2.0'/></currencies><groups><group id='1' name='Alpha'/></groups>
    <client_strategy_exceptions><client_strategy_exception connect_strategy='bol'/></client_strategy_exceptions>
    <image_exports><image_export type='locr'/></image_exports></o>)";
const char* const ALPHA_STATE = "Bill; 101; 1:268; group Alpha; export 1; strategy 2; USD CHF 0.5; a %1|ag %1 %2";

const QByteArray BETA = R"(<o><pay_methods><m id='0' name='Cash'/></pay_methods><address_check>true</address_check>
    <sales_tax>1</sales_tax><order_sources><w input_source='1' delivery_type='0'/></order_sources>
    <discount_types><d id='P'/></discount_types><groups><group id='1' name='Beta'/></groups>
    <client_strategy_exceptions/><image_exports><image_export type='gallery'/></image_exports></o>)";
const char* const BETA_STATE = // the last three are Alpha's
    "Cash; 011; 1:0379; group Beta; export 4; strategy 2; USD CHF 0.5; a %1|ag %1 %2";

} // namespace

/// The store lives as long as the program, and some of its content survives a reading: the tests stand in order.
class TestOrderingDetails : public QObject
{
    Q_OBJECT

private slots:
    void withoutADocument()
    {
        const MessageCatcher messages; // of the two missing documents
        myAccount.activate();
        QCOMPARE(state(), "; 000; 0:; group ; export ; strategy 0; EUR ~ 1; |%1-Stück-Paket %2");
        myAccount.write("pricelist.xml", "<pricelist/>");
        QCOMPARE(messages.texts().size(), 2);
    }

    void keyAccountsToAndFro()
    {
        QSignalSpy changed(details(), &VelOrderingDetails::changed);
        load(ALPHA);
        QCOMPARE(state(), ALPHA_STATE);
        const VelOrderingDetailItem* bill = details()->orderingDetails().first();
        load(BETA);
        QCOMPARE(state(), BETA_STATE);
        load(ALPHA);
        QCOMPARE(state(), ALPHA_STATE);
        QCOMPARE(wordingText(DISCOUNT_MODEL_PACKAGE), "%1 Stück|%1-Stück-Paket %2"); // of Beta
        QVERIFY(details()->orderingDetails().first() != bill);
        QCOMPARE(bill->name(), "Bill");
        details()->update(); // with nothing changed
        QCOMPARE(changed.count(), 4);
        details()->updateImageExports(QDomElement()); // a section alone is no reading
        QCOMPARE(changed.count(), 4);
        QCOMPARE(exportText(), QString());
    }

    /// Whatever is wrong with the document, the reading goes through, and what it replaces is gone.
    void withoutSections()
    {
        for (const QByteArray& document :
             {QByteArray(), ALPHA.left(ALPHA.size() - 1), QByteArray("<o/>"), "<deeper>" + ALPHA + "</deeper>"}) {
            load(ALPHA);
            QSignalSpy changed(details(), &VelOrderingDetails::changed);
            const MessageCatcher messages;
            load(document);
            QCOMPARE(changed.count(), 1);
            QCOMPARE(state(), "; 000; 0:; group ; export ; strategy 0; USD CHF 0.5; a %1|ag %1 %2");
        }
    }

    void wordings_data()
    {
        readTable(R"(
            attributes                                 | model | expected
            id='l' single_description='s' group_description='g' | 2 | s+g
            id='L' single_description='' group_description='' | 2 | +
            id='L'                                     | 2     | %1 Stück+%1-Stück-Paket %2
            id='Q' group_description='unknown'         | 9     | %1 Stück+unknown
            group_description='no letter'              | 9     | %1 Stück+no letter
            id='Z,L' group_description='5 OR 2'        | 7     | %1 Stück+5 OR 2
            id='Z,L' group_description='neither of it' | 5     | +%1-Stück-Paket %2
        )");
    }

    void wordings()
    {
        load("<o><discount_types><any " + cell("attributes").toUtf8() + "/></discount_types></o>");
        QCOMPARE(wordingText(static_cast<VelDiscountModel>(number("model"))), cell("expected").replace('+', '|'));
    }

    void currencies_data()
    {
        // Read after USD and CHF at 2.0; with the factor of the warning, or "-" for no warning.
        readTable(R"(
            entries                                    | expected    | badFactor
            <!-- none -->                              | USD CHF 0.5 | -
            <c id='NOK' factor='0.8'/>                 | USD NOK 1.25 | -
            <c id='NOK' factor='4'/><c id='SEK'/>      | SEK ~ 1     | -
            <c id='A'/><c id='B'/><c id='C' factor='4'/><c id='D' factor='5'/> | B D 0.2 | -
            <c/><c factor='4'/>                        | EUR ~ 0.25  | -
            <c id=''/><c id='' factor='4'/>            | 0.25        | -
            <c id='N' factor='0,5'/>                   | USD N inf   | 0,5
            <c id='N' factor='%1%s'/>                  | USD N inf   | %1%s
            <c id='N' factor=''/>                      | USD N inf   |
            <c id='N' factor='-0'/>                    | USD N -inf  | -
        )");
    }

    void currencies()
    {
        load("<o><currencies><c id='USD'/><c id='CHF' factor='2.0'/></currencies></o>");
        const MessageCatcher messages;
        load("<o><currencies>" + cell("entries").toUtf8() + "</currencies></o>");
        QCOMPARE(currencyText().trimmed(), cell("expected"));
        QCOMPARE(details()->hasSecondaryCurrency(), !cell("expected").contains('~')); // an empty code is present
        const QString warning("VelOrderingDetails::updateAvailabeCurrencies: Fehlerhafter Umrechnungsfaktor ");
        QCOMPARE(messages.texts().join('\n'), cell("badFactor") == "-" ? QString() : warning + cell("badFactor"));
    }

    void priceListAge()
    {
        const auto needsUpdate = [](const char* theStamp) {
            const QDateTime stamp = QDateTime::fromString(theStamp, Qt::ISODate);
            VelKeyAccountFileTimeStampManager::instance()->setPricelistTimeStamp(stamp);
            return details()->priceListNeedsToBeUpdated();
        };
        load(R"(<o><groups><group id='1' last_change='2024-01-01T08:00:00'/>
            <group id='2' last_change='2024-03-01T08:00:00'/><group id='3' last_change='2024-02-01T08:00:00'/>
            <group id='-9' last_change='2025-01-01T08:00:00'/><group id='4' last_change='bad'/></groups></o>)");
        QCOMPARE(details()->lastChangeInPriceList().toString(Qt::ISODate), "2024-03-01T08:00:00");
        QVERIFY(needsUpdate("2024-03-01T07:59:59"));
        QVERIFY(!needsUpdate("2024-03-01T08:00:00"));
        QVERIFY(needsUpdate("no time"));
        load("<o/>");
        QVERIFY(details()->lastChangeInPriceList().isNull());
        QVERIFY(!needsUpdate("2000-01-01T00:00:00"));
        QVERIFY(needsUpdate("no time"));
    }

    /// The record through a row of readings, each of which starts from the one before.
    void strategies()
    {
        const auto suffixAfter = [this](const QByteArray& theContent) {
            load("<o><client_strategy_exceptions>" + theContent + "</client_strategy_exceptions></o>");
            return details()->clientStrategyException().dnsMailSuffix();
        };
        const QByteArray first = "<client_strategy_exception dns_mail_suffix='first' logindata_editing='0'/>";
        QCOMPARE(suffixAfter(first + "<client_strategy_exception dns_mail_suffix='2nd'/>"), "first");
        QCOMPARE(suffixAfter("<other dns_mail_suffix='other'/>"), "first");
        QVERIFY(!details()->clientStrategyException().loginDataEditingEnabled());
        QVERIFY(suffixAfter("<client_strategy_exception/>").isNull());
        suffixAfter(first);
        load("<o>" + first + "</o>"); // not within its section
        QVERIFY(details()->clientStrategyException() == VelClientStrategyException());
    }

    void imageExports()
    {
        const auto typesAfter = [this](const QByteArray& theEntries, const QByteArray& theOtherSection = "") {
            load("<o>" + theOtherSection + "<image_exports>" + theEntries + "</image_exports></o>");
            return exportText();
        };
        QCOMPARE(typesAfter("<image_export type='Gallery'/><image_export type=' toi '/>"), "24");
        QCOMPARE(typesAfter("<image_export/><image_export type='x'/><other type='toi'/>"), QString());
        QVERIFY(!details()->supportsImageExport(IMAGE_EXPORT_UNKOWN));
        const QByteArray list = "<image_export type='toi,gallery,x'/>"; // an entry of its own
        QCOMPARE(typesAfter(list), "6");
        const QByteArray impliesToi = "<client_strategy_exceptions><client_strategy_exception "
                                      "connect_strategy='t-online-sam'/></client_strategy_exceptions>";
        QCOMPARE(typesAfter(list, impliesToi), "26");
    }

    void orderWays_data()
    {
        // Input source, delivery type, and "x" for no payments.
        readTable(R"(
            ways        | expected | sources
            00          | 1:0167   | 0_0
            10          | 1:0379   | 1_0
            10 00       | 2:01367  | 0_0 1_0
            01 10       | 2:023678 | 0_1 1_0
            00x 11x     | 2:0      | 0_0 1_1
            01 01x      | 1:       | 0_1
            42          | 1:       | 4_2
            41 02 71 07 | 0:       |
        )");
    }

    void orderWays()
    {
        QString section;
        for (const QString& way : cell("ways").split(' '))
            section += QStringLiteral("<w input_source='%1' delivery_type='%2'>%3</w>")
                           .arg(way.at(0), way.at(1), way.endsWith('x') ? "x" : "<permitted_pay_method/>");
        load("<o><order_sources>" + section.toUtf8() + "</order_sources></o>");
        QTEST(orderWayText(), "expected");
        QStringList sources;
        for (const VelOrderSource& source : details()->availableOrderSources())
            sources.append(source.toSquishString());
        QTEST(sources.join(' '), "sources");
        const VelOrderSource anyOfCd(INPUT_SOURCE_CD, DELIVERY_TYPE_UNKNOWN);
        QCOMPARE(details()->orderSourceEnabled(anyOfCd), details()->canCdMailOrder() || details()->canCdPointOfSale());
    }

    /// Enabled by the products of shipping group 23, without an order way and with any input source.
    void onSite()
    {
        const auto enabledAfter = [](const char* theSection) {
            VelProductRegistry::instance()->readProducts(parsedElement(theSection));
            return details()->canKioskOnSite();
        };
        QVERIFY(!enabledAfter("<articles><article id='1' arrangement='trivial' group='22'/></articles>"));
        QVERIFY(!enabledAfter("<add_ons><add_on id='2' product_class='x' group='23'/></add_ons>"));
        QVERIFY(enabledAfter("<articles><article id='3' arrangement='trivial' group='23'/></articles>"));
        QVERIFY(details()->orderSourceEnabled(VelOrderSource(INPUT_SOURCE_UNKNOWN, DELIVERY_TYPE_ON_SITE)));
        QVERIFY(!details()->orderSourceEnabled(VelOrderSource(INPUT_SOURCE_KIOSK, DELIVERY_TYPE_UNKNOWN)));
    }

private:
    void load(const QByteArray& theDocument) { myAccount.activateWithDetails(theDocument); }

    const TestAccount myAccount;
};

VEL_TEST_MAIN(TestOrderingDetails)
#include "tst_OrderingDetails.moc"
