#include "sibling/VelGuardedText.h"

#include "sibling/VelGuardedReader.h"

#include <algorithm>

namespace {

const QString STR_DECLARATION = QStringLiteral("<?xml");
const QString STR_VERSION = QStringLiteral("version");
const QString STR_COMMENT = QStringLiteral("<!--");
const QString STR_COMMENT_END = QStringLiteral("-->");
const QString STR_CHARACTER_DATA = QStringLiteral("<![CDATA[");
const QString STR_CHARACTER_DATA_END = QStringLiteral("]]>");
const QString STR_INSTRUCTION = QStringLiteral("<?");
const QString STR_INSTRUCTION_END = QStringLiteral("?>");
const QString STR_DOCTYPE = QStringLiteral("<!DOCTYPE");
const QString STR_END_TAG = QStringLiteral("</");
const QString STR_TAG_END = QStringLiteral(">");

const QLatin1String SUPPORTED_VERSION("1.0");
const QLatin1String RETURN("&#13;");
const QLatin1String NEW_LINE("&#10;");
const QLatin1String TABULATOR("&#9;");

bool isQuote(QChar theCharacter)
{
    return theCharacter == u'"' || theCharacter == u'\'';
}

bool isBlank(QChar theCharacter)
{
    return theCharacter == u' ' || theCharacter == u'\n' || theCharacter == u'\t' || theCharacter == u'\r';
}

bool isAllBlank(QStringView theText)
{
    return std::all_of(theText.begin(), theText.end(), isBlank);
}

} // namespace

VelGuardedText::VelGuardedText(const QString& theText) : myText(theText), myHasReturns(theText.contains(u'\r'))
{
    takeAnyVersion();
    while (!atEnd() && isHarmless())
        if (current() == u'<')
            passMarkup();
        else
            passText();
}

QStringView VelGuardedText::declaredValue(const QString& theText, const QString& theName)
{
    if (!theText.startsWith(STR_DECLARATION))
        return QStringView();
    const QStringView declaration = QStringView(theText).left(theText.indexOf(u'>'));
    const qsizetype name = declaration.indexOf(theName);
    if (name < 0)
        return QStringView();
    const auto begin = std::find_if(declaration.begin() + name, declaration.end(), isQuote);
    if (begin == declaration.end())
        return QStringView();
    return QStringView(begin + 1, std::find_if(begin + 1, declaration.end(), isQuote));
}

VelGuardedDocument::Refusal VelGuardedText::refusalAt(qsizetype theIndex, const QString& theReason) const
{
    return VelGuardedReader::refusalAt(myText, theIndex, theReason);
}

QString VelGuardedText::parsed() const
{
    const QStringView harmless = QStringView(myText).left(isHarmless() ? myText.size() : myHarm);
    if (myEdits.empty())
        return harmless.size() == myText.size() ? myText : harmless.toString();
    QString result;
    result.reserve(harmless.size());
    qsizetype begin = 0;
    for (const Edit& edit : myEdits)
        if (edit.myEnd <= harmless.size()) {
            result += harmless.sliced(begin, edit.myBegin - begin);
            result += edit.myReplacement;
            begin = edit.myEnd;
        }
    result += harmless.sliced(begin);
    return result;
}

qsizetype VelGuardedText::indexOf(qsizetype theParsedIndex) const
{
    qsizetype growth = 0;
    for (const Edit& edit : myEdits) {
        const qsizetype begin = edit.myBegin + growth;
        if (theParsedIndex < begin + edit.myReplacement.size())
            return std::min(theParsedIndex - growth, edit.myBegin);
        growth += edit.myReplacement.size() - (edit.myEnd - edit.myBegin);
    }
    return theParsedIndex - growth;
}

bool VelGuardedText::isAt(const QString& theToken) const
{
    return QStringView(myText).sliced(myIndex).startsWith(theToken);
}

/// Behind the next such token, or to the end.
void VelGuardedText::passBehind(const QString& theToken)
{
    const qsizetype found = myText.indexOf(theToken, myIndex);
    myIndex = found < 0 ? myText.size() : found + theToken.size();
}

void VelGuardedText::passMarkup()
{
    if (isAt(STR_END_TAG))
        passEndTag();
    else if (isAt(STR_COMMENT))
        passBehind(STR_COMMENT_END);
    else if (isAt(STR_CHARACTER_DATA))
        passBehind(STR_CHARACTER_DATA_END);
    else if (isAt(STR_DOCTYPE))
        passDocumentType();
    else if (isAt(STR_INSTRUCTION))
        passBehind(STR_INSTRUCTION_END);
    else
        passStartTag();
}

/// A parser drops a return before a line break, and takes any other for one, but not when it is written as a reference.
/// Blank text stays blank: the tree leaves it out.
void VelGuardedText::passText()
{
    const qsizetype begin = myIndex;
    const qsizetype end = myText.indexOf(u'<', begin);
    myIndex = end < 0 ? myText.size() : end;
    if (!myHasReturns || isAllBlank(QStringView(myText).sliced(begin, myIndex - begin)))
        return;
    for (qsizetype index = begin; index < myIndex; ++index)
        if (myText.at(index) == u'\r')
            myEdits.push_back({index, index + 1, RETURN});
}

/// What is declared in the document itself has no effect, default attributes among it, and so it is left out.
void VelGuardedText::passDocumentType()
{
    qsizetype begin = -1; // of the declarations
    while (!atEnd() && (begin >= 0 || current() != u'>')) {
        if (begin < 0 && current() == u'[')
            begin = myIndex + 1;
        if (begin >= 0 && current() == u']') {
            myEdits.push_back({begin, myIndex, QLatin1String()});
            begin = -1;
        }
        passInDocumentType();
    }
}

/// A character, or what may hold any without a meaning.
void VelGuardedText::passInDocumentType()
{
    if (isAt(STR_COMMENT))
        passBehind(STR_COMMENT_END);
    else if (isAt(STR_INSTRUCTION))
        passBehind(STR_INSTRUCTION_END);
    else if (isQuote(current()))
        myIndex = std::max(myText.indexOf(current(), myIndex + 1), myIndex) + 1;
    else
        ++myIndex;
}

void VelGuardedText::passEndTag()
{
    passBehind(STR_TAG_END);
    --myDepth;
}

void VelGuardedText::passStartTag()
{
    passAttributes();
    if (atEnd())
        return;
    const bool isEmpty = myText.at(myIndex - 1) == u'/';
    ++myIndex;
    if (myDepth == VelGuardedReader::MAX_NESTING)
        refuse(VelGuardedReader::reasonOfNesting(), std::min(myHarm, myIndex));
    else if (myAttributes > VelGuardedReader::MAX_ATTRIBUTES)
        refuse(VelGuardedReader::reasonOfAttributes(), myHarm);
    else if (!isEmpty)
        ++myDepth;
}

/// To the end of the start tag. A parser that reads more attributes than are allowed compares each with all others.
void VelGuardedText::passAttributes()
{
    myAttributes = 0;
    myHarm = myText.size();
    for (; !atEnd() && current() != u'>'; ++myIndex)
        if (isQuote(current()))
            passAttributeValue();
        else if (current() == u'=' && ++myAttributes == VelGuardedReader::MAX_ATTRIBUTES + 1)
            myHarm = myIndex;
}

/// To the closing quote. A parser takes a line break and a tabulator in a value for a blank, but not when they are
/// written as references.
void VelGuardedText::passAttributeValue()
{
    const QChar quote = current();
    for (++myIndex; !atEnd() && current() != quote; ++myIndex)
        if (current() == u'\n')
            myEdits.push_back({myIndex, myIndex + 1, NEW_LINE});
        else if (current() == u'\r')
            myEdits.push_back({myIndex, myIndex + 1, RETURN});
        else if (current() == u'\t')
            myEdits.push_back({myIndex, myIndex + 1, TABULATOR});
}

void VelGuardedText::refuse(const QString& theReason, qsizetype theHarm)
{
    myReason = theReason;
    myHarm = theHarm;
}

/// A parser that knows 1.0 alone refuses any other version.
void VelGuardedText::takeAnyVersion()
{
    const QStringView version = declaredValue(myText, STR_VERSION);
    const qsizetype begin = version.data() - myText.constData();
    if (!version.isEmpty() && version != SUPPORTED_VERSION)
        myEdits.push_back({begin, begin + version.size(), SUPPORTED_VERSION});
}
