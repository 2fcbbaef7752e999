#ifndef VELTARMINITIALIZER_H
#define VELTARMINITIALIZER_H

#include "frame/VelTarmExport.h"

/// The start of the module. A host creates one and calls setupModule() once, before any other operation.
class VELTARM_EXPORT VelTarmInitializer
{
public:
    virtual ~VelTarmInitializer() = default;

    /// Builds the singletons, which read the documents of the current key account at once, and fills the two extension
    /// points of the product library. A missing or broken document leaves an empty or defaulted singleton. Nothing
    /// guards against a second call, which would register a second checker and a second calculator.
    virtual void setupModule();

    /// Does nothing, by design: the singletons live to the end of the process.
    virtual void teardownModule() {}
};

#endif
