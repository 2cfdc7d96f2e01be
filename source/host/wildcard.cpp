#include "platformextras.h"
#include "vnstrings.h"
#include "wildcardpattern.h"

bool vnsi::vnsiutWcMatchEx(const OdString& text, const OdString& pattern, bool ignoreCase)
{
    // The latest pattern is cached because callers test one pattern on many names.
    struct Latest
    {
        OdString pattern;
        bool ignoreCase;
        wildcard::WildcardPattern ready;
    };
    thread_local Latest latest{{}, false, {{}, false}};
    if (latest.ignoreCase != ignoreCase || latest.pattern != pattern)
        latest = {pattern, ignoreCase, {viewOf(pattern), ignoreCase}};
    return latest.ready.matches(viewOf(text));
}
