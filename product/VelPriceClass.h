#ifndef VELPRICECLASS_H
#define VELPRICECLASS_H

#include "frame/VelTarmExport.h"

#include <QString>

/// The text of a price class, for users of the library. A value.
class VELTARM_EXPORT VelPriceClass
{
public:
    /// Holds the text as it stands.
    explicit VelPriceClass(const QString& thePriceClass) { setPriceClass(thePriceClass); }

    /// Replaces the text.
    void setPriceClass(const QString& thePriceClass) { myPriceClass = thePriceClass; }
    /// The text as it stands.
    QString toString() const { return myPriceClass; }

    /// By the text, exactly.
    bool operator==(const VelPriceClass& theOther) const { return myPriceClass == theOther.myPriceClass; }
    bool operator!=(const VelPriceClass& theOther) const { return !(*this == theOther); }

    /// Whether the text is empty or begins with "0".
    bool isFree() const { return myPriceClass.isEmpty() || myPriceClass.at(0) == QLatin1Char('0'); }

private:
    QString myPriceClass;
};

#endif
