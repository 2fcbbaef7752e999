#ifndef VELPRODUCTTYPE_H
#define VELPRODUCTTYPE_H

#include "frame/VelEnumerations.h"
#include "sibling/VelSiblingExport.h"

#include <QString>

/// Names a product type: its value and the text that it was built from.
class VELSIBLING_EXPORT VelProductType
{
public:
    /// The text is a key of the value; which one, where a family of keys has the same value, is open.
    VelProductType(VelProductTypeEnum theType);

    /// A text that is no key of a product type gives an unknown type, which keeps the text.
    VelProductType(const QString& theText);

    /// The value; PRODUCT_TYPE_UNKNOWN for a text that is no key.
    VelProductTypeEnum type() const { return myType; }

    /// Albums are photo books; an unknown type has PRODUCT_CLASS_NONE.
    VelProductClass productClass() const;

    /// The text by which products carry this type as their order-text type.
    QString productName() const { return myText; }

    /// Whether the value is PRODUCT_TYPE_UNKNOWN, whatever the text.
    bool isUnknown() const { return myType == PRODUCT_TYPE_UNKNOWN; }

    /// By value, whatever the texts.
    bool operator<(const VelProductType& theOther) const { return myType < theOther.myType; }

private:
    VelProductTypeEnum myType;
    QString myText;
};

#endif
