#include "product/VelProductRegistryExpressFees.h"

#include "product/VelProductAbstract.h"
#include "sibling/VelXMLParser.h"

#include <algorithm>

namespace {

const QString STR_EXPRESS_FEE = QStringLiteral("express_fee");
const QString STR_EXPRESS = QStringLiteral("express");

} // namespace

VelProductRegistryExpressFees::~VelProductRegistryExpressFees()
{
    for (const ExpressTypeMap* map : qAsConst(myExpressTypeMaps))
        qDeleteAll(*map);
    clear();
}

VelProductRegistryExpressFees::ExpressTypeMap*
VelProductRegistryExpressFees::expressTypeMap(int theShippingGroupId) const
{
    return myExpressTypeMaps.value(theShippingGroupId, nullptr);
}

VelProductRegistryExpressFees::ExpressTypeMap* VelProductRegistryExpressFees::safeExpressTypeMap(int theShippingGroupId)
{
    ExpressTypeMap*& map = myExpressTypeMaps[theShippingGroupId];
    if (!map)
        map = new ExpressTypeMap;
    return map;
}

QList<VelProductAbstract*> VelProductRegistryExpressFees::expressAgioProducts(int theShippingGroupId) const
{
    const ExpressTypeMap* map = expressTypeMap(theShippingGroupId);
    return map ? map->values() : QList<VelProductAbstract*>();
}

VelProductAbstract* VelProductRegistryExpressFees::expressAgioProduct(int theShippingGroupId,
                                                                      const VelExpressType& theExpressType) const
{
    const ExpressTypeMap* map = expressTypeMap(theShippingGroupId);
    return map ? map->value(theExpressType, nullptr) : nullptr;
}

QList<VelExpressType> VelProductRegistryExpressFees::supportedExpressTypes(int theShippingGroupId,
                                                                           const VelTarmPriceKey& theKey) const
{
    QList<VelExpressType> types;
    const ExpressTypeMap* map = expressTypeMap(theShippingGroupId);
    if (!map)
        return types;
    for (auto fee = map->cbegin(); fee != map->cend(); ++fee)
        if (fee.value()->price(theKey, 1, 1) > 0)
            types.append(fee.key());
    return types;
}

bool VelProductRegistryExpressFees::containsExpressAgioProducts() const
{
    return std::any_of(myExpressTypeMaps.cbegin(), myExpressTypeMaps.cend(),
                       [](const ExpressTypeMap* theMap) { return !theMap->isEmpty(); });
}

void VelProductRegistryExpressFees::readExpressFees(const QDomElement& theSection)
{
    clear();
    read(theSection, STR_EXPRESS_FEE);
}

void VelProductRegistryExpressFees::registerProduct(const QDomElement& theElement, VelProductAbstract* theProduct)
{
    const VelExpressType expressType(VelXMLParser::attribute(theElement, STR_EXPRESS, QString()));
    safeExpressTypeMap(readShippingGroupId(theElement))->insert(expressType, theProduct);
}

void VelProductRegistryExpressFees::clear()
{
    qDeleteAll(myExpressTypeMaps);
    myExpressTypeMaps.clear();
}
