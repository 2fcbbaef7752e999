#include "sibling/VelStringHelper.h"

#include <QStringView>

namespace {

bool isDigit(QChar theCharacter)
{
    return theCharacter >= QLatin1Char('0') && theCharacter <= QLatin1Char('9');
}

/// Takes the run of digits at the front of the text, which begins with one; its leading zeros are dropped.
QStringView takeNumber(QStringView& theText)
{
    qsizetype end = 0;
    while (end < theText.size() && isDigit(theText[end]))
        ++end;
    qsizetype begin = 0;
    while (begin < end && theText[begin] == QLatin1Char('0'))
        ++begin;
    const QStringView number = theText.mid(begin, end - begin);
    theText = theText.mid(end);
    return number;
}

/// Below, equal to or above 0, as the numbers stand to each other.
int comparedNumbers(QStringView theLeft, QStringView theRight)
{
    if (theLeft.size() != theRight.size())
        return theLeft.size() < theRight.size() ? -1 : 1;
    return theLeft.compare(theRight);
}

/// Compares and takes what stands in front of both texts: a number, or one character.
int comparedFronts(QStringView& theLeft, QStringView& theRight)
{
    if (isDigit(theLeft.front()) && isDigit(theRight.front())) {
        const QStringView left = takeNumber(theLeft);
        return comparedNumbers(left, takeNumber(theRight));
    }
    const int left = theLeft.front().toCaseFolded().unicode();
    const int right = theRight.front().toCaseFolded().unicode();
    theLeft = theLeft.mid(1);
    theRight = theRight.mid(1);
    return left - right;
}

} // namespace

bool VelStringHelper::numberAwareProductNameLessThan(const QString& theLeft, const QString& theRight)
{
    QStringView left(theLeft);
    QStringView right(theRight);
    while (!left.isEmpty() && !right.isEmpty()) {
        const int order = comparedFronts(left, right);
        if (order != 0)
            return order < 0;
    }
    if (left.isEmpty() && right.isEmpty())
        return theLeft < theRight;
    return left.isEmpty();
}
