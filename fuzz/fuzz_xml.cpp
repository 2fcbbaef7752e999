#include "frame/VelChildElements.h"
#include "fuzz/FuzzAudit.h"
#include "fuzz/FuzzShop.h"
#include "sibling/VelXMLParser.h"

#include <QTextStream>

namespace {

QString printed(const QDomElement& theRoot)
{
    QString text = QStringLiteral("%1/%2 ").arg(theRoot.lineNumber()).arg(theRoot.columnNumber());
    QTextStream stream(&text);
    theRoot.save(stream, 0);
    return text;
}

/// Reads every attribute and every child's text as each type there is.
void readAll(const QDomElement& theElement)
{
    const QDomNamedNodeMap attributes = theElement.attributes();
    for (int index = 0; index < attributes.count(); ++index) {
        const QString name = attributes.item(index).nodeName();
        FUZZ_REQUIRE(!VelXMLParser::attribute(theElement, name, QString()).isNull());
        VelXMLParser::intAttribute(theElement, name, -1);
        VelXMLParser::boolAttribute(theElement, name, false);
        VelXMLParser::dateTimeAttribute(theElement, name, Qt::ISODate, QDateTime());
    }
    VelXMLParser::readSize(theElement);
    for (const QDomElement& child : VelChildElements(theElement)) {
        FUZZ_REQUIRE(!VelXMLParser::text(theElement, child.tagName(), QString()).isNull());
        VelXMLParser::intText(theElement, child.tagName(), -1);
        VelXMLParser::boolText(theElement, child.tagName(), false);
        readAll(child);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzShop::open();
    return 0;
}

/// An arbitrary document through the loader. What it accepts is harmless, and has to be the very tree that the plain
/// parser builds.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    const QByteArray bytes(reinterpret_cast<const char*>(theData), static_cast<int>(theSize));
    auditDocument(QStringLiteral("appearance.xml"), bytes);
    const QDomElement root = FuzzShop::load(bytes);
    if (root.isNull())
        return 0;
    FUZZ_REQUIRE(root.parentNode().isNull() && root.previousSibling().isNull() && root.nextSibling().isNull());
    QDomDocument plain;
    FUZZ_REQUIRE(plain.setContent(bytes));
    FUZZ_REQUIRE(printed(root) == printed(plain.documentElement()));
    readAll(root);
    return 0;
}
