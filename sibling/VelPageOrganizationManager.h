#ifndef VELPAGEORGANIZATIONMANAGER_H
#define VELPAGEORGANIZATIONMANAGER_H

#include "sibling/VelPageOrganizationCalculator.h"
#include "sibling/VelSiblingExport.h"

#include <QList>

/// Keeps the application's sources of page counts.
class VELSIBLING_EXPORT VelPageOrganizationManager
{
public:
    /// Built on first use, lives to the end of the process.
    static VelPageOrganizationManager* instance();

    /// Takes the calculator and keeps it for the life of the process.
    void addCalculator(VelPageOrganizationCalculator* theCalculator);

private:
    VelPageOrganizationManager() = default;

    QList<VelPageOrganizationCalculator*> myCalculators;
};

#endif
