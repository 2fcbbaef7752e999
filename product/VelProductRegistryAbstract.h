#ifndef VELPRODUCTREGISTRYABSTRACT_H
#define VELPRODUCTREGISTRYABSTRACT_H

#include <QDomElement>
#include <QString>

class VelProductAbstract;

/// A small registry of fee products, read from a section of the price list of its own.
class VelProductRegistryAbstract
{
public:
    VelProductRegistryAbstract() = default;
    VelProductRegistryAbstract(const VelProductRegistryAbstract&) = delete;
    VelProductRegistryAbstract& operator=(const VelProductRegistryAbstract&) = delete;
    virtual ~VelProductRegistryAbstract() = default;

    /// Takes the product under the key that the element gives; a later product of one key replaces the earlier, which
    /// stays alive.
    virtual void registerProduct(const QDomElement& theElement, VelProductAbstract* theProduct) = 0;

    /// Builds and registers a product for every child element of the tag; a null section has none.
    void read(const QDomElement& theSection, const QString& theTag);

    VelProductAbstract* buildAbstractProduct(const QDomElement& theElement);

    /// Attribute `group`, -1 when missing.
    int readShippingGroupId(const QDomElement& theElement) const;
};

#endif
