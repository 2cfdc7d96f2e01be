#pragma once

#include "RxObject.h"
#include "vndocument.h"
#include "vnsidef.h"

#include <functional>

namespace vnsi {

/// What `VnUiProxy` reports while a request is under way.
enum VnRequestStatus { kVnRequestPending = -5018, kVnRequestDone = -5019 };

/// Work for the user-interface thread.
class VNSI_EXPORT VnsiRequest : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnsiRequest)
public:
    explicit VnsiRequest(std::function<void()> work) : m_work(std::move(work)) {}
    void run() const { m_work(); }

private:
    std::function<void()> m_work;
};

/// A command thread's way to the user interface of a document.
class VNSI_EXPORT VnUiProxy
{
public:
    virtual ~VnUiProxy();
    /// Names the current state of the interface for `vnedPushUIScrap`.
    virtual int scrapId() const = 0;
    /// Posts a request. "proxyRequest" takes a `VnsiRequest`; any other object under that name
    /// raises `OdError_NotThatKindOfClass`. Returns a `VnRequestStatus`.
    virtual int post(const OdString& name, const OdRxObjectPtr& request) = 0;
    /// Waits for the next reply to what was posted and returns its `VnRequestStatus`.
    virtual int serviceReply() = 0;
};

/// The service "Core/RequestSvr".
class VNSI_EXPORT VnRequestSvr : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnRequestSvr)
public:
    virtual VnDocumentPtr currentDocument() const = 0;
};

/// The user-interface proxy of a document; null for null.
VNSI_EXPORT VnUiProxy* grUIProxy(const VnDocumentPtr& document);
/// Marks the interface state `id` as left by a request, until `vnedPopUIScrap`.
VNSI_EXPORT void vnedPushUIScrap(int id);
VNSI_EXPORT void vnedPopUIScrap(int id);

/// Whether the caller is on the user-interface thread.
VNSI_EXPORT bool vnedIsRunningInUI();
/// Whether a command is running.
VNSI_EXPORT bool vnedIsRunningInCommand();

} // namespace vnsi
