#pragma once

#include "CmColor.h"
#include "OdArray.h"
#include "RxObject.h"
#include "vnrequests.h"

#include <functional>

// The services in this host's service dictionary, and the interfaces that are reached through them.

namespace vnsi {

/// An open drawing as the dialogs see it.
class VNSI_EXPORT VnDocument : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnDocument)
public:
    /// The RGB colours of the index colours; the position in the array is the index.
    virtual const OdArray<ODCOLORREF>& colorTable() const = 0;
};

using VnDocumentPtr = OdSmartPtr<VnDocument>;

/// The document manager, registered as the service "Core/DocMgr".
class VNSI_EXPORT VnDocMgr : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnDocMgr)
public:
    /// The drawing in the foreground; null when no drawing is open.
    virtual VnDocumentPtr currentDocument() const = 0;
};

/// The help service, registered as "Core/EditPrimitiveServer".
class VNSI_EXPORT VnEditPrimitiveServer : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnEditPrimitiveServer)
public:
    /// Shows the help of the running command. `topic` 0 is its start page.
    virtual void help(int topic) = 0;
};

/// The request server, registered as the service "Core/RequestSvr".
class VNSI_EXPORT VnRequestSvr : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnRequestSvr)
public:
    virtual VnDocumentPtr currentDocument() const = 0;
};

/// A piece of work that is to run on the user-interface thread.
class VNSI_EXPORT VnsiRequest : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnsiRequest)
public:
    explicit VnsiRequest(std::function<void()> work) : m_work(std::move(work)) {}
    void run() const { m_work(); }

private:
    std::function<void()> m_work;
};

/// The status that `VnUiProxy` reports for a posted request.
enum VnRequestStatus { kVnRequestPending = -5018, kVnRequestDone = -5019 };

/// Lets a thread that runs a command reach the user interface of a document.
class VNSI_EXPORT VnUiProxy
{
public:
    virtual ~VnUiProxy();
    /// The number of the interface's current state, to be passed to `vnedPushUIScrap`.
    virtual int scrapId() const = 0;
    /// Posts a request. "proxyRequest" takes a `VnsiRequest`; any other object under that name
    /// raises `OdError_NotThatKindOfClass`. Returns a `VnRequestStatus`.
    virtual int post(const OdString& name, const OdRxObjectPtr& request) = 0;
    /// Waits for the next reply to what was posted and returns its `VnRequestStatus`.
    virtual int serviceReply() = 0;
};

} // namespace vnsi
