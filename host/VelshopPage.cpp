#include "host/VelshopPage.h"

namespace {

/// Without any character that would have to be escaped.
const QString STR_STYLE = QStringLiteral(R"(
:root { color-scheme: light dark; --ink: #1b1b1f; --faint: #5c5c66; --paper: #ffffff; --rule: #d4d4dc; --alarm: #a3131d; }
@media (prefers-color-scheme: dark) {
  :root { --ink: #ececf1; --faint: #a9a9b5; --paper: #17171b; --rule: #43434e; --alarm: #ff9a9a; } }
@media print {
  :root { color-scheme: light; --ink: #000000; --faint: #444444; --paper: #ffffff; --rule: #999999; --alarm: #000000; } }
body { font: 16px/1.45 system-ui, sans-serif; color: var(--ink); background: var(--paper); max-width: 46rem;
  margin: 2rem auto; padding: 0 1rem; overflow-wrap: anywhere; }
header { display: flex; flex-wrap: wrap; justify-content: space-between; gap: 0 2rem; color: var(--faint); }
h1 { margin: 0.5rem 0 1rem; }
h2 { margin: 2rem 0 0.5rem; font-size: 1.2rem; break-after: avoid; }
table { border-collapse: collapse; width: 100%; }
th, td { text-align: left; vertical-align: top; padding: 0.4rem 0 0.4rem 1rem; border-bottom: 1px solid var(--rule); }
th:first-child, td:first-child { padding-left: 0; }
th { font-weight: 600; overflow-wrap: normal; }
tr { break-inside: avoid; }
.number { text-align: right; white-space: nowrap; font-variant-numeric: tabular-nums; }
.note { display: block; font-size: 0.875em; color: var(--faint); }
.alarm { color: var(--alarm); font-weight: 600; }
@media (max-width: 34rem) { th, td { padding-left: 0.6rem; } body { margin: 1rem auto; font-size: 15px; } }
)");

} // namespace

VelshopPage::VelshopPage(const QString& theTitle, const QString& theLanguage, const QString& theStyle,
                         const QString& theScript)
    : myWriter(&myBytes), myScript(theScript)
{
    myWriter.writeDTD(QStringLiteral("<!DOCTYPE html>\n"));
    start("html", {{QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/1999/xhtml")},
                   {QStringLiteral("lang"), theLanguage}});
    writeHead(theTitle, theStyle);
    start("body");
}

void VelshopPage::writeHead(const QString& theTitle, const QString& theStyle)
{
    start("head");
    start("meta", {{QStringLiteral("charset"), QStringLiteral("utf-8")}});
    end();
    start("meta", {{QStringLiteral("name"), QStringLiteral("viewport")},
                   {QStringLiteral("content"), QStringLiteral("width=device-width, initial-scale=1")}});
    end();
    text("title", theTitle);
    text("style", STR_STYLE + theStyle);
    end();
}

void VelshopPage::start(const char* theTag, const QVector<QXmlStreamAttribute>& theAttributes)
{
    myWriter.writeStartElement(QLatin1String(theTag));
    for (const QXmlStreamAttribute& attribute : theAttributes)
        myWriter.writeAttribute(attribute);
}

void VelshopPage::startWithClass(const char* theTag, const QString& theClass)
{
    start(theTag);
    if (!theClass.isEmpty())
        myWriter.writeAttribute(QStringLiteral("class"), theClass);
}

void VelshopPage::end()
{
    myWriter.writeEndElement();
}

void VelshopPage::text(const char* theTag, const QString& theText, const QString& theClass)
{
    startWithClass(theTag, theClass);
    characters(theText);
    end();
    characters(QStringLiteral("\n"));
}

void VelshopPage::characters(const QString& theText)
{
    myWriter.writeCharacters(theText);
}

QByteArray VelshopPage::finish()
{
    if (!myScript.isEmpty())
        text("script", myScript);
    myWriter.writeEndDocument();
    return myBytes;
}
