#include "support/VelTestMain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace {

const QString SMALL_ACCOUNT = QStringLiteral(VELTARM_SOURCE_DIR "/shop-small");

struct Answer
{
    int exitCode;
    QString output;
    QString errors;
};

Answer velshop(const QStringList& theArguments)
{
    QProcess process;
    process.start(QStringLiteral(VELSHOP_PROGRAM), theArguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, QString(), QStringLiteral("velshop did not end by itself")};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void write(const QString& thePath, const QByteArray& theContent)
{
    QFile file(thePath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(theContent) == theContent.size());
}

} // namespace

/// The order desk from the outside: what it prints where, and its exit codes.
class VelshopTest : public QObject
{
    Q_OBJECT

private slots:
    void answers_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("below the threshold") << "price 103 49" << QStringList{"7,35 €", "level 0", "band 0 to 49"};
        QTest::newRow("at the threshold") << "price 103 50" << QStringList{"6,50 €", "level 1", "band 50 to 99"};
        QTest::newRow("package and rest")
            << "price 131 120" << QStringList{"11,70 €", "a package with 100 pieces", "band from 101"};
        QTest::newRow("running offer") << "price 203 10" << QStringList{"1,90 €", "formerly 0,25 €"};
        QTest::newRow("words in any case") << "price 142 2 --source cd" << QStringList{"CD, MAIL: 3,98 €"};
        QTest::newRow("kiosk delivers on site") << "price 2302 25 --source KIOSK" << QStringList{"KIOSK, ONSITE"};
        QTest::newRow("starting choice of the account")
            << "price 103 40 --account " + SMALL_ACCOUNT << QStringList{"CD, MAIL: £ 6.40"};
        QTest::newRow("shop") << "shop" << QStringList{"Starts with NET, MAIL, Rechnung",
                                                       "EUR Euro: 1234,56 €",
                                                       "CHF 1543.20",
                                                       "Nachnahme (cash-on-delivery.png)",
                                                       "Requires: addressCheck, doi",
                                                       "Image exports: locr, gallery",
                                                       "up to date"};
        QTest::newRow("types") << "types" << QStringList{"24 to 96, step 8", "A3", "Familienplaner"};
        QTest::newRow("list") << "list" << QStringList{"10x15 glänzend", "1 Fotoabzüge", "0,15 €", "ORDERABLE"};
        QTest::newRow("list of a group") << "list --group 31" << QStringList{"3101", "no\n"};
    }

    void answers()
    {
        QFETCH(QString, arguments);
        QFETCH(QStringList, expected);
        const Answer answer = velshop(arguments.split(' '));
        QCOMPARE(answer.errors, QString());
        QCOMPARE(answer.exitCode, 0);
        for (const QString& text : expected)
            QVERIFY2(answer.output.contains(text), qPrintable(answer.output));
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no price by net") << "price 142 2" << 1 << "no price";
        QTest::newRow("no price on the other side") << "price 2302 1" << 1 << "no price";
        QTest::newRow("no such article") << "price 987654 1" << 2 << "no article 987654";
        QTest::newRow("count 0") << "price 103 0" << 2 << "COUNT";
        QTest::newRow("count beyond int") << "price 103 2147483648" << 2 << "COUNT";
        QTest::newRow("amount beyond int") << "price 103 2147483647" << 2 << "beyond";
        QTest::newRow("count with a comma") << "price 103 1,5" << 2 << "\"1,5\"";
        QTest::newRow("article is a word") << "price poster 1" << 2 << "\"poster\"";
        QTest::newRow("count missing") << "price 103" << 2 << "price takes 2";
        QTest::newRow("one argument too many") << "list 103" << 2 << "list takes 0";
        QTest::newRow("source unknown") << "price 103 1 --source FAX" << 2 << "\"FAX\"";
        QTest::newRow("delivery unknown") << "price 103 1 --delivery BOAT" << 2 << "\"BOAT\"";
        QTest::newRow("kiosk by mail") << "price 2302 1 --source KIOSK --delivery MAIL" << 2 << "go together";
        QTest::newRow("foreign option") << "price 103 1 --group 1" << 2 << "--group";
        QTest::newRow("unknown option") << "list --all" << 2 << "all";
        QTest::newRow("group without articles") << "list --group 77" << 2 << "77";
        QTest::newRow("unknown language") << "list --language fr" << 2 << "\"fr\"";
        QTest::newRow("unknown command") << "sell" << 2 << "\"sell\"";
        QTest::newRow("nothing") << "" << 2 << "no command";
    }

    void refusals()
    {
        QFETCH(QString, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, reason);
        const Answer answer = velshop(arguments.split(' ', Qt::SkipEmptyParts));
        QCOMPARE(answer.exitCode, exitCode);
        QCOMPARE(answer.output, QString());
        QVERIFY2(answer.errors.startsWith(QLatin1String("velshop: ")), qPrintable(answer.errors));
        QVERIFY2(answer.errors.contains(reason), qPrintable(answer.errors));
        QCOMPARE(answer.errors.count('\n'), 1);
    }

    void unreadableDocuments_data()
    {
        const QByteArray good = "<list/>";
        const QByteArray euro = "<currencies><c isocode='EUR'/></currencies>";
        QTest::addColumn<QByteArray>("priceList");
        QTest::addColumn<QByteArray>("orderingDetails");
        QTest::addColumn<QByteArray>("currencies");
        QTest::addColumn<QString>("place");
        QTest::newRow("price list not XML")
            << QByteArray("<a>\n  <b></a>") << good << euro << "pricelist.xml, line 2, column";
        QTest::newRow("price list empty") << QByteArray("") << good << euro << "pricelist.xml, line 1, column";
        QTest::newRow("ordering details cut off")
            << good << QByteArray("<a><b>") << euro << "orderingdetails.xml, line 1, column";
        QTest::newRow("nested too deeply")
            << QByteArray("<a>").repeated(100000) << good << euro << "pricelist.xml, line 1, column";
        QTest::newRow("no currencies") << good << good << QByteArray("<currencies/>")
                                       << "currencies.xml, line 1, column";
        QTest::newRow("currencies not XML") << good << good << QByteArray("EUR") << "currencies.xml, line 1, column";
        QTest::newRow("currency of the shop missing")
            << good << QByteArray("<o><currencies><c id='DKK'/></currencies></o>") << euro << "currency DKK";
    }

    void unreadableDocuments()
    {
        QFETCH(QByteArray, priceList);
        QFETCH(QByteArray, orderingDetails);
        QFETCH(QByteArray, currencies);
        QFETCH(QString, place);
        const QTemporaryDir account;
        write(account.filePath("pricelist.xml"), priceList);
        write(account.filePath("orderingdetails.xml"), orderingDetails);
        write(account.filePath("currencies.xml"), currencies);
        const Answer answer = velshop({"list", "--account", account.path()});
        QCOMPARE(answer.exitCode, 2);
        QVERIFY2(answer.errors.contains(place), qPrintable(answer.errors));
        QCOMPARE(answer.errors.count('\n'), 1);
    }

    void listAsJson()
    {
        const Answer answer = velshop({"list", "--group", "23", "--json"});
        QCOMPARE(answer.exitCode, 0);
        const QJsonArray articles = QJsonDocument::fromJson(answer.output.toUtf8()).array();
        QVERIFY(!articles.isEmpty());
        for (const QJsonValue& article : articles)
            QCOMPARE(article.toObject().value("group").toInt(), 23);
    }

    void priceAsJson()
    {
        const Answer priced = velshop({"price", "131", "120", "--json"});
        const QJsonObject price = QJsonDocument::fromJson(priced.output.toUtf8()).object();
        QCOMPARE(price.value("amount").toInt(), 1170);
        const QJsonObject rest = price.value("lines").toArray().at(1).toObject();
        QCOMPARE(rest.value("amount").toInt(), 180);
        QCOMPARE(rest.value("from").toInt(), 101);
        QVERIFY(!rest.contains("to"));

        const Answer unpriced = velshop({"price", "142", "1", "--json"});
        QCOMPARE(unpriced.exitCode, 1);
        QVERIFY(QJsonDocument::fromJson(unpriced.output.toUtf8()).object().value("amount").isNull());
    }

    void shopAndTypesAsJson()
    {
        const QJsonObject shop = QJsonDocument::fromJson(velshop({"shop", "--json"}).output.toUtf8()).object();
        QCOMPARE(shop.value("orderWays").toArray().size(), 5);
        QCOMPARE(shop.value("currencies").toArray().size(), 2);
        QCOMPARE(shop.value("start").toObject().value("type").toInt(), 3);
        const QJsonArray types = QJsonDocument::fromJson(velshop({"types", "--json"}).output.toUtf8()).array();
        const QJsonObject ofTwoBooks = types.at(2).toObject();
        QCOMPARE(ofTwoBooks.value("type").toString(), "ALB8");
        QCOMPARE(ofTwoBooks.value("products").toArray().size(), 2);
        QVERIFY(!ofTwoBooks.contains("pages")); // there is no one book that would tell
    }
};

VEL_TEST_MAIN(VelshopTest)
#include "tst_Velshop.moc"
