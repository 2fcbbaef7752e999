#include "frame/VelTarmInitializer.h"

#include "frame/VelTarmGlobalStatus.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductRegistry.h"

void VelTarmInitializer::setupModule()
{
    VelTarmGlobalStatus::instance();
    VelProductRegistry::instance();
    VelOrderingDetails::instance();
}
