#include "sibling/VelXMLLoader.h"
#include "support/VelTestMain.h"

#include <QTemporaryDir>

class TestVelXMLLoader : public QObject
{
    Q_OBJECT

private slots:
    void refusedDocuments_data();
    void refusedDocuments();
    void unreadableFiles();
    void acceptedDocuments_data();
    void acceptedDocuments();
    void elementOutlivesItsDocument();

private:
    QFileInfo written(const QByteArray& theBytes) const;

    QTemporaryDir myDirectory;
};

namespace {

QByteArray nested(int theLevels)
{
    return QByteArray("<a>").repeated(theLevels) + QByteArray("</a>").repeated(theLevels);
}

void expectWarning(const QString& thePosition, const QString& theReason)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("VelXMLLoader::loadDocumentElement\\(\\) -- .*"
                                                                         ", %1: .*%2")
                                                              .arg(thePosition, theReason)));
}

} // namespace

QFileInfo TestVelXMLLoader::written(const QByteArray& theBytes) const
{
    QFile file(myDirectory.filePath(QStringLiteral("document.xml")));
    if (!file.open(QIODevice::WriteOnly) || file.write(theBytes) != theBytes.size())
        qFatal("The test can't write its own file.");
    return QFileInfo(file.fileName());
}

void TestVelXMLLoader::refusedDocuments_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("position");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* theName, const QByteArray& theBytes, const char* thePosition,
                        const char* theReason) {
        QTest::newRow(theName) << theBytes << QString::fromLatin1(thePosition) << QString::fromLatin1(theReason);
    };
    row("empty", "", "line 1, column 1", "end of file");
    row("text", "not\nXML", "line 1, column 1", "error");
    row("tag mismatch", "<a>\n <b></c>\n</a>", "line 2, column 8", "mismatch");
    row("two roots", "<a/><b/>", "line 1, column 6", "unexpected");
    row("nothing but zeros", QByteArray(100, '\0'), "line 1, column 1", "error");
    row("cut off within a character", "<a b=\"\xc3", "line 1, column 7", "end of file");
    row("cut off UTF-16", QByteArray("\xff\xfe<\0a\0/", 7), "line 1, column \\d+", "end of file");
    row("one level too deep", nested(257), "line 1, column 771", "nest deeper than 256 levels");
    // Parsing and destroying such trees recursively would overflow the stack.
    row("bottomless", nested(500000), "line 1, column 771", "nest deeper than 256 levels");
    row("bottomless and cut off", QByteArray("<a>").repeated(500000), "line 1, column 771", "nest deeper");
    row("bottomless content model",
        "<!DOCTYPE r [\n<!ELEMENT r " + QByteArray("(").repeated(500000) + "a" + QByteArray(")").repeated(500000) +
            ">]><r/>",
        "line 2, column 1", "must not be declared");
    // One long entity, referred to again and again: gigabytes from half a megabyte.
    row("entity bomb",
        "<!DOCTYPE r [ <!ENTITY a '" + QByteArray("x").repeated(100000) + "'>]><r>" +
            QByteArray("&a;").repeated(100000) + "</r>",
        "line 1, column 15", "must not be declared");
}

void TestVelXMLLoader::refusedDocuments()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, position);
    QFETCH(QString, reason);
    expectWarning(position, reason);
    QVERIFY(VelXMLLoader::loadDocumentElement(written(bytes)).isNull());
}

void TestVelXMLLoader::unreadableFiles()
{
    for (const QString& name : {myDirectory.filePath(QStringLiteral("missing.xml")), myDirectory.path(), QString()}) {
        expectWarning(QStringLiteral("line 0, column 0"), QStringLiteral("."));
        QVERIFY(VelXMLLoader::loadDocumentElement(QFileInfo(name)).isNull());
    }
}

void TestVelXMLLoader::acceptedDocuments_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("UTF-8, comments, blank texts, character data") << QByteArray(
        "<?xml version='1.0' encoding='UTF-8'?>\n<!-- <!ENTITY --><?go on?><r a='\xc3\xa4' b=''>\n  <c> x &amp; "
        "&#65; </c>\n  <![CDATA[<d>]]> <x:y xmlns:x='u' x:z='1'/> &unknown; </r>\n");
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf<r/>");
    QTest::newRow("Latin-1") << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><r a='\xe4'/>");
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe<\0r\0/\0>\0", 10);
    QTest::newRow("zero within") << QByteArray("<r>a\0b</r>", 10);
    QTest::newRow("document type") << QByteArray("<!DOCTYPE r SYSTEM 'r.dtd'><r/>");
    QTest::newRow("deepest nesting") << nested(256);
    QTest::newRow("more elements than levels") << "<r>" + QByteArray("<a><b/></a>").repeated(300) + "</r>";
}

/// The guarded parser builds the very tree that QDomDocument builds by itself.
void TestVelXMLLoader::acceptedDocuments()
{
    QFETCH(QByteArray, bytes);
    const auto printed = [](const QDomNode& theNode) {
        QString result;
        QTextStream stream(&result);
        theNode.save(stream, 0);
        return result;
    };
    QDomDocument plain;
    QVERIFY(plain.setContent(bytes));
    const QDomElement loaded = VelXMLLoader::loadDocumentElement(written(bytes));
    QVERIFY(!loaded.isNull());
    QCOMPARE(printed(loaded), printed(plain.documentElement()));
    QCOMPARE(loaded.lineNumber(), plain.documentElement().lineNumber());
    QCOMPARE(loaded.columnNumber(), plain.documentElement().columnNumber());
}

void TestVelXMLLoader::elementOutlivesItsDocument()
{
    QDomElement root = VelXMLLoader::loadDocumentElement(
        written("<?xml version='1.0'?><!-- before --><r><c><d b='2'/></c><c/></r><!-- behind -->"));
    QDomElement inner = root.firstChildElement().firstChildElement();
    QCOMPARE(inner.attribute(QStringLiteral("b")), QStringLiteral("2"));
    QCOMPARE(inner.parentNode().parentNode().toElement(), root);
    // What stands around the root went with the document.
    QVERIFY(root.parentNode().isNull() && root.previousSibling().isNull() && root.nextSibling().isNull());
    QCOMPARE(root.childNodes().size(), 2);
    QCOMPARE(root.elementsByTagName(QStringLiteral("d")).size(), 1);
    inner.setAttribute(QStringLiteral("b"), 3);

    QDomElement copy = inner;
    root = QDomElement();
    inner = QDomElement();
    QCOMPARE(copy.attribute(QStringLiteral("b")), QStringLiteral("3"));
    QVERIFY(copy.parentNode().isNull());
}

VEL_TEST_MAIN(TestVelXMLLoader)
#include "tst_VelXMLLoader.moc"
