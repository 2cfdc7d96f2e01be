#pragma once

// What the module needs of this host that the interface leaves open.

#include "host.h"

#include <functional>

#pragma GCC visibility push(default)

namespace hostextras {

using vnsi::IElementValueBase;
using vnsi::VnJsonPtr;

/// A node of its own that holds `value`.
VnJsonPtr scalarOf(IElementValueBase::Scalar value);
VnJsonPtr createArray(int capacity);

inline void append(const VnJsonPtr& array, const VnJsonPtr& node)
{
    array->elements.push_back(node);
}

inline void appendInt(const VnJsonPtr& array, OdInt32 value)
{
    append(array, scalarOf(value));
}

inline void appendText(const VnJsonPtr& array, const OdString& value)
{
    append(array, scalarOf(value));
}

inline void removeItem(const VnJsonPtr& array, int index)
{
    array->elements.erase(array->elements.begin() + index);
}

template <class T>
T valueOf(const VnJsonPtr& element, const T& fallback)
{
    const T* const value = std::get_if<T>(&element->scalar);
    return value && element->form == IElementValueBase::Form::Scalar ? *value : fallback;
}

inline OdInt32 intOf(const VnJsonPtr& element, OdInt32 fallback)
{
    return valueOf(element, fallback);
}

inline OdString textOf(const VnJsonPtr& element)
{
    return valueOf(element, OdString());
}

inline VnJsonPtr copyOf(const VnJsonPtr& node)
{
    return node->copy();
}

inline void removeKey(IElementValueBase& object, const char* key)
{
    object.hang(key, {});
}

inline std::string jsonOf(const VnJsonPtr&)
{
    return "{}";
}

inline OdInt64 numberOf(const OdDbObjectId&)
{
    return 0;
}

OdArray<ODCOLORREF> currentColorTable(const OdRxObjectPtr& documentManager);
void callHelp(const OdRxObjectPtr& editPrimitiveServer, int topic);

/// Posts to the thread of the user interface; done as soon as it is asked how far it is.
struct UiProxy
{
};

UiProxy* currentProxy(const OdRxObjectPtr& requestServer);
inline int scrapId(const UiProxy&)
{
    return 7;
}
OdRxObjectPtr makeRequest(const std::function<void()>& work);
int post(UiProxy& proxy, const OdString& name, const OdRxObjectPtr& request);
inline int serviceReply(UiProxy&)
{
    return -5019;
}

using ResultBuffer = vnsi::VnText;

inline void setText(ResultBuffer& node, wchar_t* text)
{
    node.text = text;
}

inline void setNext(ResultBuffer& node, ResultBuffer* next)
{
    node.next = next;
}

class DialogService : public vnsi::VnUiService
{
public:
    virtual vnsi::VnUiModeDialogBasePtr makeDialog(const OdString& dialogName) = 0;
    vnsi::VnUiModeDialogBasePtr dialogOf(const OdString& name) final { return makeDialog(name); }
};

} // namespace hostextras

#pragma GCC visibility pop
