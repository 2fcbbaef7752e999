#ifndef VELPRODUCTREGISTRYTRANSFERPRODUCTS_H
#define VELPRODUCTREGISTRYTRANSFERPRODUCTS_H

#include "product/VelProductRegistryAbstract.h"

#include <QMap>

/// The shipping cost of each shipping group. Products stay alive when a load replaces them, so that a pointer to one
/// stays usable; the destructor leaves them, too.
class VelProductRegistryTransferProducts : public VelProductRegistryAbstract
{
public:
    ~VelProductRegistryTransferProducts() override;

    /// Replaces all by the children `transfer` of the section.
    void readTransferPrices(const QDomElement& theSection);
    void registerProduct(const QDomElement& theElement, VelProductAbstract* theProduct) override;
    void clear();

    /// Null when the group has none.
    VelProductAbstract* transferProduct(int theShippingGroupId) const;

    /// The first by shipping group id with that article ID, null when there is none.
    VelProductAbstract* transferProductWithArticleId(int theArticleID) const;

    /// Its article ID, -1 when the group has none. Mind that a payment fee answers 0 in that case.
    int idOfTransferProduct(int theShippingGroupId) const;

private:
    QMap<int, VelProductAbstract*> myTransferProducts;
};

#endif
