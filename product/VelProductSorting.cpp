#include "product/VelProductSorting.h"

#include "product/VelProductAbstract.h"

namespace {

/// The run of digits at the start of a name, empty when there is none.
QStringRef leadingDigits(const QString& theName)
{
    int length = 0;
    while (length < theName.length() && theName.at(length).isDigit())
        ++length;
    return theName.leftRef(length);
}

} // namespace

bool sortByNumber(const QString& theLeft, const QString& theRight)
{
    const QStringRef leftDigits = leadingDigits(theLeft);
    const QStringRef rightDigits = leadingDigits(theRight);
    if (!leftDigits.isEmpty() && !rightDigits.isEmpty()) {
        const int left = leftDigits.toInt();
        const int right = rightDigits.toInt();
        return left != right ? left < right : theLeft.length() < theRight.length();
    }
    if (theLeft.length() != theRight.length())
        return theLeft.length() < theRight.length();
    return QString::compare(theLeft, theRight, Qt::CaseInsensitive) < 0;
}

bool sortProductByNumber(VelProductAbstract* theLeft, VelProductAbstract* theRight)
{
    return sortByNumber(theLeft->name(), theRight->name());
}
