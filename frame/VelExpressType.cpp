#include "frame/VelExpressType.h"

#include "frame/EnumHelper.h"

#include <QObject>

VelLookUpTable<VelExpressTypeEnum, QString>* VelExpressType::myNames = nullptr;

VelExpressType::VelExpressType(const QString& theText) : myValue(EnumHelper::decodeExpressTypeEnum(theText)) {}

VelLookUpTable<VelExpressTypeEnum, QString>* VelExpressType::initNames()
{
    auto* names = new VelLookUpTable<VelExpressTypeEnum, QString>;
    names->insert(ExpressableType_STANDARD, QObject::tr("Standardproduktion und Standardversand"));
    names->insert(ExpressableType_UNKNOWN, QObject::tr("unbekannter Expresstyp"));
    // The two express classes are left without a name on purpose: they answer the default.
    names->setDefaults(ExpressableType_UNKNOWN, QObject::tr("Undefiniert"));
    return names;
}

QString VelExpressType::humanReadableName() const
{
    return names().findByKey(myValue);
}

VelExpressType VelExpressType::createFromHumanReadable(const QString& theText)
{
    return names().findByValue(QObject::tr(theText.toLatin1().constData()));
}

const VelLookUpTable<VelExpressTypeEnum, QString>& VelExpressType::names()
{
    if (!myNames)
        myNames = initNames();
    return *myNames;
}
