#include "frame/VelArithmetic.h"
#include "ordering/VelCurrency.h"
#include "ordering/VelCurrencyConfig.h"
#include "sibling/VelDirectoryConfig.h"
#include "support/VelTestAccount.h"

#include <cmath>
#include <cstdio>

namespace {

const int MOST_NEGATIVE = std::numeric_limits<int>::min();

/// Of the euro and of a franc that looks different in everything.
const char* const EURO_AND_FRANC = "<c><x isocode='EUR'/><x isocode='CHF'><symbol>CHF</symbol>"
                                   "<symbolHTML>Fr.</symbolHTML><decimalsep>.</decimalsep>"
                                   "<symbolinfront>1</symbolinfront><decimalplaces>1</decimalplaces></x></c>";

/// Makes an account of these documents, if there are any, the application's; the second one is a section of the
/// details.
void use(const TestAccount& theAccount, const QString& theCurrencies, const QString& theDetails)
{
    if (!theCurrencies.isEmpty())
        theAccount.write("currencies.xml", theCurrencies.toUtf8());
    VelDirectoryConfig::instance()->setConfigurationDirectory(theAccount.path());
    theAccount.activateWithDetails("<o><currencies>" + theDetails.toUtf8() + "</currencies></o>");
}

/// The configuration lives once in a process, so other accounts are tried in child processes, which run this instead of
/// the tests: the texts of the account of two documents on the standard output.
void printTexts()
{
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) != "--print")
        return;
    const TestAccount account;
    use(account, arguments.value(2), arguments.value(3));
    const VelCurrencyConfig* config = VelCurrencyConfig::instance();
    const QStringList texts{config->fullText(999, true, false, false), config->fullText(999, true, false, true),
                            config->fullText(-999, true, false, true), config->text(0, true),
                            config->currencySymbol(true, true)};
    std::fputs(texts.join('/').toUtf8().constData(), stdout);
    std::exit(0);
}
Q_COREAPP_STARTUP_FUNCTION(printTexts)

} // namespace

class TestCurrencyConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { use(myAccount, EURO_AND_FRANC, "<c id='EUR'/><c id='CHF' factor='2.0'/>"); }

    void flags()
    {
        const VelCurrencyConfig* config = VelCurrencyConfig::instance();
        QCOMPARE(config->fullText(1234, true, false, false), "12,34 €");
        QCOMPARE(config->fullText(1234, true, true, false), "12,34 &euro;");
        QCOMPARE(config->fullText(1234, false, true, false), "12,34");
        QCOMPARE(config->fullText(1234, true, true, true), "Fr. 6.1");
        QCOMPARE(config->text(1234, false), "12,34");
        QCOMPARE(config->currencySymbol(false, false), "€");
        QCOMPARE(config->currencySymbol(false, true), "CHF");
        QCOMPARE(config->currencySymbol(true, true), "Fr.");

        QCOMPARE(config->currency(QString("CHF")), config->currency(true));
        QCOMPARE(config->currency(QString("EUR")), config->currency(false));
        for (const QString& unknown : {QString("chf"), QString()}) {
            QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("unknown currency: '%1'").arg(unknown)));
            QVERIFY(!config->currency(unknown));
        }
    }

    /// Cut, not rounded: 500 would show as 5.0.
    void conversion()
    {
        const VelCurrencyConfig* config = VelCurrencyConfig::instance();
        QCOMPARE(config->text(999, true), "4.9");
        QCOMPARE(config->text(-999, true), "-4.9");
        QCOMPARE(config->text(-1, true), "0.0"); // no sign is left
        QCOMPARE(config->text(MOST_NEGATIVE, true), "-10737418.2");

        QCOMPARE(VelArithmetic::truncated(2147483647.9), 2147483647);
        QCOMPARE(VelArithmetic::truncated(2147483648.0), MOST_NEGATIVE);
        QCOMPARE(VelArithmetic::truncated(-2147483647.9), -2147483647);
        QCOMPARE(VelArithmetic::truncated(-1e300), MOST_NEGATIVE);
        QCOMPARE(VelArithmetic::truncated(std::nan("")), MOST_NEGATIVE);
    }

    void accounts_data()
    {
        readTable(R"(
            row                       | currencies     | details                           | expected
            none named                | EURO_AND_FRANC |                                   | 9,99 €/9,99 €/-9,99 €/0,00/&euro;
            no secondary              | EURO_AND_FRANC | <c id='CHF'/>                     | CHF 9.9/CHF 9.9/CHF -9.9/0.0/Fr.
            unknown secondary         | EURO_AND_FRANC | <c id='EUR'/><c id='XXX' factor='2'/> | 9,99 €/4,99 €/-4,99 €/0,00/&euro;
            unknown primary           | EURO_AND_FRANC | <c id='XXX'/>                     | ////
            only the secondary known  | EURO_AND_FRANC | <c id='XXX'/><c id='CHF' factor='2'/> | /CHF 4.9/CHF -4.9/0.0/Fr.
            negative factor           | EURO_AND_FRANC | <c id='EUR'/><c id='CHF' factor='-2'/> | 9,99 €/CHF -4.9/CHF 4.9/0.0/Fr.
            infinite factor           | EURO_AND_FRANC | <c id='EUR'/><c id='CHF' factor='0'/> | 9,99 €/CHF -21474836.4/CHF -21474836.4/-21474836.4/Fr.
            huge factor               | EURO_AND_FRANC | <c id='EUR'/><c id='CHF' factor='1e-7'/> | 9,99 €/CHF -21474836.4/CHF -21474836.4/0.0/Fr.
            later of one code         | <c><x isocode='EUR'/><y isocode='EUR'><symbol>E</symbol></y></c> | | 9,99 E/9,99 E/-9,99 E/0,00/&euro;
            empty code                | <c><x><symbol>E</symbol></x></c> | <c id=''/>      | 9,99 E/9,99 E/-9,99 E/0,00/&euro;
            no file: the program ends |                |                                   |
            no XML                    | <c><x isocode='EUR'/> |                            |
            no element                | <c><!-- none --></c>  |                            |
        )");
    }

    void accounts()
    {
        QProcess child;
        const QString currencies = cell("currencies").replace("EURO_AND_FRANC", EURO_AND_FRANC);
        child.start(QCoreApplication::applicationFilePath(), {"--print", currencies, cell("details")});
        QVERIFY(child.waitForFinished());
        QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()), cell("expected"));
        QCOMPARE(child.exitStatus(), cell("expected").isEmpty() ? QProcess::CrashExit : QProcess::NormalExit);
        const QByteArray fatal =
            "VelCurrencyConfig::VelCurrencyConfig() no currencies defined, building default entry\n";
        QCOMPARE(child.readAllStandardError().contains(fatal), cell("expected").isEmpty());
    }

    /// The currencies stay, with their looks; the factor is the new account's.
    void changeOfKeyAccount()
    {
        const VelCurrencyConfig* config = VelCurrencyConfig::instance();
        const TestAccount account;
        use(account, "<c><x isocode='JPY'/></c>", "<c id='CHF'/><c id='EUR' factor='0.5'/>");
        QCOMPARE(VelCurrencyConfig::instance(), config);
        QCOMPARE(config->fullText(999, true, false, false), "9,99 €");
        QCOMPARE(config->fullText(999, true, false, true), "CHF 19.9"); // 1998
        use(account, "<c><x isocode='JPY'/></c>", "<c id='JPY'/>");     // no secondary currency any more
        QCOMPARE(config->fullText(999, true, false, true), "CHF 9.9");
    }

private:
    const TestAccount myAccount;
};

VEL_TEST_MAIN(TestCurrencyConfig)
#include "tst_CurrencyConfig.moc"
