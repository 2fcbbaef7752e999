#ifndef VELEXPRESSTYPE_H
#define VELEXPRESSTYPE_H

#include "frame/VelEnumerations.h"
#include "frame/VelLookUpTable.h"
#include "frame/VelTarmExport.h"

#include <QString>

/// The speed class of production and shipping, with its name for people. A value.
class VELTARM_EXPORT VelExpressType
{
public:
    /// ExpressableType_UNKNOWN.
    VelExpressType() = default;

    /// Of a value, and so converts from it.
    VelExpressType(VelExpressTypeEnum theValue) : myValue(theValue) {}

    /// Decodes a document's key: "0" standard, "1" and "2" the express classes, empty is unknown.
    explicit VelExpressType(const QString& theText);

    VelExpressType(const VelExpressType&) = default;
    VelExpressType& operator=(const VelExpressType&) = default;
    virtual ~VelExpressType() = default;

    /// The value, standard and express classes in ascending order.
    VelExpressTypeEnum value() const { return myValue; }

    /// Whether the value is not ExpressableType_UNKNOWN.
    bool isValid() const { return myValue != ExpressableType_UNKNOWN; }

    /// By value.
    bool operator<(const VelExpressType& theOther) const { return myValue < theOther.myValue; }
    bool operator==(const VelExpressType& theOther) const { return myValue == theOther.myValue; }
    bool operator!=(const VelExpressType& theOther) const { return myValue != theOther.myValue; }

    /// A new table of the translated names, owned by the caller.
    static VelLookUpTable<VelExpressTypeEnum, QString>* initNames();

    /// The translated name. The express classes 2 and 3 have none of their own and answer "Undefiniert".
    QString humanReadableName() const;

    /// The type of that name, in the language of the names or in German; unknown when no type has it. Letters beyond
    /// ASCII don't survive the comparison: a name that holds one is never found, and its type is unknown.
    static VelExpressType createFromHumanReadable(const QString& theText);

private:
    static const VelLookUpTable<VelExpressTypeEnum, QString>& names();

    /// Built on first need, in the language current then; never freed.
    static VelLookUpTable<VelExpressTypeEnum, QString>* myNames;

    VelExpressTypeEnum myValue = ExpressableType_UNKNOWN;
};

#endif
