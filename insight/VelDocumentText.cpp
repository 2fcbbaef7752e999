#include "insight/VelDocumentText.h"

#include <QtGlobal>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#include <QXmlInputSource>
#else
#include <QStringConverter>
#include <QStringDecoder>
#endif

#include <algorithm>

namespace {

const QLatin1String STR_DECLARATION("<?xml");
const QLatin1String STR_DECLARATION_END("?>");
const QLatin1String STR_ENCODING("encoding");

const QByteArray WRITTEN_REPLACEMENT = QByteArrayLiteral("\xef\xbf\xbd"); ///< U+FFFD in UTF-8
const QByteArray PRIVATE_CHARACTER = QByteArrayLiteral("\xee\x80\x80");   ///< U+E000 in UTF-8, as long in any form

/// Offset of the name in the quotes of the declaration's `encoding`, -1 for none.
int offsetOfEncoding(const QString& theText)
{
    if (!theText.startsWith(STR_DECLARATION))
        return -1;
    const auto end = theText.indexOf(STR_DECLARATION_END);
    const auto name = theText.indexOf(STR_ENCODING);
    if (name < 0 || name > end)
        return -1;
    for (auto at = name + STR_ENCODING.size(); at < end; ++at)
        if (theText.at(at) == QLatin1Char('"') || theText.at(at) == QLatin1Char('\''))
            return static_cast<int>(at) + 1;
    return -1;
}

/// What stands from the offset up to the closing quote.
QString quotedAt(const QString& theText, int theOffset)
{
    const auto end = theText.indexOf(theText.at(theOffset - 1), theOffset);
    return end < 0 ? QString() : theText.mid(theOffset, end - theOffset);
}

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

QString decoded(const QByteArray& theBytes)
{
    QXmlInputSource source; // the very decoder that the reader has
    source.setData(theBytes);
    return source.data();
}

bool isKnownEncoding(const QString& theName)
{
    return QTextCodec::codecForName(theName.toLatin1()) != nullptr;
}

#else

QStringDecoder decoderOfName(const QString& theName)
{
    return QStringDecoder(theName.toLatin1().constData());
}

bool isKnownEncoding(const QString& theName)
{
    return decoderOfName(theName).isValid();
}

QString decoded(const QByteArray& theBytes)
{
    const auto marked = QStringConverter::encodingForData(theBytes, u'<');
    QString text = QStringDecoder(marked.value_or(QStringConverter::Utf8)).decode(theBytes);
    const int name = marked ? -1 : offsetOfEncoding(text);
    if (name < 0 || !isKnownEncoding(quotedAt(text, name)))
        return text;
    return decoderOfName(quotedAt(text, name)).decode(theBytes);
}

#endif

QString withoutMark(const QString& theText)
{
    return theText.startsWith(QChar(QChar::ByteOrderMark)) ? theText.mid(1) : theText;
}

/// In UTF-16 a written replacement character is two bytes of its own, and no other bytes turn into one.
bool isUtf16(const QByteArray& theBytes)
{
    return theBytes.startsWith("\xff\xfe") || theBytes.startsWith("\xfe\xff");
}

bool isLineEnd(const QString& theText, int theOffset)
{
    const QChar character = theText.at(theOffset);
    if (character == QLatin1Char('\n'))
        return true;
    const bool isBeforeLineFeed = theOffset + 1 < theText.size() && theText.at(theOffset + 1) == QLatin1Char('\n');
    return character == QLatin1Char('\r') && !isBeforeLineFeed;
}

/// How many of the ascending numbers lie below a bound.
int countBelow(const QVector<int>& theNumbers, int theBound)
{
    return static_cast<int>(std::lower_bound(theNumbers.begin(), theNumbers.end(), theBound) - theNumbers.begin());
}

} // namespace

VelDocumentText::VelDocumentText(const QByteArray& theBytes) : myText(withoutMark(decoded(theBytes)))
{
    findLines();
    findBadCharacters(theBytes);
    findEncoding();
}

QString VelDocumentText::line(int theNumber) const
{
    if (theNumber < 1 || theNumber > lineCount())
        return QString();
    const int start = myLineStarts.at(theNumber - 1);
    int end = theNumber < lineCount() ? myLineStarts.at(theNumber) : static_cast<int>(myText.size());
    while (end > start && (myText.at(end - 1) == QLatin1Char('\n') || myText.at(end - 1) == QLatin1Char('\r')))
        --end;
    return myText.mid(start, end - start);
}

VelDocumentPlace VelDocumentText::place(int theOffset) const
{
    if (theOffset < 0 || theOffset > myText.size())
        return VelDocumentPlace();
    const int line = countBelow(myLineStarts, theOffset + 1);
    const int start = myLineStarts.at(line - 1);
    const int halves = countBelow(myLowSurrogates, theOffset) - countBelow(myLowSurrogates, start);
    return {line, theOffset - start - halves + 1};
}

QVector<VelDocumentPlace> VelDocumentText::badCharacters() const
{
    QVector<VelDocumentPlace> places;
    places.reserve(myBadOffsets.size());
    for (const int offset : myBadOffsets)
        places.append(place(offset));
    return places;
}

void VelDocumentText::findLines()
{
    myLineStarts.append(0);
    for (int offset = 0; offset < myText.size(); ++offset) {
        const QChar character = myText.at(offset);
        if (character < QLatin1Char(' ') && isLineEnd(myText, offset))
            myLineStarts.append(offset + 1);
        else if (character.isLowSurrogate() && offset > 0 && myText.at(offset - 1).isHighSurrogate())
            myLowSurrogates.append(offset);
    }
    myLineStarts.squeeze();
    myLowSurrogates.squeeze();
}

void VelDocumentText::findBadCharacters(const QByteArray& theBytes)
{
    if (isUtf16(theBytes) || !myText.contains(QChar(QChar::ReplacementCharacter)))
        return;
    // Decoded without the replacement characters that are written out, the text has only those of the decoder left.
    const QString others = withoutMark(decoded(QByteArray(theBytes).replace(WRITTEN_REPLACEMENT, PRIVATE_CHARACTER)));
    for (int offset = 0; offset < others.size(); ++offset)
        if (others.at(offset) == QChar(QChar::ReplacementCharacter))
            myBadOffsets.append(offset);
}

void VelDocumentText::findEncoding()
{
    myEncodingOffset = offsetOfEncoding(myText);
    if (myEncodingOffset < 0)
        return;
    myEncodingName = quotedAt(myText, myEncodingOffset);
    myIsEncodingKnown = isKnownEncoding(myEncodingName);
}
