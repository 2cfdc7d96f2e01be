#pragma once

#include "CmColor.h"
#include "vnjson.h"

namespace vnsi {

/// Reads a whole number that may have been written with either integer type, because trees may keep
/// the two types apart. Returns `fallback` when the key holds no integer.
inline OdInt64 wholeNumber(const IElementValueBase& node, const char* key, OdInt32 fallback = 0)
{
    const OdInt64 number = node.GetDataL(key, fallback);
    return number != fallback ? number : OdInt64{node.GetDataI(key, fallback)};
}

/// A colour as value trees hold it. With method 195 the low 16 bits of the value are a colour
/// index. With method 194 the value holds red, green and blue, with red in the lowest byte. Every
/// other method reads as 194.
struct LayerColor
{
    OdInt64 method = 0;
    OdInt64 value = 0;

    static LayerColor ofIndex(int index) { return {OdCmEntityColor::kByACI, index}; }
    /// Makes a true colour from the form that drawing files use, 0x00RRGGBB.
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
    /// The true colour as 0x00RRGGBB. Only meaningful for a true colour.
    OdUInt32 rgb() const
    {
        return static_cast<OdUInt32>(red()) << 16 | static_cast<OdUInt32>(green()) << 8 | blue();
    }
    /// The value to hand to a colour chooser: the index, or for a true colour the unchanged value.
    OdInt64 chosenValue() const { return isIndex() ? index() : value; }
    /// The colour as the platform's type.
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
