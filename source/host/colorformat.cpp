#include "vncolortext.h"

#include <string>

namespace vnsi {

namespace {

constexpr const wchar_t* kNames[] = {L"红", L"黄", L"绿", L"青", L"蓝", L"洋红", L"白"};

OdString indexText(int index)
{
    if (index >= 1 && index <= static_cast<int>(std::size(kNames)))
        return kNames[index - 1];
    return std::to_wstring(index).c_str();
}

} // namespace

OdString formatColor(const OdCmColor& color, const OdArray<ODCOLORREF>&, OdDbObjectId)
{
    switch (color.colorMethod()) {
    case OdCmEntityColor::kByLayer:
        return L"ByLayer";
    case OdCmEntityColor::kByBlock:
        return L"ByBlock";
    case OdCmEntityColor::kByACI:
        return indexText(color.colorIndex());
    case OdCmEntityColor::kByColor:
        break;
    }
    const std::wstring parts = std::to_wstring(color.red()) + L',' +
                               std::to_wstring(color.green()) + L',' +
                               std::to_wstring(color.blue());
    return parts.c_str();
}

} // namespace vnsi
