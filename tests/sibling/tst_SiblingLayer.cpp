#include "sibling/VelDirectoryConfig.h"
#include "sibling/VelProductGroup.h"
#include "sibling/VelProductType.h"
#include "sibling/VelStringHelper.h"
#include "sibling/VelXMLConfig.h"
#include "sibling/VelXMLParser.h"
#include "support/VelTestAccount.h"

class SiblingLayerTest : public QObject
{
    Q_OBJECT

private slots:
    void configuration()
    {
        const TestAccount folder;
        VelDirectoryConfig::instance()->setConfigurationDirectory(folder.path());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("appearance\\.xml, line 0, column 0"));
        VelXMLConfig config("appearance.xml");
        QCOMPARE(config.getIntAttributeOfNode("order", "source", -1), -1);

        folder.write("appearance.xml", "<a source='1'><order source='4'/><order source='5'/></a>");
        config.reload();
        QCOMPARE(config.getIntAttributeOfNode("order", "source", -1), 4);
    }

    void numbersAndAnswers_data()
    {
        readTable(R"(
            text        | number      | ifTrue | ifFalse
            1           | 1           | yes    | yes
            _0_         | 0           | no     | no
            +010        | 10          | yes    | no
            2147483648  | -99         | yes    | no
                        | -99         | yes    | no
            0x10        | -99         | yes    | no
            1.000       | -99         | yes    | no
            _True_      | -99         | yes    | yes
            FALSE       | -99         | no     | no
        )");
    }

    /// As attribute and as child: -99, true and false are the defaults in turn.
    void numbersAndAnswers()
    {
        const QString text = cell("text").replace('_', ' ');
        const QDomElement element = parsedElement(QStringLiteral("<e a='%1'><c>%1</c></e>").arg(text));
        QCOMPARE(VelXMLParser::intAttribute(element, "a", -99), number("number"));
        QCOMPARE(VelXMLParser::intText(element, "c", -99), number("number"));
        QCOMPARE(VelXMLParser::boolAttribute(element, "a", true), answer("ifTrue"));
        QCOMPARE(VelXMLParser::boolAttribute(element, "a", false), answer("ifFalse"));
        QCOMPARE(VelXMLParser::boolText(element, "c", true), answer("ifTrue"));
    }

    void dateTimes()
    {
        const QDomElement element = parsedElement("<e day='2010-05-04' german='4.5.2010' empty=''/>");
        const QDateTime standard(QDate(1999, 1, 1), QTime(0, 0));
        const auto read = [&](const char* theName) {
            return VelXMLParser::dateTimeAttribute(element, theName, Qt::ISODate, standard);
        };
        QCOMPARE(read("day"), QDateTime(QDate(2010, 5, 4), QTime(0, 0)));
        QCOMPARE(read("missing"), standard);
        QVERIFY(read("german").isNull() && read("empty").isNull());
    }

    /// What is there but empty is empty and not null; only what is missing gives the default.
    void texts()
    {
        const QDomElement element = parsedElement("<e a='' b=' x ' C='1'><c> y <i>z</i></c><c>second</c><d/><E/></e>");
        QCOMPARE(VelXMLParser::attribute(element, "b", "default"), " x ");
        QCOMPARE(VelXMLParser::text(element, "c", "default"), " y z");
        for (const QString& empty :
             {VelXMLParser::attribute(element, "a", "default"), VelXMLParser::text(element, "d", "default")})
            QVERIFY(empty.isEmpty() && !empty.isNull());
        for (const QDomElement& without : {QDomElement(), element}) {
            QVERIFY(VelXMLParser::attribute(without, "c", QString()).isNull());
            QCOMPARE(VelXMLParser::text(without, "e", "default"), "default");
        }
    }

    void sizes()
    {
        QCOMPARE(VelXMLParser::readSize(parsedElement("<size width='150' height='10,5'/>")), QSize(150, 0));
    }

    /// All short texts over a nasty alphabet stand in one order, of which every pair agrees, and so do telling names.
    void nameOrder()
    {
        QStringList texts{QString()};
        for (int shorter = 0; texts.at(shorter).size() < 3; ++shorter)
            for (const QChar character : QStringLiteral("01-aA_"))
                texts.append(texts.at(shorter) + character);
        std::sort(texts.begin(), texts.end(), VelStringHelper::numberAwareProductNameLessThan);
        const QString names = "|10x15|10x015 matt|10x15 Matt|10x15 matt glossy|13x18|100x15|18446744073709551616|"
                              "18446744073709551617|Foto|Foto |foto 2|Foto 10|Foto-1|FotoA|fotoa|Größe 2|GRÖßE 10";
        for (const QStringList& rising : {texts, names.split('|')})
            for (int i = 0; i < rising.size(); ++i)
                for (int j = 0; j < rising.size(); ++j)
                    QVERIFY2(VelStringHelper::numberAwareProductNameLessThan(rising.at(i), rising.at(j)) == (i < j),
                             qPrintable(rising.at(i) + " / " + rising.at(j)));
    }

    void productTypes()
    {
        const QMap<QString, int> classes = {{"ALB6", 1},   {"ALB81", 1},   {"CAL6", 2},      {"cal37", 2},
                                            {"PSC101", 8}, {"20x30AG", 4}, {"50x150FSP", 4}, {"ALB5", 0}};
        for (const QString& text : classes.keys()) {
            const VelProductType type(text);
            QCOMPARE(int(type.productClass()), classes.value(text));
            QCOMPARE(type.productName(), text);
            QCOMPARE(VelProductType(VelProductType(type.type()).productName()).type(), type.type());
        }
    }

    void productGroupsMatchByBits()
    {
        const VelProductGroup withoutBooks(static_cast<VelProductGroupEnum>(775));
        QVERIFY(withoutBooks.matches(PRODUCT_GROUP_ALL) && !withoutBooks.matches(PRODUCT_GROUP_BOOK));
        QVERIFY(!VelProductGroup(PRODUCT_GROUP_UNKNOWN).matches(PRODUCT_GROUP_ALL));
    }
};

VEL_TEST_MAIN(SiblingLayerTest)
#include "tst_SiblingLayer.moc"
