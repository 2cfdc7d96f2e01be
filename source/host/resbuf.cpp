#include "resbuf.h"

#include "platformextras.h"

#include <new>

namespace vnsi {

VnResbuf* vnsiutNewRb(int type)
{
    auto* const node = new (std::nothrow) VnResbuf;
    if (node)
        node->restype = type;
    return node;
}

wchar_t* vnsiutNewString(const OdString& text)
{
    const std::wstring_view characters = viewOf(text);
    auto* const copy = new (std::nothrow) wchar_t[characters.size() + 1];
    if (copy)
        copy[characters.copy(copy, characters.size())] = L'\0';
    return copy;
}

void vnsiutRelRb(VnResbuf* list)
{
    while (list) {
        VnResbuf* const next = list->rbnext;
        delete[] list->rstring;
        delete list;
        list = next;
    }
}

} // namespace vnsi
