#include "insight/VelDocumentDescription.h"

#include "insight/VelDescribedDocuments.h"

#include <algorithm>

// ---- values

bool VelValueDescription::isWholeNumber() const
{
    switch (myType) {
    case TYPE_CENTS:
    case TYPE_COUNT:
    case TYPE_ID:
    case TYPE_REFERENCE:
    case TYPE_NUMBER:
        return true;
    default:
        return false;
    }
}

bool VelValueDescription::isTrimmed() const
{
    return isWholeNumber() || myType == TYPE_BOOL || myType == TYPE_WORD || myType == TYPE_FACTOR;
}

// ---- elements

QString VelElementDescription::path() const
{
    return myParent ? myParent->path() + QLatin1Char('/') + myTag : myTag;
}

const VelElementDescription* VelElementDescription::child(const QString& theTag) const
{
    const VelElementDescription* free = nullptr;
    for (const VelElementDescription& child : myChildren) {
        if (child.myTag == theTag)
            return &child;
        if (child.myIsTagFree)
            free = &child;
    }
    return free;
}

const VelValueDescription* VelElementDescription::attribute(const QString& theName) const
{
    const auto found =
        std::find_if(myAttributes.begin(), myAttributes.end(),
                     [&theName](const VelValueDescription& theValue) { return theValue.myName == theName; });
    return found == myAttributes.end() ? nullptr : &*found;
}

/// Tells the children where they stand, once they stand there for good.
void VelElementDescription::adopt()
{
    for (VelElementDescription& child : myChildren) {
        child.myParent = this;
        child.adopt();
    }
}

// ---- documents

VelDocumentDescription::VelDocumentDescription(Kind theKind, const QString& theName, const QString& theFile,
                                               const VelElementDescription& theRoot)
    : myKind(theKind), myName(theName), myFile(theFile), myRoot(theRoot)
{
    myRoot.adopt();
}

const VelDocumentDescription& VelDocumentDescription::of(Kind theKind)
{
    return *all().at(theKind);
}

QVector<const VelDocumentDescription*> VelDocumentDescription::all()
{
    using namespace VelDescribedDocuments;
    const auto made = [](Kind theKind, const char* theName, const char* theFile, const VelElementDescription& theRoot) {
        return new VelDocumentDescription(theKind, QString::fromLatin1(theName), QString::fromLatin1(theFile), theRoot);
    };
    static const auto& ourDocuments = *new QVector<const VelDocumentDescription*>{
        // to the end of the process
        // live to the end of the process
        made(PRICE_LIST, "pricelist", "pricelist.xml", priceList()),
        made(ORDERING_DETAILS, "orderingdetails", "orderingdetails.xml", orderingDetails()),
        made(CURRENCIES, "currencies", "currencies.xml", currencies()),
        made(APPEARANCE, "appearance", "appearance.xml", appearance()),
        made(COUPON, "coupon", "coupons/*.xml", coupon()),
        made(PAYMENT_ICONS, "payment-icons", "icons/payment/filenames.xml", paymentIcons())};
    return ourDocuments;
}

const VelElementDescription* VelDocumentDescription::element(const QDomElement& theElement) const
{
    const QDomElement parent = theElement.parentNode().toElement();
    if (parent.isNull())
        return theElement.isNull() ? nullptr : &myRoot;
    const VelElementDescription* place = element(parent);
    return place ? place->child(theElement.tagName()) : nullptr;
}
