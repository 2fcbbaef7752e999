#include "sibling/VelPageCountOrganization.h"

VelPageCountOrganization::VelPageCountOrganization() : VelPageCountOrganization(0, 0, 0) {}

VelPageCountOrganization::VelPageCountOrganization(unsigned int theLowest, unsigned int theHighest,
                                                   unsigned int theStep)
    : myLowest(theLowest), myHighest(theHighest), myStep(theStep)
{
}
