#include "sysvars.h"

#include "vnsettings.h"

#include <map>
#include <mutex>

namespace host {

namespace {

struct IgnoringCase
{
    bool operator()(const OdString& a, const OdString& b) const { return a.iCompare(b) < 0; }
};

struct Variables
{
    std::mutex mutex;
    std::map<OdString, OdInt16, IgnoringCase> values{{L"TILEMODE", 1}};
};

Variables& variables()
{
    static auto* const all = new Variables;
    return *all;
}

} // namespace

void setVar(const OdString& name, OdInt16 value)
{
    Variables& all = variables();
    const std::lock_guard lock(all.mutex);
    all.values[name] = value;
}

} // namespace host

OdInt16 vnsi::getVar(const OdString& name)
{
    host::Variables& all = host::variables();
    const std::lock_guard lock(all.mutex);
    const auto found = all.values.find(name);
    return found == all.values.end() ? OdInt16{0} : found->second;
}
