#include "requests.h"

#include "RxObjectImpl.h"
#include "documents.h"
#include "hostlog.h"

#include <QApplication>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <vector>

namespace vnsi {

ODRX_DEFINE_MEMBERS(VnsiRequest, OdRxObject, L"VnsiRequest")
ODRX_DEFINE_MEMBERS(VnRequestSvr, OdRxObject, L"VnRequestSvr")

VnUiProxy::~VnUiProxy() = default;

} // namespace vnsi

namespace host {

namespace {

constexpr std::chrono::milliseconds kReplySlice(50);
const OdString kProxyRequest(L"proxyRequest");

/// Tells whether one posted request is finished.
class Reply
{
public:
    void finish()
    {
        const std::lock_guard lock(m_mutex);
        m_isDone = true;
        m_changed.notify_all();
    }
    bool wait()
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, kReplySlice, [this] { return m_isDone; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isDone = false;
};

/// One request on its way to the interface. Its destructor also ends the waiting, in case the
/// interface ends before the request was run.
class Delivery
{
public:
    Delivery(vnsi::VnsiRequest* request, std::shared_ptr<Reply> reply)
        : m_request(request),
          m_reply(std::move(reply))
    {
    }
    ~Delivery() { m_reply->finish(); }
    Delivery(const Delivery&) = delete;
    Delivery& operator=(const Delivery&) = delete;

    void run() const
    {
        try {
            m_request->run();
        } catch (const std::exception& error) {
            qCWarning(hostLog) << "request failed:" << error.what();
        } catch (...) {
            qCWarning(hostLog) << "request failed";
        }
        m_reply->finish();
    }

private:
    OdSmartPtr<vnsi::VnsiRequest> m_request;
    std::shared_ptr<Reply> m_reply;
};

/// The requests that this thread posted and that have not been answered yet.
thread_local std::deque<std::shared_ptr<Reply>> awaited;

class UiProxy : public vnsi::VnUiProxy
{
public:
    int scrapId() const override { return m_scrapId.fetch_add(1) + 1; }
    int post(const OdString& name, const OdRxObjectPtr& request) override;
    int serviceReply() override;

private:
    mutable std::atomic<int> m_scrapId{0};
};

int UiProxy::post(const OdString& name, const OdRxObjectPtr& request)
{
    if (name != kProxyRequest)
        throw OdError(eInvalidInput, OdString(L"no request is named ") + name);
    const auto work = vnsi::VnsiRequest::cast(request.get());
    if (work.isNull())
        throw OdError_NotThatKindOfClass(
            request.isNull() ? nullptr : request->isA(), vnsi::VnsiRequest::desc());

    const auto reply = std::make_shared<Reply>();
    const auto delivery = std::make_shared<Delivery>(work.get(), reply);
    if (vnsi::vnedIsRunningInUI()) {
        delivery->run();
        return vnsi::kVnRequestDone;
    }
    QCoreApplication* const interface = QCoreApplication::instance();
    if (!interface)
        return vnsi::kVnRequestDone;
    awaited.push_back(reply);
    QMetaObject::invokeMethod(
        interface, [delivery] { delivery->run(); }, Qt::QueuedConnection);
    return vnsi::kVnRequestPending;
}

int UiProxy::serviceReply()
{
    if (awaited.empty())
        return vnsi::kVnRequestDone;
    if (!awaited.front()->wait())
        return vnsi::kVnRequestPending;
    awaited.pop_front();
    return vnsi::kVnRequestDone;
}

class RequestSvr : public vnsi::VnRequestSvr
{
public:
    /// A document even when no drawing is open, because requests must reach the interface then as
    /// well.
    vnsi::VnDocumentPtr currentDocument() const override
    {
        const vnsi::VnDocumentPtr document = host::currentDocument();
        return document.isNull() ? m_noDrawing : document;
    }

private:
    vnsi::VnDocumentPtr m_noDrawing = makeDocument();
};

std::atomic<int> runningCommands{0};
std::mutex scrapMutex;
std::vector<int> scraps;

} // namespace

CommandScope::CommandScope()
{
    ++runningCommands;
}

CommandScope::~CommandScope()
{
    --runningCommands;
}

int markedScraps()
{
    const std::lock_guard lock(scrapMutex);
    return static_cast<int>(scraps.size());
}

OdRxObjectPtr makeRequestSvr()
{
    return OdRxObjectImpl<RequestSvr>::createObject();
}

} // namespace host

namespace vnsi {

VnUiProxy* grUIProxy(const VnDocumentPtr& document)
{
    static host::UiProxy proxy;
    return document.isNull() ? nullptr : &proxy;
}

void vnedPushUIScrap(int id)
{
    const std::lock_guard lock(host::scrapMutex);
    host::scraps.push_back(id);
}

void vnedPopUIScrap(int id)
{
    const std::lock_guard lock(host::scrapMutex);
    const auto found = std::find(host::scraps.rbegin(), host::scraps.rend(), id);
    if (found != host::scraps.rend())
        host::scraps.erase(std::next(found).base());
}

bool vnedIsRunningInUI()
{
    const auto* const application = qobject_cast<QApplication*>(QCoreApplication::instance());
    return application && application->thread() == QThread::currentThread();
}

bool vnedIsRunningInCommand()
{
    return host::runningCommands > 0;
}

} // namespace vnsi
