#ifndef VELTARMBILLPOSITIONABSTRACT_H
#define VELTARMBILLPOSITIONABSTRACT_H

#include "frame/VelEnumerations.h"
#include "frame/VelTarmExport.h"

#include <QObject>
#include <QString>

class VelProductAbstract;

/// A line of a bill. The product is borrowed from the registry; amounts are whole cents.
class VELTARM_EXPORT VelTarmBillPositionAbstract : public QObject
{
    Q_OBJECT

public:
    /// Of a product that may be null.
    explicit VelTarmBillPositionAbstract(VelProductAbstract* theProduct) : myProduct(theProduct) {}

    /// The copy has no parent.
    VelTarmBillPositionAbstract(const VelTarmBillPositionAbstract& theOther);
    VelTarmBillPositionAbstract& operator=(const VelTarmBillPositionAbstract&) = delete;

    /// A new position of the same kind, owned by the caller.
    virtual VelTarmBillPositionAbstract* clone() const = 0;

    /// Writes the position to the log.
    virtual void dump() const = 0;

    /// Cents for one unit; a unit may be a package of several pieces.
    virtual int unitPrice() const = 0;

    /// How many units are charged.
    virtual int unitCount() const = 0;

    /// How many sold pieces the position stands for.
    virtual int countItems() const = 0;

    /// Whether a unit is a package of several pieces.
    virtual bool isPackage() const = 0;

    /// The discount model behind the price.
    virtual VelDiscountModel discountModel() const = 0;
    /// The discount level behind the price, 0 for the base price.
    virtual int discountLevel() const = 0;

    /// Unit price times unit count.
    virtual int positionPrice() const;

    /// What the line is for.
    virtual VelProductAbstract* product() const { return myProduct; }

    /// The unit price without a running offer, -1 when none is running.
    virtual int nonOfferPrice() const = 0;

    /// The product's editor name.
    QString productName() const;

    /// Another product for the same line; the amounts stay.
    void setProduct(VelProductAbstract* theProduct) { myProduct = theProduct; }

    /// By product name, numbers in it by value.
    static bool lessThan(VelTarmBillPositionAbstract* theLeft, VelTarmBillPositionAbstract* theRight);

private:
    VelProductAbstract* myProduct;
};

#endif
