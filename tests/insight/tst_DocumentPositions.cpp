#include "frame/VelChildElements.h"
#include "insight/VelPositionedDocument.h"
#include "support/VelTestMain.h"

namespace {

/// With a byte order mark, in the order of this machine.
QByteArray utf16(const QString& theText)
{
    const QString marked = QChar(QChar::ByteOrderMark) + theText;
    return QByteArray(reinterpret_cast<const char*>(marked.utf16()), 2 * static_cast<int>(marked.size()));
}

QString printed(const VelDocumentPlace& thePlace)
{
    return QStringLiteral("%1:%2").arg(thePlace.myLine).arg(thePlace.myColumn);
}

} // namespace

class DocumentPositionsTest : public QObject
{
    Q_OBJECT

private slots:
    /// The place of the element, the name and the value of its attribute `a`, and its text.
    void places_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("element");
        QTest::addColumn<QString>("places");
        const auto row = [](const char* theName, const QByteArray& theBytes, int theElement, const char* thePlaces) {
            QTest::newRow(theName) << theBytes << theElement << QString::fromLatin1(thePlaces);
        };
        row("root", "<r a='1'>x</r>", 0, "1:1 1:4 1:7 1:10");
        row("nothing there", "<r>\n <c/> </r>", 0, "1:1 0:0 0:0 0:0");
        row("no such element", "<r a='1'/>", 1, "0:0 0:0 0:0 0:0");
        row("blanks around the sign, empty value", "<r><c\n\tb = '>' a\n = \t\"\"/></r>", 1, "1:4 2:10 3:6 0:0");
        row("name within names and values", "<r aa='a=\"1\"' ba='' a='1'/>", 0, "1:1 1:21 1:24 0:0");
        row("CR LF, CR and LF", "<r>\r\n<b/>\r<c/>\n<d a=''/></r>", 3, "4:1 4:4 4:7 0:0");
        row("byte order mark", "\xef\xbb\xbf<r a='1'/>", 0, "1:1 1:4 1:7 0:0");
        row("letters of two and four bytes", "<r>\xc3\xa4\xf0\x9f\x98\x80<c b='\xf0\x9f\x98\x80' a='1'>x</c></r>", 1,
            "1:6 1:15 1:18 1:21");
        row("Latin-1", "<?xml version='1.0' encoding='ISO-8859-1'?><r b='\xe4' a='1'/>", 0, "1:44 1:53 1:56 0:0");
        row("another code page",
            QByteArray("<?xml version='1.0' encoding='windows-1251'?>\n<r b='\xe6\xf3\xea' a='1'/>"), 0,
            "2:1 2:12 2:15 0:0");
        row("UTF-16", utf16("<r b='жук' a='1'>\nx</r>"), 0, "1:1 1:12 1:15 1:18");
        row("text behind blanks, children and comments", "<r> <c/> <!-- no --><?no no?>\n x &amp;</r>", 0,
            "1:1 0:0 0:0 1:30");
        row("text that begins with a reference, in letters", "<r><c>&#65;</c></r>", 1, "1:4 0:0 0:0 1:7");
        row("CDATA", "<r><![CDATA[x]]></r>", 0, "1:1 0:0 0:0 1:13");
        row("what looks like tags",
            "<!-- <a> --><!DOCTYPE r [<!ATTLIST r b CDATA 'x'>]><r><![CDATA[<b>]]><c a=''/></r>", 1,
            "1:70 1:73 1:76 0:0");
        row("undeclared entity", "<r b='&nbsp;' a='1'>&x;</r>", 0, "1:1 1:15 1:18 1:21");
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // which refuses them
        row("control character", "<r b='\x01' a='1'/>", 0, "1:1 1:10 1:13 0:0");
        row("twice: the last is read", "<r a='1' b='' a='2'><c a='3' a='4'/></r>", 0, "1:1 1:15 1:18 0:0");
        row("behind what stands twice", "<r b='1' b='2'><c d=''a='4'/></r>", 1, "1:16 1:23 1:26 0:0");
#endif
    }

    void places()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, element);
        const VelPositionedDocument document(bytes);
        QVERIFY2(document.isReadable(), qPrintable(document.error().myReason));
        const VelDocumentPositions& all = document.positions();
        const QStringList found{printed(all.element(element)), printed(all.attributeName(element, "a")),
                                printed(all.attributeValue(element, "a")), printed(all.elementText(element))};
        QTEST(found.join(' '), "places");
    }

    /// Every element of the sample shop's price list, asked for by its node, and each of its attributes.
    void everyElementOfAShop()
    {
        const VelPositionedDocument document(QFileInfo(VELTARM_SOURCE_DIR "/shop/pricelist.xml"));
        QCOMPARE(verifiedElements(document, document.root(), 0), document.positions().elementCount());
        QCOMPARE(document.number(parsedElement("<r/>")), -1);
    }

    void commentsAndWhatTheyStandInFrontOf()
    {
        const VelPositionedDocument document(QByteArray("<!-- 0 --><r><!-- 1 --><!-- 1 -->\n<c><!-- -1 --></c><!-- 3 "
                                                        "-->t<d/>\n<?p?><!-- 4 --><e><f/></e></r><!-- -1 -->"));
        const VelDocumentPositions& positions = document.positions();
        for (const VelDocumentPositions::Comment& comment : positions.comments())
            QCOMPARE(comment.myElement, comment.myText.trimmed().toInt() - (comment.myText.contains('3') ? 1 : 0) -
                                            (comment.myText.contains('4') ? 1 : 0));
        QCOMPARE(positions.comments().size(), 7);
        QCOMPARE(positions.endOfElement(3), 5);
    }

    void badCharacters_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("places");
        QTest::newRow("none") << QByteArray("<r a='\xc3\xa4'/>") << "";
        QTest::newRow("Latin-1 in UTF-8") << QByteArray("<r>\n\xc3\xa4 \xe4x\xfc</r>") << "2:3 2:5";
        QTest::newRow("replacement character that is meant")
            << QByteArray("<r>\xef\xbf\xbd\xff\xef\xbf\xbd</r>") << "1:5";
        QTest::newRow("another encoding") << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><r>\xe4</r>") << "";
    }

    void badCharacters()
    {
        QFETCH(QByteArray, bytes);
        const VelPositionedDocument document(bytes);
        QVERIFY(document.isReadable());
        QStringList found;
        for (const VelDocumentPlace& place : document.text().badCharacters())
            found.append(printed(place));
        QTEST(found.join(' '), "places");
    }

    void refused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("error");
        QTest::newRow("empty") << QByteArray() << "1:1 .+";
        QTest::newRow("section misspelt") << QByteArray("<r>\n <artikles>\n  <a/>\n </articles>\n</r>")
                                          << "4:2 </articles> doesn't close <artikles> of line 2";
        QTest::newRow("cut off") << QByteArray("<r>\n<a>") << "2:4 .*ends, and <a> of line 2 is still open";
        QTest::newRow("ampersand, before a mismatch") << QByteArray("<r> & \n</b>") << "1:\\d .+";
        QTest::newRow("entity") << QByteArray("<!DOCTYPE r [\n <!ENTITY a 'x'>]><r/>")
                                << "2:2 .*must not be declared.*";
        QTest::newRow("nesting") << QByteArray("<a>").repeated(300) + QByteArray("</a>").repeated(300)
                                 << "1:771 .*nest deeper.*";
    }

    void refused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, error);
        const VelPositionedDocument document(bytes);
        QVERIFY(!document.isReadable());
        const QString found = printed(document.error().myPlace) + ' ' + document.error().myReason;
        QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(error)).match(found).hasMatch(),
                 qPrintable(found));
    }

    void encodingNames()
    {
        const VelDocumentText unknown("<?xml version='1.0' encoding='UFT-8'?><r/>");
        QVERIFY(unknown.encodingName() == "UFT-8" && !unknown.isEncodingKnown());
        QCOMPARE(printed(unknown.encodingPlace()), QString("1:31"));
        QVERIFY(VelDocumentText("<r/>").isEncodingKnown() && VelDocumentText("<r/>").encodingName().isNull());
    }

    void whatIsReadThoughItIsNotWellFormed()
    {
        const VelDocumentPositions positions(VelDocumentText("<r a='' a=''>\n<c a=''b=''/></r>"));
        QCOMPARE(positions.oddities().size(), 2);
        QCOMPARE(printed(positions.oddities().at(0).myPlace), QString("1:9"));
        QCOMPARE(printed(positions.oddities().at(1).myPlace), QString("2:8"));
        QVERIFY(!positions.error().myPlace.isValid());
    }

private:
    static QString restOfLine(const VelPositionedDocument& theDocument, const VelDocumentPlace& thePlace)
    {
        return theDocument.text().line(thePlace.myLine).mid(thePlace.myColumn - 1);
    }

    /// The number behind the element's last descendant, or -1 when something in it is out of place.
    static int verifiedElements(const VelPositionedDocument& theDocument, const QDomElement& theElement, int theNumber)
    {
        bool isRight = theDocument.number(theElement) == theNumber &&
                       restOfLine(theDocument, theDocument.place(theElement)).startsWith('<' + theElement.tagName());
        const QVector<QString> names = theDocument.positions().attributeNames(theNumber);
        isRight = isRight && names.size() == theElement.attributes().size();
        for (const QString& name : names)
            isRight = isRight &&
                      restOfLine(theDocument, theDocument.attributeName(theElement, name)).startsWith(name) &&
                      restOfLine(theDocument, theDocument.attributeValue(theElement, name))
                          .startsWith(theElement.attribute(name));
        int next = theNumber + 1;
        for (const QDomElement& child : VelChildElements(theElement))
            next = next < 0 ? -1 : verifiedElements(theDocument, child, next);
        return isRight && next == theDocument.positions().endOfElement(theNumber) ? next : -1;
    }
};

VEL_TEST_MAIN(DocumentPositionsTest)
#include "tst_DocumentPositions.moc"
