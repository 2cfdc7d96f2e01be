#pragma once

#include "OdaCommon.h"

/// A colour as drawings store it: by a method, and an index or a true colour.
class ODRX_EXPORT OdCmEntityColor
{
public:
    enum ColorMethod {
        kByLayer = 192,
        kByBlock = 193,
        kByColor = 194, ///< True colour.
        kByACI = 195    ///< Colour index.
    };

    OdCmEntityColor() = default;
    OdCmEntityColor(OdUInt8 red, OdUInt8 green, OdUInt8 blue) { setRGB(red, green, blue); }

    ColorMethod colorMethod() const { return m_method; }
    void setColorMethod(ColorMethod method) { m_method = method; }
    /// The index; 0 for a true colour.
    OdInt16 colorIndex() const { return m_index; }
    /// Sets the index and with it the method: 0 by block, 256 by layer, otherwise by index.
    void setColorIndex(OdInt16 index);
    void setRGB(OdUInt8 red, OdUInt8 green, OdUInt8 blue);

    /// The colour to show: the true colour, or what the index stands for.
    OdUInt8 red() const { return static_cast<OdUInt8>(displayed()); }
    OdUInt8 green() const { return static_cast<OdUInt8>(displayed() >> 8); }
    OdUInt8 blue() const { return static_cast<OdUInt8>(displayed() >> 16); }

    /// The colour of an index of the published 255-colour table; indices outside 1..255 give white.
    static ODCOLORREF lookUpRGB(int index);

private:
    ODCOLORREF displayed() const;

    ColorMethod m_method = kByColor;
    OdInt16 m_index = 0;
    ODCOLORREF m_rgb = 0;
};

class OdCmColor : public OdCmEntityColor
{
public:
    using OdCmEntityColor::OdCmEntityColor;
};
