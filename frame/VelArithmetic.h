#ifndef VELARITHMETIC_H
#define VELARITHMETIC_H

#include <QtGlobal>

#include <limits>

/**
 * 32-bit arithmetic on money and counts. Amounts are unchecked by design; they wrap around like the machine's own
 * words, so that no document and no count can make the program undefined.
 */
namespace VelArithmetic {

/// Left and right added, wrapping.
inline int sum(int theLeft, int theRight)
{
    return static_cast<int>(static_cast<quint32>(theLeft) + static_cast<quint32>(theRight));
}

/// Right taken from left, wrapping.
inline int difference(int theLeft, int theRight)
{
    return static_cast<int>(static_cast<quint32>(theLeft) - static_cast<quint32>(theRight));
}

/// Left times right, wrapping.
inline int product(int theLeft, int theRight)
{
    return static_cast<int>(static_cast<quint32>(theLeft) * static_cast<quint32>(theRight));
}

/// What qRound gives, halves upwards; the most negative int for all that no int can hold.
inline int rounded(double theValue)
{
    const bool fits = theValue > -2147483648.0 && theValue < 2147483647.5;
    return fits ? qRound(theValue) : std::numeric_limits<int>::min();
}

/// Cut towards zero; the most negative int for all that no int can hold, an infinite value and no number included.
inline int truncated(double theValue)
{
    const bool fits = theValue >= -2147483648.0 && theValue < 2147483648.0;
    return fits ? static_cast<int>(theValue) : std::numeric_limits<int>::min();
}

} // namespace VelArithmetic

#endif
