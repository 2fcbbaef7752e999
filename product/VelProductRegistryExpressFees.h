#ifndef VELPRODUCTREGISTRYEXPRESSFEES_H
#define VELPRODUCTREGISTRYEXPRESSFEES_H

#include "frame/VelExpressType.h"
#include "price/VelTarmPriceKey.h"
#include "product/VelProductRegistryAbstract.h"

#include <QList>
#include <QMap>

/// The express fees of each shipping group, by express type. Products stay alive when a load replaces them; the
/// destructor deletes those at hand.
class VelProductRegistryExpressFees : public VelProductRegistryAbstract
{
public:
    using ExpressTypeMap = QMap<VelExpressType, VelProductAbstract*>;

    ~VelProductRegistryExpressFees() override;

    /// Replaces all by the children `express_fee` of the section.
    void readExpressFees(const QDomElement& theSection);

    /// The keys are `group` and `express`.
    void registerProduct(const QDomElement& theElement, VelProductAbstract* theProduct) override;
    void clear();

    /// The group's map, which stays the registry's; null when it has none.
    ExpressTypeMap* expressTypeMap(int theShippingGroupId) const;

    /// The group's map, created when it has none.
    ExpressTypeMap* safeExpressTypeMap(int theShippingGroupId);

    /// By rising express type.
    QList<VelProductAbstract*> expressAgioProducts(int theShippingGroupId) const;

    /// Null when the group has none of that type.
    VelProductAbstract* expressAgioProduct(int theShippingGroupId, const VelExpressType& theExpressType) const;

    /// The types that can be ordered: those whose fee under the key is above 0. A fee of 0 is not enough.
    QList<VelExpressType> supportedExpressTypes(int theShippingGroupId, const VelTarmPriceKey& theKey) const;

    /// Whether some group has a fee.
    bool containsExpressAgioProducts() const;

private:
    QMap<int, ExpressTypeMap*> myExpressTypeMaps;
};

#endif
