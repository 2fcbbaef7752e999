#include "support/VelTestAccount.h"
#include "support/VelTestVelshop.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonDocument json(const QString& theArguments)
{
    return QJsonDocument::fromJson(velshop((theArguments + " --json").split(' ')).output);
}

} // namespace

/// The order desk from the outside: what it prints where, and its exit codes.
class VelshopTest : public QObject
{
    Q_OBJECT

private slots:
    void answers_data()
    {
        readTable(R"(
            row                     | arguments                        | expected
            below the threshold     | price 103 49                     | 7,35 €; level 0; band 0 to 49
            at the threshold        | price 103 50                     | 6,50 €; level 1; band 50 to 99
            package and rest        | price 131 120                    | 11,70 €; a package with 100 pieces; band from 101
            running offer           | price 203 10                     | 1,90 €; formerly 0,25 €
            words in any case       | price 142 2 --source cd          | CD, MAIL: 3,98 €
            kiosk delivers on site  | price 2302 25 --source KIOSK     | KIOSK, ONSITE
            the account's choice    | price 103 40 --account SMALL     | CD, MAIL: £ 6.40
            shop                    | shop                             | Starts with NET, MAIL, Rechnung; EUR Euro: 1234,56 €; CHF 1543.20; Nachnahme (cash-on-delivery.png); Requires: addressCheck, doi; Image exports: locr, gallery; up to date
            types                   | types                            | 24 to 96, step 8; A3; Familienplaner
            list                    | list                             | 10x15 glänzend; 1 Fotoabzüge; 0,15 €; ORDERABLE
            bands of a group        | bands 1                          | 50 to 99; 10x15 glänzend; 0,13 €
            composed book           | unit 9210 --pages 40 --videos 1 --template 12=3 | 40 pages: 20,12 €; 2 x page packages: 2,98 €; 1 x templates: 1,20 €; 1 x videos: 0,99 €
            list of a group         | list --group 31                  | 3101;  no
        )");
    }

    void answers()
    {
        const QString arguments = cell("arguments").replace("SMALL", VELTARM_SOURCE_DIR "/shop-small");
        const VelshopAnswer answer = velshop(arguments.split(' '));
        QCOMPARE(answer.errors, QByteArray());
        QCOMPARE(answer.exitCode, 0);
        for (const QString& text : cell("expected").split("; "))
            QVERIFY2(answer.output.contains(text.toUtf8()), answer.output);
    }

    void refusals_data()
    {
        readTable(R"(
            arguments                                   | exitCode | reason
            price 142 2                                 | 1        | no price
            price 987654 1                              | 2        | no article 987654
            price 103 0                                 | 2        | COUNT
            price 103 2147483648                        | 2        | COUNT
            price 103 2147483647                        | 2        | beyond
            price 103 1,5                               | 2        | "1,5"
            price poster 1                              | 2        | "poster"
            price 103                                   | 2        | price takes 2
            list 103                                    | 2        | list takes 0
            price 103 1 --source FAX                    | 2        | "FAX"
            price 103 1 --delivery BOAT                 | 2        | "BOAT"
            price 2302 1 --source KIOSK --delivery MAIL | 2        | go together
            price 103 1 --group 1                       | 2        | --group
            list --all                                  | 2        | all
            price 103 -1                                | 2        | behind
            bands 99                                    | 2        | 99
            unit 142 --pages 1                          | 1        | no price
            unit 9210                                   | 2        | --pages
            unit 9210 --pages 40 --template 12          | 2        | CLASS=N
            list --account=                             | 2        | no folder
            list --account /nonexistent                 | 2        | no such file
            list --group 77                             | 2        | 77
            list --language fr                          | 2        | "fr"
            sell                                        | 2        | "sell"
                                                        | 2        | no command
        )");
    }

    void refusals()
    {
        const VelshopAnswer answer = velshop(cell("arguments").split(' ', Qt::SkipEmptyParts));
        QCOMPARE(answer.exitCode, number("exitCode"));
        QCOMPARE(answer.output, QByteArray());
        QVERIFY2(answer.errors.startsWith("velshop: ") && answer.errors.contains(cell("reason").toUtf8()),
                 answer.errors);
        QCOMPARE(answer.errors.count('\n'), 1);
    }

    void unreadableDocuments_data()
    {
        readTable(R"(
            row                         | priceList    | details  | currencies     | place
            price list not XML          | <a> <b></a>  | <o/>     | <c><c isocode='EUR'/></c> | pricelist.xml, line 1, column
            price list empty            |              | <o/>     | <c><c isocode='EUR'/></c> | pricelist.xml, line 1, column
            ordering details cut off    | <p/>         | <a><b>   | <c><c isocode='EUR'/></c> | orderingdetails.xml, line 1, column
            no currencies               | <p/>         | <o/>     | <currencies/>  | currencies.xml, line 1, column
            currencies not XML          | <p/>         | <o/>     | EUR            | currencies.xml, line 1, column
            currency of the shop missing | <p/>        | <o><currencies><c id='DKK'/></currencies></o> | <c><c isocode='EUR'/></c> | currency DKK
        )");
    }

    void unreadableDocuments()
    {
        const TestAccount account;
        account.write("pricelist.xml", cell("priceList").toUtf8());
        account.write("orderingdetails.xml", cell("details").toUtf8());
        account.write("currencies.xml", cell("currencies").toUtf8());
        const VelshopAnswer answer = velshop({"list", "--account", account.path()});
        QCOMPARE(answer.exitCode, 2);
        QVERIFY2(answer.errors.contains(cell("place").toUtf8()), answer.errors);
        QCOMPARE(answer.errors.count('\n'), 1);
    }

    void asJson()
    {
        const QJsonArray articles = json("list --group 23").array();
        QVERIFY(!articles.isEmpty());
        for (const QJsonValue& article : articles)
            QCOMPARE(article["group"].toInt(), 23);

        const QJsonDocument price = json("price 131 120");
        QCOMPARE(price["amount"].toInt(), 1170);
        const QJsonObject rest = price["lines"][1].toObject();
        QCOMPARE(rest["amount"].toInt(), 180);
        QCOMPARE(rest["from"].toInt(), 101);
        QVERIFY(!rest.contains("to"));
        QVERIFY(json("price 142 1")["amount"].isNull());
        QCOMPARE(velshop({"price", "142", "1", "--json"}).exitCode, 1);

        const QJsonDocument shop = json("shop");
        QCOMPARE(shop["orderWays"].toArray().size(), 5);
        QCOMPARE(shop["currencies"].toArray().size(), 2);
        QCOMPARE(shop["start"]["type"].toInt(), 3);
        const QJsonObject ofTwoBooks = json("types")[2].toObject();
        QCOMPARE(ofTwoBooks["type"].toString(), "ALB8");
        QCOMPARE(ofTwoBooks["products"].toArray().size(), 2);
        QVERIFY(!ofTwoBooks.contains("pages")); // there is no one book that would tell
    }
};

VEL_TEST_MAIN(VelshopTest)
#include "tst_Velshop.moc"
