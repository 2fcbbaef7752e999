#include "support/VelTestAccount.h"
#include "support/VelTestVelshop.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// The order desk from the outside: what it prints where, and its exit codes.
class VelshopTest : public QObject
{
    Q_OBJECT

private slots:
    void answers_data()
    {
        readTable(R"(
            row                     | arguments                        | expected
            words in any case       | price 142 2 --source cd          | CD, MAIL: 3,98 €
            kiosk delivers on site  | price 2302 25 --source KIOSK     | KIOSK, ONSITE
            the account's choice    | price 103 40 --account SMALL     | CD, MAIL: £ 6.40
            shop                    | shop                             | Starts with NET, MAIL, Rechnung; EUR Euro: 1234,56 €; CHF 1543.20; Nachnahme (cash-on-delivery.png); Requires: addressCheck, doi; Image exports: locr, gallery; up to date
            types                   | types                            | 24 to 96, step 8; A3; Familienplaner
            composed book           | unit 9210 --pages 40 --videos 1 --template 12=3 | 40 pages: 20,12 €; 2 x page packages: 2,98 €; 1 x templates: 1,20 €; 1 x videos: 0,99 €
            in English              | bill shop/carts/small.json --language en | (Rechnung); Standard production and standard shipping
            list of a group         | list --group 31                  | 3101;  no
            fee                     | price 13041 5                    | 7,90 €; express fee, level 1
            bands of another source | bands 7 --source CD              | Versand Geschenke   by the products; 0 to 4  13071
            bands of a bill sum     | bands 5                          | bill from 50,00 €  11005
            map of gaps             | gaps --group 1                   | Indexprint zur CD  -        -         yes; Online-Übe…  yes
            list of another source  | list --source CD                 | BY CD, MAIL; 1,99 €    yes        yes
            why a package           | explain 131 80                   | 1 x 990; package: it wins at once; 21 more reach; pricelist.xml:340:56: price="990"
            why an inherited price  | explain 5002 6 --level 1 --all   | inherited discount, level 1: 13,74 €; type="I"; compared:
            why a fee costs that    | explain 13041 5                  | express 13041; 7,90 €; level 1, from 5; price="790"
            why a payment           | explain 12008 1                  | payment 12008; 5,90 €; price="590"
            what a voucher leaves   | explain tests/host/bills/voucher.json | 4055 of it is left; 4055 of it was left; 0 of it is left after this bill
            another way to order    | explain shop/carts/showcase.json --delivery POS --compare | payment 8 can't be chosen by NET, POS; payment 0 is taken; Versand Fotobücher (group 4); -5,95 €; not orderable
            a bill of another way   | bill shop/carts/showcase.json --source CD --payment 3 --express 0 --no-coupon | Order by CD, MAIL; payment 3 (Rechnung); Standard
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

    /// The amounts add up, or the total is null and the explanation is there all the same.
    void explanationAsJson()
    {
        const VelshopAnswer priced = velshop({"explain", "shop/carts/showcase.json", "--json"});
        const QJsonObject json = QJsonDocument::fromJson(priced.output).object();
        int sum = 0;
        for (const QJsonValue& term : json["terms"].toArray())
            sum += term.toObject()["amount"].toInt();
        QCOMPARE(sum, json["total"].toInt(-1));
        const VelshopAnswer unpriced = velshop({"explain", "shop/carts/unpriced.json", "--json"});
        QCOMPARE(unpriced.exitCode, 1);
        const QJsonObject explanation = QJsonDocument::fromJson(unpriced.output).object();
        QVERIFY(explanation["total"].isNull());
        QCOMPARE(explanation["terms"].toArray()[1].toObject()["needs"].toArray().size(), 2);
        const VelshopAnswer fee = velshop({"explain", "11007", "1"}); // by the products of an order
        QCOMPARE(fee.exitCode, 1);
        QVERIFY2(fee.output.contains("no price"), fee.output);
    }

    /// On a bill an article of that letter costs nothing; shipping costs what its first band says.
    void explainsWhatIsPriced()
    {
        const TestAccount account;
        account.write("pricelist.xml", R"(<p><articles><article id="7" name="Odd" group="1" arrangement="trivial">
            <discount_prices><price type="Z" level="1" quantity="1" price="500"/></discount_prices></article></articles>
            <transfers><transfer id="8" name="Post" group="1">
            <discount_prices><price type="Z" level="1" quantity="1" price="300"/></discount_prices></transfer></transfers>
            </p>)");
        account.write("orderingdetails.xml", "<o/>");
        QVERIFY(QFile::copy(VELTARM_SOURCE_DIR "/shop/currencies.xml", account.path("currencies.xml")));
        for (const char* article : {"7", "8"}) {
            const QStringList of{article, "5", "--json", "--account", account.path()};
            const auto answer = [&](const char* theCommand, const char* theKey) {
                return QJsonDocument::fromJson(velshop(QStringList{theCommand} + of).output).object().value(theKey);
            };
            QVERIFY(answer("price", "amount").isDouble());
            QCOMPARE(answer("explain", "total"), answer("price", "amount"));
        }
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
            price poster 1                              | 2        | "poster"
            price 103                                   | 2        | price takes 2
            price 103 1 --source FAX                    | 2        | "FAX"
            price 2302 1 --source KIOSK --delivery MAIL | 2        | go together
            price 103 1 --group 1                       | 2        | --group
            price 103 -5                                | 2        | COUNT must be 1 or more
            curve                                       | 2        | an article or --dips
            curve 103 --to 100001                       | 2        | 100000
            curve 103 --by weight                       | 2        | "weight"
            curve 11007                                 | 1        | charged by the products
            explain 103                                 | 2        | how many pieces
            explain 103 2147483647                      | 2        | beyond
            explain 103 1 --compare                     | 2        | go with a cart
            explain shop/carts/small.json --compare     | 2        | needs something
            explain shop/carts/small.json --compare --all --source CD | 2 | differences alone
            explain shop/carts/small.json --level 1     | 2        | goes with an article
            explain shop/carts/small.json --payment 77  | 2        | 77 can't be chosen
            explain shop/carts/small.json --express 7   | 2        | must be 0, 1 or 2
            price 11007 1                               | 1        | charged by the products
            price 11005 1 --source KIOSK                | 1        | no price
            gaps --group 77                             | 2        | no article is in the shipping group 77
            bands                                       | 2        | bands takes 1 argument behind
            bands 99                                    | 2        | 99
            unit 103 --pages 10                         | 2        | pages: belongs to books and calendars alone
            unit 9171 --pages 27                        | 2        | pages: must be from 26 to 98 in steps of 8, not 27
            unit 9171 --pages 26 --template ZZ=1        | 2        | templates.ZZ: the price list has no
            unit 9171 --pages 26 --maps 100001          | 2        | maps: must be a whole number
            unit 9210                                   | 2        | needs --pages
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
            ordering details cut off    | <p/>         | <a><b>   | <c><c isocode='EUR'/></c> | orderingdetails.xml, line 1, column
            no currencies               | <p/>         | <o/>     | <currencies/>  | currencies.xml, line 1, column
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

    /// The library's log says "line 0, column 0" of a file that is missing; a person is told the file alone.
    void missingDocument()
    {
        const TestAccount account;
        for (const char* file : {"pricelist.xml", "orderingdetails.xml", "currencies.xml"})
            QVERIFY(QFile::copy(QString(VELTARM_SOURCE_DIR "/shop/") + file, account.path(file)));
        const VelshopAnswer answer = velshop({"list", "--account", account.path()});
        QCOMPARE(answer.exitCode, 0);
        QVERIFY2(answer.errors.contains("appearance.xml: ") && !answer.errors.contains("line 0"), answer.errors);
    }

    void asJson()
    {
        for (const QJsonValue& article : velshopJson("list --group 23").array())
            QVERIFY(article["group"].toInt() == 23 &&
                    !article["orderableHere"].toBool(true)); // sold at the kiosk alone
        const QJsonDocument price = velshopJson("price 131 120");
        QCOMPARE(price["amount"].toInt(), 1170);
        const QJsonObject rest = price["lines"][1].toObject();
        QVERIFY(rest["amount"].toInt() == 180 && rest["from"].toInt() == 101 && !rest.contains("to"));
        QVERIFY(velshopJson("price 142 1")["amount"].isNull());
        const QJsonDocument unit = velshopJson("unit 9210 --pages 40 --videos 1 --template 12=3");
        QVERIFY(unit["unitPrice"].toInt() == 2012 && unit["parts"]["videos"]["price"].toInt() == 99);
        const QJsonDocument refused = velshopJson("bill none.json");
        QVERIFY(refused["file"].toString() == "none.json" && refused["line"].isNull() && refused["error"].isString());
        const QJsonDocument shop = velshopJson("shop");
        QVERIFY(shop["orderWays"].toArray().size() == 5 && shop["start"]["type"].toInt() == 3);
        const QJsonObject netMail{{"source", "NET"}, {"delivery", "MAIL"}};
        const QJsonValue band = velshopJson("bands 1")[0];
        for (const QJsonValue& answer : {price["orderSource"], unit["orderSource"], shop["start"]["orderSource"],
                                         velshopJson("list")[0]["orderSource"], band["orderSource"]})
            QCOMPARE(answer.toObject(), netMail);
        const QJsonObject cell{{"article", 142},        {"orderSource", netMail},
                               {"offered", true},       {"from", QJsonValue()},
                               {"holes", QJsonArray()}, {"reason", "no price by this order way"}};
        QVERIFY(velshopJson("gaps")["cells"].toArray().contains(cell));
        const QJsonObject fee{{"kind", "express"},       {"article", 13041},      {"group", 4},
                              {"payment", QJsonValue()}, {"express", "1"},        {"orderSource", netMail},
                              {"priced", true},          {"reason", QJsonValue()}};
        QVERIFY(velshopJson("gaps")["fees"].toArray().contains(fee));
        const QJsonObject ofTwoBooks = velshopJson("types")[2].toObject();
        QVERIFY(ofTwoBooks["products"].toArray().size() == 2 && !ofTwoBooks.contains("pages")); // which would it tell?
    }

    /// One page holds it all: conditions, ladders with their curves, fees, the map of gaps, what the audit says.
    void reportAsPage()
    {
        const TestAccount folder;
        const QString file = folder.path("report.html");
        QCOMPARE(velshop({"report", "--html", file}).exitCode, 0);
        const QByteArray page = fileContent(file);
        QVERIFY2(QDomDocument().setContent(page), page);
        for (const char* text :
             {"Fotohaus Lindenhof", "Orders start with NET, MAIL", "51 to 100: 9,90 €", "class=\"spark\"",
              "charged by the products of an order", "class=\"gaps\"", "no paymethod_fee names"})
            QVERIFY2(page.contains(text), text);
    }
};

VEL_TEST_MAIN(VelshopTest)
#include "tst_Velshop.moc"
