#include "frame/VelArithmetic.h"
#include "ordering/VelCurrency.h"
#include "ordering/VelCurrencyConfig.h"
#include "ordering/VelOrderingDetails.h"
#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelKeyAccount.h"
#include "support/VelTestMain.h"

#include <cmath>
#include <cstdio>

namespace {

const int MOST_NEGATIVE = std::numeric_limits<int>::min();

const QString PRINT = QStringLiteral("--print");

const char* const EURO_AND_FRANC = "<c><x isocode='EUR'/><x isocode='CHF'><symbol>CHF</symbol>"
                                   "<symbolHTML>Fr.</symbolHTML><decimalsep>.</decimalsep>"
                                   "<symbolinfront>1</symbolinfront><decimalplaces>1</decimalplaces></x></c>";

void write(const QTemporaryDir& theAccount, const QString& theName, const QString& theContent)
{
    QFile file(theAccount.filePath(theName));
    if (!file.open(QIODevice::WriteOnly) || file.write(theContent.toUtf8()) < 0)
        qFatal("The test can't write its own file.");
}

/// The currencies of the ordering details: `<c id='EUR'/><c id='CHF' factor='2'/>`, for instance.
void writeDetails(const QTemporaryDir& theAccount, const QString& theCurrencies)
{
    write(theAccount, "orderingdetails.xml", QStringLiteral("<o><currencies>%1</currencies></o>").arg(theCurrencies));
}

void use(const QString& theAccount)
{
    VelDirectoryConfig::instance()->setConfigurationDirectory(theAccount);
    VelKeyAccount::instance()->activate(QDir(theAccount));
}

/// The configuration lives once in a process, so other accounts are tried in child processes, which run this instead of
/// the tests: the texts of one account on the standard output.
void printTexts()
{
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) != PRINT)
        return;
    use(arguments.value(2));
    const VelCurrencyConfig* config = VelCurrencyConfig::instance();
    const QStringList texts{config->fullText(999, true, false, false), config->fullText(999, true, false, true),
                            config->fullText(-999, true, false, true), config->text(0, true),
                            config->currencySymbol(true, true)};
    std::fputs(texts.join(QLatin1Char('|')).toUtf8().constData(), stdout);
    std::exit(0);
}
Q_COREAPP_STARTUP_FUNCTION(printTexts)

} // namespace

class TestCurrencyConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        write(myAccount, "currencies.xml", EURO_AND_FRANC);
        writeDetails(myAccount, "<c id='EUR'/><c id='CHF' factor='2.0'/>");
        use(myAccount.path());
    }

    void flags()
    {
        const VelCurrencyConfig* config = VelCurrencyConfig::instance();
        QCOMPARE(config->fullText(1234, true, false, false), QStringLiteral("12,34 €"));
        QCOMPARE(config->fullText(1234, true, true, false), QStringLiteral("12,34 &euro;"));
        QCOMPARE(config->fullText(1234, false, true, false), QStringLiteral("12,34"));
        QCOMPARE(config->fullText(1234, true, true, true), QStringLiteral("Fr. 6.1"));
        QCOMPARE(config->text(1234, false), QStringLiteral("12,34"));
        QCOMPARE(config->text(1234, true), QStringLiteral("6.1"));
        QCOMPARE(config->currencySymbol(false, false), QStringLiteral("€"));
        QCOMPARE(config->currencySymbol(false, true), QStringLiteral("CHF"));
        QCOMPARE(config->currencySymbol(true, true), QStringLiteral("Fr."));
    }

    /// Cut, not rounded: 500 would show as 5.0.
    void conversion()
    {
        const VelCurrencyConfig* config = VelCurrencyConfig::instance();
        QCOMPARE(config->text(999, true), QStringLiteral("4.9"));
        QCOMPARE(config->text(-999, true), QStringLiteral("-4.9"));
        QCOMPARE(config->text(1, true), QStringLiteral("0.0"));
        QCOMPARE(config->text(-1, true), QStringLiteral("0.0")); // no sign is left
        QCOMPARE(config->text(MOST_NEGATIVE, true), QStringLiteral("-10737418.2"));
    }

    void isoCodes()
    {
        const VelCurrencyConfig* config = VelCurrencyConfig::instance();
        QCOMPARE(config->currency(QStringLiteral("CHF")), config->currency(true));
        QCOMPARE(config->currency(QStringLiteral("EUR")), config->currency(false));
        QTest::ignoreMessage(QtWarningMsg, "unknown currency: 'chf'");
        QVERIFY(!config->currency(QStringLiteral("chf")));
        QTest::ignoreMessage(QtWarningMsg, "unknown currency: ''");
        QVERIFY(!config->currency(QString()));
    }

    void truncated()
    {
        QCOMPARE(VelArithmetic::truncated(2147483647.9), 2147483647);
        QCOMPARE(VelArithmetic::truncated(2147483648.0), MOST_NEGATIVE);
        QCOMPARE(VelArithmetic::truncated(-2147483647.9), -2147483647);
        QCOMPARE(VelArithmetic::truncated(-1e300), MOST_NEGATIVE);
        QCOMPARE(VelArithmetic::truncated(std::nan("")), MOST_NEGATIVE);
    }

    void accounts_data()
    {
        const QString nothing = "CHF -21474836.4|CHF -21474836.4|-21474836.4|Fr.";
        QTest::addColumn<QString>("currencies");
        QTest::addColumn<QString>("details");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none named") << EURO_AND_FRANC << ""
                                    << "9,99 €|9,99 €|-9,99 €|0,00|&euro;";
        QTest::newRow("no secondary") << EURO_AND_FRANC << "<c id='CHF'/>"
                                      << "CHF 9.9|CHF 9.9|CHF -9.9|0.0|Fr.";
        QTest::newRow("unknown secondary") << EURO_AND_FRANC << "<c id='EUR'/><c id='XXX' factor='2'/>"
                                           << "9,99 €|4,99 €|-4,99 €|0,00|&euro;";
        QTest::newRow("unknown primary") << EURO_AND_FRANC << "<c id='XXX'/>"
                                         << "||||";
        QTest::newRow("only the secondary known") << EURO_AND_FRANC << "<c id='XXX'/><c id='CHF' factor='2'/>"
                                                  << "|CHF 4.9|CHF -4.9|0.0|Fr.";
        QTest::newRow("negative factor") << EURO_AND_FRANC << "<c id='EUR'/><c id='CHF' factor='-2'/>"
                                         << "9,99 €|CHF -4.9|CHF 4.9|0.0|Fr.";
        QTest::newRow("infinite factor") << EURO_AND_FRANC << "<c id='EUR'/><c id='CHF' factor='0'/>"
                                         << "9,99 €|" + nothing;
        QTest::newRow("malformed factor") << EURO_AND_FRANC << "<c id='EUR'/><c id='CHF' factor='0,5'/>"
                                          << "9,99 €|" + nothing;
        QTest::newRow("huge factor") << EURO_AND_FRANC << "<c id='EUR'/><c id='CHF' factor='1e-7'/>"
                                     << "9,99 €|CHF -21474836.4|CHF -21474836.4|0.0|Fr.";
        QTest::newRow("later of one code") << "<c><x isocode='EUR'/><y isocode='EUR'><symbol>E</symbol></y></c>"
                                           << ""
                                           << "9,99 E|9,99 E|-9,99 E|0,00|&euro;";
        QTest::newRow("empty code") << "<c><x><symbol>E</symbol></x></c>"
                                    << "<c id=''/>"
                                    << "9,99 E|9,99 E|-9,99 E|0,00|&euro;";
    }

    void accounts()
    {
        QFETCH(QString, currencies);
        QFETCH(QString, details);
        const QTemporaryDir account;
        write(account, "currencies.xml", currencies);
        writeDetails(account, details);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {PRINT, account.path()});
        QVERIFY(child.waitForFinished());
        QTEST(QString::fromUtf8(child.readAllStandardOutput()), "expected");
        QCOMPARE(child.exitCode(), 0);
    }

    void withoutCurrencies_data()
    {
        QTest::addColumn<QString>("currencies");
        QTest::newRow("no file") << QString();
        QTest::newRow("no XML") << "<c><x isocode='EUR'/>";
        QTest::newRow("no element") << "<c><!-- none --></c>";
    }

    /// The program ends.
    void withoutCurrencies()
    {
        QFETCH(QString, currencies);
        const QTemporaryDir account;
        if (!currencies.isNull())
            write(account, "currencies.xml", currencies);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {PRINT, account.path()});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), QProcess::CrashExit);
        const QByteArray fatal =
            "VelCurrencyConfig::VelCurrencyConfig() no currencies defined, building default entry\n";
        const QByteArray messages = child.readAllStandardError();
        QVERIFY2(messages.contains(fatal), messages.constData());
    }

    /// The currencies stay, with their looks; the factor is the new account's.
    void changeOfKeyAccount()
    {
        const VelCurrencyConfig* config = VelCurrencyConfig::instance();
        const QTemporaryDir account;
        write(account, "currencies.xml", "<c><x isocode='JPY'/></c>");
        writeDetails(account, "<c id='CHF'/><c id='EUR' factor='0.5'/>");
        use(account.path());
        QCOMPARE(VelCurrencyConfig::instance(), config);
        QCOMPARE(config->fullText(999, true, false, false), QStringLiteral("9,99 €"));
        QCOMPARE(config->fullText(999, true, false, true), QStringLiteral("CHF 19.9")); // 1998

        writeDetails(account, "<c id='JPY'/>"); // no secondary currency any more
        use(account.path());
        QCOMPARE(config->fullText(999, true, false, true), QStringLiteral("CHF 9.9"));
    }

private:
    QTemporaryDir myAccount;
};

VEL_TEST_MAIN(TestCurrencyConfig)
#include "tst_CurrencyConfig.moc"
