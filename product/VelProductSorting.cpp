#include "product/VelProductSorting.h"

#include "product/VelProductAbstract.h"

#include <vector>

namespace {

/// The run of digits at the start of a name, empty when there is none.
QStringView leadingDigits(const QString& theName)
{
    int length = 0;
    while (length < theName.length() && theName.at(length).isDigit())
        ++length;
    return QStringView(theName).left(length);
}

/// A name with what its order depends on.
struct NumberedName
{
    explicit NumberedName(const QString& theName) : myName(theName)
    {
        const QStringView digits = leadingDigits(theName);
        myHasNumber = !digits.isEmpty();
        myNumber = digits.toInt();
    }

    bool isBefore(const NumberedName& theOther) const
    {
        if (myHasNumber && theOther.myHasNumber)
            return myNumber != theOther.myNumber ? myNumber < theOther.myNumber
                                                 : myName.length() < theOther.myName.length();
        if (myName.length() != theOther.myName.length())
            return myName.length() < theOther.myName.length();
        return QString::compare(myName, theOther.myName, Qt::CaseInsensitive) < 0;
    }

    QString myName;
    bool myHasNumber;
    int myNumber;
};

struct NumberedProduct
{
    NumberedName myName;
    VelProductAbstract* myProduct;
};

} // namespace

bool sortByNumber(const QString& theLeft, const QString& theRight)
{
    return NumberedName(theLeft).isBefore(NumberedName(theRight));
}

bool sortProductByNumber(VelProductAbstract* theLeft, VelProductAbstract* theRight)
{
    return sortByNumber(theLeft->name(), theRight->name());
}

void sortProductsByNumber(VelProductList& theProducts)
{
    std::vector<NumberedProduct> products;
    products.reserve(static_cast<std::size_t>(theProducts.size()));
    for (VelProductAbstract* product : qAsConst(theProducts))
        products.push_back({NumberedName(product->name()), product});
    quickSort(products.begin(), products.end(), [](const NumberedProduct& theLeft, const NumberedProduct& theRight) {
        return theLeft.myName.isBefore(theRight.myName);
    });
    for (int index = 0; index < theProducts.size(); ++index)
        theProducts[index] = products[static_cast<std::size_t>(index)].myProduct;
}
