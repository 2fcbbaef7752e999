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

} // namespace

class TestClientStrategyException : public QObject
{
    Q_OBJECT

private slots:
    void setValues_data()
    {
        readTable(R"(
            row       | tag | attributes | expected
            none      |     |            | 0[~] 0[~] 0 1 [~] 1
            empty     |     | userinsert_target='' password_target='' logindata_editing='' dns_mail_suffix='' show_agb_checkbox='' | 0[] 0[] 0 1 [] 1
            texts     |     | userinsert_target=' X@y ' password_target='http:' dns_mail_suffix='z,z' | 0[ X@y ] 0[http:] 0 1 [z,z] 1
            other     |     | userinsert_strategy='contact_email' password_strategy='goto_url' connect_strategy='t-online-sam' logindata_editing='false' show_agb_checkbox='0' | 4[~] 2[~] 1 0 [~] 0
            case      |     | userinsert_strategy=' SingleUse ' connect_strategy='BOL' | 6[~] 0[~] 2 1 [~] 1
            combined  |     | userinsert_strategy='unknown' password_strategy='3,contact_email,send_email' connect_strategy='bol, t-online-sam' | 0[~] 5[~] 3 1 [~] 1
            other tag | s   | connect_strategy='default' | 6[a] 5[b] 2 0 [c] 0
        )");
    }

    void setValues()
    {
        VelClientStrategyException record(FORGOTTEN_PASSWORD_SINGLEUSE, "a", FORGOTTEN_PASSWORD_NONE, "b",
                                          CONNECT_STRATEGY_BOL, false, "c", false);
        record.setValues(QDomElement()); // changes nothing
        QCOMPARE(text(record), "6[a] 5[b] 2 0 [c] 0");
        record.setValues(element(cell("attributes"), cell("tag")));
        QCOMPARE(text(record), cell("expected"));
        record.reset();
        QCOMPARE(text(record), "0[] 0[] 0 1 [] 1");
        QCOMPARE(text(VelClientStrategyException()), text(record));
    }

    void equality()
    {
        VelClientStrategyException plain;
        const auto isEqual = [&plain](const char* theAttributes) {
            VelClientStrategyException record;
            record.setValues(element(theAttributes));
            return (record == plain) != (record != plain) && record == plain && plain == record;
        };
        for (const char* same : {"", "userinsert_target='' password_target=''", "connect_strategy='x'"})
            QVERIFY2(isEqual(same), same); // null texts equal empty ones
        for (const char* different :
             {"userinsert_strategy='none'", "userinsert_target='t'", "password_strategy='none'", "password_target='t'",
              "connect_strategy='bol'", "logindata_editing='0'", "dns_mail_suffix='t'", "show_agb_checkbox='0'"})
            QVERIFY2(!isEqual(different), different);
    }

private:
    static QDomElement element(const QString& theAttributes, const QString& theTagEnd = QString())
    {
        return parsedElement(QStringLiteral("<client_strategy_exception%1 %2/>").arg(theTagEnd, theAttributes));
    }
};

VEL_TEST_MAIN(TestClientStrategyException)
#include "tst_ClientStrategyException.moc"
