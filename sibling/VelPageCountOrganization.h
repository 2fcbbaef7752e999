#ifndef VELPAGECOUNTORGANIZATION_H
#define VELPAGECOUNTORGANIZATION_H

#include "sibling/VelSiblingExport.h"

/// The page counts that a product can have.
class VELSIBLING_EXPORT VelPageCountOrganization
{
public:
    /// No page organisation: all three are 0.
    VelPageCountOrganization();

    /// The parts as they are given.
    VelPageCountOrganization(unsigned int theLowest, unsigned int theHighest, unsigned int theStep);

    /// The lowest page count.
    unsigned int lowest() const { return myLowest; }
    /// The highest page count.
    unsigned int highest() const { return myHighest; }
    /// The step from each page count to the next.
    unsigned int step() const { return myStep; }

private:
    unsigned int myLowest;
    unsigned int myHighest;
    unsigned int myStep;
};

#endif
