#ifndef VELPRICEDIP_H
#define VELPRICEDIP_H

/// Neighbouring quantities that cost more than one and the same larger quantity.
struct VelPriceDip
{
    int myFrom;   ///< the first such quantity
    int myTo;     ///< the last one, included
    int myBetter; ///< the cheapest larger quantity of the curve, the smallest of equally cheap ones
    int mySaves;  ///< the most that is saved by buying that many instead, in cents
};

inline bool operator==(const VelPriceDip& theLeft, const VelPriceDip& theRight)
{
    return theLeft.myFrom == theRight.myFrom && theLeft.myTo == theRight.myTo &&
           theLeft.myBetter == theRight.myBetter && theLeft.mySaves == theRight.mySaves;
}

#endif
