#include "OdaCommon.h"

class OdRxModule;
class OdString;

// A module of an earlier release. Its module object must never be requested.
extern "C" ODRX_EXPORT void odrxGetAPIVersion(
    int& major, int& minor, int& majorBuild, int& minorBuild)
{
    major = 21;
    minor = 11;
    majorBuild = minorBuild = 0;
}

extern "C" ODRX_EXPORT OdRxModule* odrxCreateModuleObject(void*, const OdString&)
{
    __builtin_trap();
}
