#include "frame/VelChildElements.h"
#include "support/VelTestAccount.h"
#include "support/VelTestVelshop.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString SHOP = VELTARM_SOURCE_DIR "/shop";

QString content(const QString& theFile)
{
    QFile file(theFile);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : "no file " + theFile;
}

/// Turns the children around, and theirs, but where the order of the lines counts.
void reverse(QDomElement theElement)
{
    const QStringList ordered{"order_txt_lines"};
    QList<QDomElement> children;
    for (const QDomElement& child : VelChildElements(theElement))
        children.prepend(child);
    for (const QDomElement& child : qAsConst(children)) {
        reverse(child);
        if (ordered.contains(theElement.tagName()))
            continue;
        theElement.appendChild(child);
        theElement.appendChild(theElement.ownerDocument().createComment(" said in passing "));
    }
}

QByteArray rewritten(const QString& theFile)
{
    QDomDocument document;
    document.setContent(content(theFile).toUtf8());
    reverse(document.documentElement());
    return document.toByteArray(7).replace("days=\"3-5\"", "days=\"ca. 3-5 Tage\"").replace("\"false\"", "\"0\"");
}

VelshopAnswer diff(const QString& theOld, const QString& theNew, const QStringList& theOptions = {})
{
    return velshop(QStringList{"diff", theOld, theNew} + theOptions);
}

/// The one field that differs, as "name: old > new"; empty unless it is one.
QString onlyField(const QJsonArray& theFields)
{
    const QJsonObject field = theFields.at(0).toObject();
    const auto text = [](const QJsonValue& theValue) {
        return QString::fromUtf8(QJsonDocument(QJsonArray{theValue}).toJson(QJsonDocument::Compact));
    };
    return theFields.size() == 1 ? field["name"].toString() + ": " + text(field["old"]) + " > " + text(field["new"])
                                 : QString();
}

} // namespace

/// Shops compared from the outside.
class VelshopDiffTest : public QObject
{
    Q_OBJECT

private slots:
    /// What is written another way is no difference.
    void rewrittenShop()
    {
        const TestAccount account;
        account.write("pricelist.xml", rewritten(SHOP + "/pricelist.xml"));
        const VelshopAnswer answer = diff(SHOP + "/pricelist.xml", account.path("pricelist.xml"),
                                          {"--account", SHOP, "--cart", SHOP + "/carts/showcase.json"});
        QCOMPARE(answer.errors, QByteArray());
        QVERIFY2(answer.exitCode == 0 && answer.output.startsWith("No difference\n"), answer.output);
    }

    void singleEdits_data()
    {
        readTable(R"(
            row           | file                | written                         | edited                          | field
            name          | pricelist.xml       | name="9x13 glänzend"            | name="9x13"                     | name: ["9x13 glänzend"] > ["9x13"]
            no name       | pricelist.xml       | id="101" name="9x13 glänzend"   | id="101"                        | name: ["9x13 glänzend"] > [""]
            editor's name | pricelist.xml       | "Print 9 x 13 cm, glossy"       | "Print"                         | editor_name: ["Print 9 x 13 cm, glossy"] > ["Print"]
            size          | pricelist.xml       | dpi_yellow="120"                | dpi_yellow="121"                | dpi_yellow: [120] > [121]
            order text    | pricelist.xml       | <line>FINISH=GLOSSY</line>      |                                 | FINISH: ["GLOSSY"] > [null]
            head          | pricelist.xml       | head="[9x13]"                   | head="[9X13]"                   | head: ["[9x13]"] > ["[9X13]"]
            days          | pricelist.xml       | days="3-5"                      | days="5-3"                      | days: ["3-5"] > ["5-3"]
            pages         | pricelist.xml       | max_pages="98"                  | max_pages="106"                 | max_pages: [98] > [106]
            group         | pricelist.xml       | group="1" arrangement           | group="2" arrangement           | group: [1] > [2]
            flag          | orderingdetails.xml | <doi>true</doi>                 | <doi>no</doi>                   | doi: [true] > [false]
            payment       | orderingdetails.xml | name="Rechnung" blockable="true" | name="Rechnung" blockable="false" | blockable: [true] > [false]
            currency      | currencies.xml      | <decimalsep>,</decimalsep>      | <decimalsep>.</decimalsep>      | decimalsep: [","] > ["."]
        )");
    }

    void singleEdits()
    {
        const TestAccount account;
        for (const char* name : {"pricelist.xml", "orderingdetails.xml", "currencies.xml", "appearance.xml"})
            account.write(name, content(SHOP + "/" + name).toUtf8());
        QVERIFY(QDir(account.path()).mkpath("icons/payment"));
        account.write("icons/payment/filenames.xml", content(SHOP + "/icons/payment/filenames.xml").toUtf8());
        QString document = content(SHOP + "/" + cell("file"));
        const int place = document.indexOf(cell("written"));
        QVERIFY(place >= 0);
        account.write(cell("file"), document.replace(place, cell("written").size(), cell("edited")).toUtf8());
        const VelshopAnswer answer = diff(SHOP, account.path(), {"--json"});
        QCOMPARE(answer.exitCode, 1);
        const QJsonDocument json = QJsonDocument::fromJson(answer.output);
        const QJsonArray fields =
            json["changed"].toArray().isEmpty() ? json["shop"].toArray() : json["changed"][0]["fields"].toArray();
        QCOMPARE(onlyField(fields), cell("field"));
        QVERIFY(json["changed"].toArray().size() + json["shop"].toArray().size() == 1);
    }

    void carts()
    {
        const TestAccount account;
        account.write("pricelist.xml", content(SHOP + "/pricelist.xml").replace("\"295\"", "\"305\"").toUtf8());
        const VelshopAnswer answer = diff(
            SHOP + "/pricelist.xml", account.path("pricelist.xml"),
            {"--account", SHOP, "--cart", SHOP + "/carts/small.json", "--json", "--html", account.path("page.html")});
        QCOMPARE(answer.exitCode, 1);
        const QJsonValue cart = QJsonDocument::fromJson(answer.output)["carts"][0];
        const QJsonArray terms = cart["terms"].toArray();
        QVERIFY(!terms.isEmpty() && terms.at(0)["kind"].toString() == "transfer");
        const int dearer = terms.at(0)["new"]["amount"].toInt() - terms.at(0)["old"]["amount"].toInt();
        QCOMPARE(dearer, 10);
        QCOMPARE(cart["new"]["total"].toInt() - cart["old"]["total"].toInt(), dearer * terms.size());
        QVERIFY(content(account.path("page.html")).contains("<h1>What changed</h1>"));
    }

    void refusals()
    {
        const TestAccount account;
        account.write("pricelist.xml", "<a>\n <b></a>");
        account.write("cart.json", "{");
        const VelshopAnswer spoilt = diff(SHOP, account.path("pricelist.xml"), {"--account", SHOP});
        QVERIFY2(spoilt.exitCode == 2 && spoilt.errors.contains("pricelist.xml, line 2, column"), spoilt.errors);
        const VelshopAnswer missing = diff(SHOP, account.path("none"));
        QVERIFY2(missing.exitCode == 2 && missing.errors.contains("none: there is no such"), missing.errors);
        const VelshopAnswer cart = diff(SHOP, SHOP, {"--cart", account.path("cart.json")});
        QVERIFY2(cart.exitCode == 2 && cart.errors.contains("cart.json, line 1"), cart.errors);
    }
};

VEL_TEST_MAIN(VelshopDiffTest)
#include "tst_VelshopDiff.moc"
