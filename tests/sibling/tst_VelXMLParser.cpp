#include "sibling/VelXMLBuilder.h"
#include "sibling/VelXMLParser.h"
#include "support/VelTestMain.h"

namespace {

QDomElement elementWith(const QString& theText)
{
    QDomElement element = parsedElement("<e><c/></e>");
    element.setAttribute("a", theText);
    element.firstChildElement().appendChild(element.ownerDocument().createTextNode(theText));
    return element;
}

} // namespace

class TestVelXMLParser : public QObject
{
    Q_OBJECT

private slots:
    void integers_data()
    {
        readTable(R"(
            text        | expected
            12          | 12
            -5          | -5
            +7          | 7
            _8_         | 8
            010         | 10
            2147483647  | 2147483647
            2147483648  | -99
                        | -99
            12a         | -99
            0x10        | -99
            1.5         | -99
            1,5         | -99
            1.000       | -99
        )");
    }

    void integers()
    {
        const QDomElement element = elementWith(cell("text").replace('_', ' '));
        QCOMPARE(VelXMLParser::intAttribute(element, "a", -99), number("expected"));
        QCOMPARE(VelXMLParser::intText(element, "c", -99), number("expected"));
    }

    void booleans()
    {
        const auto verify = [](const char* theText, bool theIfTrue, bool theIfFalse) {
            const QDomElement element = elementWith(theText);
            QVERIFY2(VelXMLParser::boolAttribute(element, "a", true) == theIfTrue, theText);
            QVERIFY2(VelXMLParser::boolAttribute(element, "a", false) == theIfFalse, theText);
            QVERIFY2(VelXMLParser::boolText(element, "c", true) == theIfTrue, theText);
        };
        for (const char* word : {"true", "TRUE", " True ", "1"})
            verify(word, true, true);
        for (const char* word : {"false", "False", "0\t"})
            verify(word, false, false);
        for (const char* word : {"", "yes", "2", "truee", "-1", "00"})
            verify(word, true, false); // the default
    }

    void dateTimes()
    {
        const QDateTime standard(QDate(1999, 1, 1), QTime(0, 0));
        const auto read = [standard](const char* theAttribute) {
            const QDomElement element = parsedElement(QStringLiteral("<e %1/>").arg(theAttribute));
            return VelXMLParser::dateTimeAttribute(element, "a", Qt::ISODate, standard);
        };
        QCOMPARE(read("a='2010-05-04T03:02:01'"), QDateTime(QDate(2010, 5, 4), QTime(3, 2, 1)));
        QCOMPARE(read("a='2010-05-04'"), QDateTime(QDate(2010, 5, 4), QTime(0, 0)));
        QCOMPARE(read(""), standard);
        for (const char* unreadable : {"a=''", "a='4.5.2010'", "a='2010-02-30T00:00:00'"})
            QCOMPARE(read(unreadable), QDateTime());
    }

    void texts()
    {
        const QDomElement element = parsedElement("<e a='' b=' x '><c> y <i>z</i></c><c>second</c><d/></e>");
        QCOMPARE(VelXMLParser::attribute(element, "b", "default"), " x ");
        QCOMPARE(VelXMLParser::text(element, "c", "default"), " y z");
        for (const QString& empty :
             {VelXMLParser::attribute(element, "a", "default"), VelXMLParser::attribute(element, "a", QString()),
              VelXMLParser::text(element, "d", "default")})
            QVERIFY(empty.isEmpty() && !empty.isNull());
    }

    void missingGivesTheDefault()
    {
        for (const QDomElement& element : {QDomElement(), parsedElement("<e Nothing='1'><Nothing/></e>")}) {
            QCOMPARE(VelXMLParser::attribute(element, "nothing", "x"), "x");
            QVERIFY(VelXMLParser::attribute(element, "nothing", QString()).isNull());
            QVERIFY(VelXMLParser::text(element, "nothing", QString()).isNull());
            QCOMPARE(VelXMLParser::intAttribute(element, "nothing", 4), 4);
            QCOMPARE(VelXMLParser::intText(element, "nothing", 4), 4);
            QVERIFY(VelXMLParser::boolAttribute(element, "nothing", true));
            QVERIFY(VelXMLParser::boolText(element, "nothing", true));
        }
    }

    void sizes()
    {
        QCOMPARE(VelXMLParser::readSize(parsedElement("<size width='150' height='100'/>")), QSize(150, 100));
        QCOMPARE(VelXMLParser::readSize(parsedElement("<size width='15,5'/>")), QSize(0, 0));
    }

    void builtElements()
    {
        QDomElement parent = parsedElement("<parent><first/></parent>");
        QDomElement built = VelXMLBuilder::buildDomElement(parent, "sales_tax");
        VelXMLBuilder::addAttribute(built, "price", -1234567);
        QCOMPARE(parent.lastChildElement(), built);
        QCOMPARE(parent.lastChildElement().attribute("price"), "-1234567");

        QDomDocument document; // without a root, but not without content
        document.appendChild(document.createComment("x"));
        VelXMLBuilder::buildDomElement(document, "root");
        QCOMPARE(document.documentElement().tagName(), "root");
        QDomElement none;
        QVERIFY(VelXMLBuilder::buildDomElement(none, "tag").isNull());
    }
};

VEL_TEST_MAIN(TestVelXMLParser)
#include "tst_VelXMLParser.moc"
