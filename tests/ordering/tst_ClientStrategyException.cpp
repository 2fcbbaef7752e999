#include "ordering/VelClientStrategyException.h"
#include "support/VelTestMain.h"

namespace {

/// All eight values, with "~" for a null text.
QString text(const VelClientStrategyException& theRecord)
{
    const auto shown = [](const QString& theText) { return theText.isNull() ? "~" : theText; };
    return QStringLiteral("%1[%2] %3[%4] %5 %6 [%7] %8")
        .arg(theRecord.userInsertStrategy())
        .arg(shown(theRecord.userInsertTarget()))
        .arg(theRecord.passwordStrategy())
        .arg(shown(theRecord.passwordTarget()))
        .arg(theRecord.connectStrategy())
        .arg(theRecord.loginDataEditingEnabled())
        .arg(shown(theRecord.dnsMailSuffix()))
        .arg(theRecord.showAGBCheckbox());
}

VelClientStrategyException departing()
{
    return VelClientStrategyException(FORGOTTEN_PASSWORD_SINGLEUSE, "a", FORGOTTEN_PASSWORD_NONE, "b",
                                      CONNECT_STRATEGY_BOL, false, "c", false);
}

} // namespace

class TestClientStrategyException : public QObject
{
    Q_OBJECT

private slots:
    void setValues_data()
    {
        QTest::addColumn<QString>("element");
        QTest::addColumn<QString>("expected"); // after departing()
        const auto row = [](const char* theName, const char* theAttributes, const char* theExpected) {
            QTest::newRow(theName) << QStringLiteral("<client_strategy_exception %1/>").arg(theAttributes)
                                   << theExpected;
        };
        row("none", "", "0[~] 0[~] 0 1 [~] 1");
        row("all",
            "userinsert_strategy='contact_email' userinsert_target=' X@y ' password_strategy='goto_url' "
            "password_target='http:' connect_strategy='t-online-sam' logindata_editing='false' dns_mail_suffix='z,z' "
            "show_agb_checkbox='0'",
            "4[ X@y ] 2[http:] 1 0 [z,z] 0");
        row("empty",
            "userinsert_strategy='' userinsert_target='' password_strategy='' password_target='' connect_strategy='' "
            "logindata_editing='' dns_mail_suffix='' show_agb_checkbox=''",
            "0[] 0[] 0 1 [] 1");
        row("case", "userinsert_strategy=' SingleUse ' password_strategy='SEND_EMAIL' connect_strategy='BOL'",
            "6[~] 1[~] 2 1 [~] 1");
        row("unknown and combined",
            "userinsert_strategy='unknown' password_strategy='3,contact_email,send_email' "
            "connect_strategy='bol, t-online-sam'",
            "0[~] 5[~] 3 1 [~] 1");
        const QString departed("6[a] 5[b] 2 0 [c] 0");
        QTest::newRow("other tag") << "<client_strategy_exceptions connect_strategy='default'/>" << departed;
        QTest::newRow("null element") << "" << departed;
    }

    void setValues()
    {
        QFETCH(QString, element);
        VelClientStrategyException record = departing();
        record.setValues(element.isEmpty() ? QDomElement() : parsedElement(element));
        QTEST(text(record), "expected");
        record.reset();
        QCOMPARE(text(record), QString("0[] 0[] 0 1 [] 1"));
        QCOMPARE(text(VelClientStrategyException()), text(record));
    }

    void equality()
    {
        VelClientStrategyException plain;
        const auto isEqual = [&plain](const char* theAttributes) {
            VelClientStrategyException record;
            record.setValues(parsedElement(QStringLiteral("<client_strategy_exception %1/>").arg(theAttributes)));
            return (record == plain) != (record != plain) && record == plain && plain == record;
        };
        for (const char* same : {"", "userinsert_target='' password_target=''", "connect_strategy='x'"})
            QVERIFY2(isEqual(same), same); // null texts equal empty ones
        for (const char* different :
             {"userinsert_strategy='none'", "userinsert_target='t'", "password_strategy='none'", "password_target='t'",
              "connect_strategy='bol'", "logindata_editing='0'", "dns_mail_suffix='t'", "show_agb_checkbox='0'"})
            QVERIFY2(!isEqual(different), different);
    }
};

VEL_TEST_MAIN(TestClientStrategyException)
#include "tst_ClientStrategyException.moc"
