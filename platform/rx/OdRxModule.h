#pragma once

#include "platform/rx/OdRxObject.h"
#include "platform/rx/OdString.h"

/// A loaded plug-in as its host sees it.
///
/// Order of life: the host loads the file, calls odrxGetAPIVersion(), then odrxCreateModuleObject(), then initApp().
/// To unload: uninitApp(), then deleteModule(), after which the pointer is dead.
class KV_EXPORT OdRxModule : public OdRxObject
{
public:
    /// The system handle that the host gave to odrxCreateModuleObject().
    virtual void *sysData() = 0;
    /// Destroys the module object. Only after uninitApp().
    virtual void deleteModule() = 0;
    /// Makes the module known to the host: functions, commands, reactors. Called once, when the host is up: its
    /// services answer, and there is a QApplication.
    virtual void initApp() = 0;
    /// Takes back what initApp() did, while documents may still be open.
    virtual void uninitApp() = 0;
    /// Full file name of the loaded module.
    virtual OdString moduleName() const = 0;
};

/// The version of the interface that these headers declare, in the order of odrxGetAPIVersion(). A host takes modules
/// that were built for exactly its own.
inline constexpr int odrxApiVersion[4] = {26, 8, 0, 54758};

/// Signatures of the two entry points that a module exports with C linkage under these names.
extern "C" {
/// Writes the version of the interface that the module was built for.
using OdRxGetAPIVersionFunction = void (*)(int *major, int *minor, int *majorBuild, int *minorBuild);
/// The one module object of the process, made on the first call. `handle` is the loader's handle of the file.
using OdRxCreateModuleObjectFunction = OdRxModule *(*)(void *handle);
}
