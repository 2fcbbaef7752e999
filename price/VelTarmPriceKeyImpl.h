#ifndef VELTARMPRICEKEYIMPL_H
#define VELTARMPRICEKEYIMPL_H

#include "frame/VelOrderSource.h"

#include <QSharedData>

/// The part that copies of a price key share until one of them is changed.
class VelTarmPriceKeyImpl : public QSharedData
{
public:
    /// The parts as they are given.
    VelTarmPriceKeyImpl(const VelOrderSource& theOrderSource, int theDiscountLevel, VelDiscountModel theDiscountModel)
        : myOrderSource(theOrderSource), myDiscountLevel(theDiscountLevel), myDiscountModel(theDiscountModel)
    {
    }

    /// The parts; whoever changes one resets the hash value.
    VelOrderSource myOrderSource;
    int myDiscountLevel;
    VelDiscountModel myDiscountModel;
    unsigned myHashValue = 0; ///< 0 until it is computed
};

#endif
