#include "ordering/VelCurrency.h"
#include "ordering/VelCurrencyConfig.h"
#include "sibling/VelDirectoryConfig.h"
#include "support/VelTestAccount.h"

#include <cstdio>

namespace {

/// Of the euro and of a franc that looks different in everything.
const char* const EURO_AND_FRANC = "<c><x isocode='EUR'/><x isocode='CHF'><symbol>CHF</symbol>"
                                   "<symbolHTML>Fr.</symbolHTML><decimalsep>.</decimalsep>"
                                   "<symbolinfront>1</symbolinfront><decimalplaces>1</decimalplaces></x></c>";

/// Makes an account of these documents the application's: currencies, "EUR+CHF" for those above, and a section of the
/// details.
void use(const TestAccount& theAccount, QString theCurrencies, const QString& theDetails)
{
    theAccount.write("currencies.xml", theCurrencies.replace("EUR+CHF", EURO_AND_FRANC).toUtf8());
    VelDirectoryConfig::instance()->setConfigurationDirectory(theAccount.path());
    theAccount.activateWithDetails("<o><currencies>" + theDetails.toUtf8() + "</currencies></o>");
}

/// The configuration lives once in a process, so other accounts are tried in child processes, which run this instead of
/// the tests: the texts of the account in the working directory on the standard output.
void printTexts()
{
    if (QCoreApplication::arguments().value(1) != "--print")
        return;
    VelDirectoryConfig::instance()->setConfigurationDirectory(QDir::currentPath());
    VelKeyAccount::instance()->activate(QDir::current());
    const VelCurrencyConfig* config = VelCurrencyConfig::instance();
    const QStringList texts{config->fullText(999, true, false, false), config->fullText(-999, true, false, true),
                            config->text(0, true), config->currencySymbol(true, true)};
    std::fputs(texts.join('/').toUtf8().constData(), stdout);
    std::exit(0);
}
Q_COREAPP_STARTUP_FUNCTION(printTexts)

} // namespace

class CurrencyTest : public QObject
{
    Q_OBJECT

private slots:
    void amounts_data()
    {
        // Of all places only two pad. An empty symbol prints as nothing, but the blank beside it stays.
        readTable(R"(
            row            | amount      | fields                               | expected
            not padded     | 110         | <symbol>$</symbol><decimalplaces>2,5</decimalplaces> | 1,10 &euro; or 1,10 $
            in front       | -109        | <symbolinfront> True </symbolinfront> | &euro; -1,09 or € -1,09
            below one unit | -5          | <symbolHTML/><symbolinfront/>        | -0,05  or -0,05 €
            no grouping    | 100000      | <symbolHTML>E</symbolHTML>           | 1000,00 E or 1000,00 €
            no place       | -50         | <decimalplaces>0</decimalplaces>     | -0 &euro; or -0 €
            one place: cut | 1299        | <decimalplaces> 1 </decimalplaces>   | 12,9 &euro; or 12,9 €
            three places   | 1205        | <decimalplaces>3</decimalplaces>     | 12,5 &euro; or 12,5 €
            least places   | 1234        | <decimalplaces>-2147483648</decimalplaces> | 12, &euro; or 12, €
            lowest amount  | -2147483648 | <decimalsep>: </decimalsep>        | -21474836: 48 &euro; or -21474836: 48 €
        )");
    }

    void amounts()
    {
        const VelCurrency currency(parsedElement("<any isocode='TST'>" + cell("fields") + "</any>"));
        const int amount = number("amount");
        QCOMPARE(currency.format(amount, true, true) + " or " + currency.format(amount, false, true), cell("expected"));
    }

    void accounts_data()
    {
        readTable(R"(
            row               | currencies | details                               | expected
            both              | EUR+CHF    | <c id='EUR'/><c id='CHF' factor='2'/> | 9,99 €/CHF -4.9/0.0/Fr.
            no secondary      | EUR+CHF    | <c id='CHF'/>                         | CHF 9.9/CHF -9.9/0.0/Fr.
            unknown secondary | EUR+CHF    | <c id='EUR'/><c id='XXX' factor='2'/> | 9,99 €/-4,99 €/0,00/&euro;
            unknown primary   | EUR+CHF    | <c id='XXX'/>                         | ///
            infinite factor   | EUR+CHF | <c id='EUR'/><c id='CHF' factor='0'/> | 9,99 €/CHF -21474836.4/-21474836.4/Fr.
            later of one code | <c><x/><y><symbol>E</symbol></y></c> | <c id=''/>  | 9,99 E/-9,99 E/0,00/&euro;
            none: the end     | <c><!-- --></c> |                                  |
        )");
    }

    void accounts()
    {
        const TestAccount account;
        use(account, cell("currencies"), cell("details"));
        QProcess child;
        child.setWorkingDirectory(account.path()); // so that nothing stays behind, although the child ends at once
        child.start(QCoreApplication::applicationFilePath(), {"--print"});
        QVERIFY(child.waitForFinished());
        QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()), cell("expected"));
        QCOMPARE(child.exitStatus(), cell("expected").isEmpty() ? QProcess::CrashExit : QProcess::NormalExit);
        const QByteArray fatal = "VelCurrencyConfig::VelCurrencyConfig() no currencies defined, building default entry";
        QCOMPARE(child.readAllStandardError().contains(fatal), cell("expected").isEmpty());
    }

    /// The currencies stay, with their looks; the factor is the new account's.
    void changeOfKeyAccount()
    {
        const TestAccount former;
        use(former, EURO_AND_FRANC, "<c id='EUR'/><c id='CHF' factor='2.0'/>");
        const VelCurrencyConfig* config = VelCurrencyConfig::instance();
        const TestAccount account;
        use(account, "<c><x isocode='JPY'/></c>", "<c id='CHF'/><c id='EUR' factor='0.5'/>");
        QCOMPARE(config->fullText(999, false, true, false), "9,99");
        QCOMPARE(config->fullText(999, true, true, true), "Fr. 19.9");
        QCOMPARE(config->currency(QString("CHF")), config->currency(true));
        const MessageCatcher messages;
        QVERIFY(!config->currency(QString("chf")));
        QVERIFY(VelCurrency(parsedElement("<c><isocode>EUR</isocode></c>")).isoCode().isNull()); // an attribute only
        const QStringList warnings{"unknown currency: 'chf'",
                                   "VelCurrency::VelCurrency found currency without isocode"};
        QCOMPARE(messages.texts(), warnings);
    }
};

VEL_TEST_MAIN(CurrencyTest)
#include "tst_Currency.moc"
