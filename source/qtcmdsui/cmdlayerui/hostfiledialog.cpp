#include "hostfiledialog.h"

#include <algorithm>

namespace vnsi {

namespace {

constexpr wchar_t kCommonService[] = L"Dialog/Common";
constexpr int kChosen = 1;
constexpr int kSaveFlag = 0x1;
constexpr int kSeveralFlag = 0x1000;

/// Callers separate the patterns of an entry with ";", the host expects blanks.
OdString hostFilter(const OdString& filter)
{
    std::wstring text(filter.view());
    std::replace(text.begin(), text.end(), L';', L' ');
    return OdString(text);
}

/// "defawlt" is the key's agreed spelling.
VnJsonPtr makeRequest(const OdString& title, const OdString& defaultName, const OdString& filter)
{
    VnJsonPtr request = ElementValue::createObject(2);
    request->set("title", title).set("defawlt", defaultName).set("filter", hostFilter(filter));
    return request;
}

void appendPath(VnResbuf**& end, const OdString& path)
{
    VnResbuf* node = vnsiutNewRb(kVnRtString);
    if (!node)
        return;
    node->rstring = vnsiutNewString(path);
    *end = node;
    end = &node->rbnext;
}

VnResbuf* chosenPaths(const IElementValueBase& answer, bool several)
{
    VnResbuf* list = nullptr;
    VnResbuf** end = &list;
    const VnJsonPtr paths = several ? answer.GetDataJ("filePaths") : VnJsonPtr();
    for (int i = 0, count = paths.ArrayCount(); i < count; ++i)
        appendPath(end, paths(i)->asSW());
    if (!list)
        appendPath(end, answer.GetDataSW("filePath"));
    return list;
}

} // namespace

int vnqtGetFileName(const OdString& title, const OdString& defaultName, const OdString& filter,
    int flags, OdString& path, QWidget* parent)
{
    VnJsonPtr request = makeRequest(title, defaultName, filter);
    request->set("flags", flags);
    const VnJsonPtr answer =
        vnuiShowModelDialogEx(kCommonService, L"FileDialogBox", request, {}, parent);
    const int result = answer->GetDataI("result");
    if (result == kChosen)
        path = answer->GetDataSW("filePath");
    return result;
}

int vnqtGetNavFileName(const OdString& title, const OdString& defaultName, const OdString& caption,
    const OdString& dialogName, const OdString& filter, int flags, VnResbuf*& paths,
    QWidget* parent)
{
    const bool several = flags & kSeveralFlag;
    VnJsonPtr request = makeRequest(title, defaultName, filter);
    request->set("caption", caption)
        .set("dlgname", dialogName)
        .set("Open", !(flags & kSaveFlag))
        .set("MutiFile", several) // The key's agreed spelling.
        .set("flags", flags);
    const VnJsonPtr answer =
        vnuiShowModelDialogEx(kCommonService, L"FileNavDialogBox", request, {}, parent);
    const int result = answer->GetDataI("result");
    if (result == kChosen)
        paths = chosenPaths(*answer, several);
    return result;
}

} // namespace vnsi
