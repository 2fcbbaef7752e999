#ifndef VELPRINTRESOLUTIONS_H
#define VELPRINTRESOLUTIONS_H

#include "frame/VelTarmExport.h"

class VelProductAbstract;

/// From which resolutions on, in pixels per inch, a picture on a product is rated; see
/// VelProductAbstract::qualityOnScaleForPPMM. A value.
class VELTARM_EXPORT VelPrintResolutions
{
public:
    /// Those that the product has now.
    explicit VelPrintResolutions(const VelProductAbstract& theProduct);

    /// Attribute `dpi_green` of the print size: the lowest one that is rated green, 150 by default.
    int green() const { return myGreen; }
    /// Attribute `dpi_yellow` of the print size: the lowest one that is rated yellow, 90 by default.
    int yellow() const { return myYellow; }

private:
    int myGreen;
    int myYellow;
};

#endif
