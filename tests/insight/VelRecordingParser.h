#ifndef VELRECORDINGPARSER_H
#define VELRECORDINGPARSER_H

// A parser in place of the library's own that also notes what is asked for. The library is linked to this one; the
// answers are those of the real one, which is compiled in here under another name.
#define VelXMLParser PlainXMLParser
#include "sibling/VelXMLParser.cpp"
#undef VelXMLParser
#undef VELXMLPARSER_H
#include "sibling/VelXMLParser.h"

#include <functional>

namespace Recording {

/// Called with an element and the name of an attribute, or with a child element and a null name for its text.
inline std::function<void(const QDomElement&, const QString&)> reader;

inline void note(const QDomElement& theElement, const QString& theAttribute = QString())
{
    if (reader && !theElement.isNull())
        reader(theElement, theAttribute);
}

} // namespace Recording

QString VelXMLParser::attribute(const QDomElement& theElement, const QString& theName, const QString& theDefault)
{
    Recording::note(theElement, theName);
    return PlainXMLParser::attribute(theElement, theName, theDefault);
}

int VelXMLParser::intAttribute(const QDomElement& theElement, const QString& theName, int theDefault)
{
    Recording::note(theElement, theName);
    return PlainXMLParser::intAttribute(theElement, theName, theDefault);
}

bool VelXMLParser::boolAttribute(const QDomElement& theElement, const QString& theName, bool theDefault)
{
    Recording::note(theElement, theName);
    return PlainXMLParser::boolAttribute(theElement, theName, theDefault);
}

QDateTime VelXMLParser::dateTimeAttribute(const QDomElement& theElement, const QString& theName,
                                          Qt::DateFormat theFormat, const QDateTime& theDefault)
{
    Recording::note(theElement, theName);
    return PlainXMLParser::dateTimeAttribute(theElement, theName, theFormat, theDefault);
}

QString VelXMLParser::text(const QDomNode& theParent, const QString& theTag, const QString& theDefault)
{
    Recording::note(theParent.firstChildElement(theTag));
    return PlainXMLParser::text(theParent, theTag, theDefault);
}

int VelXMLParser::intText(const QDomNode& theParent, const QString& theTag, int theDefault)
{
    Recording::note(theParent.firstChildElement(theTag));
    return PlainXMLParser::intText(theParent, theTag, theDefault);
}

bool VelXMLParser::boolText(const QDomNode& theParent, const QString& theTag, bool theDefault)
{
    Recording::note(theParent.firstChildElement(theTag));
    return PlainXMLParser::boolText(theParent, theTag, theDefault);
}

QSize VelXMLParser::readSize(const QDomElement& theElement)
{
    Recording::note(theElement, QStringLiteral("width"));
    Recording::note(theElement, QStringLiteral("height"));
    return PlainXMLParser::readSize(theElement);
}

#endif
