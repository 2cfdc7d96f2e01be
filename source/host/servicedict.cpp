#include "vnservicedict.h"

#include <map>
#include <mutex>

namespace vnsi {

namespace {

struct ServiceDictionary
{
    std::mutex mutex;
    std::map<OdString, OdRxObjectPtr> services;
};

/// The dictionary is never destroyed, because a service that remains at the end of the process has
/// already lost its library.
ServiceDictionary& dictionary()
{
    static auto* const services = new ServiceDictionary;
    return *services;
}

/// Registers `service` and returns the former one, which must be released outside of the lock.
OdRxObjectPtr exchange(const OdString& name, OdRxObjectPtr service)
{
    ServiceDictionary& all = dictionary();
    const std::lock_guard lock(all.mutex);
    if (service.isNull()) {
        const auto node = all.services.extract(name);
        return node ? node.mapped() : OdRxObjectPtr();
    }
    std::swap(all.services[name], service);
    return service;
}

} // namespace

void vn_arbitDict_regservice(const OdString& name, const OdRxObjectPtr& service)
{
    exchange(name, service);
}

OdRxObjectPtr vn_arbitDict_getservice(const OdString& name)
{
    ServiceDictionary& all = dictionary();
    const std::lock_guard lock(all.mutex);
    const auto found = all.services.find(name);
    return found == all.services.end() ? OdRxObjectPtr() : found->second;
}

void vn_arbitDict_clearservice(const OdString& name)
{
    exchange(name, {});
}

} // namespace vnsi
