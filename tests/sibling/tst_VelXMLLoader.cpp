#include "sibling/VelXMLLoader.h"
#include "support/VelTestAccount.h"

namespace {

QByteArray nested(const char* theOpening, const char* theClosing, int theLevels)
{
    return QByteArray(theOpening).repeated(theLevels) + QByteArray(theClosing).repeated(theLevels);
}

QByteArray attributes(int theCount)
{
    QByteArray text;
    for (int number = 0; number < theCount; ++number)
        text += " a" + QByteArray::number(number) + "=''";
    return text;
}

} // namespace

class VelXMLLoaderTest : public QObject
{
    Q_OBJECT

private slots:
    void refusedDocuments_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("warning");
        const auto row = [](const char* theName, const QByteArray& theBytes, const char* theWarning) {
            QTest::newRow(theName) << theBytes << QString::fromLatin1(theWarning);
        };
        row("empty", "", "line 1, column 1: .*end of file");
        row("tag mismatch", "<a>\n <b></c>\n</a>", "line 2, column 8: .*mismatch");
        row("one level too deep", nested("<a>", "</a>", 257), "line 1, column 771: .*nest deeper than 256 levels");
        // Parsing and destroying such trees recursively would overflow the stack.
        row("bottomless", nested("<a>", "</a>", 500000), "line 1, column 771: .*nest deeper");
        row("bottomless type", "<!DOCTYPE r [\n<!ELEMENT r " + nested("(", ")", 500000) + ">]><r/>",
            "line 2, column 1: .*must not be declared");
        // One long entity, referred to again and again: gigabytes from half a megabyte.
        row("entity bomb",
            "<!DOCTYPE r [ <!ENTITY a '" + nested("x", "", 100000) + "'>]><r>" + nested("&a;", "", 100000) + "</r>",
            "line 1, column 15: .*must not be declared");
        // A hash of names that are made to collide takes longer with each of them.
        row("notation", "<!DOCTYPE r [\n <!NOTATION n SYSTEM 'n'>]><r/>", "line 2, column 2: .*must not be declared");
        row("one attribute too many", "<r>\n<a" + attributes(257) + "/></r>",
            "line 2, column .*more than 256 attributes");
        row("what comes first", "<r><a></b>" + nested("<a>", "</a>", 300), "line 1, column 10: .*mismatch");
    }

    void refusedDocuments()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, warning);
        verifyRefused(myFolder.write("document.xml", bytes), warning);
    }

    void unreadableFiles()
    {
        for (const QString& name : {myFolder.path("missing.xml"), myFolder.path(), QString()})
            verifyRefused(QFileInfo(name), "line 0, column 0: .+");
    }

    void acceptedDocuments_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("UTF-8, comments, blank texts, character data") << QByteArray(
            "<?xml version='1.0' encoding='UTF-8'?>\n<!-- <!ENTITY --><?go on?><r a='\xc3\xa4' b=''>\n  <c> x &amp; "
            "&#65; </c>\n  <![CDATA[<d>]]> <x:y xmlns:x='u' x:z='1'/> &unknown; </r>\n");
        QTest::newRow("Latin-1") << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><r a='\xe4'/>");
        QTest::newRow("UTF-16") << QByteArray("\xff\xfe<\0r\0/\0>\0", 10);
        QTest::newRow("document type") << QByteArray("<!DOCTYPE r SYSTEM 'r.dtd'><r/>");
        QTest::newRow("most attributes") << "<r><a" + attributes(256) + "/><a" + attributes(256) + "/></r>";
        QTest::newRow("deepest nesting") << nested("<a>", "</a>", 256);
        QTest::newRow("more elements than levels") << "<r>" + nested("<a><b/></a>", "", 300) + "</r>";
    }

    /// The guarded parser builds the very tree that QDomDocument builds by itself.
    void acceptedDocuments()
    {
        QFETCH(QByteArray, bytes);
        const auto printed = [](const QDomElement& theRoot) {
            QString result;
            QTextStream(&result) << theRoot.lineNumber() << '/' << theRoot.columnNumber() << ' ' << theRoot;
            return result;
        };
        QDomDocument plain;
        QByteArray plainBytes = bytes;
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        plainBytes.replace("&unknown;", ""); // the plain parser of Qt 6 refuses it
#endif
        QVERIFY(plain.setContent(plainBytes));
        const QDomElement loaded = VelXMLLoader::loadDocumentElement(myFolder.write("document.xml", bytes));
        QCOMPARE(printed(loaded), printed(plain.documentElement()));
    }

    /// What Qt 5 makes of such documents, and the reader of Qt 6 wouldn't by itself.
    void sameWithAnyQt_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("expected");
        QTest::newRow("blanks in a value") << QByteArray("<r a='x\ny\tz\r\n'/>") << "x\ny\tz\r\n/";
        QTest::newRow("returns") << QByteArray("<r a=''>\r\n<b>1\r\n</b>\r\n<!--\r\n--></r>") << "/1\r\n";
        QTest::newRow("default attributes")
            << QByteArray("<!DOCTYPE r [<?x ' ?><!-- ' --><!ATTLIST r a CDATA ']>'>%x;]><r/>") << "/";
        QTest::newRow("versions") << QByteArray("<?xml version='1.1'?><r a='1'/>") << "1/";
        QTest::newRow("unknown entities") << QByteArray("<r a='1&x;2'>3&x;4</r>") << "12/34";
        QTest::newRow("unknown encoding") << QByteArray("<?xml version='1.0' encoding='x'?><r a='1'/>") << "1/";
        QTest::newRow("wrong bytes") << QByteArray("<r a='\xff'/>") << QString(QChar::ReplacementCharacter) + "/";
        QTest::newRow("code page") << QByteArray("<?xml version='1.0' encoding='windows-1252'?><r a='\x80'/>")
                                   << QString::fromUtf8("\xe2\x82\xac/");
    }

    void sameWithAnyQt()
    {
        QFETCH(QByteArray, bytes);
        const QDomElement loaded = VelXMLLoader::loadDocumentElement(myFolder.write("document.xml", bytes));
        QVERIFY(!loaded.isNull());
        QTEST(loaded.attribute("a") + '/' + loaded.text(), "expected");
    }

    void elementOutlivesItsDocument()
    {
        QDomElement root = VelXMLLoader::loadDocumentElement(
            myFolder.write("document.xml", "<!-- before --><r><c><d/></c></r><!-- behind -->"));
        // What stands around the root went with the document.
        QVERIFY(root.parentNode().isNull() && root.previousSibling().isNull() && root.nextSibling().isNull());
        QDomElement inner = root.firstChildElement().firstChildElement();
        root = QDomElement();
        inner.setAttribute("b", 3);
        QVERIFY(inner.tagName() == "d" && inner.attribute("b") == "3" && inner.parentNode().isNull());
    }

private:
    static void verifyRefused(const QFileInfo& theFile, const QString& theWarning)
    {
        const MessageCatcher messages;
        QVERIFY(VelXMLLoader::loadDocumentElement(theFile).isNull());
        const QRegularExpression expected("VelXMLLoader::loadDocumentElement\\(\\) -- .*, " + theWarning);
        QVERIFY2(messages.texts().join('\n').contains(expected), qPrintable(messages.texts().join('\n')));
        QCOMPARE(messages.texts().size(), 1);
    }

    TestAccount myFolder;
};

VEL_TEST_MAIN(VelXMLLoaderTest)
#include "tst_VelXMLLoader.moc"
