#include "hostextras.h"
#include "vnrequests.h"
#include "vnservicedict.h"
#include "vornqt.h"

namespace vnsi {

namespace {

constexpr int kDone = -5019;

/// Marks the state of the interface for this thread while it exists.
class ScrapMark
{
public:
    explicit ScrapMark(int id) : m_id(id) { vnedPushUIScrap(id); }
    ~ScrapMark() { vnedPopUIScrap(m_id); }
    ScrapMark(const ScrapMark&) = delete;
    ScrapMark& operator=(const ScrapMark&) = delete;

private:
    int m_id;
};

/// Posts work to the interface and waits for it. Returns false when there is no request server or
/// proxy.
bool postAndWait(const std::function<void()>& work)
{
    const OdRxObjectPtr server = vn_arbitDict_getservice(L"Core/RequestSvr");
    hostextras::UiProxy* const proxy = server.isNull() ? nullptr : hostextras::currentProxy(server);
    if (!proxy)
        return false;
    const ScrapMark mark(hostextras::scrapId(*proxy));
    int status = hostextras::post(*proxy, L"proxyRequest", hostextras::makeRequest(work));
    while (status != kDone)
        status = hostextras::serviceReply(*proxy);
    return true;
}

} // namespace

bool vnqtRunOnUiThread(const std::function<void()>& work)
{
    if (vnedIsRunningInUI()) {
        work();
        return true;
    }
    try {
        return vnedIsRunningInCommand() && postAndWait(work);
    } catch (...) {
        return false; // The caller may be a destructor, which must not throw.
    }
}

} // namespace vnsi
