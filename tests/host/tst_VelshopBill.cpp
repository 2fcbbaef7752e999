#include "support/VelTestAccount.h"
#include "support/VelTestVelshop.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

namespace {

using Environment = QMap<QString, QString>;

VelshopAnswer bill(const QString& theCart, const QStringList& theOptions = {}, const Environment& theEnvironment = {})
{
    return velshop(QStringList{"bill", theCart} + theOptions, theEnvironment);
}

QString source(const QString& theFile)
{
    return QStringLiteral(VELTARM_SOURCE_DIR "/") + theFile;
}

QByteArray content(const QString& theFile)
{
    QFile file(theFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file " + theFile.toUtf8();
}

} // namespace

/// The bill of a cart from the outside. The amounts of the fixtures were reckoned by hand from the price list.
class VelshopBillTest : public QObject
{
    Q_OBJECT

private slots:
    void fixtures_data()
    {
        readTable(R"(
            row      | cart                     | exitCode
            small    | shop/carts/small.json    | 0
            showcase | shop/carts/showcase.json | 0
            kiosk    | shop/carts/kiosk.json    | 0
            unpriced | shop/carts/unpriced.json | 1
            fees     | tests/host/bills/fees.json | 0
        )");
    }

    void fixtures()
    {
        const VelshopAnswer answer = bill(source(cell("cart")), {"--order-text"});
        QCOMPARE(answer.exitCode, number("exitCode"));
        const QList<QByteArray> expected = content(source("tests/host/bills/" + cell("row") + ".txt")).split('\n');
        const QList<QByteArray> lines = answer.output.split('\n');
        for (int index = 0; index < qMin(lines.size(), expected.size()); ++index)
            QCOMPARE(QString::fromUtf8(lines.at(index)), QString::fromUtf8(expected.at(index)));
        QCOMPARE(lines.size(), expected.size());
        QCOMPARE(answer.errors.isEmpty(), answer.exitCode == 0);
    }

    void refusals_data()
    {
        readTable(R"(
            row                  | exitCode | place                     | cart
            nothing at all       | 2 | line 1, column                   |
            not closed           | 2 | line 1, column                   | {"items": [
            a comma too many     | 2 | line 2, column 17                | {"items":\n[{"article":103,,"count":1}]}
            no object            | 2 | must be an object                | [1]
            no items             | 2 | items: must be an array          | {}
            empty items          | 2 | items: must be an array          | {"items":[]}
            misspelt key         | 2 | items[0].pieces: unknown         | {"items":[{"article":103,"pieces":1}]}
            unknown article      | 2 | items[1].article: the price list has no article 9 | {"items":[{"article":103,"count":1},{"article":9,"count":1}]}
            count 0              | 2 | items[0].count                   | {"items":[{"article":103,"count":0}]}
            count below 0        | 2 | items[0].count                   | {"items":[{"article":103,"count":-1}]}
            absurd count         | 2 | items[0].count                   | {"items":[{"article":103,"count":100001}]}
            count beyond an int  | 2 | items[0].count                   | {"items":[{"article":103,"count":1e300}]}
            half a piece         | 2 | items[0].count: must be a whole number from 1 to 100000, not 1.5 | {"items":[{"article":103,"count":1.5}]}
            count as text        | 2 | not "2"                          | {"items":[{"article":103,"count":"2"}]}
            count missing        | 2 | it is missing                    | {"items":[{"article":103}]}
            pages of a print     | 2 | items[0].pages: belongs          | {"items":[{"article":103,"count":1,"pages":8}]}
            pages between steps  | 2 | items[0].pages: must be from 26 to 98 in steps of 8 | {"items":[{"article":9171,"count":1,"pages":30}]}
            too many add-ons     | 2 | items[0].maps: the cart comes to | {"items":[{"article":9171,"count":100000,"maps":100000}]}
            template below 0     | 2 | items[0].templates.12            | {"items":[{"article":9171,"count":1,"templates":{"12":-3}}]}
            amount beyond an int | 2 | amount of shipping group 7       | {"items":[{"article":7014,"count":100000},{"article":7015,"count":100000},{"article":7014,"count":100000},{"article":7015,"count":100000},{"article":7015,"count":100000},{"article":7015,"count":100000}]}
            unknown source       | 2 | source: must be                  | {"source":"FAX","delivery":"MAIL","items":[{"article":103,"count":1}]}
            source alone         | 2 | delivery                         | {"source":"NET","items":[{"article":103,"count":1}]}
            order way not sold   | 2 | takes no orders by KIOSK, MAIL   | {"source":"KIOSK","delivery":"MAIL","items":[{"article":103,"count":1}]}
            payment of others    | 2 | payment: 15                      | {"payment":15,"items":[{"article":103,"count":1}]}
            unknown express      | 2 | express                          | {"express":"3","items":[{"article":103,"count":1}]}
            no coupon file       | 2 | coupon: FOLDER/none.xml          | {"coupon":"none.xml","couponId":"A","items":[{"article":103,"count":1}]}
            coupon is a device   | 2 | coupon: /dev/zero: there is no   | {"coupon":"/dev/zero","couponId":"A","items":[{"article":103,"count":1}]}
            no coupon code       | 2 | couponId                         | {"coupon":"none.xml","items":[{"article":103,"count":1}]}
            coupon beyond an int | 2 | amount of shipping group 1       | {"coupon":"dear.xml","couponId":"A","items":[{"article":103,"count":1}]}
            coupon not XML       | 2 | coupon: FOLDER/cart.json, line 1, column | {"coupon":"cart.json","couponId":"A","items":[{"article":103,"count":1}]}
            no price             | 1 | 2302 10x15 Kiosk: no price by NET, MAIL | {"items":[{"article":2302,"count":1}]}
            group not sold       | 1 | 3101 13x18 Klassenfoto: the shop | {"items":[{"article":3101,"count":1}]}
            express not offered  | 1 | 13042 Blitz Bücher: no price by NET, POS | {"source":"NET","delivery":"POS","express":"2","items":[{"article":9171,"count":1}]}
        )");
    }

    void refusals()
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

    /// A cart is walked in the order of addresses, and tables are hashed: neither may show.
    void sameBytesInEveryProcess()
    {
        const QList<Environment> environments = {
            {},
            {{"QT_HASH_SEED", "0"}},
            {{"QT_HASH_SEED", "1"}, {"MALLOC_PERTURB_", "1"}},
            {{"QT_HASH_SEED", "77"}, {"MALLOC_PERTURB_", "85"}},
            {{"QT_HASH_SEED", "4711"}, {"MALLOC_ARENA_MAX", "1"}},
            {{"QT_HASH_SEED", "123456789"}, {"MALLOC_ARENA_MAX", "8"}, {"MALLOC_PERTURB_", "170"}},
            {{"QT_HASH_SEED", "2147483647"}, {"MALLOC_TOP_PAD_", "65536"}},
            {{"MALLOC_PERTURB_", "255"}, {"MALLOC_MMAP_THRESHOLD_", "64"}},
            {{"QT_HASH_SEED", "9"}, {"PADDING", QString(60000, 'x')}},
            {{"QT_HASH_SEED", "10"}, {"LC_ALL", "C"}},
        };
        QByteArray first;
        for (const Environment& environment : environments) {
            const TestAccount folder;
            const QString page = folder.path("bill.html");
            const QString discounts = folder.path("discounts.xml");
            const VelshopAnswer answer = bill(source("shop/carts/showcase.json"),
                                              {"--html", page, "--discounts", discounts, "--order-text"}, environment);
            QCOMPARE(answer.exitCode, 0);
            const QByteArray all = answer.output + content(page) + content(discounts);
            if (first.isEmpty())
                first = all;
            QVERIFY2(all == first, all);
        }
    }

    void page()
    {
        const TestAccount folder;
        QCOMPARE(bill(source("shop/carts/small.json"), {"--html", folder.path("bill.html")}).exitCode, 0);
        const QByteArray page = content(folder.path("bill.html"));
        QXmlStreamReader reader(page);
        QSet<QString> elements;
        while (!reader.atEnd())
            if (reader.readNext() == QXmlStreamReader::StartElement)
                elements.insert(reader.name().toString());
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
        QVERIFY(elements.contains("table") && !elements.contains("script"));
        for (const char* text : {"16,20 &#8364;", "CHF 20.25", "0,25 &#8364;", "prefers-color-scheme: dark"})
            QVERIFY2(page.contains(text), text);
        const VelshopAnswer unwritable =
            bill(source("shop/carts/small.json"), {"--html", folder.path("none/bill.html")});
        QCOMPARE(unwritable.exitCode, 2);
        QCOMPARE(unwritable.errors.count('\n'), 1);
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
            shell.setWorkingDirectory(source(""));
            shell.start("bash", {"-c", QString("ulimit -f 1; trap '' XFSZ; exec '%1' bill shop/carts/showcase.json %2 "
                                               "'%3' 2>&1 >/dev/null")
                                           .arg(VELSHOP_PROGRAM, option, file)});
            QVERIFY(shell.waitForFinished(60000));
            QCOMPARE(shell.exitCode(), 2);
            QVERIFY(shell.readAllStandardOutput().startsWith("velshop: " + file.toUtf8()));
            QCOMPARE(content(file), QByteArray("former"));
            QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("out"));
        }
    }

    void discounts()
    {
        const TestAccount folder;
        const QString file = folder.path("discounts.xml");
        QCOMPARE(bill(source("tests/host/bills/fees.json"), {"--discounts", file}).exitCode, 0);
        const QByteArray written = content(file);
        for (const char* text :
             {R"(<pieces count="100" discount_level="2" discount_type="P" price="0"/>)", // free of shipping: no prices
              R"(price="5990" transfer_base_price="690" transfer_unit_price="290"/>)",
              R"(<product id="11005" name="Versand Kalender">)"})
            QVERIFY2(written.contains(text), written);
        QCOMPARE(bill(source("shop/carts/unpriced.json"), {"--discounts", file}).exitCode, 1);
        QCOMPARE(content(file), written); // an order that can't be placed has no description
    }

    void asJson()
    {
        const QJsonDocument order =
            QJsonDocument::fromJson(bill(source("shop/carts/showcase.json"), {"--json"}).output);
        QCOMPARE(order["sums"]["total"].toInt(), 15380);
        QCOMPARE(order["groups"][1]["sums"]["coupon"].toInt(), -778);
        QCOMPARE(order["groups"][1]["sums"]["CHF"]["total"].toString(), "CHF 158.81");
        QCOMPARE(order["groups"][1]["lines"][1]["model"].toString(), "inherited discount");
        const QJsonDocument unpriced =
            QJsonDocument::fromJson(bill(source("shop/carts/unpriced.json"), {"--json"}).output);
        QCOMPARE(unpriced["orderable"].toBool(true), false);
        QVERIFY(unpriced["sums"].isNull() && unpriced["groups"][0]["sums"].isNull());
        QCOMPARE(unpriced["groups"][1]["sums"]["total"].toInt(), 3280);
    }
};

VEL_TEST_MAIN(VelshopBillTest)
#include "tst_VelshopBill.moc"
