#include "insight/VelAuditedShop.h"
#include "support/VelTestTable.h"
#include "support/VelTestVelshop.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

namespace {

/// What is written, with the words for what is too long for a cell.
QByteArray edited(const QByteArray& theDocument)
{
    const QByteArray document = QByteArray(theDocument)
                                    .replace("TAB", "\t")
                                    .replace("FAR", QByteArray(200, ' '))
                                    .replace("NEST", QByteArray("<a>").repeated(300));
    const auto end = document.indexOf("CUT");
    return end < 0 ? document : document.left(end);
}

/// Some code points of a line, from a column on.
QString marked(const QString& theLine, int theColumn, int theLength)
{
    const QVector<uint> part = theLine.toUcs4().mid(theColumn - 1, theLength);
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(part.constData()), static_cast<int>(part.size()));
}

/// What the caret line below the finding's first line points at, or why it can't be told.
QString aboveCaret(const QString& theOutput, const QString& theFirstLine)
{
    QStringList lines = theOutput.split('\n');
    while (!lines.isEmpty() && lines.constFirst() != theFirstLine)
        lines.removeFirst();
    const QString caret = lines.value(2);
    const int column = static_cast<int>(caret.indexOf('^'));
    if (column < 0)
        return "no caret below " + theFirstLine;
    const QString above = marked(lines.value(1), 1, column);
    for (int index = 0, at = 0; index < column; ++index, at += above.at(at).isHighSurrogate() ? 2 : 1)
        if ((caret.at(index) == '\t') != (above.at(at) == '\t'))
            return "a tab and a blank stand one above the other";
    return marked(lines.value(1), column + 1, static_cast<int>(caret.size()) - column);
}

/// The rest of the finding of the rule, null without one.
QJsonObject findingOf(const QJsonValue& theRun, const QString& theRule)
{
    for (const QJsonValue& result : theRun["results"].toArray())
        if (result["ruleId"].toString() == theRule)
            return result.toObject();
    return QJsonObject();
}

} // namespace

/// The audit from the outside: exit codes, and what text and SARIF say of one finding.
class VelshopAuditTest : public QObject
{
    Q_OBJECT

private slots:
    void findings_data()
    {
        readTable(R"(
            row               | file               | written     | edited                                                   | exit | rule            | level   | marked
            as it is          | pricelist.xml      | <pricelist> | <pricelist>                                              | 0    | total-falls     | note    | 6
            harmless          | pricelist.xml      | price="11"  | price=" +011 "                                           | 0    | not-a-number    | -       | -
            number            | pricelist.xml      | price="11"  | price="1,1"                                              | 1    | not-a-number    | error   | 1,1
            behind tabs       | pricelist.xml      | price="11"  | TABTAB price="1,1"                                       | 1    | not-a-number    | error   | 1,1
            behind characters | pricelist.xml      | <pricelist> | <pricelist><!--ü 🎁 €--> new                              | 1    | stray-text      | warning | new
            of characters     | pricelist.xml      | type="B"    | type="🎁ü"                                                | 1    | unknown-word    | error   | 🎁ü
            far in the line   | pricelist.xml      | <pricelist> | <pricelist>FAR🎁   newFAR                                 | 1    | stray-text      | warning | 🎁   new
            nested            | pricelist.xml      | <pricelist> | <pricelist>NEST                                          | 2    | unreadable      | error   | -
            cut off           | pricelist.xml      | price="11"  | CUT                                                      | 2    | unreadable      | error   | -
            half a tag        | currencies.xml     | </name>     | </nam                                                    | 2    | unreadable      | error   | -
            empty             | currencies.xml     | <?xml       | CUT                                                      | 2    | unreadable      | error   | -
            other file        | coupons/Grün 1.xml | -           | <coupons/>                                               | 1    | missing-element | warning | <coupons
            allowed           | pricelist.xml      | <pricelist> | <!--audit: allow stray-text because 1 $--><pricelist>new | 0    | stray-text      | -       | -
            allowed elsewhere | pricelist.xml      | <pricelist> | <pricelist>new<!--audit: allow stray-text because 1-->   | 1    | stray-text      | warning | new
            allowed a slip    | pricelist.xml      | <pricelist> | <!--audit:allow stray because 1--><pricelist>new         | 1    | bad-allow       | warning | <!--audit:allow stray because 1-->
        )");
    }

    void findings()
    {
        AuditedShop shop("shop-small");
        QByteArray text = shop.texts().value(cell("file"), "-");
        QVERIFY(text.contains(cell("written").toUtf8()));
        text.replace(text.indexOf(cell("written").toUtf8()), cell("written").toUtf8().size(), cell("edited").toUtf8());
        shop.put(cell("file"), edited(text));
        const VelshopAnswer asText = velshop({"audit", "--account", shop.path()});
        const VelshopAnswer asSarif = velshop({"audit", "--account", shop.path(), "--sarif"});
        QCOMPARE(asText.errors + asSarif.errors, QByteArray());
        QVERIFY2(asText.exitCode == number("exit") && asSarif.exitCode == number("exit"), asText.output);

        const QJsonDocument log = QJsonDocument::fromJson(asSarif.output);
        const QJsonObject finding = findingOf(log["runs"][0], cell("rule"));
        QCOMPARE(finding["level"].toString("-"), cell("level"));
        if (finding.isEmpty())
            return;
        const QJsonValue location = finding["locations"][0]["physicalLocation"];
        const QString file = QUrl::fromPercentEncoding(location["artifactLocation"]["uri"].toString().toUtf8());
        QCOMPARE(file, cell("file"));
        const QJsonValue region = location["region"];
        const int line = region["startLine"].toInt();
        const int column = region["startColumn"].toInt();
        const QString first = QString("%1:%2:%3: %4: %5 [%6]")
                                  .arg(file, QString::number(line), QString::number(column), cell("level"),
                                       finding["message"]["text"].toString(), cell("rule"));
        QVERIFY2(asText.output.contains(first.toUtf8()), asText.output);
        if (cell("marked") == "-")
            return;
        QCOMPARE(aboveCaret(asText.output, first), cell("marked"));
        const QString written = QString::fromUtf8(edited(text)).split('\n').value(line - 1);
        QCOMPARE(marked(written, column, region["endColumn"].toInt() - column), cell("marked"));
    }

    /// What a tool needs to show a log, beside the results.
    void sarifLog()
    {
        const VelshopAnswer answer = velshop({"audit", "--account", "shop-small", "--sarif"});
        const QJsonDocument log = QJsonDocument::fromJson(answer.output);
        const QJsonValue run = log["runs"][0];
        QCOMPARE(log["version"].toString(), "2.1.0");
        QCOMPARE(run["columnKind"].toString(), "unicodeCodePoints");
        QCOMPARE(run["originalUriBaseIds"]["ACCOUNT"]["uri"].toString(),
                 QUrl::fromLocalFile(VELTARM_SOURCE_DIR "/shop-small/").toString());
        const QJsonArray rules = run["tool"]["driver"]["rules"].toArray();
        for (const QJsonValue& result : run["results"].toArray())
            QCOMPARE(rules.at(result["ruleIndex"].toInt(-1))["id"].toString(), result["ruleId"].toString());
    }

    void refusals_data()
    {
        readTable(R"(
            row            | arguments                 | error
            no folder      | --account nowhere         | nowhere: there is no such folder
            unknown option | --strict                  | Unknown option 'strict'
            argument       | total-falls               | 0 arguments
            two forms      | --sarif --json            | two forms
            rules besides  | --rules --sarif           | --rules audits nothing
            watch besides  | --watch --json            | --watch prints for people
            page over shop | --html shop/pricelist.xml | pricelist.xml
        )");
    }

    void refusals()
    {
        const VelshopAnswer answer = velshop(QStringList{"audit"} + cell("arguments").split(' '));
        QVERIFY2(answer.exitCode == 2 && (answer.output + answer.errors).contains(cell("error").toUtf8()),
                 answer.output + answer.errors);
    }
};

VEL_TEST_MAIN(VelshopAuditTest)
#include "tst_VelshopAudit.moc"
