#include "insight/VelDocumentScan.h"

#include <algorithm>
#include <memory>

namespace {

const QLatin1String STR_DECLARATION("<?xml");
const QLatin1String STR_DECLARATION_END("?>");
const QLatin1String STR_COMMENT("<!--");
const QLatin1String STR_COMMENT_END("-->");

/// Each mended place is a parse from the start, so that a document full of them must not cost without end.
constexpr int MOST_ODDITIES = 32;

/// Stands in the copy for what expat shall take as a part of a name or a text.
constexpr char LETTER = 'x';

bool isBlank(QChar theCharacter)
{
    return theCharacter == QLatin1Char(' ') || theCharacter == QLatin1Char('\t') || theCharacter == QLatin1Char('\n') ||
           theCharacter == QLatin1Char('\r');
}

bool isQuote(QChar theCharacter)
{
    return theCharacter == QLatin1Char('"') || theCharacter == QLatin1Char('\'');
}

char plain(QChar theCharacter)
{
    const ushort code = theCharacter.unicode();
    const bool isPlain = (code >= ' ' && code < 0x7f && code != '&') || isBlank(theCharacter);
    return isPlain ? static_cast<char>(code) : LETTER;
}

/// The declaration goes: its encoding is not that of the copy.
int endOfDeclaration(const QString& theText)
{
    if (!theText.startsWith(STR_DECLARATION))
        return 0;
    const auto end = theText.indexOf(STR_DECLARATION_END);
    return end < 0 ? 0 : static_cast<int>(end + STR_DECLARATION_END.size());
}

QByteArray copyOf(const QString& theText)
{
    QByteArray copy(theText.size(), Qt::Uninitialized);
    std::transform(theText.begin(), theText.end(), copy.begin(), plain);
    std::replace_if(
        copy.begin(), copy.begin() + endOfDeclaration(theText), [](char theByte) { return theByte != '\n'; }, ' ');
    return copy;
}

} // namespace

VelDocumentScan::VelDocumentScan(VelDocumentPositions& thePositions)
    : myPositions(thePositions), myText(thePositions.text().text()), myCopy(copyOf(myText))
{
}

void VelDocumentScan::run()
{
    while (!parsed())
        clear();
    std::sort(myPositions.myOddities.begin(), myPositions.myOddities.end(),
              [](const auto& theLeft, const auto& theRight) { return theLeft.myPlace < theRight.myPlace; });
    for (const int number : qAsConst(myOpen))
        myPositions.myElements[number].myEnd = myPositions.elementCount();
    myPositions.myElements.squeeze();
    myPositions.myAttributes.squeeze();
}

/// False when the copy was mended and has to be parsed again.
bool VelDocumentScan::parsed()
{
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                              XML_ParserFree);
    myParser = parser.get();
    listen();
    if (XML_Parse(myParser, myCopy.constData(), static_cast<int>(myCopy.size()), XML_TRUE) == XML_STATUS_OK)
        return true;
    const int offset = here();
    const XML_Error error = XML_GetErrorCode(myParser);
    if (mend(offset, error))
        return false;
    fail(offset, error);
    return true;
}

/// Which operation hears of what.
void VelDocumentScan::listen()
{
    using Scan = VelDocumentScan*;
    XML_SetUserData(myParser, this);
    XML_SetElementHandler(
        myParser, [](void* theScan, const char*, const char**) { static_cast<Scan>(theScan)->begin(); },
        [](void* theScan, const char*) { static_cast<Scan>(theScan)->end(); });
    XML_SetCharacterDataHandler(myParser, [](void* theScan, const char* theText, int theLength) {
        static_cast<Scan>(theScan)->addText(theText, theLength);
    });
    XML_SetCommentHandler(myParser, [](void* theScan, const char*) { static_cast<Scan>(theScan)->addComment(); });
    XML_SetProcessingInstructionHandler(
        myParser, [](void* theScan, const char*, const char*) { static_cast<Scan>(theScan)->endText(); });
    XML_SetCdataSectionHandler(
        myParser, [](void* theScan) { static_cast<Scan>(theScan)->endText(); },
        [](void* theScan) { static_cast<Scan>(theScan)->endText(); });
}

int VelDocumentScan::here() const
{
    return static_cast<int>(XML_GetCurrentByteIndex(myParser));
}

void VelDocumentScan::clear()
{
    myPositions.myElements.clear();
    myPositions.myAttributes.clear();
    myPositions.myComments.clear();
    myOpen.clear();
    myWaiting.clear();
    endText();
}

/// What the reader takes and expat doesn't is taken out of the copy: an attribute that stands twice, and one without a
/// blank in front of it. False for every other error.
bool VelDocumentScan::mend(int theOffset, XML_Error theError)
{
    const bool isTwice = theError == XML_ERROR_DUPLICATE_ATTRIBUTE;
    const bool isJoined = theError == XML_ERROR_INVALID_TOKEN && theOffset > 0 && isQuote(at(theOffset - 1));
    if (!isTwice && !isJoined) // the others may stand nowhere, as that of an empty text
        return false;
    int value = 0;
    const int end = endOfAttribute(theOffset, value);
    if (end < 0 || myPositions.myOddities.size() == MOST_ODDITIES)
        return false;
    const QString reason = isTwice ? QStringLiteral("the attribute %1 stands twice; the last one is read")
                                   : QStringLiteral("there is no blank in front of the attribute %1");
    myPositions.myOddities.append({myPositions.text().place(theOffset), reason.arg(myPositions.nameAt(theOffset))});
    std::replace_if(
        myCopy.begin() + theOffset, myCopy.begin() + end, [](char theByte) { return theByte != '\n'; }, ' ');
    return true;
}

void VelDocumentScan::fail(int theOffset, XML_Error theError)
{
    if (theError == XML_ERROR_TAG_MISMATCH && !myOpen.isEmpty())
        tellError(theOffset - 2, mismatch(theOffset)); // it stands at the name, behind "</"
    else if (theError == XML_ERROR_NO_ELEMENTS && !myOpen.isEmpty())
        tellError(theOffset, QStringLiteral("the document ends, and %1 is still open").arg(innermost()));
    else
        tellError(theOffset, QString::fromLatin1(XML_ErrorString(theError)));
}

void VelDocumentScan::tellError(int theOffset, const QString& theReason)
{
    const int last = static_cast<int>(myText.size());
    myPositions.myError = {myPositions.text().place(qBound(0, theOffset, last)), theReason};
}

QString VelDocumentScan::mismatch(int theOffset) const
{
    return QStringLiteral("</%1> doesn't close %2").arg(myPositions.nameAt(theOffset), innermost());
}

/// The innermost open element, with its line.
QString VelDocumentScan::innermost() const
{
    const int number = myOpen.last();
    return QStringLiteral("<%1> of line %2").arg(myPositions.tag(number)).arg(myPositions.element(number).myLine);
}

void VelDocumentScan::begin()
{
    endText();
    const int number = myPositions.elementCount();
    for (const int comment : qAsConst(myWaiting))
        myPositions.myComments[comment].myElement = number;
    myWaiting.clear();
    myPositions.myElements.append({here(), -1, static_cast<int>(myPositions.myAttributes.size()), number + 1});
    myOpen.append(number);
    scanAttributes(here());
}

void VelDocumentScan::end()
{
    endText();
    myWaiting.clear();
    myPositions.myElements[myOpen.takeLast()].myEnd = myPositions.elementCount();
}

/// Expat hands over a text in pieces; what has begun blank may go on with letters.
void VelDocumentScan::addText(const char* theText, int theLength)
{
    if (myTextStart < 0)
        myTextStart = here();
    int& offset = myPositions.myElements[myOpen.last()].myTextOffset;
    const bool isBlankText =
        std::all_of(theText, theText + theLength, [](char theByte) { return isBlank(QLatin1Char(theByte)); });
    if (offset < 0 && !isBlankText)
        offset = myTextStart;
}

void VelDocumentScan::addComment()
{
    endText();
    const int start = here();
    const int text = start + static_cast<int>(STR_COMMENT.size());
    const int end = static_cast<int>(myText.indexOf(STR_COMMENT_END, text));
    myWaiting.append(static_cast<int>(myPositions.myComments.size()));
    myPositions.myComments.append({start, -1, myText.mid(text, end - text)});
}

/// The attributes of the start tag at an offset. Both parsers have taken the tag, so little has to be asked.
void VelDocumentScan::scanAttributes(int theOffset)
{
    int name = skipBlanks(endOfName(theOffset + 1));
    int value = 0;
    for (int end = endOfAttribute(name, value); end > 0; end = endOfAttribute(name, value)) {
        myPositions.myAttributes.append({name, value});
        name = skipBlanks(end);
    }
}

int VelDocumentScan::skipBlanks(int theOffset) const
{
    while (isBlank(at(theOffset)))
        ++theOffset;
    return theOffset;
}

int VelDocumentScan::endOfName(int theOffset) const
{
    const auto isOfName = [this](int thePlace) {
        const QChar character = at(thePlace);
        return thePlace < myText.size() && !isBlank(character) && character != QLatin1Char('=') &&
               character != QLatin1Char('/') && character != QLatin1Char('>');
    };
    while (isOfName(theOffset))
        ++theOffset;
    return theOffset;
}

/// The offset behind the closing quote of the attribute whose name begins at an offset, and where its value begins; -1
/// where no attribute stands.
int VelDocumentScan::endOfAttribute(int theName, int& theValue) const
{
    const int sign = skipBlanks(endOfName(theName));
    const int quote = skipBlanks(sign + 1);
    if (sign == theName || at(sign) != QLatin1Char('=') || !isQuote(at(quote)))
        return -1;
    theValue = quote + 1;
    return static_cast<int>(myText.indexOf(at(quote), theValue)) + 1;
}
