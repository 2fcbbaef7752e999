#ifndef VELTARMSHIPPINGDATE_H
#define VELTARMSHIPPINGDATE_H

#include "frame/VelTarmExport.h"

#include <QDate>
#include <QDomElement>

/// The first and the last day on which an order is expected, as an order calculation states them. A value.
class VELTARM_EXPORT VelTarmShippingDate
{
public:
    /// Null dates.
    VelTarmShippingDate() = default;

    /// Reads the ISO date-times `min` and `max` of an element `shipping_time`. The dates stay null unless both are
    /// valid, and for an element of another tag.
    explicit VelTarmShippingDate(const QDomElement& theElement);

    /// The first day; null unless both are known.
    QDate minDate() const { return myMinDate; }
    /// The last day; null unless both are known.
    QDate maxDate() const { return myMaxDate; }

    /// Whether both days are valid.
    bool isValid() const { return myMinDate.isValid() && myMaxDate.isValid(); }

    /// Whether the two differ.
    bool varies() const { return myMinDate != myMaxDate; }

    /// By both days.
    bool operator==(const VelTarmShippingDate& theOther) const
    {
        return myMinDate == theOther.myMinDate && myMaxDate == theOther.myMaxDate;
    }

private:
    QDate myMinDate;
    QDate myMaxDate;
};

#endif
