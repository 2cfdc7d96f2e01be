#pragma once

#include "DbObjectId.h"
#include "OdArray.h"
#include "OdString.h"
#include "RxObjectImpl.h"
#include "coreservices.h"
#include "resbuf.h"
#include "vndialogs.h"
#include "vnjson.h"

#include <functional>
#include <string>

/// What the layer module needs of a host beyond the names that every host's headers have. A host
/// brings a header of this name with the same functions and types, found by the include path; only
/// the module's folder hostapi/ includes it. No handle passed in is empty.
namespace hostextras {

// The value tree: arrays, and what else its setters and getters do not reach.

/// A new array without elements; `capacity` says how many are coming.
VNSI_EXPORT vnsi::VnJsonPtr createArray(int capacity);

/// Appends a node, which is shared and not copied.
VNSI_EXPORT void append(const vnsi::VnJsonPtr& array, const vnsi::VnJsonPtr& node);
VNSI_EXPORT void appendInt(const vnsi::VnJsonPtr& array, OdInt32 value);
VNSI_EXPORT void appendText(const vnsi::VnJsonPtr& array, const OdString& value);

/// Removes the element at `index`, which is one of the array's.
VNSI_EXPORT void removeItem(const vnsi::VnJsonPtr& array, int index);

/// The number that an element of an array is; `fallback` for an element of another type.
VNSI_EXPORT OdInt32 intOf(const vnsi::VnJsonPtr& element, OdInt32 fallback);

/// The text that an element of an array is; empty for an element of another type.
VNSI_EXPORT OdString textOf(const vnsi::VnJsonPtr& element);

/// A deep copy, which shares no node with the original.
VNSI_EXPORT vnsi::VnJsonPtr copyOf(const vnsi::VnJsonPtr& node);

/// Takes a key out of an object; nothing where it has none such.
VNSI_EXPORT void removeKey(vnsi::IElementValueBase& object, const char* key);

/// The node as one line of JSON in UTF-8, for the request log. Integers beyond 2^53 are rounded,
/// and what is nested deeper than 1024 containers is left out as null.
VNSI_EXPORT std::string jsonOf(const vnsi::VnJsonPtr& node);

/// The number under which the linetype pickers name a record of the drawing; 0 for none.
inline OdInt64 numberOf(const OdDbObjectId& id)
{
    return static_cast<OdInt64>(id.getHandle());
}

// Services that are found in the service dictionary and used as what they are.

/// The colours of the indices in the current document, of the service "Core/DocMgr"; empty where
/// no document is open.
inline OdArray<ODCOLORREF> currentColorTable(const OdRxObjectPtr& documentManager)
{
    const auto manager = vnsi::VnDocMgr::cast(documentManager.get());
    const auto document = manager ? manager->currentDocument() : vnsi::VnDocumentPtr();
    return document ? document->colorTable() : OdArray<ODCOLORREF>();
}

/// Calls the help entry of the service "Core/EditPrimitiveServer".
inline void callHelp(const OdRxObjectPtr& editPrimitiveServer, int topic)
{
    if (const auto server = vnsi::VnEditPrimitiveServer::cast(editPrimitiveServer.get()))
        server->help(topic);
}

// The way of a command's thread to the user interface.

using UiProxy = vnsi::VnUiProxy;

/// The proxy of the current document of the service "Core/RequestSvr"; null where there is none.
inline UiProxy* currentProxy(const OdRxObjectPtr& requestServer)
{
    const auto server = vnsi::VnRequestSvr::cast(requestServer.get());
    return server ? vnsi::grUIProxy(server->currentDocument()) : nullptr;
}

/// The mark for the interface's present state, as `vnedPushUIScrap` takes it.
inline int scrapId(const UiProxy& proxy)
{
    return proxy.scrapId();
}

/// A `VnsiRequest` that carries `work`.
inline OdRxObjectPtr makeRequest(const std::function<void()>& work)
{
    return OdRxObjectImpl<vnsi::VnsiRequest>::createObject(work);
}

/// Posts a request under a name. Returns the status, which is -5019 when it is done already.
inline int post(UiProxy& proxy, const OdString& name, const OdRxObjectPtr& request)
{
    return proxy.post(name, request);
}

/// Waits for the next reply to what was posted; returns the status, -5019 when it is done.
inline int serviceReply(UiProxy& proxy)
{
    return proxy.serviceReply();
}

// Result-buffer lists.

using ResultBuffer = vnsi::VnResbuf;

/// Hands the text, which `vnsiutNewString` made, to a string node.
inline void setText(ResultBuffer& node, wchar_t* text)
{
    node.rstring = text;
}

inline void setNext(ResultBuffer& node, ResultBuffer* next)
{
    node.rbnext = next;
}

// The dialog service.

/// A service under the host's own name for its operation.
class DialogService : public vnsi::VnUiService
{
public:
    /// A new dialog; empty for a name that is not known.
    virtual vnsi::VnUiModeDialogBasePtr makeDialog(const OdString& dialogName) = 0;

    vnsi::VnUiModeDialogBasePtr createDialog(const OdString& dialogName) final
    {
        return makeDialog(dialogName);
    }
};

} // namespace hostextras
