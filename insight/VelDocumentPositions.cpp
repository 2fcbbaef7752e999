#include "insight/VelDocumentPositions.h"

#include "insight/VelDocumentScan.h"

#include <algorithm>

namespace {

bool endsName(QChar theCharacter)
{
    return theCharacter.unicode() <= ' ' || theCharacter == QLatin1Char('=') || theCharacter == QLatin1Char('/') ||
           theCharacter == QLatin1Char('>');
}

} // namespace

VelDocumentPositions::VelDocumentPositions(const VelDocumentText& theText) : myText(theText)
{
    VelDocumentScan(*this).run();
}

VelDocumentPlace VelDocumentPositions::element(int theNumber) const
{
    return isElement(theNumber) ? myText.place(myElements.at(theNumber).myOffset) : VelDocumentPlace();
}

VelDocumentPlace VelDocumentPositions::attributeName(int theNumber, const QString& theName) const
{
    const Attribute* found = attribute(theNumber, theName);
    return found ? myText.place(found->myName) : VelDocumentPlace();
}

VelDocumentPlace VelDocumentPositions::attributeValue(int theNumber, const QString& theName) const
{
    const Attribute* found = attribute(theNumber, theName);
    return found ? myText.place(found->myValue) : VelDocumentPlace();
}

VelDocumentPlace VelDocumentPositions::elementText(int theNumber) const
{
    return isElement(theNumber) ? myText.place(myElements.at(theNumber).myTextOffset) : VelDocumentPlace();
}

QVector<QString> VelDocumentPositions::attributeNames(int theNumber) const
{
    QVector<QString> names;
    if (!isElement(theNumber))
        return names;
    for (int index = firstAttribute(theNumber); index < firstAttribute(theNumber + 1); ++index)
        names.append(nameAt(myAttributes.at(index).myName));
    return names;
}

int VelDocumentPositions::endOfElement(int theNumber) const
{
    return isElement(theNumber) ? myElements.at(theNumber).myEnd : theNumber;
}

QString VelDocumentPositions::tag(int theNumber) const
{
    return isElement(theNumber) ? nameAt(myElements.at(theNumber).myOffset + 1) : QString();
}

int VelDocumentPositions::firstAttribute(int theNumber) const
{
    return theNumber < elementCount() ? myElements.at(theNumber).myFirstAttribute
                                      : static_cast<int>(myAttributes.size());
}

/// Of one that stands twice, the last.
const VelDocumentPositions::Attribute* VelDocumentPositions::attribute(int theNumber, const QString& theName) const
{
    if (!isElement(theNumber))
        return nullptr;
    for (int index = firstAttribute(theNumber + 1) - 1; index >= firstAttribute(theNumber); --index)
        if (nameAt(myAttributes.at(index).myName) == theName)
            return &myAttributes.at(index);
    return nullptr;
}

QString VelDocumentPositions::nameAt(int theOffset) const
{
    const QString& text = myText.text();
    const auto end = std::find_if(text.begin() + theOffset, text.end(), endsName);
    return text.mid(theOffset, static_cast<int>(end - text.begin()) - theOffset);
}
