#include "vncolortext.h"

#include "hosttexts.h"
#include "vnstrings.h"

#include <string>

namespace vnsi {

namespace {

constexpr const char* kNames[] = {QT_TRANSLATE_NOOP("host", "红"), QT_TRANSLATE_NOOP("host", "黄"),
    QT_TRANSLATE_NOOP("host", "绿"), QT_TRANSLATE_NOOP("host", "青"),
    QT_TRANSLATE_NOOP("host", "蓝"), QT_TRANSLATE_NOOP("host", "洋红"),
    QT_TRANSLATE_NOOP("host", "白")};

OdString indexText(int index)
{
    if (index >= 1 && index <= static_cast<int>(std::size(kNames)))
        return vnutQStringToOdString(host::Texts::tr(kNames[index - 1]));
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
