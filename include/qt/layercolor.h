#pragma once

#include "CmColor.h"
#include "vnjson.h"

namespace vnsi {

/// A whole number, whichever of the two integer types it was written with: trees may keep them
/// apart. `fallback` where there is none.
inline OdInt64 wholeNumber(const IElementValueBase& node, const char* key, OdInt32 fallback = 0)
{
    const OdInt64 number = node.GetDataL(key, fallback);
    return number != fallback ? number : OdInt64{node.GetDataI(key, fallback)};
}

/// A colour as trees hold it: method 195 and an index, of which the low 16 bits count, or method
/// 194 and red, green and blue from the lowest byte up. Every other method reads as 194.
struct LayerColor
{
    OdInt64 method = 0;
    OdInt64 value = 0;

    static LayerColor ofIndex(int index) { return {OdCmEntityColor::kByACI, index}; }
    /// Of a colour as drawing files keep it, 0x00RRGGBB.
    static LayerColor ofRgb(OdUInt32 rgb)
    {
        return {
            OdCmEntityColor::kByColor, (rgb & 0xFF) << 16 | (rgb & 0xFF00) | (rgb >> 16 & 0xFF)};
    }
    static LayerColor read(
        const IElementValueBase& node, const char* methodKey, const char* valueKey)
    {
        return {wholeNumber(node, methodKey), wholeNumber(node, valueKey)};
    }

    void write(IElementValueBase& node, const char* methodKey, const char* valueKey) const
    {
        node.SetDataL(valueKey, value);
        node.SetDataL(methodKey, method);
    }

    bool isIndex() const { return method == OdCmEntityColor::kByACI; }
    OdInt16 index() const { return static_cast<OdInt16>(value); }
    OdUInt8 red() const { return static_cast<OdUInt8>(value); }
    OdUInt8 green() const { return static_cast<OdUInt8>(value >> 8); }
    OdUInt8 blue() const { return static_cast<OdUInt8>(value >> 16); }
    /// 0x00RRGGBB, for a true colour.
    OdUInt32 rgb() const
    {
        return static_cast<OdUInt32>(red()) << 16 | static_cast<OdUInt32>(green()) << 8 | blue();
    }
    /// What to hand to those who choose another: the index, or the value as it stands.
    OdInt64 chosenValue() const { return isIndex() ? index() : value; }
    /// The colour as the platform shows it.
    OdCmColor resolved() const
    {
        OdCmColor color(0, 0, 0);
        if (isIndex()) {
            color.setColorMethod(OdCmEntityColor::kByACI);
            color.setColorIndex(index());
        } else {
            color.setRGB(red(), green(), blue());
        }
        return color;
    }
};

} // namespace vnsi
