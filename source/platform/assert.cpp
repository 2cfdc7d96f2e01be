#include "platformextras.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace {

void reportAndStop(const char* expression, const char* file, int line)
{
    std::fprintf(stderr, "%s:%d: assertion %s failed\n", file, line, expression);
#ifndef NDEBUG
    std::abort();
#endif
}

std::atomic<OdAssertHandler> installedHandler{reportAndStop};

} // namespace

void OdAssert(const char* expression, const char* file, int line)
{
    installedHandler.load()(expression, file, line);
}

OdAssertHandler odSetAssertHandler(OdAssertHandler handler)
{
    return installedHandler.exchange(handler ? handler : reportAndStop);
}
