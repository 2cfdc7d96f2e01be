#include "platformextras.h"

#include "OdAnsiString.h"

#include <dlfcn.h>

namespace {

constexpr int kMajor = 21;
constexpr int kMinor = 12;

using CreateModule = OdRxModule*(void*, const OdString&);
using GetApiVersion = void(int&, int&, int&, int&);

[[noreturn]] void refuse(const OdString& path, const OdString& cause)
{
    throw OdError(eCannotLoadModule, path + OdString(L": ") + cause);
}

template <class Function>
Function* entryPoint(void* library, const char* name, const OdString& path)
{
    if (void* symbol = dlsym(library, name))
        return reinterpret_cast<Function*>(symbol);
    refuse(path, OdString(L"no entry point ") + Utf8StringToOdString(name));
}

OdString baseName(const OdString& path)
{
    const std::size_t start = viewOf(path).rfind(L'/') + 1; // It is 0 when there is no slash.
    return path.c_str() + start;
}

} // namespace

OdRxModulePtr odrxLoadModule(const OdString& path)
{
    void* library = dlopen(OdStringToUtf8String(path).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        refuse(path, Utf8StringToOdString(dlerror()));

    int major = 0, minor = 0, majorBuild = 0, minorBuild = 0;
    entryPoint<GetApiVersion>(library, "odrxGetAPIVersion", path)(
        major, minor, majorBuild, minorBuild);
    if (major != kMajor || minor != kMinor)
        refuse(path, L"built for another release of the platform");

    OdRxModulePtr module =
        entryPoint<CreateModule>(library, "odrxCreateModuleObject", path)(library, baseName(path));
    module->initApp();
    return module;
}

void odrxUnloadModule(const OdRxModulePtr& module)
{
    if (module.isNull())
        return;
    module->uninitApp();
    module->deleteModule();
}
