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

/// What the layer module needs from a host beyond the names that every host's headers have. Each
/// host brings its own header of this name with the same functions and types, and the include path
/// selects it. Only the module's folder hostapi/ includes it. Handles passed to these functions
/// must not be empty.
namespace hostextras {

// The value tree: arrays, and operations that the tree's own getters and setters do not offer.

/// Returns a new array without elements. `capacity` is the number of elements to reserve room for.
VNSI_EXPORT vnsi::VnJsonPtr createArray(int capacity);

/// Appends a node to an array. The node is shared, not copied.
VNSI_EXPORT void append(const vnsi::VnJsonPtr& array, const vnsi::VnJsonPtr& node);
VNSI_EXPORT void appendInt(const vnsi::VnJsonPtr& array, OdInt32 value);
VNSI_EXPORT void appendText(const vnsi::VnJsonPtr& array, const OdString& value);

/// Removes the element at `index`, which must lie inside the array.
VNSI_EXPORT void removeItem(const vnsi::VnJsonPtr& array, int index);

/// The value of an array element that is an integer; `fallback` for an element of another type.
VNSI_EXPORT OdInt32 intOf(const vnsi::VnJsonPtr& element, OdInt32 fallback);

/// The value of an array element that is a text; empty for an element of another type.
VNSI_EXPORT OdString textOf(const vnsi::VnJsonPtr& element);

/// A deep copy, which shares no node with the original.
VNSI_EXPORT vnsi::VnJsonPtr copyOf(const vnsi::VnJsonPtr& node);

/// Removes a key from an object. Does nothing when the object does not have the key.
VNSI_EXPORT void removeKey(vnsi::IElementValueBase& object, const char* key);

/// The node as one line of JSON in UTF-8, for the request log. Integers beyond 2^53 are rounded,
/// and what is nested deeper than 1024 containers is left out as null.
VNSI_EXPORT std::string jsonOf(const vnsi::VnJsonPtr& node);

/// The number by which the linetype pickers name a record of the drawing; 0 for a null id.
inline OdInt64 numberOf(const OdDbObjectId& id)
{
    return static_cast<OdInt64>(id.getHandle());
}

// Services that are found in the service dictionary, converted to their interfaces.

/// The index colours of the current document, obtained from the service "Core/DocMgr". Empty when
/// no document is open.
inline OdArray<ODCOLORREF> currentColorTable(const OdRxObjectPtr& documentManager)
{
    const auto manager = vnsi::VnDocMgr::cast(documentManager.get());
    const auto document = manager ? manager->currentDocument() : vnsi::VnDocumentPtr();
    return document ? document->colorTable() : OdArray<ODCOLORREF>();
}

/// Shows help topic `topic` through the service "Core/EditPrimitiveServer".
inline void callHelp(const OdRxObjectPtr& editPrimitiveServer, int topic)
{
    if (const auto server = vnsi::VnEditPrimitiveServer::cast(editPrimitiveServer.get()))
        server->help(topic);
}

// How a command's thread reaches the user interface.

using UiProxy = vnsi::VnUiProxy;

/// The proxy of the current document, obtained from the service "Core/RequestSvr"; null when there
/// is no document.
inline UiProxy* currentProxy(const OdRxObjectPtr& requestServer)
{
    const auto server = vnsi::VnRequestSvr::cast(requestServer.get());
    return server ? vnsi::grUIProxy(server->currentDocument()) : nullptr;
}

/// The number of the interface's current state, as `vnedPushUIScrap` takes it.
inline int scrapId(const UiProxy& proxy)
{
    return proxy.scrapId();
}

/// Makes a `VnsiRequest` that runs `work`.
inline OdRxObjectPtr makeRequest(const std::function<void()>& work)
{
    return OdRxObjectImpl<vnsi::VnsiRequest>::createObject(work);
}

/// Posts a request under a name. Returns its status, which is -5019 when the request is already
/// done.
inline int post(UiProxy& proxy, const OdString& name, const OdRxObjectPtr& request)
{
    return proxy.post(name, request);
}

/// Waits for the next reply to a posted request. Returns its status, -5019 when the request is
/// done.
inline int serviceReply(UiProxy& proxy)
{
    return proxy.serviceReply();
}

// Result-buffer lists.

using ResultBuffer = vnsi::VnResbuf;

/// Gives a string node its text. The text must come from `vnsiutNewString`; the node's list owns it
/// from here on.
inline void setText(ResultBuffer& node, wchar_t* text)
{
    node.rstring = text;
}

inline void setNext(ResultBuffer& node, ResultBuffer* next)
{
    node.rbnext = next;
}

// The dialog service.

/// Base of a dialog service. It leads from the host's name for the operation to `makeDialog`.
class DialogService : public vnsi::VnUiService
{
public:
    /// Makes a new dialog; returns an empty pointer for an unknown name.
    virtual vnsi::VnUiModeDialogBasePtr makeDialog(const OdString& dialogName) = 0;

    vnsi::VnUiModeDialogBasePtr createDialog(const OdString& dialogName) final
    {
        return makeDialog(dialogName);
    }
};

} // namespace hostextras
