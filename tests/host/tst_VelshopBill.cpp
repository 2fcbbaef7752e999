#include "support/VelTestAccount.h"
#include "support/VelTestVelshop.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using Environment = QMap<QString, QString>;

VelshopAnswer bill(const QString& theCart, const QStringList& theOptions = {}, const Environment& theEnvironment = {})
{
    return velshop(QStringList{"bill", theCart} + theOptions, theEnvironment);
}

} // namespace

/// Bills from the outside: carts, coupons and what is refused, as text, page, JSON and description of discounts.
class VelshopBillTest : public QObject
{
    Q_OBJECT

private slots:
    /// The amounts of the fixtures were reckoned by hand from the price list.
    void bills_data()
    {
        readTable(R"(
            row      | cart                     | exitCode
            small    | shop/carts/small.json    | 0
            showcase | shop/carts/showcase.json | 0
            kiosk    | shop/carts/kiosk.json    | 0
            unpriced | shop/carts/unpriced.json | 1
            fees     | tests/host/bills/fees.json | 0
            voucher  | tests/host/bills/voucher.json | 0
        )");
    }

    void bills()
    {
        const VelshopAnswer answer = bill(cell("cart"), {"--order-text"});
        QCOMPARE(answer.exitCode, number("exitCode"));
        const QList<QByteArray> expected =
            fileContent(VELTARM_SOURCE_DIR "/tests/host/bills/" + cell("row") + ".txt").split('\n');
        const QList<QByteArray> lines = answer.output.split('\n');
        for (int index = 0; index < qMin(lines.size(), expected.size()); ++index)
            QCOMPARE(QString::fromUtf8(lines.at(index)), QString::fromUtf8(expected.at(index)));
        QCOMPARE(lines.size(), expected.size());
        QCOMPARE(answer.errors.isEmpty(), answer.exitCode == 0);
    }

    void refusedCarts_data()
    {
        readTable(R"(
            row                  | exitCode | place                     | cart
            a comma too many     | 2 | line 2, column 17                | {"items":\n[{"article":103,,"count":1}]}
            no object            | 2 | must be an object                | [1]
            empty items          | 2 | items: must be an array          | {"items":[]}
            misspelt key         | 2 | line 1, column 35: items[0].pieces: unknown | {"items":[{"article":103,"pieces":1}]}
            unknown article      | 2 | items[1].article: the price list has no article 9 | {"items":[{"article":103,"count":1},{"article":9,"count":1}]}
            count 0              | 2 | items[0].count                   | {"items":[{"article":103,"count":0}]}
            absurd count         | 2 | items[0].count                   | {"items":[{"article":103,"count":100001}]}
            count beyond an int  | 2 | items[0].count                   | {"items":[{"article":103,"count":1e300}]}
            count as text        | 2 | line 1, column 34: items[0].count: must be a whole number from 1 to 100000, not "2" | {"items":[{"article":103,"count":"2"}]}
            pages of a print     | 2 | items[0].pages: belongs          | {"items":[{"article":103,"count":1,"pages":8}]}
            pages between steps  | 2 | items[0].pages: must be from 26 to 98 in steps of 8 | {"items":[{"article":9171,"count":1,"pages":30}]}
            too many add-ons     | 2 | items[0].maps: the cart comes to | {"items":[{"article":9171,"count":100000,"maps":100000}]}
            amount beyond an int | 2 | amount of shipping group 7       | {"items":[{"article":7014,"count":100000},{"article":7015,"count":100000},{"article":7014,"count":100000},{"article":7015,"count":100000},{"article":7015,"count":100000},{"article":7015,"count":100000}]}
            unknown source       | 2 | source: must be                  | {"source":"FAX","delivery":"MAIL","items":[{"article":103,"count":1}]}
            source alone         | 2 | delivery                         | {"source":"NET","items":[{"article":103,"count":1}]}
            order way not sold   | 2 | takes no orders by KIOSK, MAIL   | {"source":"KIOSK","delivery":"MAIL","items":[{"article":103,"count":1}]}
            payment of others    | 2 | payment: 15                      | {"payment":15,"items":[{"article":103,"count":1}]}
            unknown express      | 2 | express                          | {"express":"3","items":[{"article":103,"count":1}]}
            coupon is a device   | 2 | coupon: /dev/zero: there is no   | {"coupon":"/dev/zero","couponId":"A","items":[{"article":103,"count":1}]}
            no coupon code       | 2 | line 1, column 1: couponId       | {"coupon":"none.xml","items":[{"article":103,"count":1}]}
            coupon beyond an int | 2 | amount of shipping group 1       | {"coupon":"dear.xml","couponId":"A","items":[{"article":103,"count":1}]}
            coupon not XML       | 2 | FOLDER/cart.json, line 1, column 1:     | {"coupon":"cart.json","couponId":"A","items":[{"article":103,"count":1}]}
            unknown template     | 2 | templates.ZZ: the price list has no | {"items":[{"article":9171,"count":1,"templates":{"ZZ":1}}]}
            beyond the limit     | 1 | 7 Wandbilder und Geschenke: 31 pieces, but at most 30 | {"items":[{"article":7001,"count":31}]}
            express without      | 1 | 9171 Fotobuch Classic A4: it can't be had by NET, POS as express 1 | {"source":"NET","delivery":"POS","express":"1","items":[{"article":9171,"count":1}]}
            group not sold       | 1 | 3101 13x18 Klassenfoto: the shop | {"items":[{"article":3101,"count":1}]}
            express not offered  | 1 | 13042 Blitz Bücher: no price by NET, POS | {"source":"NET","delivery":"POS","express":"2","items":[{"article":9171,"count":1}]}
        )");
    }

    void refusedCarts()
    {
        const TestAccount folder;
        folder.write("cart.json", cell("cart").replace("\\n", "\n").toUtf8());
        folder.write("dear.xml", "<a><coupons><coupon type='value' price='2147483647' campaign_no=''/></coupons></a>");
        const VelshopAnswer answer = bill(folder.path("cart.json"));
        const QString errors = QString::fromUtf8(answer.errors);
        QVERIFY2(errors.contains(cell("place").replace("FOLDER", folder.path())), qPrintable(errors));
        QVERIFY2(errors.startsWith("velshop: " + folder.path("cart.json")), qPrintable(errors));
        QCOMPARE(errors.count('\n'), 1);
        QCOMPARE(answer.exitCode, number("exitCode"));
        QCOMPARE(answer.output.contains("Order: NOT ORDERABLE"), answer.exitCode == 1);
    }

    void spoiltPrices_data()
    {
        readTable(R"(
            row                | price                          | spoilt   | item  | problem
            article            | price="15" input_source="0" delivery | price="15,00" input_source="0" delivery | 103x2 | 103 10x15 glänzend: no price by NET, MAIL
            level of a package | level="3" quantity="101" | level="4" quantity="101" | 131x120 | a package would have -1 pieces
            shipping           | "295"                          | "2,95"   | 103x2 | 11001 Versand Fotoabzüge: no price by NET, MAIL
            express            | "490"                          | "4,90"   | 9171x1 | 13041 Express Bücher: no price by NET, MAIL
            payment            | "95"                           | "0,95"   | 9171x1 | 12003 Rechnung: no price by NET, MAIL
        )");
    }

    /// A price that can't be read is none, and what has none isn't sold.
    void spoiltPrices()
    {
        const TestAccount account;
        for (const char* name : {"orderingdetails.xml", "currencies.xml", "appearance.xml"})
            account.write(name, fileContent(QString(VELTARM_SOURCE_DIR "/shop/") + name));
        QString list = fileContent(VELTARM_SOURCE_DIR "/shop/pricelist.xml");
        account.write("pricelist.xml", list.replace(cell("price"), cell("spoilt")).toUtf8());
        account.write("cart.json", QString(R"({"express":"%1","items":[{"article":%2,"count":%3}]})")
                                       .arg(cell("row") == "express" ? "1" : "0", cell("item").section('x', 0, 0),
                                            cell("item").section('x', 1))
                                       .toUtf8());
        const VelshopAnswer answer = bill(account.path("cart.json"),
                                          {"--account", account.path(), "--discounts", account.path("discounts.xml")});
        QCOMPARE(answer.exitCode, 1);
        QVERIFY2(answer.errors.contains(cell("problem").toUtf8()), answer.errors);
        QVERIFY(!QFileInfo::exists(account.path("discounts.xml")));
    }

    /// The desk says of what the library charges that it isn't sold, in lines that fit a terminal.
    void explainsASpoiltPrice()
    {
        const TestAccount account;
        account.write("orderingdetails.xml", "<o/>");
        account.write("currencies.xml", "<c><c isocode='EUR'/></c>");
        account.write("pricelist.xml", QString("<p><articles><article id='1' name='%1' arrangement='trivial'>"
                                               "<base_prices><p price='1,5' level='0' end_offer_date='2099-01-01'/>"
                                               "</base_prices></article></articles></p>")
                                           .arg(QString("long name ").repeated(9))
                                           .toUtf8());
        const VelshopAnswer answer = velshop({"explain", "1", "2", "--account", account.path()});
        QVERIFY2(answer.output.contains("not orderable: 1 long name"), answer.output + answer.errors);
        const QString beforePlaces = QString::fromUtf8(answer.output).section(account.path(), 0, 0);
        for (const QString& line : beforePlaces.split('\n'))
            QVERIFY2(line.size() <= 80, qUtf8Printable(line));
    }

    /// A kiosk that nothing is sold at takes no orders, and has no payment; bands show no price that can't be read.
    void refusedAsAWhole()
    {
        const TestAccount account;
        for (const char* name : {"currencies.xml", "appearance.xml"})
            account.write(name, fileContent(QString(VELTARM_SOURCE_DIR "/shop/") + name));
        account.write("orderingdetails.xml", "<o><groups><group id='1'/></groups><order_sources>"
                                             "<order_source input_source='4' delivery_type='2'/></order_sources></o>");
        account.write("pricelist.xml", "<p><articles><article id='1' group='1' arrangement='trivial'><base_prices>"
                                       "<p price='1,5'/></base_prices></article></articles></p>");
        account.write("cart.json", R"({"source":"KIOSK","delivery":"ONSITE","items":[{"article":1,"count":1}]})");
        const QString page = account.path("bill.html");
        const VelshopAnswer answer = bill(account.path("cart.json"), {"--account", account.path(), "--html", page});
        QVERIFY2(answer.output.contains("no payment") && answer.output.endsWith("takes no orders by KIOSK, ONSITE\n"),
                 answer.output);
        QVERIFY(fileContent(page).contains("<html") && !fileContent(page).contains("OrderingDetail"));
        QVERIFY(!velshop({"bands", "1", "--account", account.path()}).output.contains("-0,01"));
    }

    /// A cart is walked in the order of addresses, and tables are hashed: neither may show.
    void sameBytesInEveryProcess()
    {
        QByteArray first;
        for (int process = 0; process < 20; ++process) {
            const Environment noise = {{"QT_HASH_SEED", QString::number(process * 7919)},
                                       {"MALLOC_PERTURB_", QString::number(process * 13)},
                                       {"MALLOC_MMAP_THRESHOLD_", QString::number(64 << process % 10)},
                                       {"PADDING", QString(process * 3000, 'x')},
                                       {"LC_ALL", process % 2 == 0 ? "C" : "C.UTF-8"}};
            const TestAccount folder;
            const QString page = folder.path("bill.html");
            const QString discounts = folder.path("discounts.xml");
            const VelshopAnswer answer =
                bill("shop/carts/showcase.json", {"--html", page, "--discounts", discounts, "--order-text"}, noise);
            QCOMPARE(answer.exitCode, 0);
            const QByteArray all = answer.output + fileContent(page) + fileContent(discounts);
            if (first.isEmpty())
                first = all;
            QVERIFY2(all == first, all);
        }
    }

    void billAsPage_data()
    {
        readTable(R"(
            row        | cart                      | language | exitCode | texts
            in German  | shop/carts/small.json     | de | 0 | Fotohaus Lindenhof; <dd>per Post</dd>; <dd>Rechnung</dd>; 16,20 &#8364;; CHF 20.25; Zu zahlen; prefers-color-scheme: dark
            in English | shop/carts/showcase.json  | en | 0 | lang="en"; <dd>on the internet</dd>; <dd>Express</dd>; package of 100 pieces; delivery in 3–5 days; -7,78 &#8364;; To pay
            refused    | shop/carts/unpriced.json  | en | 1 | Index print for your CD: has no price for this way of ordering; This order can't be placed
        )");
    }

    /// A page for customers: in one language, with names where the desk has numbers and words of its own.
    void billAsPage()
    {
        const TestAccount folder;
        const QString file = folder.path("bill.html");
        QCOMPARE(bill(cell("cart"), {"--html", file, "--language", cell("language")}).exitCode, number("exitCode"));
        const QByteArray page = fileContent(file);
        QVERIFY2(QDomDocument().setContent(page), page);
        for (const QString& text : cell("texts").split("; "))
            QVERIFY2(page.contains(text.toUtf8()), qPrintable(text + "\n" + page));
        for (const char* jargon : {"NET", "MAIL", "level", "shipping group", "<script"})
            QVERIFY2(!page.contains(jargon), jargon);
        for (const char* german : {"Stück", "Betrag", "Lieferung", "Bestell"})
            QVERIFY(page.contains(german) == (cell("language") == "de"));
    }

    /// On a disk that is full the former file stays, and nothing half-written. A limit on the size of files stands for
    /// the full disk.
    void fullDisk()
    {
        const TestAccount folder;
        for (const char* option : {"--html", "--discounts"}) {
            const QString file = folder.path("out");
            folder.write("out", "former");
            QProcess shell;
            shell.setWorkingDirectory(VELTARM_SOURCE_DIR);
            shell.start("bash", {"-c", QString("ulimit -f 1; trap '' XFSZ; exec '%1' bill shop/carts/showcase.json %2 "
                                               "'%3' 2>&1 >/dev/null")
                                           .arg(VELSHOP_PROGRAM, option, file)});
            QVERIFY(shell.waitForFinished(60000));
            QCOMPARE(shell.exitCode(), 2);
            QVERIFY(shell.readAllStandardOutput().startsWith("velshop: " + file.toUtf8()));
            QCOMPARE(fileContent(file), QByteArray("former"));
            QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("out"));
        }
    }

    /// The scripts stand in a folder with a cart, a coupon, a cart that names it, and a key account.
    void files_data()
    {
        readTable(R"(
            row                  | exitCode | printed                  | script
            cart from a pipe     | 0 | CHF 20.25                       | velshop bill - < <(cat cart)
            cart from a fifo     | 0 | CHF 20.25                       | velshop bill <(cat cart)
            endless cart         | 2 | larger than                     | velshop bill /dev/zero
            cut off in the pipe  | 2 | standard input, line 2, column 2: | velshop bill - < <(head -c 4 cart)
            page into a pipe     | 0 | <!DOCTYPE                       | velshop bill cart --html >(cat >&2) >out; sleep 0.2
            page before the text | 0 | Order by                        | velshop bill cart --html /dev/stdout >out; sed -n '/<.html>/{n;p}' out
            full device          | 2 | /dev/full: No space left        | velshop bill cart --html /dev/full
            devices stay         | 0 | two devices                     | velshop bill cart --html /dev/null --discounts /dev/null >out; [ -c /dev/null ] && echo two devices
            page over the cart   | 2 | linked: is also an input (cart) | ln cart linked; velshop bill cart --html linked
            page over the stdin  | 2 | cart: is also an input (-)      | velshop bill - --html cart <cart
            over the coupon      | 2 | linked: is also an input        | ln -s coupon linked; velshop bill bought --discounts linked
            over the price list  | 2 | is also an input                | velshop bill cart --account shop --html shop/../shop/pricelist.xml
            page over discounts  | 2 | ./new: can't take two outputs   | ln -s new linked; velshop bill cart --html linked --discounts ./new
            completes a command  | 0 | >bands bill<                    | . <(velshop --bash-completion); COMP_WORDS=(velshop b) COMP_CWORD=1; _velshop; echo ">${COMPREPLY[*]}<"
            completes a choice   | 0 | >CD<                            | . <(velshop --bash-completion); COMP_WORDS=(velshop --account = x price --source C) COMP_CWORD=6; _velshop; echo ">${COMPREPLY[*]}<"
            schemas              | 0 | one/two/coupon.xsd              | velshop schema one/two >out; xmllint --noout one/two/coupon.xsd && cat out
            schemas into a file  | 2 | cart: the folder can't be made  | velshop schema cart
            manual               | 0 | .SS \fBlist                     | velshop --manual
            page over the answer | 2 | out: can't take two outputs     | velshop bill cart --html out >out
        )");
    }

    void files()
    {
        const TestAccount folder;
        folder.write("cart", fileContent(VELTARM_SOURCE_DIR "/shop/carts/small.json"));
        folder.write("coupon", fileContent(VELTARM_SOURCE_DIR "/shop/coupons/books10.xml"));
        folder.write("bought", R"({"coupon": "coupon", "couponId": "A", "items": [{"article": 103, "count": 1}]})");
        QProcess shell;
        shell.setProcessChannelMode(QProcess::MergedChannels);
        shell.setWorkingDirectory(folder.path());
        shell.start("bash", {"-c", QString("velshop() { '%1' \"$@\"; }; cp -r '%2/shop' .; %3")
                                       .arg(VELSHOP_PROGRAM, VELTARM_SOURCE_DIR, cell("script"))});
        QVERIFY(shell.waitForFinished(60000));
        const QByteArray printed = shell.readAll();
        QVERIFY2(printed.contains(cell("printed").toUtf8()), printed);
        QCOMPARE(shell.exitCode(), number("exitCode"));
    }

    void discounts()
    {
        const TestAccount folder;
        const QString file = folder.path("discounts.xml");
        QCOMPARE(bill("tests/host/bills/fees.json", {"--discounts", file}).exitCode, 0);
        const QByteArray written = fileContent(file);
        for (const char* text :
             {R"(<pieces count="100" discount_level="2" discount_type="P" price="0"/>)", // free of shipping: no prices
              R"(price="5990" transfer_base_price="690" transfer_unit_price="290"/>)",
              R"(<product id="11005" name="Versand Kalender">)"})
            QVERIFY2(written.contains(text), written);
        QCOMPARE(bill("shop/carts/unpriced.json", {"--discounts", file}).exitCode, 1);
        QCOMPARE(fileContent(file), written); // an order that can't be placed has no description
    }

    void billAsJson()
    {
        const QJsonDocument order = velshopJson("bill shop/carts/showcase.json");
        QCOMPARE(order["sums"]["total"].toInt(), 15380);
        QVERIFY(order["orderSource"]["source"].toString() == "NET" && order["payment"]["type"].toInt() == 8);
        const QJsonValue group = order["groups"][1];
        QCOMPARE(group["sums"]["coupon"].toInt(), -778);
        QCOMPARE(group["sums"]["CHF"]["total"].toString(), "CHF 158.81");
        QCOMPARE(group["lines"][1]["model"].toString(), "inherited discount");
        const QJsonValue coupon = velshopJson("bill tests/host/bills/voucher.json")["coupon"];
        QVERIFY(coupon["shares"][1]["amount"].toInt() == -4055 && coupon["left"].toInt(-1) == 0);
        const QJsonDocument unpriced = velshopJson("bill shop/carts/unpriced.json");
        const QJsonObject noPrice{{"kind", "noPrice"}, {"article", 142}};
        QCOMPARE(unpriced["groups"][0]["objections"].toArray(), QJsonArray{noPrice});
        QVERIFY(!unpriced["orderable"].toBool(true) && unpriced["sums"].isNull());
        QVERIFY(unpriced["groups"][0]["sums"].isNull() && unpriced["groups"][1]["sums"]["total"].toInt() == 3280);
    }
};

VEL_TEST_MAIN(VelshopBillTest)
#include "tst_VelshopBill.moc"
