#include "ordering/VelCurrency.h"
#include "support/VelTestMain.h"

namespace {

VelCurrency currency(const QString& theFields)
{
    return VelCurrency(parsedElement(QStringLiteral("<any isocode='TST'>%1</any>").arg(theFields)));
}

QString fieldsOf(const VelCurrency& theCurrency)
{
    const QStringList texts{theCurrency.genericName(), theCurrency.symbol(), theCurrency.symbolHTML(),
                            theCurrency.decimalSep(), theCurrency.symbolInFront() ? "front" : "behind"};
    return texts.join('/') + '/' + QString::number(theCurrency.decimalPlaces());
}

} // namespace

class TestCurrency : public QObject
{
    Q_OBJECT

private slots:
    void amounts_data()
    {
        readTable(R"(
            row                      | amount      | places      | front | expected
            two places               | 1234        | 2           | 0     | 12,34 €
            in front                 | 1234        | 2           | 1     | € 12,34
            last padded              | 109         | 2           | 0     | 1,09 €
            first not padded         | 110         | 2           | 0     | 1,10 €
            negative below one unit  | -5          | 2           | 0     | -0,05 €
            negative in front        | -1234       | 2           | 1     | € -12,34
            no grouping              | 100000      | 2           | 0     | 1000,00 €
            no place: not rounded    | 99          | 0           | 0     | 0 €
            no place: sign stays     | -50         | 0           | 1     | € -0
            one place: not rounded   | 1299        | 1           | 0     | 12,9 €
            one place: not padded    | 1205        | 1           | 0     | 12,5 €
            one place: zero          | 1200        | 1           | 0     | 12,0 €
            three places: not padded | 1205        | 3           | 0     | 12,5 €
            most places              | 1234        | 2147483647  | 0     | 12,34 €
            least places             | 1234        | -2147483648 | 0     | 12, €
            largest                  | 2147483647  | 2           | 0     | 21474836,47 €
            most negative            | -2147483648 | 2           | 1     | € -21474836,48
        )");
    }

    void amounts()
    {
        const QString fields = "<decimalplaces>%1</decimalplaces><symbolinfront>%2</symbolinfront>";
        const VelCurrency euro = currency(fields.arg(cell("places"), cell("front")));
        QCOMPARE(euro.format(number("amount"), false, true), cell("expected"));
        QCOMPARE(euro.format(number("amount"), true, true), cell("expected").replace("€", "&euro;"));
        const QString bare = cell("expected").remove("€").trimmed();
        QCOMPARE(euro.format(number("amount"), false, false), bare);
        QCOMPARE(euro.format(number("amount"), true, false), bare);
    }

    void fields_data()
    {
        readTable(R"(
            row          | fields                                      | expected
            name         | <name>Dollar</name>                         | Dollar/€/&euro;/,/behind/2
            symbol       | <symbol>$</symbol>                          | Euro/$/&euro;/,/behind/2
            HTML symbol  | <symbolHTML>&amp;pound;</symbolHTML>        | Euro/€/&pound;/,/behind/2
            separator    | <decimalsep> :: </decimalsep>               | Euro/€/&euro;/ :: /behind/2
            in front     | <symbolinfront> True </symbolinfront>       | Euro/€/&euro;/,/front/2
            places       | <decimalplaces> 3 </decimalplaces>          | Euro/€/&euro;/,/behind/3
            all empty    | <name/><symbol/><symbolHTML/><decimalsep/><symbolinfront/><decimalplaces/> | ////behind/2
            no digits    | <decimalplaces>2,5</decimalplaces>          | Euro/€/&euro;/,/behind/2
            deeper       | <Name>a</Name><x><symbol>b</symbol></x>     | Euro/€/&euro;/,/behind/2
            first of two | <decimalsep>.</decimalsep><decimalsep>;</decimalsep> | Euro/€/&euro;/./behind/2
        )");
    }

    void fields() { QCOMPARE(fieldsOf(currency(cell("fields"))), cell("expected")); }

    void isoCode()
    {
        QCOMPARE(currency(QString()).isoCode(), "TST");
        const MessageCatcher messages;
        QVERIFY(VelCurrency(parsedElement("<c><isocode>EUR</isocode></c>")).isoCode().isNull()); // an attribute only
        const QString empty = VelCurrency(parsedElement("<c isocode=''/>")).isoCode();
        QVERIFY(empty.isEmpty() && !empty.isNull());
        QCOMPARE(fieldsOf(VelCurrency(QDomElement())), "Euro/€/&euro;/,/behind/2");
        const QString warning = "VelCurrency::VelCurrency found currency without isocode";
        QCOMPARE(messages.texts(), (QStringList{warning, warning, warning}));
    }

    /// An empty text prints as nothing, but the blank beside it stays.
    void emptyTexts()
    {
        const QString fields = "<symbol>kr</symbol><symbolHTML></symbolHTML>";
        QCOMPARE(currency(fields).format(1234, true, true), "12,34 ");
        QCOMPARE(currency(fields + "<symbolinfront>1</symbolinfront>").format(1234, true, true), " 12,34");
        const VelCurrency none = currency("<decimalplaces>0</decimalplaces>");
        QVERIFY(none.formatedSeparator().isEmpty() && !none.formatedSeparator().isNull());
        QVERIFY(none.formatedFraction(1234).isNull());
    }
};

VEL_TEST_MAIN(TestCurrency)
#include "tst_Currency.moc"
