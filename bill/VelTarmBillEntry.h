#ifndef VELTARMBILLENTRY_H
#define VELTARMBILLENTRY_H

#include "bill/VelTarmBillLine.h"

class VelTarmBillPositionAbstract;

/**
 * One place in a bill: a line, and the position made of it once somebody has asked for that. From then on the position
 * answers, because its holder may have changed it. The entry owns nothing: the bill releases the positions of its
 * entries.
 */
class VelTarmBillEntry
{
public:
    VelTarmBillEntry() = default;
    explicit VelTarmBillEntry(VelTarmBillPositionAbstract* thePosition) : myPosition(thePosition) {}

    /// The same with a position of its own, if there is one.
    VelTarmBillEntry clone() const;

    /// The line while it is written, before anybody asks for the position.
    VelTarmBillLine& newLine() { return myLine; }

    /// What the place says now. Here alone it is decided whether the line or its position answers. Valid until the next
    /// call.
    const VelTarmBillLine& line() const
    {
        if (myPosition)
            myLine = lineOf(*myPosition);
        return myLine;
    }

    /// The position, made on the first call.
    VelTarmBillPositionAbstract* position() const;

    /// The position if one was made, otherwise null.
    VelTarmBillPositionAbstract* madePosition() const { return myPosition; }

private:
    static VelTarmBillLine lineOf(const VelTarmBillPositionAbstract& thePosition);

    mutable VelTarmBillLine myLine; ///< what the position said last, once there is one
    mutable VelTarmBillPositionAbstract* myPosition = nullptr;
};

#endif
