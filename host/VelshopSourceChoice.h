#ifndef VELSHOPSOURCECHOICE_H
#define VELSHOPSOURCECHOICE_H

#include "frame/VelOrderSource.h"
#include "host/VelshopError.h"

class VelshopCommandLine;

/// The order source that a command line names by `--source` and `--delivery`, in full, by half or not at all.
class VelshopSourceChoice
{
public:
    /// False, with the error, for an unknown word.
    bool read(const VelshopCommandLine& theLine, VelshopError& theError);

    /// Whether any half is named.
    bool isNamed() const;

    /// The halves that are named, completed by the shop's starting choice. False, with the error, for two that don't go
    /// together.
    bool complete(VelOrderSource& theSource, VelshopError& theError) const;
    /// The same, completed by another choice.
    bool complete(VelOrderSource& theSource, const VelOrderSource& theOther, VelshopError& theError) const;

    /// The same, but with nothing named the shop's starting choice as it is, which may be no valid order source.
    bool completeNamed(VelOrderSource& theSource, VelshopError& theError) const;

private:
    /// INPUT_SOURCE_ANY and DELIVERY_TYPE_ANY leave the choice open.
    VelInputSource myInputSource = INPUT_SOURCE_ANY;
    VelDeliveryType myDeliveryType = DELIVERY_TYPE_ANY;
};

#endif
