#include "sibling/VelXMLBuilder.h"
#include "sibling/VelXMLParser.h"
#include "support/VelTestMain.h"

class TestVelXMLParser : public QObject
{
    Q_OBJECT

private slots:
    void integers_data();
    void integers();
    void booleans_data();
    void booleans();
    void dateTimes_data();
    void dateTimes();
    void texts();
    void missingGivesTheDefault();
    void sizes();
    void builtElements();
};

namespace {

QDomElement elementWith(const QString& theText)
{
    QDomElement element = parsedElement(QStringLiteral("<e><c/></e>"));
    element.setAttribute(QStringLiteral("a"), theText);
    element.firstChildElement().appendChild(element.ownerDocument().createTextNode(theText));
    return element;
}

} // namespace

void TestVelXMLParser::integers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");
    QTest::newRow("plain") << "12" << 12;
    QTest::newRow("negative") << "-5" << -5;
    QTest::newRow("plus sign") << "+7" << 7;
    QTest::newRow("blanks around") << " 8 " << 8;
    QTest::newRow("leading zeros are decimal") << "010" << 10;
    QTest::newRow("largest") << "2147483647" << 2147483647;
    QTest::newRow("too large") << "2147483648" << -99;
    QTest::newRow("empty") << "" << -99;
    QTest::newRow("letters") << "abc" << -99;
    QTest::newRow("trailing letters") << "12a" << -99;
    QTest::newRow("hexadecimal") << "0x10" << -99;
    QTest::newRow("decimal point") << "1.5" << -99;
    QTest::newRow("decimal comma") << "1,5" << -99;
    QTest::newRow("group separator of the locale") << "1.000" << -99;
}

void TestVelXMLParser::integers()
{
    QFETCH(QString, text);
    const QDomElement element = elementWith(text);
    QTEST(VelXMLParser::intAttribute(element, QStringLiteral("a"), -99), "expected");
    QTEST(VelXMLParser::intText(element, QStringLiteral("c"), -99), "expected");
}

void TestVelXMLParser::booleans_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("byDefaultTrue");
    QTest::addColumn<bool>("byDefaultFalse");
    for (const char* word : {"true", "TRUE", " True ", "1"})
        QTest::newRow(word) << QString::fromLatin1(word) << true << true;
    for (const char* word : {"false", "False", "0\t"})
        QTest::newRow(word) << QString::fromLatin1(word) << false << false;
    for (const char* word : {"", "yes", "2", "truee", "-1", "00"})
        QTest::newRow(*word ? word : "empty") << QString::fromLatin1(word) << true << false;
}

void TestVelXMLParser::booleans()
{
    QFETCH(QString, text);
    const QDomElement element = elementWith(text);
    QTEST(VelXMLParser::boolAttribute(element, QStringLiteral("a"), true), "byDefaultTrue");
    QTEST(VelXMLParser::boolAttribute(element, QStringLiteral("a"), false), "byDefaultFalse");
    QTEST(VelXMLParser::boolText(element, QStringLiteral("c"), true), "byDefaultTrue");
}

void TestVelXMLParser::dateTimes_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QDateTime>("expected");
    const QDateTime date(QDate(2010, 5, 4), QTime(3, 2, 1));
    QTest::newRow("date and time") << "a='2010-05-04T03:02:01'" << date;
    QTest::newRow("date alone") << "a='2010-05-04'" << QDateTime(QDate(2010, 5, 4), QTime(0, 0));
    QTest::newRow("missing") << "" << QDateTime(QDate(1999, 1, 1), QTime(0, 0));
    QTest::newRow("empty") << "a=''" << QDateTime();
    QTest::newRow("unreadable") << "a='4.5.2010'" << QDateTime();
    QTest::newRow("no such day") << "a='2010-02-30T00:00:00'" << QDateTime();
}

void TestVelXMLParser::dateTimes()
{
    QFETCH(QString, attribute);
    const QDomElement element = parsedElement(QStringLiteral("<e %1/>").arg(attribute));
    const QDateTime standard(QDate(1999, 1, 1), QTime(0, 0));
    QTEST(VelXMLParser::dateTimeAttribute(element, QStringLiteral("a"), Qt::ISODate, standard), "expected");
}

void TestVelXMLParser::texts()
{
    const QDomElement element =
        parsedElement(QStringLiteral("<e a='' b=' x '><c> y <i>z</i></c><c>second</c><d/></e>"));
    const QString standard = QStringLiteral("default");

    QCOMPARE(VelXMLParser::attribute(element, QStringLiteral("b"), standard), QStringLiteral(" x "));
    QCOMPARE(VelXMLParser::text(element, QStringLiteral("c"), standard), QStringLiteral(" y z"));

    for (const QString& empty : {VelXMLParser::attribute(element, QStringLiteral("a"), standard),
                                 VelXMLParser::attribute(element, QStringLiteral("a"), QString()),
                                 VelXMLParser::text(element, QStringLiteral("d"), standard)})
        QVERIFY(empty.isEmpty() && !empty.isNull());
}

void TestVelXMLParser::missingGivesTheDefault()
{
    const QString name = QStringLiteral("nothing");
    for (const QDomElement& element : {QDomElement(), parsedElement(QStringLiteral("<e Nothing='1'><Nothing/></e>"))}) {
        QCOMPARE(VelXMLParser::attribute(element, name, QStringLiteral("x")), QStringLiteral("x"));
        QVERIFY(VelXMLParser::attribute(element, name, QString()).isNull());
        QVERIFY(VelXMLParser::text(element, name, QString()).isNull());
        QCOMPARE(VelXMLParser::intAttribute(element, name, 4), 4);
        QCOMPARE(VelXMLParser::intText(element, name, 4), 4);
        QCOMPARE(VelXMLParser::boolAttribute(element, name, true), true);
        QCOMPARE(VelXMLParser::boolText(element, name, true), true);
    }
}

void TestVelXMLParser::sizes()
{
    QCOMPARE(VelXMLParser::readSize(parsedElement(QStringLiteral("<size width='150' height='100'/>"))),
             QSize(150, 100));
    QCOMPARE(VelXMLParser::readSize(parsedElement(QStringLiteral("<size width='15,5'/>"))), QSize(0, 0));
    QCOMPARE(VelXMLParser::readSize(QDomElement()), QSize(0, 0));
}

void TestVelXMLParser::builtElements()
{
    QDomElement parent = parsedElement(QStringLiteral("<parent><first/></parent>"));
    QDomElement built = VelXMLBuilder::buildDomElement(parent, QStringLiteral("sales_tax"));
    VelXMLBuilder::addAttribute(built, QStringLiteral("price"), -1234567);
    QCOMPARE(parent.lastChildElement(), built);
    QCOMPARE(parent.lastChildElement().attribute(QStringLiteral("price")), QStringLiteral("-1234567"));

    QDomDocument document;
    document.setContent(QStringLiteral("<?note x?><a/>"));
    document.removeChild(document.documentElement());
    VelXMLBuilder::buildDomElement(document, QStringLiteral("root"));
    QCOMPARE(document.documentElement().tagName(), QStringLiteral("root"));

    QDomElement none;
    QVERIFY(VelXMLBuilder::buildDomElement(none, QStringLiteral("tag")).isNull());
}

VEL_TEST_MAIN(TestVelXMLParser)
#include "tst_VelXMLParser.moc"
