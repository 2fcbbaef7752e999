#ifndef VELORDERINGDETAILITEM_H
#define VELORDERINGDETAILITEM_H

#include "frame/VelEnumerations.h"
#include "frame/VelTarmExport.h"

#include <QDomElement>
#include <QString>

/// One line of the payment lists of the ordering details: a payment method, a credit card or a transfer method. Made by
/// VelOrderingDetails, which keeps it alive for ever.
class VELTARM_EXPORT VelOrderingDetailItem
{
public:
    /// Reads the attributes of the element, whatever its tag; the class is that of the list in which it stands.
    VelOrderingDetailItem(VelPaymentClass thePayClass, const QDomElement& theElement);

    /// `id`, default 0. In the class PAYMENT_CLASS_PAY_METHODS it is the payment type, in the others a free number.
    int id() const { return myId; }

    /// The list in which it stands.
    VelPaymentClass payClass() const { return myPayClass; }

    /// `name`, null when missing: shown to the customer, and the key of the icon.
    QString name() const { return myName; }

    /// `brand`, null when missing: a second identification beside the name.
    QString brand() const { return myBrand; }

    /// The file name of the icon; empty when the name has none.
    QString iconFilename() const { return myIconFilename; }
    /// For VelOrderingDetails, which knows the icons: replaces the file name.
    void setIconFilename(const QString& theIconFilename) { myIconFilename = theIconFilename; }

    /// `blockable`, default false.
    bool canBeBlockedForDefaultingUsers() const { return myCanBeBlockedForDefaultingUsers; }

    /// The number by which prices and orders tell payments apart: 1 for every credit card, 9 for every transfer method,
    /// otherwise the id.
    VelPaymentType paymentType() const;

private:
    QString myName;
    QString myBrand;
    QString myIconFilename;
    bool myCanBeBlockedForDefaultingUsers;
    int myId;
    VelPaymentClass myPayClass;
};

#endif
