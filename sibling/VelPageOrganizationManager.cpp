#include "sibling/VelPageOrganizationManager.h"

VelPageOrganizationManager* VelPageOrganizationManager::instance()
{
    static VelPageOrganizationManager* const ourInstance = new VelPageOrganizationManager;
    return ourInstance;
}

void VelPageOrganizationManager::addCalculator(VelPageOrganizationCalculator* theCalculator)
{
    myCalculators.append(theCalculator);
}
