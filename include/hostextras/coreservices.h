#pragma once

#include "CmColor.h"
#include "OdArray.h"
#include "RxObject.h"
#include "vnrequests.h"

#include <functional>

// The services that this host has in its dictionary, and what is reached through them.

namespace vnsi {

/// An open drawing as dialogs see it.
class VNSI_EXPORT VnDocument : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnDocument)
public:
    /// The colours that indices stand for, by index.
    virtual const OdArray<ODCOLORREF>& colorTable() const = 0;
};

using VnDocumentPtr = OdSmartPtr<VnDocument>;

/// The service "Core/DocMgr".
class VNSI_EXPORT VnDocMgr : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnDocMgr)
public:
    /// The drawing in front; null when none is open.
    virtual VnDocumentPtr currentDocument() const = 0;
};

/// The service "Core/EditPrimitiveServer".
class VNSI_EXPORT VnEditPrimitiveServer : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnEditPrimitiveServer)
public:
    /// Shows the help of what is running; `topic` 0 is its start page.
    virtual void help(int topic) = 0;
};

/// The service "Core/RequestSvr".
class VNSI_EXPORT VnRequestSvr : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnRequestSvr)
public:
    virtual VnDocumentPtr currentDocument() const = 0;
};

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

/// What `VnUiProxy` reports while a request is under way.
enum VnRequestStatus { kVnRequestPending = -5018, kVnRequestDone = -5019 };

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

} // namespace vnsi
