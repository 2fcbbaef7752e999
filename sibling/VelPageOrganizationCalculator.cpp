#include "sibling/VelPageOrganizationCalculator.h"

VelPageOrganizationCalculator::~VelPageOrganizationCalculator() = default;
