#include "sibling/VelXMLParser.h"

namespace {

const QString STR_WIDTH = QStringLiteral("width");
const QString STR_HEIGHT = QStringLiteral("height");

const int NOT_PLAIN = -1;
const int MOST_PLAIN_DIGITS = 9; // of which any fits an int

/// The number that a few digits make, NOT_PLAIN for any other text. Nearly all numbers of a document are plain, and
/// QString::toInt takes many times as long, as it knows locales.
int plainNumber(const QString& theText)
{
    if (theText.size() > MOST_PLAIN_DIGITS)
        return NOT_PLAIN;
    int number = 0;
    for (const QChar character : theText) {
        if (character < QLatin1Char('0') || character > QLatin1Char('9'))
            return NOT_PLAIN;
        number = number * 10 + (character.unicode() - '0');
    }
    return number;
}

int toInt(const QString& theText, int theDefault)
{
    if (theText.isEmpty())
        return theDefault;
    const int plain = plainNumber(theText);
    if (plain != NOT_PLAIN)
        return plain;
    bool isNumber = false;
    const int number = theText.toInt(&isNumber);
    return isNumber ? number : theDefault;
}

bool toBool(const QString& theText, bool theDefault)
{
    const QString word = theText.trimmed();
    if (word == QLatin1String("1") || word.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (word == QLatin1String("0") || word.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    return theDefault;
}

} // namespace

QString VelXMLParser::attribute(const QDomElement& theElement, const QString& theName, const QString& theDefault)
{
    return theElement.attribute(theName, theDefault);
}

int VelXMLParser::intAttribute(const QDomElement& theElement, const QString& theName, int theDefault)
{
    return toInt(theElement.attribute(theName), theDefault);
}

bool VelXMLParser::boolAttribute(const QDomElement& theElement, const QString& theName, bool theDefault)
{
    return toBool(theElement.attribute(theName), theDefault);
}

QDateTime VelXMLParser::dateTimeAttribute(const QDomElement& theElement, const QString& theName,
                                          Qt::DateFormat theFormat, const QDateTime& theDefault)
{
    const QString text = theElement.attribute(theName);
    return text.isNull() ? theDefault : QDateTime::fromString(text, theFormat);
}

QString VelXMLParser::text(const QDomNode& theParent, const QString& theTag, const QString& theDefault)
{
    const QDomElement child = theParent.firstChildElement(theTag);
    return child.isNull() ? theDefault : child.text();
}

int VelXMLParser::intText(const QDomNode& theParent, const QString& theTag, int theDefault)
{
    return toInt(text(theParent, theTag, QString()), theDefault);
}

bool VelXMLParser::boolText(const QDomNode& theParent, const QString& theTag, bool theDefault)
{
    return toBool(text(theParent, theTag, QString()), theDefault);
}

QSize VelXMLParser::readSize(const QDomElement& theElement)
{
    return QSize(intAttribute(theElement, STR_WIDTH, 0), intAttribute(theElement, STR_HEIGHT, 0));
}
