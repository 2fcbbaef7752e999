#include "frame/VelTarmInitializer.h"

#include "frame/VelTarmGlobalStatus.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelPageOrganizationCalculatorTarm.h"
#include "product/VelProductRegistry.h"
#include "product/VelProductRegistryProductChecker.h"
#include "sibling/VelPageOrganizationManager.h"
#include "sibling/VelProductCheckerRegistry.h"

void VelTarmInitializer::setupModule()
{
    VelTarmGlobalStatus::instance();
    VelProductRegistry::instance();
    VelOrderingDetails::instance();
    VelPageOrganizationManager::instance()->addCalculator(new VelPageOrganizationCalculatorTarm);
    VelProductCheckerRegistry::instance()->registerChecker(new VelProductRegistryProductChecker);
}
