#ifndef VELSHOPADVICE_H
#define VELSHOPADVICE_H

#include "frame/VelOrderSource.h"

#include <QString>

class VelProductAbstract;

/// A larger quantity that costs less.
struct VelshopAdvice
{
    const VelProductAbstract* myProduct = nullptr;
    int myCount = 0;  ///< the quantity that was asked for
    int myBetter = 0; ///< the cheapest larger one, 0 for none
    int mySaves = 0;  ///< cents

    bool isGiven() const { return myBetter > 0; }

    /// As "50 pieces cost 0,10 € less than these 48".
    QString text() const;
};

/// Looks over the curve of a product, as far as its last band tells. The level is the one that an add-on inherits.
VelshopAdvice adviceFor(const VelProductAbstract* theProduct, int theCount, const VelOrderSource& theSource,
                        int theInheritedLevel);

#endif
