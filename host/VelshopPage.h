#ifndef VELSHOPPAGE_H
#define VELSHOPPAGE_H

#include <QByteArray>
#include <QString>
#include <QVector>
#include <QXmlStreamWriter>

/// A page for a browser in one file: well-formed, nothing loaded from elsewhere, readable on wide and narrow screens,
/// in light and dark, and printed. What is written goes into its body, up to finish().
class VelshopPage
{
    Q_DISABLE_COPY(VelshopPage)

public:
    /// The style is added to that of all pages, and the script, which may be empty, ends the body. Neither may hold a
    /// character that would have to be escaped: a browser reads them as they stand. The language is that of the words.
    VelshopPage(const QString& theTitle, const QString& theLanguage, const QString& theStyle,
                const QString& theScript = QString());

    /// Begins an element, with attributes or with a class; an empty class is none.
    void start(const char* theTag, const QVector<QXmlStreamAttribute>& theAttributes = {});
    void startWithClass(const char* theTag, const QString& theClass);
    /// Ends the element that was begun last.
    void end();

    /// A whole element, or text in the current one.
    void text(const char* theTag, const QString& theText, const QString& theClass = QString());
    void characters(const QString& theText);

    /// For all else, such as a picture within the page.
    QXmlStreamWriter& writer() { return myWriter; }

    /// Ends the page and gives it.
    QByteArray finish();

private:
    void writeHead(const QString& theTitle, const QString& theStyle);

    QByteArray myBytes;
    QXmlStreamWriter myWriter;
    QString myScript;
};

#endif
