#include "ordering/VelCurrency.h"
#include "support/VelTestMain.h"

namespace {

const char* const NO_CODE = "VelCurrency::VelCurrency found currency without isocode";

VelCurrency currency(const QString& theFields)
{
    return VelCurrency(parsedElement(QStringLiteral("<any isocode='TST'>%1</any>").arg(theFields)));
}

QString fieldsOf(const VelCurrency& theCurrency)
{
    return QStringList{theCurrency.genericName(),
                       theCurrency.symbol(),
                       theCurrency.symbolHTML(),
                       theCurrency.decimalSep(),
                       theCurrency.symbolInFront() ? QStringLiteral("front") : QStringLiteral("behind"),
                       QString::number(theCurrency.decimalPlaces())}
        .join(QLatin1Char('|'));
}

} // namespace

class TestCurrency : public QObject
{
    Q_OBJECT

private slots:
    void amounts_data()
    {
        const bool behind = false;
        const bool inFront = true;
        QTest::addColumn<int>("amount");
        QTest::addColumn<int>("places");
        QTest::addColumn<bool>("symbolInFront");
        QTest::addColumn<QString>("expected");
        QTest::newRow("two places") << 1234 << 2 << behind << "12,34 €";
        QTest::newRow("in front") << 1234 << 2 << inFront << "€ 12,34";
        QTest::newRow("zero") << 0 << 2 << behind << "0,00 €";
        QTest::newRow("padded") << 5 << 2 << behind << "0,05 €";
        QTest::newRow("last padded") << 109 << 2 << behind << "1,09 €";
        QTest::newRow("first not padded") << 110 << 2 << behind << "1,10 €";
        QTest::newRow("negative below one unit") << -5 << 2 << behind << "-0,05 €";
        QTest::newRow("negative") << -1234 << 2 << behind << "-12,34 €";
        QTest::newRow("negative in front") << -1234 << 2 << inFront << "€ -12,34";
        QTest::newRow("no grouping") << 100000 << 2 << behind << "1000,00 €";
        QTest::newRow("no place") << 1234 << 0 << behind << "12 €";
        QTest::newRow("no place in front") << 1234 << 0 << inFront << "€ 12";
        QTest::newRow("no place: not rounded") << 99 << 0 << behind << "0 €";
        QTest::newRow("no place: sign stays") << -50 << 0 << behind << "-0 €";
        QTest::newRow("one place") << 1234 << 1 << behind << "12,3 €";
        QTest::newRow("one place: not rounded") << 1299 << 1 << behind << "12,9 €";
        QTest::newRow("one place: not padded") << 1205 << 1 << behind << "12,5 €";
        QTest::newRow("one place: zero") << 1200 << 1 << behind << "12,0 €";
        QTest::newRow("three places: not padded") << 1205 << 3 << behind << "12,5 €";
        QTest::newRow("three places") << 1234 << 3 << behind << "12,34 €";
        QTest::newRow("negative places") << 1234 << -1 << behind << "12, €";
        QTest::newRow("most places") << 1234 << 2147483647 << behind << "12,34 €";
        QTest::newRow("least places") << 1234 << std::numeric_limits<int>::min() << behind << "12, €";
        QTest::newRow("largest") << 2147483647 << 2 << behind << "21474836,47 €";
        QTest::newRow("most negative") << std::numeric_limits<int>::min() << 2 << inFront << "€ -21474836,48";
    }

    void amounts()
    {
        QFETCH(int, amount);
        QFETCH(int, places);
        QFETCH(bool, symbolInFront);
        QFETCH(QString, expected);
        const VelCurrency euro =
            currency(QStringLiteral("<decimalplaces>%1</decimalplaces><symbolinfront>%2</symbolinfront>")
                         .arg(places)
                         .arg(int(symbolInFront)));
        QCOMPARE(euro.format(amount, false, true), expected);
        QCOMPARE(euro.format(amount, true, true), QString(expected).replace(QStringLiteral("€"), "&euro;"));
        const QString bare = QString(expected).remove(QStringLiteral("€")).trimmed();
        QCOMPARE(euro.format(amount, false, false), bare);
        QCOMPARE(euro.format(amount, true, false), bare);
    }

    void fields_data()
    {
        QTest::addColumn<QString>("fields");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << ""
                              << "Euro|€|&euro;|,|behind|2";
        QTest::newRow("name") << "<name>Dollar</name>"
                              << "Dollar|€|&euro;|,|behind|2";
        QTest::newRow("symbol") << "<symbol>$</symbol>"
                                << "Euro|$|&euro;|,|behind|2";
        QTest::newRow("HTML symbol") << "<symbolHTML>&amp;pound;</symbolHTML>"
                                     << "Euro|€|&pound;|,|behind|2";
        QTest::newRow("separator") << "<decimalsep> :: </decimalsep>"
                                   << "Euro|€|&euro;| :: |behind|2";
        QTest::newRow("in front") << "<symbolinfront> True </symbolinfront>"
                                  << "Euro|€|&euro;|,|front|2";
        QTest::newRow("places") << "<decimalplaces> 3 </decimalplaces>"
                                << "Euro|€|&euro;|,|behind|3";
        QTest::newRow("all empty") << "<name/><symbol/><symbolHTML/><decimalsep/><symbolinfront/><decimalplaces/>"
                                   << "||||behind|2";
        QTest::newRow("malformed") << "<symbolinfront>yes</symbolinfront><decimalplaces>2,5</decimalplaces>"
                                   << "Euro|€|&euro;|,|behind|2";
        QTest::newRow("no int") << "<decimalplaces>2147483648</decimalplaces>"
                                << "Euro|€|&euro;|,|behind|2";
        QTest::newRow("other case, deeper, second") << "<Name>a</Name><x><symbol>b</symbol></x>"
                                                       "<decimalsep>.</decimalsep><decimalsep>;</decimalsep>"
                                                    << "Euro|€|&euro;|.|behind|2";
    }

    void fields()
    {
        QFETCH(QString, fields);
        QTEST(fieldsOf(currency(fields)), "expected");
    }

    void isoCode()
    {
        QCOMPARE(currency(QString()).isoCode(), QStringLiteral("TST"));
        QTest::ignoreMessage(QtWarningMsg, NO_CODE);
        QVERIFY(VelCurrency(parsedElement("<c><isocode>EUR</isocode></c>")).isoCode().isNull()); // an attribute only
        QTest::ignoreMessage(QtWarningMsg, NO_CODE);
        const QString empty = VelCurrency(parsedElement("<c isocode=''/>")).isoCode();
        QVERIFY(empty.isEmpty() && !empty.isNull());
        QTest::ignoreMessage(QtWarningMsg, NO_CODE);
        QCOMPARE(fieldsOf(VelCurrency(QDomElement())), QStringLiteral("Euro|€|&euro;|,|behind|2"));
    }

    /// An empty text prints as nothing, but the blank beside it stays.
    void emptySymbols()
    {
        const QString fields = "<symbol>kr</symbol><symbolHTML></symbolHTML>";
        QCOMPARE(currency(fields).format(1234, false, true), QStringLiteral("12,34 kr"));
        QCOMPARE(currency(fields).format(1234, true, true), QStringLiteral("12,34 "));
        QCOMPARE(currency(fields + "<symbolinfront>1</symbolinfront>").format(1234, true, true),
                 QStringLiteral(" 12,34"));
    }

    void separatorAndFraction()
    {
        const VelCurrency none = currency("<decimalplaces>0</decimalplaces>");
        QVERIFY(none.formatedSeparator().isEmpty() && !none.formatedSeparator().isNull());
        QVERIFY(none.formatedFraction(1234).isNull());
        const VelCurrency negative = currency("<decimalplaces>-1</decimalplaces>");
        QCOMPARE(negative.formatedSeparator(), QStringLiteral(","));
        QVERIFY(negative.formatedFraction(1234).isNull());
    }
};

VEL_TEST_MAIN(TestCurrency)
#include "tst_Currency.moc"
