#include "module/CLispFunctionsModule.h"
#include "platform/rx/OdRxWin32Module.h"

// The two functions that the host finds by name; see platform/rx/OdRxModule.h for when it calls them.

extern "C" KV_EXPORT void odrxGetAPIVersion(int *major, int *minor, int *majorBuild, int *minorBuild)
{
    *major = odrxApiVersion[0];
    *minor = odrxApiVersion[1];
    *majorBuild = odrxApiVersion[2];
    *minorBuild = odrxApiVersion[3];
}

extern "C" KV_EXPORT OdRxModule *odrxCreateModuleObject(void *handle)
{
    return OdRxWin32Module<CLispFunctionsModule>::instance(handle);
}
