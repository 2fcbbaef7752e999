#ifndef VELXMLPARSER_H
#define VELXMLPARSER_H

#include "sibling/VelSiblingExport.h"

#include <QDateTime>
#include <QDomElement>
#include <QSize>
#include <QString>

/**
 * Typed reading of attributes and child texts. A missing attribute or child gives the default; a null element has
 * neither. A present empty text is empty and not null.
 */
class VELSIBLING_EXPORT VelXMLParser
{
public:
    /// The text as it stands.
    static QString attribute(const QDomElement& theElement, const QString& theName, const QString& theDefault);

    /// Decimal, blanks around it allowed. What is no number or does not fit into an int gives the default.
    static int intAttribute(const QDomElement& theElement, const QString& theName, int theDefault);

    /// "true", "1", "false" and "0" in any case, blanks around them allowed; any other text gives the default.
    static bool boolAttribute(const QDomElement& theElement, const QString& theName, bool theDefault);

    /// The default is for a missing attribute only: a text that does not have the format gives an invalid date-time.
    static QDateTime dateTimeAttribute(const QDomElement& theElement, const QString& theName, Qt::DateFormat theFormat,
                                       const QDateTime& theDefault);

    /// The text of the first child element of a tag, as it stands.
    static QString text(const QDomNode& theParent, const QString& theTag, const QString& theDefault);
    /// The text of the first child element of a tag as a number, read as intAttribute() reads one.
    static int intText(const QDomNode& theParent, const QString& theTag, int theDefault);
    /// The text of the first child element of a tag as a truth value, read as boolAttribute() reads one.
    static bool boolText(const QDomNode& theParent, const QString& theTag, bool theDefault);

    /// The attributes `width` and `height`, whole millimetres; 0 for one that is missing.
    static QSize readSize(const QDomElement& theElement);
};

#endif
